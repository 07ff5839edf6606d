// From the double-click to the call that opens the database, and from ACT!'s log-on dialog to its answer, by ACT!'s
// journal.

#include "Table.h"
#include "Workplace.h"

namespace {

/// Both sides have been quiet for so long when they are asked, in milliseconds.
constexpr DWORD kRest = 150;

double TimeToOpen(const std::wstring& journal, HWND window, UINT message, LPARAM place) {
    Sleep(kRest);
    JournalTail tail(journal);
    const Stopwatch watch;
    PostMessageW(window, message, 0, place);
    tail.WaitFor("openDB");
    return watch.Milliseconds();
}

/// The helper that was started goes with the group.
double OpenByProgram(const Workplace& workplace) {
    const ProcessGroup group;
    const Process program(group, workplace.ProgramFile(L"Kelmorra.exe"));
    HWND list = FindControl(WaitUntilReady(program, Workplace::MainClass), L"ListView1");
    const POINT row = MiddleOfRow(list, 1);
    const double time = TimeToOpen(workplace.File(L"act.log"), list, WM_LBUTTONDBLCLK, MAKELPARAM(row.x, row.y));
    REQUIRE(program.ExitCode() == 0u);
    return time;
}

double OpenByClient(const Workplace& workplace) {
    const ProcessGroup group;
    const Process client(group, Workplace::Client(), workplace.ClientArguments());
    HWND window = WaitUntilReady(client, Workplace::ClientClass);
    const double time = TimeToOpen(workplace.File(L"act.log"), window, WM_APP, 0);
    REQUIRE(client.ExitCode());
    return time;
}

/// Opens a database whose user is asked for, by an ACT! that needs so many milliseconds until it asks.
double TimeToLogOn(const Workplace& workplace, int actMilliseconds) {
    workplace.Act(L"Faults", L"openDB", L"hang " + std::to_wstring(actMilliseconds));
    const ProcessGroup group;
    const Process program(group, workplace.ProgramFile(L"Kelmorra.exe"));
    HWND window = WaitUntilReady(program, Workplace::MainClass);
    Sleep(kRest);
    JournalTail tail(workplace.File(L"act.log"));
    Click(FindControl(window, L"cmdOpen"));
    tail.WaitFor("LogOnDialog");
    const Stopwatch watch;
    tail.WaitFor("LogOn");
    const double time = watch.Milliseconds();
    REQUIRE(program.ExitCode() == 0u);
    return time;
}

} // namespace

TEST_CASE_FIXTURE(Workplace, "double-click to openDB") {
    Samples program, client, more;
    WriteList(10);
    StartActElsewhere();
    for (int run = -1; run < Runs(); ++run) {
        const double ours = OpenByProgram(*this);
        const double theirs = OpenByClient(*this);
        if (run < 0) continue; // everything is loaded now
        program.push_back(ours);
        client.push_back(theirs);
        more.push_back(ours - theirs);
    }
    Tell({"double-click to openDB", Spread(program, 1) + " ms", "bare client " + Spread(client, 1) + " ms",
          Spread(Ratios(program, client), 2) + "; " + Spread(more, 1) + " ms more", "<= 1.3; <= 10 ms more",
          std::to_string(Runs())});
}

TEST_CASE_FIXTURE(Workplace, "log-on dialog to its answer") {
    Samples atOnce, later;
    WriteList(10);
    Act(L"Users", Name(1) + L".dbf", L"Pat Doe");
    Act(L"Passwords", Name(1) + L".dbf", L"Exeter");
    User(Name(1), L"Username", L"Pat Doe");
    User(Name(1), L"UsePassword", L"1");
    User(Name(1), L"Password", L"\u0160\u00c4\u00b2\u00c3\u00b7\u00c4");
    StartActElsewhere();
    for (int run = -1; run < Runs(); ++run) {
        const double now = TimeToLogOn(*this, 0);
        const double then = TimeToLogOn(*this, 1000);
        if (run < 0) continue; // everything is loaded now
        atOnce.push_back(now);
        later.push_back(then);
    }
    Tell({"log-on dialog to its answer, when ACT! asks at once, after a second",
          Spread(atOnce, 0) + ", " + Spread(later, 0) + " ms", "", "", "<= 250 ms", std::to_string(Runs())});
}
