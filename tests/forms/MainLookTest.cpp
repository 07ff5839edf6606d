// How the main window follows its size and its labels.

#include "support/ActDesk.h"
#include "support/DialogScript.h"
#include "support/Look.h"
#include "support/Wide.h"

#include <algorithm>

namespace {

bool HoldsBitmap(const frmMain& window) {
    const LRESULT styles = SendMessageW(window.ListView1.Handle(), LVM_GETEXTENDEDLISTVIEWSTYLE, 0, 0);
    return (styles & LVS_EX_DOUBLEBUFFER) != 0;
}

} // namespace

TEST_CASE("Growing the window grows the list and keeps the distances to the right and lower edge") {
    ActDesk desk;
    Main window;
    window.Show();
    CHECK_FALSE(HoldsBitmap(window)); // a start needs none
    const RECT list = PlaceOf(window.ListView1.Handle());
    const RECT open = PlaceOf(window.cmdOpen.Handle());
    const RECT more = PlaceOf(window.lblMore.Handle());
    const RECT option = PlaceOf(window.optView[6].Handle());
    window.OuterSize(8475 + 1500, 5190 + 3000); // 100 and 200 pixels at 96 DPI
    const int right = ToPixels(1500, window.Dpi());
    const int down = ToPixels(3000, window.Dpi());
    CHECK(HoldsBitmap(window)); // or it would flicker
    CHECK(PlaceOf(window.ListView1.Handle()).right == list.right + right);
    CHECK(PlaceOf(window.ListView1.Handle()).bottom == list.bottom + down);
    CHECK(PlaceOf(window.cmdOpen.Handle()).left == open.left + right);
    CHECK(PlaceOf(window.cmdOpen.Handle()).top == open.top);
    CHECK(PlaceOf(window.lblMore.Handle()).top == more.top + down);
    CHECK(PlaceOf(window.optView[6].Handle()).top == option.top + down);
    CHECK(PlaceOf(window.optView[6].Handle()).left == option.left);
    window.OuterSize(3000, 3000);
    CHECK(ToPixels(window.OuterSize().Width, window.Dpi()) == ToPixels(8475, window.Dpi()));
    CHECK(ToPixels(window.OuterSize().Height, window.Dpi()) == ToPixels(5190, window.Dpi()));
    CHECK(PlaceOf(window.ListView1.Handle()).bottom == list.bottom);
}

TEST_CASE("The label of a view checks its option, only that one, and the list gets the focus back") {
    ActDesk desk;
    desk.AddDatabase(L"Sales", {});
    Main window;
    window.Show();
    CHECK(window.optView[0].Value());
    SendMessageW(window.Handle(), WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(window.lblView[5].Handle()), STN_CLICKED),
                 reinterpret_cast<LPARAM>(window.lblView[5].Handle()));
    CHECK(window.optView[5].Value());
    CHECK(std::ranges::count_if(window.optView, [](const OptionButton& option) { return option.Value(); }) == 1);
    CHECK(FocusIn(window.Handle()) == window.ListView1.Handle());
}
