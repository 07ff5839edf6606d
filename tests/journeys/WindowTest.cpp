// The main window: what it keeps from one run to the next, and how the open database looks.

#include "support/Journey.h"

namespace {

using JourneyStores::User;

constexpr int kTwipsPerPixel = 15; // journeys run at 96 DPI

SIZE SizeOf(HWND window) {
    RECT place{};
    GetWindowRect(window, &place);
    return {place.right - place.left, place.bottom - place.top};
}

void Resize(HWND window, int width, int height) {
    SetWindowPos(window, nullptr, 0, 0, width, height, SWP_NOMOVE | SWP_NOZORDER);
    REQUIRE(Within([&] { return SizeOf(window).cx == width && SizeOf(window).cy == height; }));
}

HWND ListOf(HWND window) { return JourneyWindow::Control(window, L"ListView1"); }

DWORD_PTR Answer(HWND window, UINT message, WPARAM wParam) {
    DWORD_PTR answer = 0;
    SendMessageTimeoutW(window, message, wParam, 0, SMTO_ABORTIFHUNG, JourneyPatience, &answer);
    return answer;
}

void StartActWithTwo(Journey& journey) {
    const std::wstring open = journey.ListRealDatabase(L"Customers");
    journey.ListRealDatabase(L"Suppliers");
    journey.StartAct(open);
}

} // namespace

TEST_CASE_FIXTURE(Journey, "size, columns and selection are there again at the next start") {
    StartActWithTwo(*this);
    HWND window = StartToMainWindow();
    CHECK(ForeignList(ListOf(window)).Selected() == -1);
    Resize(window, 800, 600);
    {
        const ForeignList list(ListOf(window));
        list.ColumnWidth(0, 200);
        list.ColumnWidth(4, 150);
        list.Select(1);
    }
    Close();
    CHECK(User(L"Settings", L"Width") == std::to_wstring(800 * kTwipsPerPixel));
    CHECK(User(L"Settings", L"Height") == std::to_wstring(600 * kTwipsPerPixel));
    CHECK(User(L"Settings", L"Column0") == std::to_wstring(200 * kTwipsPerPixel));
    CHECK(User(L"Settings", L"Column4") == std::to_wstring(150 * kTwipsPerPixel));
    CHECK(User(L"Display", L"Selected") == L"1");

    window = StartToMainWindow();
    CHECK(SizeOf(window).cx == 800);
    CHECK(SizeOf(window).cy == 600);
    const ForeignList list(ListOf(window));
    CHECK(list.ColumnWidth(0) == 200);
    CHECK(list.ColumnWidth(4) == 150);
    CHECK(list.Selected() == 1);
}

TEST_CASE_FIXTURE(Journey, "a tip comes when the mouse rests on a row, not when the window comes up below it") {
    StartActWithTwo(*this);
    HWND window = StartToMainWindow();
    HWND list = ListOf(window);
    const RECT cell = ForeignList(list).CellPlace(1, 0);
    REQUIRE(JourneyWindow::InFront(list));
    CHECK(JourneyWindow::Find(Program().Id(), TOOLTIPS_CLASSW) == nullptr);
    const auto isTipShown = [&] {
        HWND tip = JourneyWindow::Find(Program().Id(), TOOLTIPS_CLASSW);
        return IsWindowVisible(tip) != FALSE;
    };
    for (const LONG step : {2, 4, 6}) JourneyWindow::MoveMouse(list, {cell.left + step, cell.top + step});
    CHECK(Within(isTipShown));
    Close();
}

TEST_CASE_FIXTURE(Journey, "every cell of the open database is red, and no other") {
    StartActWithTwo(*this);
    for (const wchar_t* name : {L"Customers", L"Suppliers"}) {
        Ini(name, L"CLY", L"C:\\MMMM.cly");
        Ini(name, L"GLY", L"C:\\MMMM.gly");
        Ini(name, L"StartupMacro", L"C:\\MMMM.mpr");
    }
    HWND list = ListOf(StartToMainWindow());
    REQUIRE(JourneyWindow::InFront(list));
    const ForeignList cells(list);
    for (int column = 0; column < 5; ++column) {
        CAPTURE(column);
        CHECK(Within([&] { return JourneyWindow::RedPixels(list, cells.CellPlace(0, column)) > 10; }));
        CHECK(JourneyWindow::RedPixels(list, cells.CellPlace(1, column)) == 0);
    }
}

TEST_CASE_FIXTURE(Journey, "when Windows ends the session the window is saved without a word") {
    StartActWithTwo(*this);
    for (const bool hasBox : {false, true}) {
        CAPTURE(hasBox);
        const std::wstring width = hasBox ? L"10500" : L"9750";
        HWND window = StartToMainWindow();
        Resize(window, std::stoi(width) / kTwipsPerPixel, 400);
        if (hasBox) JourneyWindow::Click(window, L"cmdOpen");
        if (hasBox) CHECK(Box(Program()).Text == L"No database selected!");
        const size_t windows = JourneyWindow::Visible(Program().Id()).size();
        CHECK(Answer(window, WM_QUERYENDSESSION, 0) == TRUE);
        Answer(window, WM_ENDSESSION, FALSE);
        CHECK(User(L"Settings", L"Width") != width);
        Answer(window, WM_ENDSESSION, TRUE);
        CHECK(User(L"Settings", L"Width") == width);
        CHECK(JourneyWindow::Visible(Program().Id()).size() == windows);
        if (hasBox) AnswerBox();
        Close();
    }
}
