// A list that is brought along from another settings file, and the check that finds what is missing.

#include "support/Journey.h"

#include <commctrl.h>

namespace {

LRESULT Ask(HWND form, const wchar_t* control, UINT message, const wchar_t* text = nullptr) {
    return SendMessageW(FindControl(form, control), message, 0, reinterpret_cast<LPARAM>(text));
}

HWND OpenList(Journey& journey) {
    journey.ListRealDatabase(L"Sales");
    journey.StartActElsewhere();
    journey.StartToMainWindow();
    HWND list = journey.OpenByMenu(L"mnuManageList", L"frmListMaintenance");
    REQUIRE(InFront(FindControl(list, L"lstDB")));
    return list;
}

} // namespace

TEST_CASE_FIXTURE(Journey, "a list from a kept copy is imported with unique names, and taken back by one undo") {
    std::filesystem::create_directories(BackupFolder());
    FileBytes(BackupFolder() + L"\\Kelmorra-01234567-20260101-120000.ini",
              "[General]\r\nSort=Sales;Own\r\n[Sales]\r\nPath=C:\\S.dbf\r\n[Own]\r\nPath=C:\\O.dbf\r\n");
    HWND list = OpenList(*this);
    const std::string before = FileBytes(SettingsFile());
    ClickMenu(list, L"mnuImport");
    HWND import = Window(Program(), L"frmImport");
    REQUIRE(InFront(FindControl(import, L"cboFile")));
    PressKey(VK_DOWN);
    REQUIRE(Within([&] { return Ask(import, L"lvwDatabases", LVM_GETITEMCOUNT) == 2; }));
    for (const int key : {VK_TAB, VK_TAB, VK_SPACE, VK_RETURN}) PressKey(key); // the first one, too
    REQUIRE(Within([&] { return !IsWindow(import) && Ask(list, L"lstDB", LB_GETCOUNT) == 3; }));
    CHECK(FileBytes(SettingsFile()).find("Sort=Sales;Sales (2);Own\r\n") != std::string::npos);
    ClickMenu(list, L"mnuUndo");
    REQUIRE(Within([&] { return Ask(list, L"lstDB", LB_GETCOUNT) == 1; }));
    CHECK(FileBytes(SettingsFile()) == before);
}

TEST_CASE_FIXTURE(Journey, "the check shows what is missing, and a rename from there renames the line in place") {
    Ini(L"General", L"Sort", L"Branch");
    Ini(L"Branch", L"Path", L"C:\\No such folder\\Branch.dbf");
    Ini(L"Branch", L"CLY", L"C:\\windows\\win.ini");
    for (const wchar_t* name : {L"Sales", L"Branch"}) User(name, L"Username", L"Pat");
    HWND list = OpenList(*this);
    PressKey(VK_F5);
    HWND check = Window(Program(), L"frmCheck");
    REQUIRE(Within([&] { return Ask(check, L"lvwMissing", LVM_GETITEMCOUNT) == 1; }));
    REQUIRE(InFront(FindControl(check, L"lvwMissing")));
    PressKey(VK_RETURN);
    HWND properties = Window(Program(), L"frmProperties");
    Type(properties, {{L"txtName", L"Bank"}, {L"txtPath", L"C:\\windows\\win.ini"}});
    Leave(properties, L"cmdOK");
    HWND state = FindControl(check, L"lblState");
    CHECK(Within([&] { return WindowText(state) == L"Nothing is missing."; }));
    Leave(check, L"cmdClose");
    CHECK(Within([&] { return Ask(list, L"lstDB", LB_FINDSTRINGEXACT, L"Bank") == 0; }));
}
