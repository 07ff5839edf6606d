#include "support/JourneyDialogs.h"

#include <commctrl.h>

namespace JourneyDialogs {

void StartActElsewhere(Journey& journey) {
    const std::wstring path = journey.File(L"Elsewhere.dbf");
    JourneyStores::FileBytes(path, "dBASE");
    journey.StartAct(path);
}

HWND OpenByMenu(const Journey& journey, const wchar_t* item, const wchar_t* dialogClass) {
    JourneyWindow::ClickMenu(Journey::Window(journey.Program(), L"frmMain"), item);
    return Journey::Window(journey.Program(), dialogClass);
}

HWND OpenByButton(const Journey& journey, HWND form, const wchar_t* button, const wchar_t* dialogClass) {
    JourneyWindow::Click(form, button);
    return Journey::Window(journey.Program(), dialogClass);
}

void Type(HWND form, const Texts& texts) {
    for (const auto& [box, text] : texts) {
        CAPTURE(box);
        HWND control = JourneyWindow::Control(form, box);
        SendMessageW(control, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text.c_str()));
        REQUIRE(JourneyWindow::Text(control) == text);
    }
}

void Leave(HWND dialog, const wchar_t* button) {
    JourneyWindow::Click(dialog, button);
    REQUIRE(Within([&] { return !IsWindow(dialog); }));
}

HWND ListOf(HWND mainWindow) { return JourneyWindow::Control(mainWindow, L"ListView1"); }

POINT MiddleOfRow(HWND list, int row) {
    const auto height = [list](int rows) {
        return HIWORD(SendMessageW(list, LVM_APPROXIMATEVIEWRECT, static_cast<WPARAM>(rows), -1));
    };
    RECT titles{};
    GetClientRect(reinterpret_cast<HWND>(SendMessageW(list, LVM_GETHEADER, 0, 0)), &titles);
    const LONG rowHeight = height(2) - height(1);
    return {20, titles.bottom + row * rowHeight + rowHeight / 2};
}

int SelectedRow(HWND list) {
    return static_cast<int>(SendMessageW(list, LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED));
}

} // namespace JourneyDialogs
