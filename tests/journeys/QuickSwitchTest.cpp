// The palette, worked with a real mouse.

#include "support/Journey.h"

namespace {

constexpr int kTwipsPerPixel = 15; // journeys run at 96 DPI
constexpr int kStrip = 12;

} // namespace

TEST_CASE_FIXTURE(Journey, "the palette comes up where it was, is dragged by its strip, and its place is kept") {
    ListRealDatabase(L"Customers");
    Ini(L"General", L"QuickSwitchStartup", L"1");
    Ini(L"General", L"QuickSwitch", L"Customers");
    User(L"Settings", L"QuickLeft", std::to_wstring(300 * kTwipsPerPixel));
    User(L"Settings", L"QuickTop", std::to_wstring(200 * kTwipsPerPixel));
    StartAct(File(L"Customers.dbf"));
    HWND palette = Window(Start(), L"frmQuickSwitch");
    const RECT before = SettledPlace(palette);
    CHECK(before.left == 300);
    CHECK(before.top == 200);
    constexpr int kLow = 80, kMoveX = 120, kMoveY = 60;
    RECT client{};
    GetClientRect(palette, &client);
    Drag(palette, {client.right - kStrip / 2, kLow}, {kMoveX, kMoveY});
    const POINT wanted{before.left + kMoveX, before.top + kMoveY};
    REQUIRE(Within([&] {
        const RECT now = SettledPlace(palette);
        return now.left == wanted.x && now.top == wanted.y && GetAsyncKeyState(VK_LBUTTON) >= 0;
    }));
    ClickMenu(palette, L"mnuExit");
    CHECK(Program().ExitCode() == 0u);
    CHECK(User(L"Settings", L"QuickLeft") == std::to_wstring(wanted.x * kTwipsPerPixel));
    CHECK(User(L"Settings", L"QuickTop") == std::to_wstring(wanted.y * kTwipsPerPixel));
}
