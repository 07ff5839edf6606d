// The palette, worked with a real mouse.

#include "support/JourneyDialogs.h"

namespace {

using JourneyDialogs::OpenByMenu;
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
    HWND palette = Journey::Window(journey.Start(), L"frmQuickSwitch");
    JourneyWindow::Settle(palette);
    return palette;
}

RECT PlaceOf(HWND window) {
    RECT place{};
    GetWindowRect(window, &place);
    return place;
}

int WidthOf(HWND window) { return static_cast<int>(PlaceOf(window).right - PlaceOf(window).left); }

/// Moves the mouse onto a button's middle and lets it be seen there.
HWND Point(HWND palette, const wchar_t* button) {
    HWND box = JourneyWindow::Control(palette, button);
    JourneyWindow::MoveMouse(box, JourneyWindow::Middle(box));
    return box;
}

void PressAndRelease(HWND palette, const wchar_t* button) {
    Point(palette, button);
    JourneyWindow::LeftButton(true);
    JourneyWindow::LeftButton(false);
}

POINT OnStrip(HWND palette, int y) {
    RECT client{};
    GetClientRect(palette, &client);
    return {client.right - kStrip / 2, y};
}

/// Opens the control menu by its square and chooses an item by the number of steps down to it.
void ChooseInControlMenu(const Journey& journey, HWND palette, int steps) {
    constexpr int kInSquare = 6;
    JourneyWindow::MoveMouse(palette, OnStrip(palette, kInSquare));
    JourneyWindow::LeftButton(true);
    JourneyWindow::LeftButton(false);
    Journey::Window(journey.Program(), L"#32768");
    for (int step = 0; step < steps; ++step) JourneyWindow::Press(VK_DOWN);
    JourneyWindow::Press(VK_RETURN);
}
constexpr int kSettingsItem = 1, kCloseItem = 2, kExitItem = 3;

std::wstring OpenedPath(const Journey& journey) {
    std::wstring paths;
    for (const Journey::Call& call : journey.Log())
        if (call.Member == L"openDB") paths += call.Arguments;
    return paths;
}

} // namespace

TEST_CASE_FIXTURE(Journey, "a button lights up under the mouse, and opens when pressed and released on it") {
    HWND palette = StartWithPalette(*this, L"Archive;Customers;Suppliers");
    CHECK(WidthOf(palette) == 2580 / kTwipsPerPixel);
    CHECK(!IsWindowVisible(JourneyWindow::Find(Program().Id(), L"frmMain")));
    HWND customers = JourneyWindow::Control(palette, L"pic2");
    HWND archive = JourneyWindow::Control(palette, L"pic1");
    CHECK(JourneyWindow::Text(archive) == L"(Archive)");
    Point(palette, L"pic4");
    const auto normal = JourneyWindow::StillPixels(customers);
    const auto dead = JourneyWindow::StillPixels(archive);

    Point(palette, L"pic2");
    REQUIRE(Within([&] { return JourneyWindow::Pixels(customers) != normal; }));
    Point(palette, L"pic1");
    CHECK(Within([&] { return JourneyWindow::Pixels(customers) == normal; }));

    // Pressed there and released elsewhere is no click; nor is anything on the open database's button.
    Point(palette, L"pic2");
    JourneyWindow::LeftButton(true);
    Point(palette, L"pic3");
    JourneyWindow::LeftButton(false);
    PressAndRelease(palette, L"pic1");
    CHECK(Within([&] { return JourneyWindow::Pixels(archive) == dead; }));
    CHECK(IsWindowVisible(palette));
    CHECK(OpenedPath(*this).empty());

    PressAndRelease(palette, L"pic2");
    PressAndRelease(palette, L"pic2"); // by then there is nothing to press
    CHECK(Program().ExitCode() == 0u);
    CHECK(OpenedPath(*this) == L"VT_BSTR \"" + File(L"Customers.dbf") + L'"');
    CHECK(Count(L"VIEWS", L"Create") == 1);
}

TEST_CASE_FIXTURE(Journey, "the palette is dragged by its strip and comes back there") {
    HWND palette = StartWithPalette(*this, L"Customers");
    const RECT before = PlaceOf(palette);
    CHECK(before.left == 300);
    CHECK(before.top == 200);
    constexpr int kLow = 80, kMoveX = 120, kMoveY = 60;
    JourneyWindow::Drag(palette, OnStrip(palette, kLow), {kMoveX, kMoveY});
    REQUIRE(
        Within([&] { return PlaceOf(palette).left == before.left + kMoveX && !JourneyWindow::LeftButtonIsDown(); }));
    CHECK(PlaceOf(palette).top == before.top + kMoveY);
    ChooseInControlMenu(*this, palette, kExitItem);
    CHECK(Program().ExitCode() == 0u);
    CHECK(User(L"Settings", L"QuickLeft") == std::to_wstring((before.left + kMoveX) * kTwipsPerPixel));
    palette = Window(Start(), L"frmQuickSwitch");
    JourneyWindow::Settle(palette);
    CHECK(PlaceOf(palette).left == before.left + kMoveX);
    CHECK(PlaceOf(palette).top == before.top + kMoveY);
}

