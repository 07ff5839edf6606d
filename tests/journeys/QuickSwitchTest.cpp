// The palette, worked with a real mouse.

#include "support/JourneyDialogs.h"

namespace {

using JourneyStores::User;

constexpr int kTwipsPerPixel = 15; // journeys run at 96 DPI
constexpr int kStrip = 12;

/// Three databases of which ACT! has the first one open, and the palette at the start.
HWND StartWithPalette(Journey& journey, const wchar_t* buttons) {
    for (const wchar_t* name : {L"Archive", L"Customers", L"Suppliers"}) journey.ListRealDatabase(name);
    journey.Ini(L"General", L"QuickSwitchStartup", L"1");
    journey.Ini(L"General", L"QuickSwitch", buttons);
    User(L"Settings", L"QuickLeft", std::to_wstring(300 * kTwipsPerPixel));
    User(L"Settings", L"QuickTop", std::to_wstring(200 * kTwipsPerPixel));
    journey.StartAct(journey.File(L"Archive.dbf"));
    return Journey::Window(journey.Start(), L"frmQuickSwitch");
}

RECT PlaceOf(HWND window) {
    JourneyWindow::Settle(window);
    RECT place{};
    GetWindowRect(window, &place);
    return place;
}

/// Moves the mouse onto a button's middle and lets it be seen there.
HWND Point(HWND palette, const wchar_t* button) {
    HWND box = JourneyWindow::Control(palette, button);
    JourneyWindow::MoveMouse(box, JourneyWindow::Middle(box));
    return box;
}

void PressAndRelease(HWND palette, const wchar_t* button) {
    HWND box = JourneyWindow::Control(palette, button);
    JourneyWindow::ClickMouse(box, JourneyWindow::Middle(box));
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

std::wstring OpenedPath(const Journey& journey) {
    std::wstring paths;
    for (const Journey::Call& call : journey.Log())
        if (call.Member == L"openDB") paths += call.Arguments;
    return paths;
}

} // namespace

TEST_CASE_FIXTURE(Journey, "a button opens when pressed and released on it, and after a failed open works as before") {
    HWND palette = StartWithPalette(*this, L"Archive;Customers;Suppliers");
    JourneyWindow::Settle(palette);
    CHECK(!IsWindowVisible(JourneyWindow::Find(Program().Id(), L"frmMain")));
    CHECK(JourneyWindow::Text(JourneyWindow::Control(palette, L"pic1")) == L"(Archive)");
    // Pressed there and released elsewhere is no click; nor is anything on the open database's button.
    Point(palette, L"pic2");
    JourneyWindow::LeftButton(true);
    Point(palette, L"pic3");
    JourneyWindow::LeftButton(false);
    PressAndRelease(palette, L"pic1");
    CHECK(IsWindowVisible(palette));
    CHECK(OpenedPath(*this).empty());

    Act(L"Faults", L"openDB", L"wCode 53 first 1");
    PressAndRelease(palette, L"pic2");
    CHECK(AnswerBox().Text == L"This database is not accessible. Please choose another database.");
    MainWindow(Program());
    CHECK(Within([&] { return !IsWindow(palette); }));
    palette = JourneyDialogs::OpenByMenu(*this, L"mnuQuickSwitch", L"frmQuickSwitch");
    PressAndRelease(palette, L"pic2");
    PressAndRelease(palette, L"pic2"); // by then there is nothing to press
    CHECK(Program().ExitCode() == 0u);
    const std::wstring path = L"VT_BSTR \"" + File(L"Customers.dbf") + L'"';
    CHECK(OpenedPath(*this) == path + path);
    CHECK(Count(L"VIEWS", L"Create") == 1);
}

TEST_CASE_FIXTURE(Journey, "the palette is dragged by its strip and comes back there") {
    HWND palette = StartWithPalette(*this, L"Customers");
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
