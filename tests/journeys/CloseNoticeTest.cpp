// ACT!'s user closes ACT!: the program lets it and goes too, whatever it is showing.

#include "support/Journey.h"

namespace {

/// ACT! has been answered and has closed, and the program has ended without a further word.
void CheckBothEnd(const Journey& journey) {
    CHECK(Within([&] { return journey.ActHasEnded(); }));
    CHECK(journey.Program().ExitCode() == 0u);
    size_t answers = 0;
    std::wstring lastOfComponent, notice;
    for (const Journey::Call& call : journey.Log()) {
        if (call.Member == L"AnswerUserWantsToClose" && call.Arguments == L"VT_BOOL True") ++answers;
        if (call.Object == L"EVENT") lastOfComponent = call.Member;
        if (call.Member == L"CloseNotice") notice = call.Result;
    }
    CHECK(answers == 1);
    CHECK(lastOfComponent == L"Close");
    CHECK(notice == L"closes");
}

} // namespace

TEST_CASE_FIXTURE(Journey, "the program ends with ACT! and saves its window") {
    StartAct(ListRealDatabase(L"Customers"));
    HWND window = StartToMainWindow();
    SetWindowPos(window, nullptr, 0, 0, 700, 500, SWP_NOMOVE | SWP_NOZORDER);
    ActUserCloses();
    CheckBothEnd(*this);
    CHECK(JourneyStores::User(L"Settings", L"Width") == L"10500");
}

TEST_CASE_FIXTURE(Journey, "ACT! can close before a language has been chosen") {
    JourneyStores::DeleteTree(JourneyStores::UserRoot);
    StartAct(ListRealDatabase(L"Customers"));
    Window(Start(), L"frmLanguage");
    ActUserCloses();
    CheckBothEnd(*this);
    CHECK_FALSE(JourneyStores::User(L"Settings", L"Installed"));
}

TEST_CASE_FIXTURE(Journey, "an open that ACT! keeps waiting is given up when ACT! closes") {
    StartAct(ListRealDatabase(L"Customers"));
    JourneyStores::User(L"Display", L"Selected", L"0");
    HWND window = StartToMainWindow();
    Act(L"Faults", L"DefaultGroupLayout", L"busy 60000");
    JourneyWindow::Click(window, L"cmdOpen");
    REQUIRE(Within([&] { return Count(L"APPOBJECT", L"openDB") > 0; }));
    ActUserCloses();
    CheckBothEnd(*this);
}
