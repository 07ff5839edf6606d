// The list of databases built and pruned in the list maintenance dialog.

#include "support/JourneyDialogs.h"
#include "win32/AnsiText.h"

namespace {

using namespace JourneyDialogs;
using JourneyStores::FileBytes;
using JourneyStores::User;
using JourneyStores::UserSection;

HWND OpenList(const Journey& journey) { return OpenByMenu(journey, L"mnuManageList", L"frmListMaintenance"); }
HWND OpenAdd(const Journey& journey, HWND list) { return OpenByButton(journey, list, L"cmdAdd", L"frmProperties"); }

int SelectedLine(HWND list) {
    return static_cast<int>(SendMessageW(JourneyWindow::Control(list, L"lstDB"), LB_GETCURSEL, 0, 0));
}

/// Three databases that need not open, with both stores and the buttons filled.
void FurnishThree(Journey& journey) {
    for (const wchar_t* name : {L"Archive", L"Customers", L"Suppliers"}) {
        journey.List(name, L"C:\\Data\\" + std::wstring(name) + L".dbf");
        User(name, L"Username", L"Pat");
        User(name, L"UsePassword", L"0");
    }
    journey.Ini(L"General", L"QuickSwitch", L"Customers;Archive;Suppliers;;;;;");
}

} // namespace

TEST_CASE_FIXTURE(Journey, "a list of three is built from nothing, and the third opens by a double click") {
    const std::wstring third = File(L"Suppliers.dbf");
    FileBytes(third, "dBASE");
    StartActElsewhere(*this);
    HWND window = StartToMainWindow();
    HWND list = OpenList(*this);
    CHECK(Lines(list).empty());

    HWND properties = OpenAdd(*this, list);
    Type(properties, {{L"txtName", L"Archive"}, {L"txtPath", L"C:\\Data\\Archive.dbf"}, {L"txtUsername", L"Pat"}});
    Type(properties, {{L"txtCL", L"C:\\L\\A.cly"}, {L"txtGL", L"C:\\L\\A.gly"}, {L"txtMacro", L"C:\\M\\A.mpr"}});
    Check(properties, L"chkNotAtACTLaunch", true);
    Leave(properties, L"cmdOK");
    REQUIRE(Within([&] { return Lines(list) == L"Archive" && SelectedLine(list) == 0; }));

    // The second one by keyboard, with a name that is taken at first.
    properties = OpenAdd(*this, list);
    HWND name = JourneyWindow::Control(properties, L"txtName");
    REQUIRE(JourneyWindow::InFront(name));
    Type(properties, {{L"txtName", L"Archive"}, {L"txtCL", L"C:\\L\\C.cly"}, {L"txtUsername", L"Pat Doe"}});
    Type(properties, {{L"txtPath", L"C:\\Data\\Customers.dbf"}});
    JourneyWindow::Press(VK_RETURN);
    CHECK(AnswerBox().Text.starts_with(L"You need to give this database a unique friendly name."));
    REQUIRE(JourneyWindow::InFront(name));
    CHECK(JourneyWindow::Text(name).empty());
    Type(properties, {{L"txtName", L"Customers"}});
    JourneyWindow::Press(VK_RETURN);
    REQUIRE(Within([&] { return !IsWindow(properties); }));
    REQUIRE(Within([&] { return Lines(list) == L"Archive;Customers"; }));

    properties = OpenAdd(*this, list);
    Type(properties, {{L"txtName", L"Suppliers"}, {L"txtPath", third}, {L"txtCL", L"C:\\L\\S.cly"}});
    ShowTab(properties, 2);
    Type(properties, {{L"txtUsername", L"Chris"}});
    Check(properties, L"chkPassword", true);
    Type(properties, {{L"txtPassword", L"abc"}});
    Leave(properties, L"cmdOK");
    REQUIRE(Within([&] { return Lines(list) == L"Archive;Customers;Suppliers" && SelectedLine(list) == 2; }));
    REQUIRE(JourneyWindow::InFront(JourneyWindow::Control(list, L"cmdAdd")));
    JourneyWindow::Press(VK_ESCAPE);
    REQUIRE(Within([&] { return !IsWindow(list); }));

    REQUIRE(Within([&] { return Rows(window) == L"Archive;Customers;Suppliers"; }));
    CHECK(Within([&] { return ForeignList(ListOf(window)).Selected() == 2; }));
    // Whether the blank line stays that a new file is made with is up to the system.
    const std::string bytes = FileBytes(SettingsFile());
    CHECK(bytes.substr(bytes.find_first_not_of(" \r\n")) ==
          "[General]\r\nSort=Archive;Customers;Suppliers\r\n"
          "[Archive]\r\nPath=C:\\Data\\Archive.dbf\r\nCLY=C:\\L\\A.cly\r\nGLY=C:\\L\\A.gly\r\n"
          "StartupMacro=C:\\M\\A.mpr\r\n"
          "[Customers]\r\nPath=C:\\Data\\Customers.dbf\r\nCLY=C:\\L\\C.cly\r\nGLY=\r\nStartupMacro=\r\n"
          "[Suppliers]\r\nPath=" +
              ToAnsi(third) + "\r\nCLY=C:\\L\\S.cly\r\nGLY=\r\nStartupMacro=\r\n");
    CHECK(UserSection(L"Archive") == L"NoPasswordAtACTStartup=1;UsePassword=0;Username=Pat;");
    CHECK(UserSection(L"Customers") == L"NoPasswordAtACTStartup=0;UsePassword=0;Username=Pat Doe;");
    CHECK(UserSection(L"Suppliers") ==
          L"NoPasswordAtACTStartup=0;Password=\u00a6\u00ae\u00b0;UsePassword=1;Username=Chris;");

    DoubleClickRow(window, 2);
    CHECK(Program().ExitCode() == 0u);
    CHECK(Calls().find(L"APPOBJECT openDB METHOD VT_BSTR \"" + third + L'"') != std::wstring::npos);
    CHECK(User(L"Logon", L"Username") == L"Chris");
}

