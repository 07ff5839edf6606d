// Start-up and shut-down of the main window.

#include "app/frmWaiting.h"
#include "i18n/modLangues.h"
#include "program/Program.h"
#include "stores/Backup.h"
#include "stores/IniLib.h"
#include "stores/UserStore.h"
#include "support/ActDesk.h"
#include "support/BusyWait.h"
#include "support/Detour.h"
#include "support/DialogScript.h"
#include "support/MsgBox.h"
#include "support/Wide.h"
#include "win32/Owner.h"

extern decltype(&CreateFileW) importedCreateFile __asm__("__imp__CreateFileW@28");

namespace {

decltype(&CreateFileW) const realCreateFile = importedCreateFile;

/// Opens what is there, as in a folder that the user may only read. Root may write in any.
HANDLE WINAPI CreateNone(LPCWSTR path, DWORD access, DWORD share, LPSECURITY_ATTRIBUTES security, DWORD way,
                         DWORD flags, HANDLE model) {
    if (way == OPEN_EXISTING) return realCreateFile(path, access, share, security, way, flags, model);
    SetLastError(ERROR_ACCESS_DENIED);
    return INVALID_HANDLE_VALUE;
}

/// Starts, answers one message box and waits for the end. Returns what the box showed.
DialogScript::Seen RefusedStart() {
    DialogScript script;
    script.Answer(IDOK);
    frmMain window;
    window.Load();
    RunToEnd(window);
    REQUIRE(script.All().size() == 1);
    return script.All()[0];
}

} // namespace

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
        CHECK(RefusedStart().Text == test.text);
        for (const wchar_t* key : {L"Width", L"Height", L"Column0", L"OriginalCL"})
            CHECK(UserStore::Get(L"Settings", key) == L"as it was");
        CHECK(UserStore::Get(L"Display", L"Selected") == L"7");
    }
}

TEST_CASE("ACT! failing before the list is due ends the program with one report") {
    for (const wchar_t* member : {L"Views", L"GetCurrentUserName"}) {
        ActDesk desk;
        desk.Act.Failures[member] = {.Plain = DISP_E_MEMBERNOTFOUND};
        const DialogScript::Seen seen = RefusedStart();
        CHECK(seen.Title == L"Kelmorra error");
        CHECK(seen.Text.starts_with(L"Error 438: '"));
        const wchar_t* place =
            member[0] == L'V' ? L"in Module1: Sub Create_object - " : L"in frmMain: Sub Form_Load - ";
        CHECK(seen.Text.find(place) != std::wstring::npos);
    }
}

