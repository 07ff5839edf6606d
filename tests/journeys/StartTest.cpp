// What a start does to the stores: upgrade, wipe, recorded defaults, and a settings file that cannot be made.

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

TEST_CASE_FIXTURE(Journey, "ACT!'s own defaults are recorded at every start") {
    StartAct(ListRealDatabase(L"Customers"));
    for (const std::wstring folder : {L"C:\\One", L"C:\\Two", L""}) {
        CAPTURE(folder);
        const std::wstring contact = folder.empty() ? L"" : folder + L"\\c.cly";
        Act(L"Preferences", L"DefaultContactLayout", contact);
        Act(L"Preferences", L"DefaultGroupLayout", folder + L"\\g.gly");
        Act(L"Preferences", L"StartupMacro", folder + L"\\m.mpr");
        StartToMainWindow();
        CHECK(User(L"Settings", L"OriginalCL") == contact);
        CHECK(User(L"Settings", L"OriginalGL") == folder + L"\\g.gly");
        CHECK(User(L"Settings", L"OriginalMacro") == folder + L"\\m.mpr");
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

TEST_CASE_FIXTURE(Journey, "a settings file that cannot be made is reported, and the window is there to mend it") {
    StartAct(ListRealDatabase(L"Customers"));
    User(L"Settings", L"IniLocation", File(L"no such folder\\Kelmorra.ini"));
    Start();
    const JourneyWindow::Box box = AnswerBox();
    CHECK(box.Title == L"Kelmorra error");
    CAPTURE(box.Text);
    CHECK(box.Text.starts_with(L"Error "));
    CHECK(box.Text.find(L"'\rin frmMain: Sub Form_Load - Line # ") != std::wstring::npos);
    HWND window = MainWindow(Program());
    CHECK(JourneyWindow::Text(JourneyWindow::Control(window, L"cmdOpen")) == L"&Open");
    CHECK(ForeignList(JourneyWindow::Control(window, L"ListView1")).Rows() == 0);
    CHECK(User(L"Settings", L"IniLocation") == File(L"no such folder\\Kelmorra.ini"));
    Close();
}

TEST_CASE_FIXTURE(Journey, "an ACT! that fails before there is a list is reported, and the program ends") {
    struct Case {
        const wchar_t* member;
        const wchar_t* fault;
        const wchar_t* error;
        const wchar_t* procedure;
    };
    const Case cases[] = {
        {L"GetCurrentUserName", L"wCode 70", L"Error 70: 'Automation error'\r", L"in frmMain: Sub Form_Load - Line # "},
        {L"Preferences", L"hresult 0x80020003", L"Error 438: '", L"in Module1: Sub Create_object - Line # "},
        {L"OpenFile", L"die", L"Error 462: '", L"in Module1: Sub Create_object - Line # "},
    };
    StartAct(ListRealDatabase(L"Customers"));
    for (const Case& expected : cases) {
        CAPTURE(expected.member);
        Act(L"Faults", expected.member, expected.fault);
        Start();
        const JourneyWindow::Box box = AnswerBox();
        CAPTURE(box.Text);
        CHECK(box.Title == L"Kelmorra error");
        CHECK(box.Text.starts_with(expected.error));
        CHECK(box.Text.find(expected.procedure) != std::wstring::npos);
        CHECK(Program().ExitCode() == 0u);
        Act(L"Faults", expected.member, L"");
    }
}

TEST_CASE_FIXTURE(Journey, "an ACT! that fails later is reported, and the window comes with what could be had") {
    StartAct(ListRealDatabase(L"Customers"));
    Act(L"Faults", L"StartupMacro", L"wCode 70");
    Start();
    CHECK(AnswerBox().Text.starts_with(L"Error 70: 'Automation error'\rin frmMain: Sub Form_Load - Line # "));
    HWND window = MainWindow(Program());
    CHECK(ForeignList(JourneyWindow::Control(window, L"ListView1")).Rows() == 1);
    Close();
}