TEST_CASE_FIXTURE(Journey,
                  "while the list's share is away nothing opens or is saved, and afterwards all is as it was") {
    FurnishThree(*this);
    const std::wstring share = File(L"Share");
    CreateDirectoryW(share.c_str(), nullptr);
    REQUIRE(MoveFileW(SettingsFile().c_str(), (share + L"\\Kelmorra.ini").c_str()));
    User(L"Settings", L"IniLocation", share + L"\\Kelmorra.ini");
    const auto away = [&] { REQUIRE(MoveFileW(share.c_str(), (share + L" away").c_str())); };
    const auto back = [&] { REQUIRE(MoveFileW((share + L" away").c_str(), share.c_str())); };
    StartActElsewhere(*this);
    User(L"Display", L"Selected", L"1");
    HWND window = StartToMainWindow();
    const std::string before = FileBytes(share + L"\\Kelmorra.ini");
    HWND list = OpenList(*this);
    away();
    JourneyWindow::Click(list, L"cmdRemove");
    CHECK(AnswerBox().Text.find(L"could not be saved in the settings file\r\n" + share) != std::wstring::npos);
    CHECK(Lines(list) == L"Archive;Customers;Suppliers");
    JourneyWindow::Click(list, L"cmdUp");
    REQUIRE(Within([&] { return Lines(list) == L"Customers;Archive;Suppliers"; }));
    JourneyWindow::Click(list, L"cmdClose");
    JourneyWindow::Answer(Box(Program()), IDNO); // leaves without saving
    REQUIRE(Within([&] { return !IsWindow(list); }));
    CHECK(Rows(window) == L"Archive;Customers;Suppliers");
    for (const wchar_t* item : {L"mnuManageList", L"mnuEditProperties", L"mnuFileOpen"}) {
        REQUIRE(Within([&] { return IsWindowEnabled(window) != FALSE; }));
        JourneyWindow::ClickMenu(window, item);
        CHECK(AnswerBox().Text.find(share + L"\\Kelmorra.ini\r\ncannot be read at the moment") != std::wstring::npos);
    }
    back();
    CHECK(FileBytes(share + L"\\Kelmorra.ini") == before);
    for (const wchar_t* name : {L"Archive", L"Customers", L"Suppliers"})
        CHECK(UserSection(name) == L"UsePassword=0;Username=Pat;");
    JourneyWindow::Click(OpenList(*this), L"cmdRemove");
    CHECK(Within([&] { return UserSection(L"Customers") == L"(none)"; }));
    CHECK(FileBytes(share + L"\\Kelmorra.ini") ==
          "[General]\r\nSort=Archive;Suppliers\r\nQuickSwitch=Archive;Suppliers;;;;;\r\n[Archive]\r\nPath=C:\\Data\\"
          "Archive.dbf\r\n[Suppliers]\r\nPath=C:\\Data\\Suppliers.dbf\r\n");
    Leave(Window(Program(), L"frmListMaintenance"), L"cmdClose");
    Close();
}

TEST_CASE_FIXTURE(Journey, "the mouse over the bare parts of dialogs leaves them as they are") {
    FurnishThree(*this);
    StartActElsewhere(*this);
    StartToMainWindow();
    HWND list = OpenList(*this);
    HWND properties = OpenAdd(*this, list);
    for (HWND dialog : {properties, list})
        SendMessageTimeoutW(dialog, WM_SETCURSOR, reinterpret_cast<WPARAM>(dialog), MAKELPARAM(HTCLIENT, WM_MOUSEMOVE),
                            SMTO_ABORTIFHUNG, JourneyPatience, nullptr);
    CHECK(IsWindowVisible(properties));
    Leave(properties, L"cmdCancel");
    CHECK(Lines(list) == L"Archive;Customers;Suppliers");
    Leave(list, L"cmdClose");
    Close();
}

TEST_CASE_FIXTURE(Journey, "two dialogs on top of each other close with ACT!, and what was not saved is not written") {
    FurnishThree(*this);
    StartActElsewhere(*this);
    StartToMainWindow();
    const std::string before = FileBytes(SettingsFile());
    HWND list = OpenList(*this);
    HWND properties = OpenAdd(*this, list);
    Type(properties, {{L"txtName", L"Unsaved"}, {L"txtPath", L"C:\\U.dbf"}, {L"txtCL", L"C:\\U.cly"}});
    Type(properties, {{L"txtUsername", L"Chris"}});
    ActUserCloses();
    CHECK(Within([&] { return ActHasEnded(); }));
    CHECK(Program().ExitCode() == 0u);
    CHECK_FALSE(IsWindow(properties));
    CHECK_FALSE(IsWindow(list));
    CHECK(FileBytes(SettingsFile()) == before);
    CHECK(UserSection(L"Unsaved") == L"(none)");
    for (const wchar_t* name : {L"Archive", L"Customers", L"Suppliers"})
        CHECK(UserSection(name) == L"UsePassword=0;Username=Pat;");
}
