// ACT!'s user closes ACT!: the program lets it and goes too, whatever it is showing.

#include "support/Journey.h"

TEST_CASE_FIXTURE(Journey, "the program ends with ACT!: it saves its window, and what dialogs have not saved is lost") {
    StartAct(ListRealDatabase(L"Customers"));
    HWND window = StartToMainWindow();
    SetWindowPos(window, nullptr, 0, 0, 700, 500, SWP_NOMOVE | SWP_NOZORDER);
    const std::string before = FileBytes(SettingsFile());
    HWND list = OpenByMenu(L"mnuManageList", L"frmListMaintenance");
    HWND properties = OpenByButton(list, L"cmdAdd", L"frmProperties");
    Type(properties, {{L"txtName", L"Unsaved"}, {L"txtCL", L"U.cly"}, {L"txtUsername", L"Chris"}});
    ActUserCloses();
    CHECK(Within([&] { return ActHasEnded(); }));
    CHECK(Program().ExitCode() == 0u);
    CHECK(Count(L"EVENT", L"AnswerUserWantsToClose") == 1);
    CHECK(Count(L"EVENT", L"Close") == 1);
    CHECK(User(L"Settings", L"Width") == L"10500");
    CHECK(FileBytes(SettingsFile()) == before);
    CHECK(User(L"Unsaved", L"Username") == L"(none)");
}

TEST_CASE_FIXTURE(Journey, "an open that ACT! keeps waiting is given up when ACT! closes") {
    StartAct(ListRealDatabase(L"Customers"));
    User(L"Display", L"Selected", L"0");
    HWND window = StartToMainWindow();
    Act(L"Faults", L"DefaultGroupLayout", L"busy 60000");
    Click(FindControl(window, L"cmdOpen"));
    REQUIRE(Within([&] { return Count(L"APPOBJECT", L"openDB") > 0; }));
    ActUserCloses();
    CHECK(Within([&] { return ActHasEnded(); }));
    CHECK(Program().ExitCode() == 0u);
    CHECK(Count(L"EVENT", L"AnswerUserWantsToClose") == 1);
}
