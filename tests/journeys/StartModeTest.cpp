// The palette without a running ACT!: the choice goes into ACT!'s own settings, and ACT! is started on it.

#include "support/Journey.h"

TEST_CASE_FIXTURE(Journey, "ACT! is started on the chosen database, with its log-on") {
    ListRealDatabase(L"Customers");
    Ini(L"General", L"QuickSwitchStartup", L"1");
    Ini(L"General", L"QuickSwitch", L"Customers");
    User(L"Customers", L"Username", L"Pat Doe");
    User(L"Customers", L"Password", L"xyz");
    User(L"Customers", L"NoPasswordAtACTStartup", L"1");
    User(L"Logon", L"Leftover", L"x");
    // Made by ACT! itself when it runs for the first time.
    ActValue(L"\\Database", L"Contact Layout", L"C:\\Own.cly");
    std::filesystem::copy_file(MARK_PROGRAM, ProgramFile(L"logon.exe"));
    HWND button = FindControl(Window(Start(), L"frmQuickSwitch"), L"pic1");
    ClickMouse(button, {20, 20});
    CHECK(Program().ExitCode() == 0u);
    REQUIRE(AdoptAct());
    CHECK(User(L"Logon", L"Username") == L"Pat Doe");
    CHECK(User(L"Logon", L"Password") == L"xyz");
    CHECK(User(L"Logon", L"UsePassword") == L"0");
    CHECK(User(L"Logon", L"Leftover") == L"(none)");
    CHECK(User(L"Settings", L"OriginalCL") == L"(none)"); // nothing else of the start-up has run
    CHECK(Within([&] { return std::filesystem::exists(ProgramFile(L"logon.exe.mark")); }));
    CHECK(Within([&] { return Count(L"STANDIN", L"OpenDatabase") == 1; }));
    CHECK(Calls().empty());
    CHECK(Count(L"EVENT", L"Close") == 1);
    CHECK_FALSE(std::filesystem::exists(ProgramFile(L"test.dbf")));
}
