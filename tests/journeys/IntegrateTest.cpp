// The restart of ACT! that shows Kelmorra's command in its toolbars.

#include "support/Journey.h"

namespace {

/// Opens the dialog of the commands, checks its first box and answers the question whether to restart by Yes.
void AddCommandAndRestart(Journey& journey, const wchar_t* fault = nullptr) {
    journey.StartAct(journey.ListRealDatabase(L"Customers"));
    journey.StartToMainWindow();
    HWND dialog = journey.OpenByMenu(L"mnuIntegrate", L"frmIntegrateNew");
    SendMessageW(FindControl(dialog, L"chkScreen", 0), BM_CLICK, 0, 0);
    if (fault) journey.Act(L"Faults", L"Command", fault);
    Click(FindControl(dialog, L"cmdOK"));
    Answer(journey.Box(), IDYES);
}

} // namespace

TEST_CASE_FIXTURE(Journey, "Yes closes ACT!, opens its database again, and the program ends on the second tick") {
    AddCommandAndRestart(*this);
    HWND window = FindWindowOf(Program().Id(), L"frmMain");
    REQUIRE(Within([&] { return !IsWindowVisible(window) && Count(L"APPOBJECT", L"Command") == 1; }));
    const DWORD hidden = GetTickCount();
    CHECK(ActHasEnded());
    REQUIRE(AdoptAct());
    CHECK(Program().ExitCode() == 0u);
    CHECK(GetTickCount() - hidden > 1000);
    CHECK(Calls().find(L"APPOBJECT GetOpenDBName METHOD|GET\nAPPOBJECT Command METHOD VT_I2 150\n") !=
          std::wstring::npos);
    CHECK(Count(L"EVENT", L"Close") == 1);
    CHECK(Within([&] { return Count(L"STANDIN", L"OpenDatabase") == 2; }));

    // ACT! shows the command now, and starts the program with it.
    PostMessageW(FindWindowW(L"ActStandIn", nullptr), WM_COMMAND, 3000, 0);
    REQUIRE(Within([&] { return IsWindowVisible(FindWindowW(L"frmMain", nullptr)) != FALSE; }));
    HWND launched = FindWindowW(L"frmMain", nullptr);
    Click(FindControl(launched, L"cmdCancel"));
    CHECK(Within([&] { return !IsWindow(launched); }));
}

TEST_CASE_FIXTURE(Journey, "a restart goes on when ACT! dies in the call that closes it, or tells of its end then") {
    bool dies = false;
    SUBCASE("dies") { dies = true; }
    SUBCASE("tells") { Act(L"Presets", L"CommandAsks", L"1"); }
    AddCommandAndRestart(*this, dies ? L"die" : nullptr);
    CHECK(ActHasEnded());
    REQUIRE(AdoptAct());
    CHECK(Program().ExitCode() == 0u); // and no report was in its way
    CHECK(Count(L"APPOBJECT", L"Command") == 1);
    CHECK(Count(L"EVENT", L"AnswerUserWantsToClose") == (dies ? 0 : 1));
    CHECK(Within([&] { return Count(L"STANDIN", L"OpenDatabase") == 2; }));
}
