// The palette without a running ACT!: the choice goes into ACT!'s own settings, and ACT! is started on it.

#include "support/JourneyDialogs.h"

#include <filesystem>

namespace {

using JourneyStores::User;

/// What ACT! itself has created when it has run once.
void MakeActKeys() {
    JourneyStores::Write(JourneyStores::ActRoot + std::wstring(L"\\Database"), L"Contact Layout", L"C:\\Own.cly");
    JourneyStores::Write(JourneyStores::ActRoot + std::wstring(L"\\Database"), L"Group Layout", L"C:\\Own.gly");
    JourneyStores::Write(JourneyStores::ActRoot + std::wstring(L"\\General"), L"Macro Name", L"C:\\Own.mpr");
}

/// A database on the palette's first button, and no ACT!; returns the palette.
HWND StartWithoutAct(Journey& journey) {
    journey.ListRealDatabase(L"Customers");
    journey.Ini(L"General", L"QuickSwitchStartup", L"1");
    journey.Ini(L"General", L"QuickSwitch", L"Customers");
    MakeActKeys();
    std::filesystem::copy_file(MARK_PROGRAM, journey.ProgramFile(L"logon.exe"));
    HWND palette = Journey::Window(journey.Start(), L"frmQuickSwitch");
    JourneyWindow::Settle(palette);
    return palette;
}

void PressFirst(HWND palette) {
    HWND box = JourneyWindow::Control(palette, L"pic1");
    JourneyWindow::MoveMouse(box, JourneyWindow::Middle(box));
    JourneyWindow::LeftButton(true);
    JourneyWindow::LeftButton(false);
}

/// "type:value" of one of ACT!'s values; texts without a terminating zero, as the launcher writes them.
std::wstring ActValue(const std::wstring& key, const wchar_t* name) {
    const auto value = JourneyStores::Read(JourneyStores::ActRoot + key, name);
    if (!value) return L"(none)";
    if (value->Type == REG_DWORD && value->Data.size() == sizeof(DWORD)) {
        DWORD number = 0;
        memcpy(&number, value->Data.data(), sizeof number);
        return L"REG_DWORD:" + std::to_wstring(number);
    }
    std::wstring text(reinterpret_cast<const wchar_t*>(value->Data.data()), value->Data.size() / sizeof(wchar_t));
    while (!text.empty() && text.back() == L'\0') text.pop_back();
    return (value->Type == REG_SZ ? L"REG_SZ:" : L"other:") + text;
}

} // namespace

TEST_CASE_FIXTURE(Journey, "ACT! is started on the chosen database, with its layouts, macro and log-on") {
    Ini(L"Customers", L"GLY", L"C:\\Layouts\\Customers.gly");
    Ini(L"Customers", L"StartupMacro", L"C:\\Macros\\Welcome.mpr");
    User(L"Customers", L"Username", L"Pat Doe");
    User(L"Customers", L"Password", L"xyz");
    User(L"Customers", L"NoPasswordAtACTStartup", L"1");
    User(L"Logon", L"Leftover", L"x");
    PressFirst(StartWithoutAct(*this));
    CHECK(Program().ExitCode() == 0u);
    REQUIRE(AdoptAct());
    CHECK(ActValue(L"\\Database", L"Last DB Name") == L"REG_SZ:" + File(L"Customers.dbf"));
    CHECK(ActValue(L"\\Database", L"Use Last DB") == L"REG_DWORD:1");
    CHECK(ActValue(L"\\Database", L"Contact Layout") == L"REG_SZ:C:\\Own.cly"); // ACT!'s own is kept
    CHECK(ActValue(L"\\Database", L"Group Layout") == L"REG_SZ:C:\\Layouts\\Customers.gly");
    CHECK(ActValue(L"\\General", L"Macro Name") == L"REG_SZ:C:\\Macros\\Welcome.mpr");
    CHECK(JourneyStores::UserSection(L"Logon") == L"Password=xyz;UsePassword=0;Username=Pat Doe;");
    CHECK(!User(L"Settings", L"OriginalCL")); // nothing else of the start-up has run
    CHECK(Within([&] { return JourneyStores::FileExists(ProgramFile(L"logon.exe.mark")); }));
    CHECK(Within([&] { return Count(L"STANDIN", L"OpenDatabase") == 1; }));
    for (const Call& call : Log()) CHECK((call.Object == L"STANDIN" || call.Object == L"EVENT"));
    CHECK(Count(L"EVENT", L"Close") == 1);
    CHECK(!JourneyStores::FileExists(ProgramFile(L"test.dbf")));
}
