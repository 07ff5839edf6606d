// Another settings file, and one that two users share.

#include "support/JourneyDialogs.h"

namespace {

using namespace JourneyDialogs;
using JourneyStores::FileBytes;
using JourneyStores::User;
using JourneyStores::UserSection;

constexpr wchar_t kRestart[] = L"Please close and restart Kelmorra for the changes to take effect.";

/// Names the settings file in its dialog and leaves it by OK.
void Locate(const Journey& journey, const std::wstring& path) {
    HWND dialog = OpenByMenu(journey, L"mnuSettingsLocation", L"frmLocations");
    Type(dialog, {{L"txtPath", path}});
    Leave(dialog, L"cmdOK");
}

/// The per-user stores of several users, of whom one is logged on.
class Users {
public:
    explicit Users(std::wstring first) : current_(std::move(first)) {}
    void LogOn(const std::wstring& user) {
        stores_[current_] = JourneyStores::ReadTree(JourneyStores::UserRoot);
        JourneyStores::DeleteTree(JourneyStores::UserRoot);
        JourneyStores::WriteTree(stores_[user]);
        current_ = user;
    }

private:
    std::map<std::wstring, JourneyStores::Snapshot> stores_;
    std::wstring current_;
};

} // namespace

TEST_CASE_FIXTURE(Journey, "another settings file is used from the next start on") {
    const std::wstring other = File(L"other.ini");
    List(L"Customers", L"C:\\Data\\Customers.dbf");
    FileBytes(other, "[General]\r\nSort=Archive;Suppliers\r\n");
    StartActElsewhere(*this);
    HWND window = StartToMainWindow();
    Locate(*this, SettingsFile());
    // Once another dialog is open, a box about the first would be there too.
    Leave(OpenByMenu(*this, L"mnuLanguages", L"frmLanguage"), L"cmdCancel");
    CHECK_FALSE(JourneyWindow::MessageBoxOf(Program().Id()));
    CHECK(User(L"Settings", L"IniLocation") == SettingsFile());

    Locate(*this, other);
    JourneyWindow::Box box = AnswerBox();
    CHECK(box.Title == L"Kelmorra");
    CHECK(box.Text == kRestart);
    CHECK(Within([&] { return IsWindowEnabled(window) != FALSE; }));
    CHECK(Rows(window) == L"Customers");
    Close();

    CHECK(Rows(StartToMainWindow()) == L"Archive;Suppliers");
    // A folder passes for a settings file that holds nothing.
    Locate(*this, File(L"Kelmorra"));
    CHECK(AnswerBox().Text == kRestart);
    Close();

    window = StartToMainWindow();
    CHECK_FALSE(JourneyWindow::MessageBoxOf(Program().Id()));
    CHECK(Rows(window).empty());
    HWND list = OpenByMenu(*this, L"mnuManageList", L"frmListMaintenance");
    CHECK(Lines(list).empty());
    Leave(list, L"cmdClose");
    Locate(*this, other);
    CHECK(AnswerBox().Text == kRestart);
    Close();
    CHECK(Rows(StartToMainWindow()) == L"Archive;Suppliers");
}

TEST_CASE_FIXTURE(Journey, "two users of one settings file share list and options, and keep their own log-ons") {
    const std::wstring shared = File(L"shared.ini");
    const std::wstring path = File(L"Customers.dbf");
    FileBytes(path, "dBASE");
    FileBytes(shared, "");
    StartActElsewhere(*this);
    User(L"Settings", L"IniLocation", shared);
    Users users(L"Pat");
    users.LogOn(L"Chris");
    User(L"Settings", L"Installed", L"1");
    User(L"Settings", L"IniLocation", shared);

    users.LogOn(L"Pat");
    StartToMainWindow();
    HWND list = OpenByMenu(*this, L"mnuManageList", L"frmListMaintenance");
    HWND properties = OpenByButton(*this, list, L"cmdAdd", L"frmProperties");
    Type(properties, {{L"txtName", L"Customers"}, {L"txtPath", path}, {L"txtCL", L"C:\\L\\Pat.cly"}});
    Type(properties, {{L"txtUsername", L"Pat Doe"}});
    Check(properties, L"chkPassword", true);
    Type(properties, {{L"txtPassword", L"abc"}});
    Leave(properties, L"cmdOK");
    Leave(list, L"cmdClose");
    Close();

    users.LogOn(L"Chris");
    HWND window = StartToMainWindow();
    CHECK(Rows(window) == L"Customers");
    ForeignList(ListOf(window)).Select(0);
    properties = OpenByMenu(*this, L"mnuEditProperties", L"frmProperties");
    CHECK(JourneyWindow::Text(JourneyWindow::Control(properties, L"txtCL")) == L"C:\\L\\Pat.cly");
    CHECK(JourneyWindow::Text(JourneyWindow::Control(properties, L"txtUsername")).empty());
    CHECK_FALSE(JourneyWindow::Checked(JourneyWindow::Control(properties, L"chkPassword")));
    Type(properties, {{L"txtUsername", L"Chris Roe"}, {L"txtCL", L"C:\\L\\Chris.cly"}});
    Leave(properties, L"cmdOK");
    Close();

    struct Logon {
        const wchar_t* user;
        const wchar_t* values;
    };
    for (const Logon& expected : {Logon{L"Pat", L"Password=\u00a6\u00ae\u00b0;UsePassword=1;Username=Pat Doe;"},
                                  Logon{L"Chris", L"Password=;UsePassword=0;Username=Chris Roe;"}}) {
        CAPTURE(expected.user);
        users.LogOn(expected.user);
        window = StartToMainWindow();
        CHECK(ForeignList(ListOf(window)).Cell(0, 1) == L"C:\\L\\Chris.cly");
        CHECK(ForeignList(ListOf(window)).Selected() == 0);
        JourneyWindow::Click(window, L"cmdOpen");
        CHECK(Program().ExitCode() == 0u);
        CHECK(UserSection(L"Logon") == expected.values);
    }
    CHECK(Count(L"APPOBJECT", L"openDB") == 2);
    CHECK(FileBytes(shared).find("Pat Doe") == std::string::npos);
    CHECK(FileBytes(shared).find("Chris Roe") == std::string::npos);
}
