#include "ui/ComboBox.h"

ComboBox::ComboBox(Form* form, const wchar_t* name, Twips place)
    : Control(form, name, place, {L"ComboBox", CBS_DROPDOWNLIST | WS_VSCROLL | WS_TABSTOP | WS_GROUP}) {}

void ComboBox::AddItem(const std::wstring& text) {
    SendMessageW(Handle(), CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text.c_str()));
}

int ComboBox::ListIndex() const { return static_cast<int>(SendMessageW(Handle(), CB_GETCURSEL, 0, 0)); }
void ComboBox::ListIndex(int index) { SendMessageW(Handle(), CB_SETCURSEL, static_cast<WPARAM>(index), 0); }

Twips ComboBox::WindowPlace() const {
    // The height of a combo box counts its opened list.
    constexpr int kOpenedList = 1800;
    Twips place = Control::WindowPlace();
    place.Height += kOpenedList;
    return place;
}
