// A new user's first session, from the choice of the language to the first open.

#include "i18n/LangText.h"
#include "support/JourneyDialogs.h"
#include "win32/AnsiText.h"

#include <filesystem>

namespace {

using namespace JourneyDialogs;
using JourneyStores::User;

std::wstring German(size_t index) { return FromUtf8(LangTextTable.at(index - 1).German); }

} // namespace

TEST_CASE_FIXTURE(Journey, "a new user chooses a language, builds a list from nothing and opens its second database") {
    const std::wstring second = File(L"Suppliers.dbf");
    JourneyStores::FileBytes(second, "dBASE");
    JourneyStores::DeleteTree(JourneyStores::UserRoot);
    StartActElsewhere(*this);
    HWND dialog = Window(Start(), L"frmLanguage");
    SendMessageW(JourneyWindow::Control(dialog, L"cmbLanguage"), CB_SETCURSEL, 2, 0);
    JourneyWindow::Click(dialog, L"cmdOK");
    HWND window = Window(Program(), L"frmMain");
    CHECK(JourneyWindow::Text(JourneyWindow::Control(window, L"cmdOpen")) == German(62));
    CHECK(User(L"Options", L"Language") == L"2");

    HWND list = OpenByMenu(*this, L"mnuManageList", L"frmListMaintenance");
    HWND properties = OpenByButton(*this, list, L"cmdAdd", L"frmProperties");
    Type(properties, {{L"txtName", L"Archive"}, {L"txtPath", L"C:\\A.dbf"}, {L"txtCL", L"C:\\A.cly"}});
    Type(properties, {{L"txtUsername", L"Pat"}});
    Leave(properties, L"cmdOK");
    properties = OpenByButton(*this, list, L"cmdAdd", L"frmProperties");
    Type(properties, {{L"txtName", L"Suppliers"}, {L"txtPath", second}, {L"txtCL", L"C:\\S.cly"}});
    SendMessageW(JourneyWindow::Control(properties, L"chkPassword"), BM_CLICK, 0, 0);
    Type(properties, {{L"txtUsername", L"Chris"}, {L"txtPassword", L"abc"}});
    Leave(properties, L"cmdOK");
    REQUIRE(JourneyWindow::InFront(JourneyWindow::Control(list, L"cmdAdd")));
    JourneyWindow::Press(VK_ESCAPE);
    REQUIRE(Within([&] { return !IsWindow(list) && SelectedRow(ListOf(window)) == 1; }));

    // Whether the blank line stays that a new file is made with is up to the system.
    const std::string bytes = JourneyStores::FileBytes(SettingsFile());
    CHECK(bytes.substr(bytes.find_first_not_of(" \r\n")) ==
          "[General]\r\nSort=Archive;Suppliers\r\n"
          "[Archive]\r\nPath=C:\\A.dbf\r\nCLY=C:\\A.cly\r\nGLY=\r\nStartupMacro=\r\n"
          "[Suppliers]\r\nPath=" +
              ToAnsi(second) + "\r\nCLY=C:\\S.cly\r\nGLY=\r\nStartupMacro=\r\n");
    CHECK(User(L"Archive", L"Username") == L"Pat");
    CHECK(User(L"Suppliers", L"Password") == L"\u00a6\u00ae\u00b0");
    REQUIRE(JourneyWindow::InFront(ListOf(window)));
    JourneyWindow::ClickMouse(ListOf(window), MiddleOfRow(ListOf(window), 1), 2);
    CHECK(Program().ExitCode() == 0u);
    CHECK(Calls().find(L"APPOBJECT openDB METHOD VT_BSTR \"" + second + L'"') != std::wstring::npos);
    CHECK(User(L"Logon", L"Username") == L"Chris");
    size_t files = 0;
    for (const auto& entry : std::filesystem::directory_iterator(File(L"Kelmorra"))) files += entry.is_regular_file();
    CHECK(files == 2); // the program and its settings file
}
