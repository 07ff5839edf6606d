// Starts that end with a message. None of them may change what the user has.

#include "i18n/LangText.h"
#include "support/Journey.h"
#include "win32/AnsiText.h"

namespace {

struct Stores {
    JourneyStores::Snapshot User, Act;
    std::string Settings;
    bool operator==(const Stores&) const = default;
};

/// A user who has a list, a window size and log-on values to lose.
void Furnish(Journey& journey) {
    journey.List(L"Customers", L"C:\\Data\\Customers.dbf");
    journey.Ini(L"General", L"QuickSwitch", L"Customers;;;;;;;");
    JourneyStores::User(L"Settings", L"Width", L"9000");
    JourneyStores::User(L"Settings", L"Column0", L"2000");
    JourneyStores::User(L"Display", L"Selected", L"0");
    JourneyStores::User(L"Customers", L"Password", L"\u00e9\r\n\x01");
    JourneyStores::Write(JourneyStores::ActRoot, L"Database File Type", L"C:\\Data");
}

Stores Read(const Journey& journey) {
    return {JourneyStores::ReadTree(JourneyStores::UserRoot), JourneyStores::ReadTree(L"Software\\Symantec"),
            JourneyStores::FileBytes(journey.SettingsFile())};
}

/// Starts the program, answers the one box it shows and waits for its end.
JourneyWindow::Box RefusedStart(Journey& journey) {
    const Process& program = journey.Start();
    const JourneyWindow::Box box = journey.Box(program);
    CHECK(JourneyWindow::Visible(program.Id()).size() == 1);
    JourneyWindow::Dismiss(box);
    CHECK(program.ExitCode() == 0u);
    return box;
}

std::wstring German(size_t index) { return FromUtf8(LangTextTable.at(index - 1).German); }

} // namespace

TEST_CASE_FIXTURE(Journey, "an event component that is not registered with ACT! is told of in the user's language") {
    Furnish(*this);
    Act(L"Presets", L"RegistrationFailed", L"1");
    JourneyStores::User(L"Options", L"Language", L"2");
    const Stores before = Read(*this);
    const JourneyWindow::Box box = RefusedStart(*this);
    CHECK(box.Text == German(10) + L"\r\n" + German(11));
    CHECK(Read(*this) == before);
}

TEST_CASE_FIXTURE(Journey, "a missing event component counts as one that is not registered") {
    Furnish(*this);
    const Stores before = Read(*this);
    UnregisterAct();
    const JourneyWindow::Box box = RefusedStart(*this);
    CHECK(box.Text == L"Problem registering ACT! event.\r\n"
                      L"Please run actreg.exe in your ACT! folder and try again.");
    CHECK(Read(*this) == before);
}

TEST_CASE_FIXTURE(Journey, "an ACT! without a user lets the program go no further than its version") {
    Furnish(*this);
    StartAct(L"");
    const Stores before = Read(*this);
    const JourneyWindow::Box box = RefusedStart(*this);
    CHECK(box.Text == L"Please make sure a database is open or ACT! completely closed before running Kelmorra!");
    Stores after = Read(*this);
    const std::wstring version = std::wstring(JourneyStores::UserRoot) + L"\\Settings|Version";
    CHECK(JourneyStores::User(L"Settings", L"Version") == L"320");
    after.User[version] = before.User.at(version);
    CHECK(after == before);
}

TEST_CASE_FIXTURE(Journey, "a second instance is refused and leaves the first one alone") {
    struct Case {
        const wchar_t* language;
        const wchar_t* message;
    };
    const Case cases[] = {{L"0", L"An instance of this program is already running!"},
                          {L"1", L"Une copie de ce programme est d\u00e9j\u00e0 en marche !"}};
    StartAct(ListRealDatabase(L"Customers"));
    const Process& first = Start();
    HWND window = MainWindow(first);
    const size_t calls = CallCount();
    for (const Case& expected : cases) {
        CAPTURE(expected.language);
        JourneyStores::User(L"Options", L"Language", expected.language);
        const Stores before = Read(*this);
        const JourneyWindow::Box box = RefusedStart(*this);
        CHECK(box.Title == L"Kelmorra");
        CHECK(box.Text == expected.message);
        CHECK(Read(*this) == before);
    }
    CHECK(first.Running());
    CHECK(IsWindowVisible(window));
    CHECK(CallCount() == calls);
}
