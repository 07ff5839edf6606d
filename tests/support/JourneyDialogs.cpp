#include "support/JourneyDialogs.h"

#include "support/Text.h"

#include <array>

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

void Check(HWND form, const wchar_t* box, bool checked) {
    HWND control = JourneyWindow::Control(form, box);
    if (JourneyWindow::Checked(control) != checked) JourneyWindow::Click(form, box);
    REQUIRE(Within([&] { return JourneyWindow::Checked(control) == checked; }));
}

void ShowTab(HWND dialog, int tab, const wchar_t* tabs) {
    HWND control = JourneyWindow::Control(dialog, tabs);
    // As a click does, this tells the dialog of the change.
    PostMessageW(control, TCM_SETCURFOCUS, static_cast<WPARAM>(tab), 0);
    REQUIRE(Within([&] { return SendMessageW(control, TCM_GETCURSEL, 0, 0) == tab; }));
}

void Leave(HWND dialog, const wchar_t* button) {
    JourneyWindow::Click(dialog, button);
    REQUIRE(Within([&] { return !IsWindow(dialog); }));
}

std::wstring Lines(HWND listMaintenance) {
    HWND list = JourneyWindow::Control(listMaintenance, L"lstDB");
    std::vector<std::wstring> lines;
    const auto count = static_cast<WPARAM>(SendMessageW(list, LB_GETCOUNT, 0, 0));
    for (WPARAM line = 0; line < count; ++line) {
        std::array<wchar_t, 256> text{};
        SendMessageW(list, LB_GETTEXT, line, reinterpret_cast<LPARAM>(text.data()));
        lines.emplace_back(text.data());
    }
    return Text::Join(lines, L';');
}

std::wstring Rows(HWND mainWindow) {
    const ForeignList list(ListOf(mainWindow));
    std::vector<std::wstring> names;
    for (int row = 0; row < list.Rows(); ++row) names.push_back(list.Cell(row, 0));
    return Text::Join(names, L';');
}

HWND ListOf(HWND mainWindow) { return JourneyWindow::Control(mainWindow, L"ListView1"); }

void DoubleClickRow(HWND mainWindow, int row) {
    HWND control = ListOf(mainWindow);
    REQUIRE(JourneyWindow::InFront(control));
    const RECT place = ForeignList(control).CellPlace(row, 0);
    JourneyWindow::DoubleClick(control, {(place.left + place.right) / 2, (place.top + place.bottom) / 2});
}

} // namespace JourneyDialogs