TEST_CASE("From the settings file on, a failure is told once and leaves a usable window") {
    for (const bool isDenied : {false, true}) {
        CAPTURE(isDenied);
        ActDesk desk;
        DeleteFileW(desk.SettingsFile().c_str());
        if (!isDenied) UserStore::Set(L"Settings", L"IniLocation", L"C:\\No such folder\\Kelmorra.ini");
        const Detour denial(importedCreateFile, isDenied ? CreateNone : realCreateFile);
        DialogScript script;
        script.Answer(IDOK);
        frmMain window;
        window.Load();
        REQUIRE(script.All().size() == 1);
        const std::wstring told = script.All()[0].Text;
        const std::wstring hint = L"The list of databases cannot be kept in\r\n" + desk.SettingsFile() +
                                  L"\r\nbecause it cannot be written there. Please make an empty file Kelmorra.ini in "
                                  L"a folder of your own and choose it under Options > Settings File Location.";
        CHECK((isDenied ? told == hint : told.starts_with(L"Error 75: '")));
        CHECK((told.find(L"in frmMain: Sub Form_Load - Line # ") == std::wstring::npos) == isDenied);
        CHECK(window.Visible());
        CHECK(window.ListView1.ColumnCount() == 5);
        CHECK(WindowText(window.cmdOpen.Handle()) == L"&Open");
        End(window);
    }
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

TEST_CASE("A folder whose name the code page lacks holds the settings file as any other does, start after start") {
    ActDesk desk;
    const std::wstring folder = desk.SettingsFile().substr(0, desk.SettingsFile().rfind(L'\\')) + L"\\\u0416\u0101";
    REQUIRE(CreateDirectoryW(folder.c_str(), nullptr));
    UserStore::Set(L"Settings", L"IniLocation", folder + L"\\Kelmorra.ini");
    const DialogScript script; // fails on any report
    for (int start = 0; start < 2; ++start) {
        frmMain window;
        window.Load();
        CHECK(window.ListView1.RowCount() == start);
        desk.AddDatabase(std::to_wstring(start), {});
        End(window);
    }
    CHECK(UserStore::Get(L"Settings", L"IniLocation") == folder + L"\\Kelmorra.ini");
}

TEST_CASE("A settings file that is empty or away is restored or not, as the user says, unless somebody mends it") {
    struct Row {
        const char* bytes;
        int answer;
        bool isMended; ///< while the question is open
        const char* after;
    };
    for (const Row& row : {Row{"", IDYES, false, kWhole}, Row{"", IDNO, false, ""}, Row{"", IDYES, true, kMended},
                           Row{nullptr, IDYES, false, kWhole}, Row{nullptr, IDYES, true, kMended},
                           Row{nullptr, IDNO, true, kMended}, Row{nullptr, IDNO, false, " \r\n"}}) {
        CAPTURE(row.answer);
        ActDesk desk;
        Leave(desk, true, row.bytes);
        DialogScript script;
        script.Then([&](HWND question) {
            if (row.isMended) desk.SettingsBytes(kMended);
            PostMessageW(question, WM_COMMAND, static_cast<WPARAM>(row.answer), 0);
        });
        if (row.isMended && row.answer == IDYES) script.Answer(IDOK);
        frmMain window;
        window.Load();
        CHECK(window.Visible());
        CHECK(script.All()[0].Text.find(desk.SettingsFile() + L"\r\nis empty") != std::wstring::npos);
        CHECK(script.All()[0].Text.find(L'%') == std::wstring::npos);
        CHECK(desk.SettingsBytes() == row.after);
        End(window);
    }
}

TEST_CASE("Nobody is asked about a settings file that holds an empty list, or that has no copy kept") {
    const std::pair<bool, const char*> rows[] = {{true, " \r\n"}, {false, ""}, {false, nullptr}};
    for (const auto& [isKept, bytes] : rows) {
        ActDesk desk;
        Leave(desk, isKept, bytes);
        REQUIRE(Backup::LastGood(desk.SettingsFile()).has_value() == isKept);
        const DialogScript script; // fails on any question
        frmMain window;
        window.Load();
        CHECK(window.Visible());
        End(window);
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
    frmMain window;
    window.Load();
    window.Open_DB(L"Sales", 0, false);
    for (const DialogScript::Seen& seen : script.All())
        CHECK(seen.Text.find(desk.SettingsFile() + L"\r\ncannot be read at the moment") != std::wstring::npos);
    CHECK(window.Visible());
    CHECK(desk.Act.CallsSince(0).find(L"openDB") == std::wstring::npos);
    End(window);
    CHECK(UserStore::Get(L"Display", L"Selected") == L"7");
}

TEST_CASE("ACT!'s defaults are recorded at every start, and sizes survive in either decimal spelling") {
    ActDesk desk;
    UserStore::Set(L"Settings", L"OriginalCL", L"yesterday's");
    UserStore::Set(L"Settings", L"Width", L"9990,0");
    UserStore::Set(L"Settings", L"Height", L"rubbish");
    UserStore::Set(L"Settings", L"Column2", L"3000.4");
    frmMain window;
    window.Load();
    CHECK(UserStore::Get(L"Settings", L"OriginalCL") == L"C:\\Act\\Layout\\own.cly");
    CHECK(UserStore::Get(L"Settings", L"OriginalGL") == L"C:\\Act\\Layout\\own.gly");
    CHECK(UserStore::Get(L"Settings", L"OriginalMacro") == L"C:\\Act\\Macro\\own.mpr");
    CHECK(window.OuterSize().Width == 9990);
    CHECK(window.OuterSize().Height == 5190);
    CHECK(window.ListView1.ColumnWidth(2) == 3000);
    window.ListView1.ColumnWidth(2, 1500);
    ShowWindow(window.Handle(), SW_MINIMIZE);
    End(window);
    CHECK(UserStore::Get(L"Settings", L"Width") == L"9990");
    CHECK(UserStore::Get(L"Settings", L"Column2") == L"1500");
}

TEST_CASE("Settings of version 200 are wiped but for the settings file's place; log-on values move to the user") {
    ActDesk desk;
    desk.AddDatabase(L"Sales", {{L"Username", L"Chris"}});
    UserStore::Set(L"Settings", L"Version", L"200");
    UserStore::Set(L"Service", L"Username", L"old");
    DialogScript script; // wiped: the first run's language dialog comes again
    script.Then([](HWND window) { Click(FindControl(window, L"cmdOK")); });
    frmMain window;
    window.Load();
    CHECK(UserStore::Get(L"Settings", L"Version") == L"320");
    CHECK(UserStore::Get(L"Settings", L"IniLocation") == desk.SettingsFile());
    CHECK(UserStore::Get(L"Service", L"Username", L"gone") == L"gone");
    CHECK(UserStore::Get(L"Sales", L"Username") == L"Chris");
    CHECK(IniLib::GetKeyValue(L"Sales", L"Username").empty());
    CHECK(UserStore::Get(L"Settings", L"Installed") == L"1");
    End(window);
}

TEST_CASE("Told to close while dialogs are open, the window leaves them one after another, with the moves made") {
    bool isSessionOver = false;
    SUBCASE("by its user") {}
    SUBCASE("by the end of the session") { isSessionOver = true; }
    ActDesk desk;
    for (const wchar_t* name : {L"A", L"B"}) desk.AddDatabase(name, {});
    frmMain window;
    window.Load();
    DialogScript script;
    script.Then([](HWND list) {
        TranslateKey(FindControl(list, L"lstDB"), VK_DOWN, VK_MENU);
        Click(FindControl(list, L"cmdAdd"));
    });
    script.Then([&](HWND) {
        if (isSessionOver)
            SendMessageW(window.Handle(), WM_ENDSESSION, TRUE, 0);
        else
            PostMessageW(window.Handle(), WM_CLOSE, 0, 0);
    });
    window.mnuManageList.Click();
    if (isSessionOver)
        End(window);
    else
        RunToEnd(window);
    CHECK(IniLib::GetKeyValue(L"General", L"Sort") == L"B;A");
    SilenceMessages(false);
}

TEST_CASE("While nothing is to be seen and ACT! refuses a call for ten seconds, a small window can end the waiting") {
    ActDesk desk;
    desk.AddDatabase(L"Sales", {{L"Path", L"C:\\Sales.dbf"}});
    frmWaiting::Serve();
    frmMain window;
    window.Load();
    desk.Act.Fault = [](const std::wstring& member, VARIANT*) -> std::optional<HRESULT> {
        if (member == L"DefaultContactLayout") return RPC_E_SERVERCALL_RETRYLATER;
        return std::nullopt;
    };
    DialogScript script;
    script.Then([](HWND waiting) {
        CHECK(WindowText(FindControl(waiting, L"lblWaiting")).starts_with(L"Kelmorra is waiting for ACT!"));
        Click(FindControl(waiting, L"cmdCancel"));
    });
    script.Answer(IDOK);
    const DWORD start = GetTickCount();
    window.Open_DB(L"Sales", 0, false);
    CHECK(GetTickCount() - start >= 10'000);
    CHECK(script.All()[1].Text.find(L"in frmMain: Sub cmdOpen_Click - Line # ") != std::wstring::npos);
    CHECK(window.Visible());
    End(window);
    BusyWait::Now = nullptr;
}

TEST_CASE("When ACT!'s user closes it, the program answers yes and follows, whatever is on screen") {
    ActDesk desk;
    frmMain window;
    SUBCASE("with nothing but the window, and an answer that fails") {
        desk.Act.Failures[L"AnswerUserWantsToClose"] = {.Plain = E_FAIL};
        window.Load();
        desk.Act.UserWantsToClose();
        RunToEnd(window);
    }
    SUBCASE("with a dialog") {
        window.Load();
        DialogScript script;
        script.Then([&](HWND) { desk.Act.UserWantsToClose(); });
        window.mnuLanguages.Click();
        RunToEnd(window);
        CHECK(UserStore::Get(L"Options", L"Language", L"none") == L"none");
    }
    SUBCASE("with a message box") {
        window.Load();
        DialogScript script;
        script.Then([&](HWND) { desk.Act.UserWantsToClose(); });
        window.Open_DB(L"", 0, false);
        RunToEnd(window);
    }
    const std::wstring calls = desk.Act.CallsSince(0);
    CHECK(calls.ends_with(L"AnswerUserWantsToClose(VT_BOOL True)\nClose()\n"));
}
