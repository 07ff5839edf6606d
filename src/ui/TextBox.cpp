#include "ui/TextBox.h"

TextBox::TextBox(Form* form, const wchar_t* name, Twips place, Kind kind, Frame* container)
    : Control(form, name, place,
              {L"Edit",
               static_cast<DWORD>(ES_AUTOHSCROLL | WS_TABSTOP | WS_GROUP | (kind == Kind::Password ? ES_PASSWORD : 0)),
               WS_EX_CLIENTEDGE},
              container) {}

void TextBox::OnCreated() {
    // The longest line that a settings file can hold.
    constexpr WPARAM kLongest = 32766;
    SendMessageW(Handle(), EM_SETLIMITTEXT, kLongest, 0);
}

void TextBox::SelectAll() { SendMessageW(Handle(), EM_SETSEL, 0, -1); }