TEST_CASE_FIXTURE(Journey, "the control menu's close and Alt+F4 bring the main window, Esc ends the program") {
    HWND palette = StartWithPalette(*this, L"Customers");
    ChooseInControlMenu(*this, palette, kCloseItem);
    HWND window = MainWindow(Program());
    CHECK(Within([&] { return !IsWindow(palette); }));
    palette = OpenByMenu(*this, L"mnuQuickSwitch", L"frmQuickSwitch");
    CHECK(!IsWindowVisible(window));
    PostMessageW(palette, WM_SYSCOMMAND, SC_CLOSE, 0);
    MainWindow(Program());
    palette = OpenByMenu(*this, L"mnuQuickSwitch", L"frmQuickSwitch");
    REQUIRE(JourneyWindow::InFront(JourneyWindow::Control(palette, L"pic1")));
    JourneyWindow::Press(VK_ESCAPE);
    CHECK(Program().ExitCode() == 0u);
    CHECK(OpenedPath(*this).empty());
}

TEST_CASE_FIXTURE(Journey, "a failed open brings the main window, and a later palette works like the first") {
    HWND palette = StartWithPalette(*this, L"Archive;Customers");
    Act(L"Faults", L"openDB", L"wCode 53 first 1");
    PressAndRelease(palette, L"pic2");
    CHECK(AnswerBox().Text == L"This database is not accessible. Please choose another database.");
    MainWindow(Program());
    CHECK(Within([&] { return !IsWindow(palette); }));
    palette = OpenByMenu(*this, L"mnuQuickSwitch", L"frmQuickSwitch");
    JourneyWindow::Settle(palette);
    PressAndRelease(palette, L"pic2");
    CHECK(Program().ExitCode() == 0u);
    CHECK(Count(L"APPOBJECT", L"openDB") == 2);
}

TEST_CASE_FIXTURE(Journey, "what is changed in the palette's settings shows at once") {
    HWND palette = StartWithPalette(*this, L"Vanished;Customers");
    const auto blue = JourneyWindow::StillPixels(JourneyWindow::Control(palette, L"pic2"));
    ChooseInControlMenu(*this, palette, kSettingsItem);
    HWND settings = Window(Program(), L"frmAssign");
    HWND sixth = JourneyWindow::Control(settings, L"cboDB", 5);
    SendMessageW(sixth, CB_SETCURSEL, 3, 0);
    JourneyDialogs::ShowTab(settings, 1, L"mstAssign");
    JourneyWindow::Click(settings, L"optColor", 4);
    REQUIRE(Within([&] { return !JourneyWindow::Checked(JourneyWindow::Control(settings, L"optColor", 0)); }));
    JourneyDialogs::Leave(settings, L"cmdOK");
    REQUIRE(Within([&] { return WidthOf(palette) == 3725 / kTwipsPerPixel; }));
    CHECK(JourneyWindow::Text(JourneyWindow::Control(palette, L"pic1")).empty());
    CHECK(JourneyWindow::Text(JourneyWindow::Control(palette, L"pic6")) == L"Suppliers");
    CHECK(Within([&] { return JourneyWindow::Pixels(JourneyWindow::Control(palette, L"pic2")) != blue; }));
    const std::string settingsBytes = JourneyStores::FileBytes(SettingsFile());
    CHECK(settingsBytes.find("QuickSwitch=;Customers;;;;Suppliers;;") != std::string::npos);
    CHECK(settingsBytes.find("QuickSwitchScheme=4") != std::string::npos);

    ChooseInControlMenu(*this, palette, kSettingsItem);
    settings = Window(Program(), L"frmAssign");
    for (int button = 0; button < 8; ++button)
        SendMessageW(JourneyWindow::Control(settings, L"cboDB", button), CB_SETCURSEL, 0, 0);
    JourneyDialogs::Leave(settings, L"cmdOK");
    REQUIRE(Within([&] { return WidthOf(palette) == 1440 / kTwipsPerPixel; }));
    PressAndRelease(palette, L"pic2"); // empty now
    CHECK(IsWindowVisible(palette));
}
