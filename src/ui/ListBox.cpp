#include "ui/ListBox.h"

#include <utility>

ListBox::ListBox(Form* form, const wchar_t* name, Twips place, Action click)
    : Control(form, name, place,
              {L"ListBox", LBS_NOTIFY | LBS_NOINTEGRALHEIGHT | WS_VSCROLL | WS_TABSTOP | WS_GROUP, WS_EX_CLIENTEDGE}),
      click_(std::move(click)) {}

void ListBox::InsertItem(const std::wstring& text, int index) {
    SendMessageW(Handle(), LB_INSERTSTRING, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(text.c_str()));
}

void ListBox::RemoveItem(int index) { SendMessageW(Handle(), LB_DELETESTRING, static_cast<WPARAM>(index), 0); }
void ListBox::Clear() { SendMessageW(Handle(), LB_RESETCONTENT, 0, 0); }
int ListBox::ListCount() const { return static_cast<int>(SendMessageW(Handle(), LB_GETCOUNT, 0, 0)); }

std::wstring ListBox::List(int index) const {
    const LRESULT length = SendMessageW(Handle(), LB_GETTEXTLEN, static_cast<WPARAM>(index), 0);
    if (length == LB_ERR) return {};
    std::wstring text(static_cast<size_t>(length) + 1, L'\0');
    SendMessageW(Handle(), LB_GETTEXT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(text.data()));
    text.pop_back();
    return text;
}

int ListBox::ListIndex() const { return static_cast<int>(SendMessageW(Handle(), LB_GETCURSEL, 0, 0)); }

void ListBox::ListIndex(int index) {
    SendMessageW(Handle(), LB_SETCURSEL, static_cast<WPARAM>(index), 0);
    Raise(L"Click", click_);
}

LONG_PTR ListBox::ItemData(int index) const {
    return SendMessageW(Handle(), LB_GETITEMDATA, static_cast<WPARAM>(index), 0);
}

void ListBox::ItemData(int index, LONG_PTR datum) {
    SendMessageW(Handle(), LB_SETITEMDATA, static_cast<WPARAM>(index), datum);
}

void ListBox::OnCommand(WORD notification) {
    if (notification == LBN_SELCHANGE) Raise(L"Click", click_);
}
