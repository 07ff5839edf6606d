// Start-up and shut-down of the main window.

#include "app/frmWaiting.h"
#include "stores/Backup.h"
#include "support/ActDesk.h"
#include "support/BusyWait.h"
#include "support/MsgBox.h"
#include "win32/Owner.h"

TEST_CASE("A refused start tells why and leaves sizes, columns and selection as stored") {
    struct Case {
        void (*prepare)(FakeAct&);
        const wchar_t* text;
    };
    const Case cases[] = {
        {[](FakeAct& act) { act.InstanceCount = 0; }, L"Please run ACT! before running Kelmorra"},
        {[](FakeAct& act) {
             act.InstanceCount = 0;
             act.State[{L"Presets", L"RegistrationFailed"}] = L"1";
         },
         L"Problem registering ACT! event.\r\nPlease run actreg.exe in your ACT! folder and try again."},
        {[](FakeAct& act) { act.User.clear(); },
         L"Please make sure a database is open or ACT! completely closed before running Kelmorra!"}};
    for (const Case& test : cases) {
        ActDesk desk;
        for (const wchar_t* key : {L"Width", L"Height", L"Column0", L"OriginalCL"})
            UserStore::Set(L"Settings", key, L"as it was");
        UserStore::Set(L"Display", L"Selected", L"7");
        test.prepare(desk.Act);
        {
            DialogScript script;
            script.Answer(IDOK);
            Main window;
            RunToEnd(window);
            CHECK(script.All().at(0).Text == test.text);
        }
        for (const wchar_t* key : {L"Width", L"Height", L"Column0", L"OriginalCL"})
            CHECK(UserStore::Get(L"Settings", key) == L"as it was");
        CHECK(UserStore::Get(L"Display", L"Selected") == L"7");
    }
}

TEST_CASE("A settings file that cannot be there is told of once, and leaves a usable window") {
    ActDesk desk;
    UserStore::Set(L"Settings", L"IniLocation", L"C:\\No such folder\\Kelmorra.ini");
    DialogScript script;
    script.Answer(IDOK);
    Main window;
    REQUIRE(script.All().size() == 1);
    CHECK(script.All()[0].Text.starts_with(L"Error 75: '"));
    CHECK(window.Visible());
    CHECK(window.ListView1.ColumnCount() == 5);
}

namespace {

constexpr char kWhole[] = "[General]\r\nSort=Sales\r\n[Sales]\r\nPath=C:\\Sales.dbf\r\n";
constexpr char kMended[] = "[General]\r\nSort=Mended\r\n";

/// The settings file, whose copy may be kept, as a start finds it; null: missing.
void Leave(const ActDesk& desk, bool isKept, const char* bytes) {
    desk.SettingsBytes(kWhole);
    Backup::KeepOnce(desk.SettingsFile() + L" of another run");
    if (isKept) Backup::KeepOnce(desk.SettingsFile());
    desk.SettingsBytes(bytes ? bytes : "");
    if (!bytes) DeleteFileW(desk.SettingsFile().c_str());
}

} // namespace

TEST_CASE("A settings file that is empty or away is restored or not, as the user says, unless somebody mends it") {
    struct Row {
        bool isKept;
        const char* bytes;
        int answer;    ///< 0: nobody is asked
        bool isMended; ///< while the question is open
        const char* after;
    };
    const Row rows[] = {{true, "", IDYES, false, kWhole},      {true, "", IDNO, false, ""},
                        {true, nullptr, IDYES, false, kWhole}, {true, nullptr, IDNO, true, kMended},
                        {true, nullptr, IDNO, false, " \r\n"}, {false, nullptr, 0, false, " \r\n"}};
    for (const Row& row : rows) {
        CAPTURE(row.answer);
        ActDesk desk;
        Leave(desk, row.isKept, row.bytes);
        DialogScript script; // fails on any further question
        if (row.answer)
            script.Then([&](HWND question) {
                CHECK(MessageText(question).find(desk.SettingsFile() + L"\r\nis empty") != std::wstring::npos);
                if (row.isMended) desk.SettingsBytes(kMended);
                PostMessageW(question, WM_COMMAND, static_cast<WPARAM>(row.answer), 0);
            });
        Main window;
        CHECK(window.Visible());
        CHECK(desk.SettingsBytes() == row.after);
    }
}

TEST_CASE("A list that cannot be read at the start is told of, and neither it nor the selection is written") {
    ActDesk desk;
    desk.AddDatabase(L"Sales", {});
    UserStore::Set(L"Display", L"Selected", L"7");
    const FileHandle held(
        CreateFileW(desk.SettingsFile().c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr));
    DialogScript script;
    script.Answer(IDOK).Answer(IDOK);
    Main window;
    window.Open_DB(L"Sales", 0, false);
    for (const DialogScript::Seen& seen : script.All())
        CHECK(seen.Text.find(desk.SettingsFile() + L"\r\ncannot be read at the moment") != std::wstring::npos);
    CHECK(window.Visible());
    CHECK(window.ListView1.EmptyText().empty()); // nobody knows that there are no databases
    CHECK(desk.Act.CallsSince(0).find(L"openDB") == std::wstring::npos);
    End(window);
    CHECK(UserStore::Get(L"Display", L"Selected") == L"7");
}

