// A new user's first session, from the choice of the language to the first open.

#include "i18n/LangText.h"
#include "support/Journey.h"
#include "win32/AnsiText.h"

namespace {

std::wstring German(size_t index) { return FromUtf8(LangTextTable.at(index - 1).German); }

} // namespace

TEST_CASE_FIXTURE(Journey, "a new user chooses a language, builds a list from nothing and opens its second database") {
    const std::wstring second = File(L"Suppliers.dbf");
    FileBytes(second, "dBASE");
    UserStore::DeleteAll();
    StartActElsewhere();
    HWND dialog = Window(Start(), L"frmLanguage");
    SendMessageW(FindControl(dialog, L"cmbLanguage"), CB_SETCURSEL, 2, 0);
    Click(FindControl(dialog, L"cmdOK"));
    HWND window = Window(Program(), L"frmMain");
    HWND databases = FindControl(window, L"ListView1");
    CHECK(WindowText(FindControl(window, L"cmdOpen")) == German(62));
    CHECK(User(L"Options", L"Language") == L"2");

    HWND list = OpenByMenu(L"mnuManageList", L"frmListMaintenance");
    HWND properties = OpenByButton(list, L"cmdAdd", L"frmProperties");
    Type(properties, {{L"txtName", L"Archive"}, {L"txtPath", L"C:\\A.dbf"}, {L"txtCL", L"C:\\A.cly"}});
    Type(properties, {{L"txtUsername", L"Pat"}});
    Leave(properties, L"cmdOK");
    properties = OpenByButton(list, L"cmdAdd", L"frmProperties");
    Type(properties, {{L"txtName", L"Suppliers"}, {L"txtPath", second}, {L"txtCL", L"C:\\S.cly"}});
    SendMessageW(FindControl(properties, L"chkPassword"), BM_CLICK, 0, 0);
    Type(properties, {{L"txtUsername", L"Chris"}, {L"txtPassword", L"abc"}});
    Leave(properties, L"cmdOK");
    REQUIRE(InFront(FindControl(list, L"cmdAdd")));
    PressKey(VK_ESCAPE);
    REQUIRE(Within([&] { return !IsWindow(list) && SelectedRow(databases) == 1; }));

    // Whether the blank line stays that a new file is made with is up to the system.
    const std::string bytes = FileBytes(SettingsFile());
    CHECK(bytes.substr(bytes.find_first_not_of(" \r\n")) ==
          "[General]\r\nSort=Archive;Suppliers\r\n"
          "[Archive]\r\nPath=C:\\A.dbf\r\nCLY=C:\\A.cly\r\nGLY=\r\nStartupMacro=\r\n"
          "[Suppliers]\r\nPath=" +
              ToAnsi(second) + "\r\nCLY=C:\\S.cly\r\nGLY=\r\nStartupMacro=\r\n");
    CHECK(User(L"Archive", L"Username") == L"Pat");
    CHECK(User(L"Suppliers", L"Password") == L"\u00a6\u00ae\u00b0");
    REQUIRE(InFront(databases));
    ClickMouse(databases, MiddleOfRow(databases, 1), 2);
    CHECK(Program().ExitCode() == 0u);
    CHECK(Calls().find(L"APPOBJECT openDB METHOD VT_BSTR \"" + second + L'"') != std::wstring::npos);
    CHECK(User(L"Logon", L"Username") == L"Chris");
    size_t files = 0;
    for (const auto& entry : std::filesystem::directory_iterator(ProgramFile({}))) files += entry.is_regular_file();
    CHECK(files == 2); // the program and its settings file
}
