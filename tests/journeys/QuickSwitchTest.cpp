// The palette, worked with a real mouse.

#include "support/JourneyDialogs.h"

namespace {

using JourneyStores::User;

constexpr int kTwipsPerPixel = 15; // journeys run at 96 DPI
constexpr int kStrip = 12;

RECT PlaceOf(HWND window) {
    JourneyWindow::Settle(window);
    RECT place{};
    GetWindowRect(window, &place);
    return place;
}

POINT OnStrip(HWND palette, int y) {
    RECT client{};
    GetClientRect(palette, &client);
    return {client.right - kStrip / 2, y};
}

/// Opens the control menu by its square and chooses its third item.
void ChooseExit(const Journey& journey, HWND palette) {
    constexpr int kInSquare = 6;
    JourneyWindow::ClickMouse(palette, OnStrip(palette, kInSquare));
    Journey::Window(journey.Program(), L"#32768");
    for (int step = 0; step < 3; ++step) JourneyWindow::Press(VK_DOWN);
    JourneyWindow::Press(VK_RETURN);
}

} // namespace

TEST_CASE_FIXTURE(Journey, "the palette is dragged by its strip and comes back there") {
    ListRealDatabase(L"Customers");
    Ini(L"General", L"QuickSwitchStartup", L"1");
    Ini(L"General", L"QuickSwitch", L"Customers");
    User(L"Settings", L"QuickLeft", std::to_wstring(300 * kTwipsPerPixel));
    User(L"Settings", L"QuickTop", std::to_wstring(200 * kTwipsPerPixel));
    StartAct(File(L"Customers.dbf"));
    HWND palette = Window(Start(), L"frmQuickSwitch");
    const RECT before = PlaceOf(palette);
    CHECK(before.left == 300);
    CHECK(before.top == 200);
    constexpr int kLow = 80, kMoveX = 120, kMoveY = 60;
    JourneyWindow::Drag(palette, OnStrip(palette, kLow), {kMoveX, kMoveY});
    const POINT wanted{before.left + kMoveX, before.top + kMoveY};
    REQUIRE(Within([&] {
        const RECT now = PlaceOf(palette);
        return now.left == wanted.x && now.top == wanted.y && GetAsyncKeyState(VK_LBUTTON) >= 0;
    }));
    ChooseExit(*this, palette);
    CHECK(Program().ExitCode() == 0u);
    CHECK(User(L"Settings", L"QuickLeft") == std::to_wstring(wanted.x * kTwipsPerPixel));
    palette = Window(Start(), L"frmQuickSwitch");
    CHECK(PlaceOf(palette).left == wanted.x);
    CHECK(PlaceOf(palette).top == wanted.y);
}
