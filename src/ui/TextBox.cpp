#include "ui/TextBox.h"

namespace {

DWORD StyleOf(TextBox::Kind kind) {
    constexpr DWORD kBox = WS_TABSTOP | WS_GROUP;
    switch (kind) {
    case TextBox::Kind::Password: return kBox | ES_AUTOHSCROLL | ES_PASSWORD;
    case TextBox::Kind::Notice: return kBox | ES_MULTILINE | ES_READONLY;
    default: return kBox | ES_AUTOHSCROLL;
    }
}

} // namespace

TextBox::TextBox(Form* form, const wchar_t* name, const Placement& place, Kind kind, Action::Plain change)
    : Control(form, name, place, {L"Edit", StyleOf(kind), kind == Kind::Notice ? DWORD{0} : WS_EX_CLIENTEDGE}),
      change_(form, change) {}

void TextBox::OnCreated() {
    // The longest line that a settings file can hold.
    constexpr WPARAM kLongest = 32766;
    SendMessageW(Handle(), EM_SETLIMITTEXT, kLongest, 0);
}

void TextBox::SelectAll() { SendMessageW(Handle(), EM_SETSEL, 0, -1); }

void TextBox::OnCommand(WORD notification) {
    if (notification == EN_CHANGE) Raise(L"Change", change_);
}
