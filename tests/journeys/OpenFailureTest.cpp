// Opens that fail, and an ACT! that is busy or gone.

#include "support/Journey.h"

namespace {

using JourneyStores::User;

constexpr wchar_t kNotAccessible[] = L"This database is not accessible. Please choose another database.";

/// One database, selected, in a running ACT! with layouts of its own.
HWND StartWithOne(Journey& journey) {
    journey.StartAct(journey.ListRealDatabase(L"Customers"));
    journey.Ini(L"Customers", L"CLY", L"C:\\Layouts\\Customers.cly");
    journey.Act(L"Preferences", L"DefaultContactLayout", L"C:\\Act\\Own.cly");
    User(L"Display", L"Selected", L"0");
    return journey.StartToMainWindow();
}

bool IsHidden(HWND window) { return !IsWindowVisible(window); }

} // namespace

TEST_CASE_FIXTURE(Journey,
                  "an ACT! that dies while it opens the database counts as a database that is not accessible") {
    HWND window = StartWithOne(*this);
    Act(L"Faults", L"openDB", L"wCode 91"); // no code but this one
    JourneyWindow::Click(window, L"cmdOpen");
    CHECK(AnswerBox().Title == L"No database selected!");
    Act(L"Faults", L"openDB", L"die");
    JourneyWindow::Click(window, L"cmdOpen");
    CHECK(AnswerBox().Text == kNotAccessible);
    CHECK(ActHasEnded());
    CHECK(JourneyWindow::InFront(JourneyWindow::Control(window, L"ListView1")));
    Close();
}

TEST_CASE_FIXTURE(Journey, "an ACT! that dies after the open is reported with the place of the call") {
    HWND window = StartWithOne(*this);
    Act(L"Faults", L"Create", L"die");
    JourneyWindow::Click(window, L"cmdOpen");
    const JourneyWindow::Box box = AnswerBox();
    CHECK(box.Title == L"Kelmorra error");
    CAPTURE(box.Text);
    CHECK(box.Text.starts_with(L"Error 462: '"));
    CHECK(box.Text.find(L"'\rin frmMain: Sub cmdOpen_Click - Line # ") != std::wstring::npos);
    CHECK(box.Text.ends_with(L"\r\rPlease contact support@varnholtine.example with this error message."));
    CHECK(IsWindowVisible(window));
    Close();
}

TEST_CASE_FIXTURE(Journey, "a busy ACT! is waited for without a box of the system's") {
    HWND window = StartWithOne(*this);
    // The puts of the layouts are answered, the calls behind them refused for a while.
    Act(L"Faults", L"DefaultGroupLayout", L"busy 1500 first 2");
    JourneyWindow::Click(window, L"cmdOpen");
    REQUIRE(Within([&] { return IsHidden(window); }));
    CHECK_FALSE(JourneyWindow::MessageBoxOf(Program().Id()));
    CHECK(Program().ExitCode() == 0u);
    CHECK(Count(L"VIEWS", L"Create") == 1);
}

TEST_CASE_FIXTURE(Journey, "while ACT! takes its time to open a database no command does anything") {
    HWND window = StartWithOne(*this);
    Act(L"Faults", L"openDB", L"hang 1500");
    JourneyWindow::Click(window, L"cmdOpen");
    REQUIRE(Within([&] { return Count(L"STANDIN", L"Hang") == 1; }));
    // Sent, not posted: these are what reaches a window that waits for a call.
    for (const wchar_t* item : {L"mnuLanguages", L"mnuFileOpen", L"mnuExit"})
        SendNotifyMessageW(window, WM_COMMAND, reinterpret_cast<WPARAM>(GetPropW(window, item)), 0);
    for (const wchar_t* button : {L"cmdOpen", L"cmdCancel"})
        SendNotifyMessageW(JourneyWindow::Control(window, button), BM_CLICK, 0, 0);
    SendNotifyMessageW(window, WM_CLOSE, 0, 0);
    SendMessageTimeoutW(window, WM_NULL, 0, 0, SMTO_NORMAL, JourneyPatience, nullptr);
    REQUIRE(Count(L"APPOBJECT", L"openDB") == 0); // the call goes on
    CHECK(Program().ExitCode() == 0u);
    CHECK(Count(L"APPOBJECT", L"openDB") == 1);
    CHECK(Count(L"VIEWS", L"Create") == 1);
}
