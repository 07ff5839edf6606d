#include "ui/ComboBox.h"

namespace {

constexpr ControlKind kKind{L"ComboBox", CBS_DROPDOWNLIST | WS_VSCROLL | WS_TABSTOP | WS_GROUP};

} // namespace

ComboBox::ComboBox(Form* form, const wchar_t* name, const Placement& place, Action::Plain click)
    : Control(form, name, place, kKind), click_(form, click) {}

ComboBox::ComboBox(Form* form, const wchar_t* name, const Placement& place, Action::Indexed click, int index)
    : Control(form, name, place, kKind, index), click_(form, click, index) {}

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

std::wstring ComboBox::Item(int index) const {
    const LRESULT length = SendMessageW(Handle(), CB_GETLBTEXTLEN, static_cast<WPARAM>(index), 0);
    if (length == CB_ERR) return {};
    std::wstring text(static_cast<size_t>(length) + 1, L'\0');
    SendMessageW(Handle(), CB_GETLBTEXT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(text.data()));
    text.pop_back();
    return text;
}

std::wstring ComboBox::SelectedText() const { return Item(ListIndex()); }

void ComboBox::Select(const std::wstring& text) {
    const auto count = static_cast<int>(SendMessageW(Handle(), CB_GETCOUNT, 0, 0));
    int index = 0;
    while (index < count && Item(index) != text) ++index;
    ListIndex(index < count ? index : -1);
}

void ComboBox::OnCommand(WORD notification) {
    if (notification == CBN_SELCHANGE) Raise(L"Click", click_);
}
