// What only a real mouse and a real session show of the main window.

#include "support/JourneyDialogs.h"

#include <commctrl.h>

TEST_CASE_FIXTURE(Journey, "a tip comes when the mouse rests on a row, not when the window comes up below it") {
    StartAct(ListRealDatabase(L"Customers"));
    HWND list = JourneyDialogs::ListOf(StartToMainWindow());
    const POINT row = JourneyDialogs::MiddleOfRow(list, 0);
    REQUIRE(JourneyWindow::InFront(list));
    CHECK(JourneyWindow::Find(Program().Id(), TOOLTIPS_CLASSW) == nullptr);
    for (const LONG step : {2, 4, 6}) JourneyWindow::MoveMouse(list, {row.x + step, row.y});
    CHECK(Within([&] {
        HWND tip = JourneyWindow::Find(Program().Id(), TOOLTIPS_CLASSW);
        return IsWindowVisible(tip) != FALSE;
    }));
}
