// What a start does to the stores: upgrade, wipe, and a settings file that is made.

#include "support/Journey.h"

namespace {

using JourneyStores::User;

void ChooseEnglish(const Journey& journey) {
    HWND dialog = Journey::Window(journey.Program(), L"frmLanguage");
    SendMessageW(JourneyWindow::Control(dialog, L"cmbLanguage"), CB_SETCURSEL, 0, 0);
    JourneyWindow::Click(dialog, L"cmdOK");
}

} // namespace

TEST_CASE_FIXTURE(Journey, "settings of version 200 are wiped, but not the place of the settings file") {
    const std::wstring shared = File(L"shared.ini");
    const std::wstring path = ListRealDatabase(L"Customers");
    JourneyStores::FileBytes(shared, "[General]\r\nSort=Suppliers\r\n[Suppliers]\r\nPath=C:\\S.dbf\r\nUsername=Pat\r\n"
                                     "Password=x\xe9\r\nUsePassword=1\r\nNoPasswordAtACTStartup=\r\n");
    StartAct(path);
    for (const bool isShared : {true, false}) {
        CAPTURE(isShared);
        User(L"Settings", L"Version", L"200");
        User(L"Settings", L"IniLocation", isShared ? shared : L"");
        User(L"Options", L"Language", L"2");
        User(L"Customers", L"Username", L"Old");
        Start();
        ChooseEnglish(*this);
        HWND window = MainWindow(Program());
        CHECK(User(L"Settings", L"Version") == L"320");
        CHECK(User(L"Options", L"Language") == L"0");
        CHECK_FALSE(User(L"Customers", L"Username"));
        CHECK(ForeignList(JourneyWindow::Control(window, L"ListView1")).Cell(0, 0) ==
              (isShared ? L"Suppliers" : L"Customers"));
        if (isShared) {
            CHECK(User(L"Settings", L"IniLocation") == shared);
            CHECK(User(L"Suppliers", L"Username") == L"Pat");
            CHECK(User(L"Suppliers", L"Password") == L"x\u00e9");
            CHECK(User(L"Suppliers", L"UsePassword") == L"1");
            CHECK_FALSE(User(L"Suppliers", L"NoPasswordAtACTStartup"));
            CHECK(JourneyStores::FileBytes(shared) ==
                  "[General]\r\nSort=Suppliers\r\n[Suppliers]\r\nPath=C:\\S.dbf\r\n");
        } else {
            CHECK_FALSE(User(L"Settings", L"IniLocation"));
        }
        Close();
    }
}

TEST_CASE_FIXTURE(Journey, "only settings of an earlier version are upgraded") {
    struct Case {
        const wchar_t* version;
        bool isUpgraded;
    };
    const std::wstring path = ListRealDatabase(L"Customers");
    StartAct(path);
    for (const Case& expected : {Case{L"32", false}, Case{L"3", false}, Case{L"31", true}}) {
        CAPTURE(expected.version);
        User(L"Settings", L"Version", expected.version);
        Ini(L"Customers", L"Username", L"Pat");
        StartToMainWindow();
        CHECK(User(L"Customers", L"Username").has_value() == expected.isUpgraded);
        CHECK((JourneyStores::FileBytes(SettingsFile()).find("Username") == std::string::npos) == expected.isUpgraded);
        CHECK(User(L"Settings", L"Version") == L"320");
        Close();
    }
}

TEST_CASE_FIXTURE(Journey, "a missing settings file is made, holding a single blank") {
    const std::wstring path = File(L"Customers.dbf");
    JourneyStores::FileBytes(path, "dBASE");
    StartAct(path);
    StartToMainWindow();
    CHECK(JourneyStores::FileBytes(SettingsFile()) == " \r\n");
}
