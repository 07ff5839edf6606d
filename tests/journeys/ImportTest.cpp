// A list that is brought along from another settings file, and the check that finds what is missing of it.

#include "support/JourneyDialogs.h"

#include <filesystem>

namespace {

using namespace JourneyDialogs;

std::string Bytes(const char* database) {
    const std::string name = database;
    return "[" + name + "]\r\nPath=C:\\" + name + ".dbf\r\nCLY=C:\\" + name + ".cly\r\n";
}

LRESULT Lines(HWND list) { return SendMessageW(JourneyWindow::Control(list, L"lstDB"), LB_GETCOUNT, 0, 0); }

} // namespace

TEST_CASE_FIXTURE(Journey, "a list from a kept copy is imported, its names made unique, and taken back by one undo") {
    const std::wstring copies = JourneyStores::BackupFolder();
    std::filesystem::create_directories(copies);
    JourneyStores::FileBytes(copies + L"\\Kelmorra-01234567-20260101-120000.ini",
                             "[General]\r\nSort=Sales;Own\r\n" + Bytes("Sales") + Bytes("Own"));
    List(L"Sales", L"S:\\Sales.dbf");
    StartActElsewhere(*this);
    const std::string before = JourneyStores::FileBytes(SettingsFile());
    StartToMainWindow();
    HWND list = OpenByMenu(*this, L"mnuManageList", L"frmListMaintenance");
    JourneyWindow::ClickMenu(list, L"mnuImport");
    HWND import = Window(Program(), L"frmImport");
    HWND files = JourneyWindow::Control(import, L"cboFile");
    REQUIRE(JourneyWindow::InFront(files));
    JourneyWindow::Press(VK_DOWN);
    HWND offered = JourneyWindow::Control(import, L"lvwDatabases");
    REQUIRE(Within([&] { return SendMessageW(offered, LVM_GETITEMCOUNT, 0, 0) == 2; }));
    JourneyWindow::Press(VK_TAB);
    JourneyWindow::Press(VK_TAB);
    REQUIRE(JourneyWindow::InFront(offered));
    JourneyWindow::Press(VK_SPACE); // the name that is there already: not checked before
    JourneyWindow::Press(VK_RETURN);
    REQUIRE(Within([&] { return !IsWindow(import) && Lines(list) == 3; }));
    CHECK(JourneyStores::FileBytes(SettingsFile()).find("Sort=Sales;Sales (2);Own\r\n") != std::string::npos);
    JourneyWindow::ClickMenu(list, L"mnuUndo");
    REQUIRE(Within([&] { return Lines(list) == 1; }));
    CHECK(JourneyStores::FileBytes(SettingsFile()) == before);
    Leave(list, L"cmdClose");
    Close();
}

TEST_CASE_FIXTURE(Journey, "the check shows what is missing, and a rename from there renames the line in place") {
    const std::wstring path = ListRealDatabase(L"Archive");
    List(L"Branch", L"C:\\No such folder\\Branch.dbf");
    Ini(L"Branch", L"CLY", path);
    JourneyStores::User(L"Archive", L"Username", L"Pat");
    JourneyStores::User(L"Branch", L"Username", L"Pat");
    List(L"Customers", path);
    JourneyStores::User(L"Customers", L"Username", L"Pat");
    StartActElsewhere(*this);
    StartToMainWindow();
    HWND list = OpenByMenu(*this, L"mnuManageList", L"frmListMaintenance");
    REQUIRE(JourneyWindow::InFront(JourneyWindow::Control(list, L"lstDB")));
    JourneyWindow::Press(VK_F5);
    HWND check = Window(Program(), L"frmCheck");
    HWND missing = JourneyWindow::Control(check, L"lvwMissing");
    REQUIRE(Within([&] { return SendMessageW(missing, LVM_GETITEMCOUNT, 0, 0) == 1; }));
    REQUIRE(JourneyWindow::InFront(missing));
    JourneyWindow::Press(VK_RETURN);
    HWND properties = Window(Program(), L"frmProperties");
    Type(properties, {{L"txtName", L"Bank"}, {L"txtPath", path}});
    Leave(properties, L"cmdOK");
    REQUIRE(Within(
        [&] { return JourneyWindow::Text(JourneyWindow::Control(check, L"lblState")) == L"Nothing is missing."; }));
    Leave(check, L"cmdClose");
    HWND lines = JourneyWindow::Control(list, L"lstDB");
    CHECK(Within([&] { return SendMessageW(lines, LB_FINDSTRINGEXACT, 0, reinterpret_cast<LPARAM>(L"Bank")) == 1; }));
    Leave(list, L"cmdClose");
    Close();
}
