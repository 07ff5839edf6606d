// Logging on: the helper and ACT!'s log-on dialog, or one that looks like it.

#include "support/Journey.h"

namespace {

constexpr wchar_t kRight[] = L"\u0160\u00c4\u00b2\u00c3\u00b7\u00c4"; // "Exeter" as the launcher stores it
constexpr wchar_t kWrong[] = L"\u0160\u00c4";                         // "Ex"
constexpr wchar_t kNotAccessible[] = L"This database is not accessible. Please choose another database.";
constexpr int kUserId = 201, kPasswordId = 202, kMessageId = 203; // of the stand-in's dialog

/// A session with the helper beside the program, and a database of which ACT! asks for its user.
class LogonJourney : public Journey {
public:
    LogonJourney() {
        std::filesystem::copy_file(std::filesystem::path(KELMORRA_FOLDER) / L"logon.exe", ProgramFile(L"logon.exe"));
        ListRealDatabase(L"Archive");
        ListRealDatabase(L"Customers");
        Act(L"Users", L"Customers.dbf", L"Pat Doe");
        Act(L"Passwords", L"Customers.dbf", L"Exeter");
    }

    static void Store(const wchar_t* section, const wchar_t* usePassword, const wchar_t* password) {
        User(section, L"UsePassword", usePassword);
        User(section, L"Username", L"Pat Doe");
        User(section, L"Password", password);
    }

    Process StartHelper() const { return {Group(), ProgramFile(L"logon.exe")}; }

    /// Every attempt to log on that the stand-in has seen, and every end of its other dialog.
    std::wstring Attempts() const {
        std::wstring attempts;
        for (const Call& call : Log())
            if (call.Member == L"LogOn" || call.Member == L"EmailAccount")
                attempts += call.Arguments + L' ' + call.Result + L';';
        return attempts;
    }

    /// ACT!'s dialog that is not for logging on; the running test ends when it does not come.
    static HWND OtherDialog() {
        HWND dialog = nullptr;
        REQUIRE(Within([&] { return IsWindowVisible(dialog = FindWindowW(L"#32770", L"E-mail account")) != FALSE; }));
        return dialog;
    }

    /// Waits until no helper is left, but only ACT! and so many programs, and cancels the other dialog.
    void LeaveOther(DWORD programs) const {
        HWND dialog = OtherDialog();
        CHECK(Within([&] { return Group().Alive() == programs + 1; }));
        PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
        REQUIRE(Within([&] { return !IsWindow(dialog); }));
    }

    static bool IsOpen(const wchar_t* database) {
        return Within([database] { return WindowText(FindWindowW(L"ActStandIn", nullptr)).ends_with(database); });
    }

    static HWND Dialog() { return FindWindowW(L"#32770", L"Log on to Customers.dbf"); }

    /// The program opens the second database, with that password in store.
    void OpenCustomers(const wchar_t* password) {
        Store(L"Customers", L"1", password);
        User(L"Display", L"Selected", L"1");
        StartAct(File(L"Archive.dbf"));
        Click(FindControl(StartToMainWindow(), L"cmdOpen"));
    }
};

/// A dialog of the test's own process: a letter for each part, with ids from 1. b is OK, d the same disabled; t a text
/// box, h a hidden one, p a password box, l a list to type into.
class LookAlike {
public:
    explicit LookAlike(const std::string& parts) : window_(Make(L"#32770", WS_POPUP | WS_VISIBLE, 0, nullptr)) {
        SetWindowTextW(window_, L"Log on to something");
        for (int id = 1; const char part : parts) {
            const DWORD style = WS_CHILD | (part == 'h' ? 0 : WS_VISIBLE) | (part == 'd' ? WS_DISABLED : 0) |
                                (part == 'p' ? ES_PASSWORD : 0);
            const wchar_t* const kind = part == 'l' ? L"COMBOBOX" : L"EDIT";
            HWND control = Make(id == IDOK ? L"BUTTON" : kind, style | (part == 'l' ? CBS_DROPDOWN : 0), id, window_);
            if (part == 't' || part == 'l') user_ = control;
            if (part == 'p') password_ = control;
            ++id;
        }
    }
    ~LookAlike() { DestroyWindow(window_); }
    LookAlike(const LookAlike&) = delete;
    LookAlike& operator=(const LookAlike&) = delete;

