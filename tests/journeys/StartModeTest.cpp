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

bool HasOnlyStarted(const Journey& journey) {
    for (const Journey::Call& call : journey.Log())
        if (call.Object != L"STANDIN" && call.Object != L"EVENT") return false;
    return true;
}

} // namespace

TEST_CASE("ACT! is started on the chosen database, with its layouts, macro, folders and log-on") {
    struct Case {
        const wchar_t* noPassword;
        const wchar_t* logon;
    };
    for (const auto& [noPassword, logon] : {Case{L"0", L"Password=xyz;UsePassword=1;Username=Pat Doe;"},
                                            Case{L"1", L"Password=xyz;UsePassword=0;Username=Pat Doe;"}}) {
        Journey journey;
        journey.Ini(L"Customers", L"GLY", L"C:\\Layouts\\Customers.gly");
        journey.Ini(L"Customers", L"StartupMacro", L"C:\\Macros\\Welcome.mpr");
        journey.Ini(L"Customers", L"UseLocationsFrom", L"Suppliers");
        journey.Ini(L"Customers", L"Query", L"C:\\Unused");
        journey.Ini(L"Suppliers", L"Document", L"D:\\Papers");
        User(L"Customers", L"Username", L"Pat Doe");
        User(L"Customers", L"Password", L"xyz");
        User(L"Customers", L"NoPasswordAtACTStartup", noPassword);
        User(L"Logon", L"Leftover", L"x");
        PressFirst(StartWithoutAct(journey));
        CHECK(journey.Program().ExitCode() == 0u);
        REQUIRE(journey.AdoptAct());
        const std::wstring path = journey.File(L"Customers.dbf");
        CHECK(ActValue(L"\\Database", L"Last DB Name") == L"REG_SZ:" + path);
        CHECK(ActValue(L"\\Database", L"Use Last DB") == L"REG_DWORD:1");
        CHECK(ActValue(L"\\Database", L"Contact Layout") == L"REG_SZ:C:\\Own.cly"); // ACT!'s own is kept
        CHECK(ActValue(L"\\Database", L"Group Layout") == L"REG_SZ:C:\\Layouts\\Customers.gly");
        CHECK(ActValue(L"\\General", L"Macro Name") == L"REG_SZ:C:\\Macros\\Welcome.mpr");
        CHECK(ActValue(L"", L"Document File Type") == L"REG_SZ:D:\\Papers");
        CHECK(ActValue(L"", L"Query File Type") == L"(none)");
        CHECK(JourneyStores::UserSection(L"Logon") == logon);
        CHECK(User(L"Settings", L"Last Username") == L"Pat Doe");
        CHECK(!User(L"Settings", L"OriginalCL")); // nothing else of the start-up has run
        CHECK(Within([&] { return JourneyStores::FileExists(journey.ProgramFile(L"logon.exe.mark")); }));
        CHECK(Within([&] {
            for (const Journey::Call& call : journey.Log())
                if (call.Member == L"OpenDatabase" && call.Arguments.find(L"Customers.dbf") != std::wstring::npos)
                    return true;
            return false;
        }));
        CHECK(HasOnlyStarted(journey));
        CHECK(journey.Count(L"EVENT", L"Close") == 1);
        CHECK(!JourneyStores::FileExists(journey.ProgramFile(L"test.dbf")));
    }
}

TEST_CASE_FIXTURE(Journey, "the first time the user's name is asked for") {
    Ini(L"Customers", L"CLY", L"C:\\Layouts\\Customers.cly"); // without one OK is refused
    PressFirst(StartWithoutAct(*this));
    CHECK(AnswerBox().Text == L"Because it is the first time you are opening this database with QuickSwitch\r\n"
                              L"and no username has been setup,\r\n"
                              L"you need to enter your username (and optionally a password).");
    HWND properties = Window(Program(), L"frmProperties");
    JourneyDialogs::Type(properties, {{L"txtUsername", L"Pat Doe"}});
    JourneyDialogs::Leave(properties, L"cmdOK");
    CHECK(Program().ExitCode() == 0u);
    REQUIRE(AdoptAct());
    CHECK(User(L"Customers", L"Username") == L"Pat Doe");
    CHECK(User(L"Logon", L"Username") == L"Pat Doe");
}

TEST_CASE_FIXTURE(Journey, "leaving without a choice writes nothing and starts nothing") {
    HWND palette = StartWithoutAct(*this);
    const auto before = JourneyStores::ReadTree(JourneyStores::ActRoot);
    const std::string settings = JourneyStores::FileBytes(SettingsFile());
    HWND box = JourneyWindow::Control(palette, L"pic1");
    REQUIRE(JourneyWindow::InFront(box));
    JourneyWindow::Press(VK_ESCAPE);
    CHECK(Program().ExitCode() == 0u);
    CHECK(JourneyStores::ReadTree(JourneyStores::ActRoot) == before);
    CHECK(JourneyStores::FileBytes(SettingsFile()) == settings);
    CHECK(JourneyStores::UserSection(L"Logon") == L"(none)");
    CHECK(!FindWindowW(L"ActStandIn", nullptr));
}

TEST_CASE_FIXTURE(Journey, "without a program for databases the user is told, and no log-on is prepared") {
    User(L"Customers", L"Username", L"Pat Doe");
    User(L"Logon", L"Username", L"before");
    const HiddenClass association(L".dbf");
    PressFirst(StartWithoutAct(*this));
    CHECK(AnswerBox().Text == L"Please run ACT! before running Kelmorra");
    CHECK(Program().ExitCode() == 0u);
    CHECK(ActValue(L"\\Database", L"Last DB Name") == L"REG_SZ:" + File(L"Customers.dbf"));
    CHECK(User(L"Logon", L"Username") == L"before");
    CHECK(!JourneyStores::FileExists(ProgramFile(L"logon.exe.mark")));
}
