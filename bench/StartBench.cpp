// From the creation of the process to a window that is shown and idle.

#include "Table.h"
#include "Workplace.h"

#include <functional>

namespace {

struct System {
    const char* name;
    const wchar_t* path;
    const wchar_t* windowClass;
    Samples times;
};

/// Makes every measurement once, so that everything is loaded, and then in turn as often as told.
void InTurn(const std::function<void(bool isMeasured)>& round) {
    round(false);
    for (int run = 0; run < Runs(); ++run) round(true);
}

void Keep(Samples& samples, double time, bool isMeasured) {
    if (isMeasured) samples.push_back(time);
}

std::string Ms(const Samples& samples) { return Spread(samples, 1) + " ms"; }

} // namespace

TEST_CASE_FIXTURE(Workplace, "start to main window") {
    System systems[] = {{"notepad", L"C:\\windows\\notepad.exe", L"Notepad", {}},
                        {"regedit", L"C:\\windows\\regedit.exe", L"RegEdit_RegEdit", {}},
                        {"winefile", L"C:\\windows\\system32\\winefile.exe", L"WFS_Frame", {}}};
    Samples program, minimal, calls, longer, longerMinimal;
    StartActElsewhere();
    InTurn([&](bool isMeasured) {
        WriteList(10);
        Keep(program, StartProgram(), isMeasured);
        Keep(minimal, StartMinimal(10), isMeasured);
        Keep(calls, CallsOfStart(), isMeasured);
        WriteList(40, {}, true);
        Keep(longer, StartProgram(), isMeasured);
        Keep(longerMinimal, StartMinimal(40), isMeasured);
        for (System& system : systems) Keep(system.times, TimeToReady(system.path, system.windowClass), isMeasured);
    });
    const std::string runs = std::to_string(Runs());
    const std::string andCalls = ", calls alone " + Ms(calls);
    Tell({"start, 10 databases", Ms(program), "minimal " + Ms(minimal) + andCalls,
          Spread(Ratios(program, minimal, calls), 2) + " without calls", "<= 1.25", runs});
    Tell({"start, 40 databases, file just written", Ms(longer), "minimal " + Ms(longerMinimal) + andCalls,
          Spread(Ratios(longer, longerMinimal, calls), 2) + " without calls", "<= 1.35", runs});
    for (const System& system : systems)
        Tell({"start, 10 databases", Ms(program), system.name + (" " + Ms(system.times)),
              Spread(Ratios(program, system.times), 2) + "; " + Spread(Ratios(program, system.times, calls), 2) +
                  " without calls",
              "< 1", runs});
}

TEST_CASE_FIXTURE(Workplace, "start to palette") {
    Samples program, minimal;
    WriteList(10, "QuickSwitchStartup=1\r\nQuickSwitch=AA;AB;AC;AD;AE;AF;AG;AH\r\n");
    InTurn([&](bool isMeasured) {
        Keep(program, StartProgram(PaletteClass), isMeasured);
        Keep(minimal, StartMinimal(10), isMeasured);
    });
    Tell({"start to palette of 8", Ms(program), "minimal " + Ms(minimal), Spread(Ratios(program, minimal), 2), "<= 1.2",
          std::to_string(Runs())});
}