    /// Lets a helper try to fill it in: "user,password,confirmations".
    std::wstring Meet(const Process& helper) const {
        int confirmations = 0;
        REQUIRE(Within([&] {
            const bool hasEnded = !helper.Running(); // before the last look at what it has sent
            MSG message{};
            while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
                confirmations += message.message == WM_COMMAND && message.wParam == IDOK;
                DispatchMessageW(&message);
            }
            return hasEnded;
        }));
        return WindowText(user_) + L',' + WindowText(password_) + L',' + std::to_wstring(confirmations);
    }

private:
    static HWND Make(const wchar_t* windowClass, DWORD style, int id, HWND parent) {
        return CreateWindowExW(0, windowClass, L"", style, 0, 0, 200, 100, parent,
                               reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), nullptr, nullptr);
    }

    HWND window_;
    HWND user_ = nullptr;
    HWND password_ = nullptr;
};

} // namespace

TEST_CASE_FIXTURE(LogonJourney, "a database is opened past another dialog, and ACT! ends logged on") {
    Act(L"EmailAccount", L"DuringOpen", L"1");
    OpenCustomers(kRight);
    HWND other = OtherDialog();
    CHECK_FALSE(Within([this] { return Group().Alive() < 3; }, 500)); // the helper looks at it, and goes on
    PostMessageW(other, WM_COMMAND, IDCANCEL, 0);
    CHECK(Program().ExitCode() == 0u);
    CHECK(Attempts() == L" cancelled;Pat Doe right;");
    CHECK(IsOpen(L"Customers.dbf"));
}

TEST_CASE_FIXTURE(LogonJourney, "what ACT! shows when the open is over, in whatever way, is none of the helper's") {
    Act(L"EmailAccount", L"AfterOpen", L"500");
    Store(L"Archive", L"1", kRight);
    User(L"Display", L"Selected", L"0");
    StartAct(File(L"Archive.dbf"));
    std::filesystem::rename(File(L"Archive.dbf"), File(L"Away.dbf"));
    HWND window = StartToMainWindow();
    Click(FindControl(window, L"cmdOpen"));
    CHECK(AnswerBox() == kNotAccessible);
    LeaveOther(1);
    std::filesystem::rename(File(L"Away.dbf"), File(L"Archive.dbf"));
    Click(FindControl(window, L"cmdOpen"));
    LeaveOther(0);
    {
        // A helper that comes late: it waits for its turn while the open is made.
        const KernelHandle turn(CreateMutexW(nullptr, TRUE, L"Local\\Kelmorra.Logon.Waiting"));
        Click(FindControl(StartToMainWindow(), L"cmdOpen"));
        CHECK(Program().ExitCode() == 0u);
        ReleaseMutex(turn.Get());
        LeaveOther(0);
    }
    Act(L"Faults", L"openDB", L"hang 1500");
    Click(FindControl(StartToMainWindow(), L"cmdOpen"));
    REQUIRE(Within([this] { return Count(L"STANDIN", L"Hang") == 1; }));
    Program().Terminate();
    LeaveOther(0);
    CHECK(Attempts() == L" cancelled; cancelled; cancelled; cancelled;");
}

TEST_CASE_FIXTURE(LogonJourney, "a wrong password is tried once; after three refusals the open fails") {
    OpenCustomers(kWrong);
    REQUIRE(Within([this] { return Attempts() == L"Pat Doe wrong;"; }));
    CHECK(WindowText(GetDlgItem(Dialog(), kMessageId)) == L"The user name or the password is wrong.");
    for (int attempt = 0; attempt < 2; ++attempt) PostMessageW(Dialog(), WM_COMMAND, IDOK, 0);
    CHECK(AnswerBox() == kNotAccessible);
    CHECK(Attempts() == L"Pat Doe wrong;Pat Doe wrong;Pat Doe wrong;");
    CHECK(IsOpen(L"Archive.dbf"));
}

