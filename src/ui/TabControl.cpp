#include "ui/TabControl.h"

#include <utility>

TabControl::TabControl(Form* form, const wchar_t* name, const Placement& place, const Handler<void, int>& click)
    : Control(form, name, place, {WC_TABCONTROLW, WS_CLIPSIBLINGS | WS_TABSTOP | WS_GROUP}), click_(click) {}

void TabControl::AddTab(const std::wstring& caption) {
    std::wstring text = caption;
    TCITEMW item{};
    item.mask = TCIF_TEXT;
    item.pszText = text.data();
    const auto count = static_cast<WPARAM>(SendMessageW(Handle(), TCM_GETITEMCOUNT, 0, 0));
    SendMessageW(Handle(), TCM_INSERTITEMW, count, reinterpret_cast<LPARAM>(&item));
}

void TabControl::Tab(int tab) {
    if (tab == tab_) return;
    SendMessageW(Handle(), TCM_SETCURSEL, static_cast<WPARAM>(tab), 0);
    const int previous = std::exchange(tab_, tab);
    RaiseCall(L"Click", [this, previous] { click_(previous); });
}

bool TabControl::TakesKey(const KeyPress& press) {
    if (press.Key != VK_TAB || !press.Ctrl || press.Alt) return false;
    const int count = static_cast<int>(SendMessageW(Handle(), TCM_GETITEMCOUNT, 0, 0));
    Tab((tab_ + (press.Shift ? count - 1 : 1)) % count);
    return true;
}

LRESULT TabControl::OnNotify(NMHDR& header) {
    if (header.code == TCN_SELCHANGE) {
        const int previous = std::exchange(tab_, static_cast<int>(SendMessageW(Handle(), TCM_GETCURSEL, 0, 0)));
        RaiseCall(L"Click", [this, previous] { click_(previous); });
    }
    return 0;
}
