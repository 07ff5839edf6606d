// What a start costs, in calls: their counts are the same in every run, where times are not. A count that has grown is
// a loop that has come in, or a question asked twice; who wants it so changes the table.

#include "support/CallCounts.h"
#include "support/JourneyDialogs.h"

namespace {

/// Calls of the kind, all together: so many at any start, and so many more for each database of the list.
struct Cost {
    const char* kind;
    std::set<std::string> functions;
    unsigned once;
    unsigned each;
};

const Cost kCosts[] = {
    {"the platform's settings calls", {"GetPrivateProfileStringA", "WritePrivateProfileStringA"}, 0, 0},
    // Of each database four values are read, and every reading opens the settings file.
    {"files opened or looked for", {"CreateFileW", "CopyFileW", "MoveFileExW", "FindFirstFileW"}, 8, 4},
    {"registry keys opened", {"RegOpenKeyExA", "RegOpenKeyExW", "RegCreateKeyExA", "RegCreateKeyExW"}, 17, 0},
    {"windows", {"CreateWindowExW"}, 25, 0},
    {"timers", {"SetTimer"}, 0, 0},
    {"threads", {"CreateThread"}, 1, 0},
};
constexpr size_t kCallsOfAct = 11;

// Of the shell and the common dialogs nothing is loaded with the program.
const std::set<std::string> kLibraries{"advapi32.dll", "comctl32.dll", "gdi32.dll",    "kernel32.dll",
                                       "msvcrt.dll",   "ole32.dll",    "oleaut32.dll", "user32.dll"};

/// Makes a list of so many databases, none of which ACT! has open.
void ListThem(Journey& journey, unsigned databases) {
    for (unsigned number = 0; number < databases; ++number) {
        const std::wstring name = L"Database " + std::to_wstring(number);
        journey.List(name, L"C:\\Data\\" + name + L".dbf");
    }
}

/// The program's first rest: a posted click is behind everything that the start has posted.
HWND WaitForRest(const CountedProgram& program) {
    HWND window = Journey::Window(program.Get(), L"frmMain");
    JourneyWindow::Click(window, L"optView", 1);
    REQUIRE(Within([&] { return JourneyWindow::Checked(JourneyWindow::Control(window, L"optView", 1)); }));
    return window;
}

} // namespace

TEST_CASE("a start makes as few calls as it did, and only readings of a database's own grow with the list") {
    for (const unsigned databases : {10U, 20U}) {
        CAPTURE(databases);
        Journey journey;
        ListThem(journey, databases);
        JourneyDialogs::StartActElsewhere(journey);
        journey.StartToMainWindow(); // the first start does more
        journey.Close();
        const size_t calls = journey.CallCount();
        const CountedProgram program(journey.Group(), journey.ProgramFile(L"Kelmorra.exe"));
        HWND window = WaitForRest(program);
        for (const Cost& cost : kCosts) {
            CAPTURE(std::string(cost.kind));
            CHECK(program.Count(cost.functions) == cost.once + databases * cost.each);
        }
        CHECK(journey.CallCount() - calls == kCallsOfAct);
        CHECK(program.Libraries() == kLibraries);
        JourneyWindow::Click(window, L"cmdCancel");
        CHECK(program.Get().ExitCode() == 0u);
    }
}