TEST_CASE_FIXTURE(LogonJourney, "without a password to use, the dialog is left to its user, the name filled in") {
    ActValue(L"\\Database", L"Use Last DB", L"1");
    ActValue(L"\\Database", L"Last DB Name", File(L"Customers.dbf"));
    Store(L"Logon", L"1", L"");
    StartAct(L"");
    CHECK(StartHelper().ExitCode() == 0u);
    HWND password = GetDlgItem(Dialog(), kPasswordId);
    CHECK(WindowText(GetDlgItem(Dialog(), kUserId)) == L"Pat Doe");
    CHECK(WindowText(password).empty());
    CHECK(Within([password] { return HasFocus(password); }));
    CHECK(Attempts().empty());
    SendMessageW(password, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L"Exeter"));
    PostMessageW(Dialog(), WM_COMMAND, IDOK, 0);
    CHECK(IsOpen(L"Customers.dbf"));
}

TEST_CASE_FIXTURE(LogonJourney, "only the one dialog of the one program is filled in") {
    struct Case {
        std::wstring key, value;
        std::string parts;
        std::wstring outcome;
    };
    constexpr const wchar_t *kAll = L"Pat Doe,Exeter,1", *kNothing = L",,0";
    std::array<wchar_t, MAX_PATH> program{};
    GetModuleFileNameW(nullptr, program.data(), MAX_PATH);
    const std::wstring inOtherFolder = File(L"journey_tests.exe");
    FileBytes(inOtherFolder, "MZ");
    const Case cases[] = {
        {L"Program", L"", "btp", kNothing},        {L"Program", L"tests.exe", "btp", kNothing},
        {L"Program", program.data(), "btp", kAll}, {L"Program", inOtherFolder, "btp", kNothing},
        {L"Title", L"log on to", "bthp", kAll},    {L"Title", L"Sign in", "btp", kNothing},
        {L"Title", L"", "btpp", kNothing},         {L"Title", L"", "bttp", kNothing},
        {L"Title", L"", "bpt", kNothing},          {L"Title", L"", "dtp", kNothing},
        {L"UserId", L"3", "btp", kNothing},        {L"PasswordId", L"2", "btp", kNothing},
        {L"PasswordId", L"3", "btp", kAll},        {L"UserId", L"2", "blp", kAll},
    };
    Store(L"Logon", L"1", kRight);
    for (const Case& wanted : cases) {
        CAPTURE(wanted.key);
        CAPTURE(wanted.value);
        CAPTURE(wanted.parts);
        UserStore::DeleteSection(L"LogonDialog");
        User(L"LogonDialog", L"Seconds", L"0");
        User(L"LogonDialog", L"Program", L"journey_tests.exe");
        User(L"LogonDialog", wanted.key, wanted.value);
        CHECK(LookAlike(wanted.parts).Meet(StartHelper()) == wanted.outcome);
    }
    User(L"Logon", L"UsePassword", L"0");
    CHECK(LookAlike("btp").Meet(StartHelper()) == L"Pat Doe,,0");
}

TEST_CASE_FIXTURE(LogonJourney, "a helper waits until its time is over, a newer one starts or there is no user") {
    Store(L"Logon", L"1", kRight);
    const Process older = StartHelper();
    REQUIRE(
        Within([] { return bool{KernelHandle(OpenMutexW(SYNCHRONIZE, FALSE, L"Local\\Kelmorra.Logon.Waiting"))}; }));
    CHECK(older.Running());
    User(L"Logon", L"Username", L"");
    CHECK(StartHelper().ExitCode() == 1u);
    CHECK(older.ExitCode() == 1u);
    User(L"Logon", L"Username", L"Pat Doe");
    User(L"LogonDialog", L"Seconds", L"1");
    const DWORD start = GetTickCount();
    CHECK(StartHelper().ExitCode() == 1u);
    CHECK(GetTickCount() - start >= 1000);
}
