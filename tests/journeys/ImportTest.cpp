// A list that is brought along from another settings file, and the check that finds what is missing.

#include "support/JourneyDialogs.h"

#include <filesystem>

namespace {

using namespace JourneyDialogs;

LRESULT Ask(HWND form, const wchar_t* control, UINT message, const wchar_t* text = nullptr) {
    return SendMessageW(JourneyWindow::Control(form, control), message, 0, reinterpret_cast<LPARAM>(text));
}

HWND OpenList(Journey& journey) {
    journey.ListRealDatabase(L"Sales");
    StartActElsewhere(journey);
    journey.StartToMainWindow();
    HWND list = OpenByMenu(journey, L"mnuManageList", L"frmListMaintenance");
    REQUIRE(JourneyWindow::InFront(JourneyWindow::Control(list, L"lstDB")));
    return list;
}

} // namespace

TEST_CASE_FIXTURE(Journey, "a list from a kept copy is imported with unique names, and taken back by one undo") {
    std::filesystem::create_directories(JourneyStores::BackupFolder());
    JourneyStores::FileBytes(JourneyStores::BackupFolder() + L"\\Kelmorra-01234567-20260101-120000.ini",
                             "[General]\r\nSort=Sales;Own\r\n[Sales]\r\nPath=C:\\S.dbf\r\n[Own]\r\nPath=C:\\O.dbf\r\n");
    HWND list = OpenList(*this);
    const std::string before = JourneyStores::FileBytes(SettingsFile());
    JourneyWindow::ClickMenu(list, L"mnuImport");
    HWND import = Window(Program(), L"frmImport");
    REQUIRE(JourneyWindow::InFront(JourneyWindow::Control(import, L"cboFile")));
    JourneyWindow::Press(VK_DOWN);
    REQUIRE(Within([&] { return Ask(import, L"lvwDatabases", LVM_GETITEMCOUNT) == 2; }));
    for (const WORD key : std::initializer_list<WORD>{VK_TAB, VK_TAB, VK_SPACE, VK_RETURN})
        JourneyWindow::Press(key); // the first one, too
    REQUIRE(Within([&] { return !IsWindow(import) && Ask(list, L"lstDB", LB_GETCOUNT) == 3; }));
    CHECK(JourneyStores::FileBytes(SettingsFile()).find("Sort=Sales;Sales (2);Own\r\n") != std::string::npos);
    JourneyWindow::ClickMenu(list, L"mnuUndo");
    REQUIRE(Within([&] { return Ask(list, L"lstDB", LB_GETCOUNT) == 1; }));
    CHECK(JourneyStores::FileBytes(SettingsFile()) == before);
}

TEST_CASE_FIXTURE(Journey, "the check shows what is missing, and a rename from there renames the line in place") {
    Ini(L"General", L"Sort", L"Branch");
    Ini(L"Branch", L"Path", L"C:\\No such folder\\Branch.dbf");
    Ini(L"Branch", L"CLY", L"C:\\windows\\win.ini");
    for (const wchar_t* name : {L"Sales", L"Branch"}) JourneyStores::User(name, L"Username", L"Pat");
    HWND list = OpenList(*this);
    JourneyWindow::Press(VK_F5);
    HWND check = Window(Program(), L"frmCheck");
    REQUIRE(Within([&] { return Ask(check, L"lvwMissing", LVM_GETITEMCOUNT) == 1; }));
    REQUIRE(JourneyWindow::InFront(JourneyWindow::Control(check, L"lvwMissing")));
    JourneyWindow::Press(VK_RETURN);
    HWND properties = Window(Program(), L"frmProperties");
    Type(properties, {{L"txtName", L"Bank"}, {L"txtPath", L"C:\\windows\\win.ini"}});
    Leave(properties, L"cmdOK");
    HWND state = JourneyWindow::Control(check, L"lblState");
    CHECK(Within([&] { return JourneyWindow::Text(state) == L"Nothing is missing."; }));
    Leave(check, L"cmdClose");
    CHECK(Within([&] { return Ask(list, L"lstDB", LB_FINDSTRINGEXACT, L"Bank") == 0; }));
}
