// A database's properties edited in the real program: renaming, folders, passwords.

#include "support/JourneyDialogs.h"
#include "win32/AnsiText.h"

#include <array>

namespace {

using namespace JourneyDialogs;
using JourneyStores::FileBytes;
using JourneyStores::User;
using JourneyStores::UserSection;

constexpr std::array kLocations{L"Attached Email",
                                L"Database",
                                L"Document",
                                L"Document Template",
                                L"Email Root Folder",
                                L"Layout",
                                L"Macro",
                                L"NetLinks",
                                L"Query",
                                L"Report, Label, Envelope",
                                L"Synchronize",
                                L"Spelling Dictionary"};

/// The lines of a settings file for all twelve folders, from the row `first` on.
std::string FolderLines(size_t first = 0) {
    std::string lines;
    for (size_t row = first; row < kLocations.size(); ++row)
        lines += ToAnsi(kLocations[row]) + "=D:\\" + std::to_string(row) + "\r\n";
    return lines;
}

HWND OpenProperties(const Journey& journey) { return OpenByMenu(journey, L"mnuEditProperties", L"frmProperties"); }

/// BigSales and Sales, the latter selected and with everything that a database can have. Returns its path.
std::wstring FurnishSales(Journey& journey) {
    journey.List(L"BigSales", L"C:\\Data\\BigSales.dbf");
    std::wstring path = journey.ListRealDatabase(L"Sales");
    journey.Ini(L"Sales", L"CLY", L"C:\\L\\Sales.cly");
    journey.Ini(L"Sales", L"GLY", L"");
    journey.Ini(L"Sales", L"StartupMacro", L"");
    for (size_t row = 0; row < kLocations.size(); ++row)
        journey.Ini(L"Sales", kLocations[row], L"D:\\" + std::to_wstring(row));
    journey.Ini(L"General", L"QuickSwitch", L"BigSales;Sales;;;;;");
    User(L"BigSales", L"Username", L"Pat");
    User(L"Sales", L"Username", L"Chris");
    User(L"Sales", L"UsePassword", L"1");
    User(L"Sales", L"Password", L"\u00a6\u00ae\u00b0");
    User(L"Display", L"Selected", L"1");
    return path;
}

std::optional<JourneyStores::Value> RawPassword(const wchar_t* section) {
    return JourneyStores::Read(std::wstring(JourneyStores::UserRoot) + L'\\' + section, L"Password");
}

} // namespace

TEST_CASE_FIXTURE(Journey, "a rename takes the database along in both stores, and it opens under its new name") {
    const std::wstring path = FurnishSales(*this);
    StartActElsewhere(*this);
    HWND window = StartToMainWindow();
    HWND properties = OpenProperties(*this);
    CHECK(JourneyWindow::Text(properties) == L"Properties: Sales");
    Type(properties, {{L"txtName", L"Leads"}});
    Leave(properties, L"cmdOK");

    const ForeignList list(ListOf(window));
    CHECK(Within([&] { return list.Cell(1, 4) == L"Leads"; }));
    CHECK(Rows(window) == L"BigSales;Leads");
    CHECK(list.Selected() == 1);
    // The name of the one is the end of the other's: the text is replaced there too.
    CHECK(FileBytes(SettingsFile()) == "[General]\r\nSort=BigLeads;Leads\r\nQuickSwitch=BigSales;Leads;;;;;\r\n"
                                       "[BigSales]\r\nPath=C:\\Data\\BigSales.dbf\r\n"
                                       "[Leads]\r\n" +
                                           FolderLines() + "Path=" + ToAnsi(path) +
                                           "\r\nCLY=C:\\L\\Sales.cly\r\nGLY=\r\nStartupMacro=\r\n");
    CHECK(UserSection(L"Sales") == L"(none)");
    CHECK(UserSection(L"BigSales") == L"Username=Pat;");
    CHECK(UserSection(L"Leads") ==
          L"NoPasswordAtACTStartup=0;Password=\u00a6\u00ae\u00b0;UsePassword=1;Username=Chris;");

    JourneyWindow::Click(window, L"cmdOpen");
    CHECK(Program().ExitCode() == 0u);
    CHECK(Calls().find(L"DefaultContactLayout PUT VT_BSTR \"C:\\L\\Sales.cly\"") != std::wstring::npos);
    CHECK(Calls().find(L"openDB METHOD VT_BSTR \"" + path + L'"') != std::wstring::npos);
    CHECK(User(L"Logon", L"Username") == L"Chris");
    CHECK(JourneyStores::Read(JourneyStores::ActRoot, L"Spelling Dictionary File Type"));
    CHECK(UserSection(L"Sales") == L"(none)");

    // A new run builds the list from what is stored.
    const ForeignList again(ListOf(StartToMainWindow()));
    CHECK(again.Rows() == 2);
    CHECK(again.Cell(0, 0) == L"BigLeads");
    CHECK(again.Cell(0, 4).empty());
    CHECK(again.Cell(1, 0) == L"Leads");
    CHECK(again.Cell(1, 4) == path);
}

TEST_CASE_FIXTURE(Journey, "a password keeps every byte of its cipher through save, a new run and an open") {
    const std::wstring cipher(L"\0\r\n\u00c7\0", 5);
    FurnishSales(*this);
    StartActElsewhere(*this);
    StartToMainWindow();
    HWND properties = OpenProperties(*this);
    ShowTab(properties, 2);
    Type(properties, {{L"txtPassword", L"\u00bb\u00c1\u00bdx\u00ae"}});
    Leave(properties, L"cmdOK");
    CHECK(User(L"Sales", L"Password") == cipher);
    Close();
    const auto stored = RawPassword(L"Sales");

    // Saving it again enciphers what the dialog has read.
    HWND window = StartToMainWindow();
    properties = OpenProperties(*this);
    Type(properties, {{L"txtUsername", L"Pat Doe"}});
    Leave(properties, L"cmdOK");
    CHECK(User(L"Sales", L"Username") == L"Pat Doe");
    CHECK(RawPassword(L"Sales") == stored);
    JourneyWindow::Click(window, L"cmdOpen");
    CHECK(Program().ExitCode() == 0u);
    CHECK(RawPassword(L"Logon") == stored);

    StartToMainWindow();
    properties = OpenProperties(*this);
    Check(properties, L"chkPassword", false);
    Leave(properties, L"cmdOK");
    CHECK_FALSE(RawPassword(L"Sales"));
    CHECK(User(L"Sales", L"UsePassword") == L"0");
}
