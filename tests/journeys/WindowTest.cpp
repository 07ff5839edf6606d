// What only a real mouse and a real session show of the main window.

#include "support/Journey.h"

#include <commctrl.h>

TEST_CASE_FIXTURE(Journey, "a tip comes when the mouse rests on a row, not when the window comes up below it") {
    StartAct(ListRealDatabase(L"Customers"));
    HWND list = FindControl(StartToMainWindow(), L"ListView1");
    const POINT row = MiddleOfRow(list, 0);
    REQUIRE(InFront(list));
    CHECK(FindWindowOf(Program().Id(), TOOLTIPS_CLASSW) == nullptr);
    for (const LONG step : {2, 4, 6}) MoveMouse(list, {row.x + step, row.y});
    CHECK(Within([&] {
        HWND tip = FindWindowOf(Program().Id(), TOOLTIPS_CLASSW);
        return IsWindowVisible(tip) != FALSE;
    }));
}
