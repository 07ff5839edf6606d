// The palette without a running ACT!: the choice goes into ACT!'s own settings, and ACT! is started on it.

#include "support/JourneyDialogs.h"

#include <filesystem>

namespace {

using JourneyStores::User;

std::wstring ActValue(const wchar_t* key, const wchar_t* name) {
    return JourneyStores::Read(JourneyStores::ActRoot + std::wstring(key), name);
}

} // namespace

TEST_CASE_FIXTURE(Journey, "ACT! is started on the chosen database, with its layouts, macro and log-on") {
    ListRealDatabase(L"Customers");
    Ini(L"General", L"QuickSwitchStartup", L"1");
    Ini(L"General", L"QuickSwitch", L"Customers");
    Ini(L"Customers", L"StartupMacro", L"C:\\Macros\\Welcome.mpr");
    User(L"Customers", L"Username", L"Pat Doe");
    User(L"Customers", L"Password", L"xyz");
    User(L"Customers", L"NoPasswordAtACTStartup", L"1");
    User(L"Logon", L"Leftover", L"x");
    // What ACT! itself has created when it has run once.
    JourneyStores::Write(JourneyStores::ActRoot + std::wstring(L"\\Database"), L"Contact Layout", L"C:\\Own.cly");
    JourneyStores::Write(JourneyStores::ActRoot + std::wstring(L"\\General"), L"Macro Name", L"C:\\Own.mpr");
    std::filesystem::copy_file(MARK_PROGRAM, ProgramFile(L"logon.exe"));
    HWND button = JourneyWindow::Control(Window(Start(), L"frmQuickSwitch"), L"pic1");
    JourneyWindow::ClickMouse(button, JourneyWindow::Middle(button));
    CHECK(Program().ExitCode() == 0u);
    REQUIRE(AdoptAct());
    CHECK(ActValue(L"\\Database", L"Last DB Name") == File(L"Customers.dbf"));
    CHECK(ActValue(L"\\Database", L"Contact Layout") == L"C:\\Own.cly"); // ACT!'s own is kept
    CHECK(ActValue(L"\\General", L"Macro Name") == L"C:\\Macros\\Welcome.mpr");
    CHECK(User(L"Logon", L"Username") == L"Pat Doe");
    CHECK(User(L"Logon", L"Password") == L"xyz");
    CHECK(User(L"Logon", L"UsePassword") == L"0");
    CHECK(User(L"Logon", L"Leftover") == L"(none)");
    CHECK(User(L"Settings", L"OriginalCL") == L"(none)"); // nothing else of the start-up has run
    CHECK(Within([&] { return JourneyStores::FileExists(ProgramFile(L"logon.exe.mark")); }));
    CHECK(Within([&] { return Count(L"STANDIN", L"OpenDatabase") == 1; }));
    CHECK(Calls().empty());
    CHECK(Count(L"EVENT", L"Close") == 1);
    CHECK_FALSE(JourneyStores::FileExists(ProgramFile(L"test.dbf")));
}