TEST_CASE("ACT!'s defaults are recorded at every start, and sizes survive in either decimal spelling") {
    ActDesk desk;
    UserStore::Set(L"Settings", L"OriginalCL", L"yesterday's");
    UserStore::Set(L"Settings", L"Width", L"9990,0");
    UserStore::Set(L"Settings", L"Column2", L"3000.4");
    Main window;
    CHECK(UserStore::Get(L"Settings", L"OriginalCL") == L"C:\\Act\\Layout\\own.cly");
    CHECK(UserStore::Get(L"Settings", L"OriginalGL") == L"C:\\Act\\Layout\\own.gly");
    CHECK(UserStore::Get(L"Settings", L"OriginalMacro") == L"C:\\Act\\Macro\\own.mpr");
    CHECK(window.OuterSize().Width == 9990);
    CHECK(window.ListView1.ColumnWidth(2) == 3000);
    window.ListView1.ColumnWidth(2, 1500);
    ShowWindow(window.Handle(), SW_MINIMIZE);
    End(window);
    CHECK(UserStore::Get(L"Settings", L"Width") == L"9990");
    CHECK(UserStore::Get(L"Settings", L"Column2") == L"1500");
}

TEST_CASE("Settings of an earlier version are upgraded: log-on values move to the user, those of 200 are wiped") {
    struct Row {
        const wchar_t* version;
        bool isUpgraded;
        bool isWiped; ///< but for the settings file's place: the first run's language dialog comes again
    };
    for (const auto& [version, isUpgraded, isWiped] :
         {Row{L"32", false, false}, Row{L"31", true, false}, Row{L"200", true, true}}) {
        CAPTURE(std::wstring(version));
        ActDesk desk;
        desk.AddDatabase(L"Sales", {{L"Username", L"Chris"}});
        UserStore::Set(L"Settings", L"Version", version);
        UserStore::Set(L"Service", L"Username", L"old");
        DialogScript script;
        if (isWiped) script.Then([](HWND window) { Click(FindControl(window, L"cmdOK")); });
        const Main window;
        CHECK(UserValue(L"Sales", L"Username") == (isUpgraded ? L"Chris" : L"(none)"));
        CHECK(IniValue(L"Sales", L"Username") == (isUpgraded ? L"(none)" : L"Chris"));
        CHECK(UserValue(L"Service", L"Username") == (isWiped ? L"(none)" : L"old"));
        CHECK(UserValue(L"Settings", L"IniLocation") == desk.SettingsFile());
    }
}

TEST_CASE("A call that ACT! refuses is made again until somebody has had enough, who is asked after ten seconds") {
    ActDesk desk;
    desk.AddDatabase(L"Sales", {{L"Path", L"C:\\Sales.dbf"}});
    frmWaiting::Serve();
    Main window;
    int refusals = 0;
    DialogScript script;
    desk.Act.Fault = [&](const std::wstring& member, VARIANT*) -> std::optional<HRESULT> {
        if (member != L"DefaultContactLayout") return std::nullopt;
        if (++refusals == 1) { // as after so many seconds of them
            BusyWait::Now->IsCancelled(9'999);
            CHECK(Form::Loaded().size() == 1);
            BusyWait::Now->IsCancelled(10'000);
            CHECK(Form::Loaded().size() == 2);
        }
        return RPC_E_SERVERCALL_RETRYLATER;
    };
    script.Then([](HWND waiting) {
        CHECK(WindowText(FindControl(waiting, L"lblWaiting")).starts_with(L"Kelmorra is waiting for ACT!"));
        Click(FindControl(waiting, L"cmdCancel"));
    });
    script.Answer(IDOK);
    window.Open_DB(L"Sales", 0, false);
    CHECK(script.All()[1].Text.find(L"in frmMain: Sub cmdOpen_Click - Line # ") != std::wstring::npos);
    CHECK(window.Visible());
    BusyWait::Now = nullptr;
}

TEST_CASE("Told to close while dialogs are open, the window leaves them one after another, with the moves made") {
    bool isSessionOver = false;
    SUBCASE("by its user") {}
    SUBCASE("by the end of the session") { isSessionOver = true; }
    ActDesk desk;
    for (const wchar_t* name : {L"A", L"B"}) desk.AddDatabase(name, {});
    Main window;
    DialogScript script;
    script.Then([](HWND list) {
        TranslateKey(FindControl(list, L"lstDB"), VK_DOWN, VK_MENU);
        Click(FindControl(list, L"cmdAdd"));
    });
    script.Then([&](HWND) {
        if (!isSessionOver) return PostMessageW(window.Handle(), WM_CLOSE, 0, 0), void();
        CHECK(SendMessageW(window.Handle(), WM_QUERYENDSESSION, 0, 0) == TRUE);
        SendMessageW(window.Handle(), WM_ENDSESSION, FALSE, 0);
        CHECK(Form::Loaded().size() == 3);
        SendMessageW(window.Handle(), WM_ENDSESSION, TRUE, 0);
        CHECK(IniValue(L"General", L"Sort") == L"B;A");
        CHECK(UserValue(L"Settings", L"Width") == L"8475");
        CHECK(UserValue(L"Settings", L"Column4") != L"(none)");
    });
    window.mnuManageList.Click();
    if (!isSessionOver) RunToEnd(window);
    CHECK(IniValue(L"General", L"Sort") == L"B;A");
    SilenceMessages(false);
}

TEST_CASE("When ACT!'s user closes it while a message is open, the program follows, even when its answer fails") {
    ActDesk desk;
    desk.Act.Failures[L"AnswerUserWantsToClose"] = {.Plain = E_FAIL};
    Main window;
    DialogScript script;
    script.Then([&](HWND) { desk.Act.UserWantsToClose(); });
    window.Open_DB(L"", 0, false);
    RunToEnd(window);
    CHECK(desk.Act.CallsSince(0).ends_with(L"AnswerUserWantsToClose(VT_BOOL True)\nClose()\n"));
}
