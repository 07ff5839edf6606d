// How start, change of language and list maintenance grow with the list.

#include "Table.h"
#include "Workplace.h"

#include <array>

namespace {

constexpr std::array kSizes{10, 100, 300};

struct Action {
    const char* name;
    std::array<Samples, kSizes.size()> times{};
};

/// Waits until the main window takes commands again. A program that waits for ACT! answers messages, but ignores
/// commands: so another view is chosen by a click on its label, as often as it takes.
void WaitUntilObeyed(HWND main) {
    const int view = SendMessageW(FindControl(main, L"optView", 1), BM_GETCHECK, 0, 0) == BST_CHECKED ? 2 : 1;
    HWND label = FindControl(main, L"lblView", view);
    HWND option = FindControl(main, L"optView", view);
    for (const Stopwatch watch; SendMessageW(option, BM_GETCHECK, 0, 0) != BST_CHECKED; Sleep(1)) {
        REQUIRE(watch.Milliseconds() < JourneyPatience);
        PostMessageW(label, WM_LBUTTONDOWN, MK_LBUTTON, 0);
    }
}

/// Clicks a control and waits for a call of ACT!, the last that the click leads to, and for the main window.
double TimeOfClick(const Workplace& workplace, HWND dialog, const wchar_t* button, const char* lastCall, HWND main) {
    JournalTail tail(workplace.File(L"act.log"));
    HWND control = FindControl(dialog, button);
    const Stopwatch watch;
    PostMessageW(control, BM_CLICK, 0, 0);
    tail.WaitFor(lastCall);
    WaitUntilObeyed(main);
    WaitUntilDrawn(main);
    return watch.Milliseconds();
}

double TimeOfMenu(const Process& program, HWND main, const wchar_t* item, const wchar_t* dialogClass) {
    const Stopwatch watch;
    ClickMenu(main, item);
    WaitUntilReady(program, dialogClass);
    return watch.Milliseconds();
}

/// Goes through the actions behind the start. `note` is told the number of each action and its time.
void GoThrough(const Workplace& workplace, const Process& program, HWND main,
               const std::function<void(size_t, double)>& note) {
    TimeOfMenu(program, main, L"mnuLanguages", L"frmLanguage");
    note(1, TimeOfClick(workplace, FindWindowW(L"frmLanguage", nullptr), L"cmdOK", "GetDefaultLocation", main));
    note(2, TimeOfMenu(program, main, L"mnuManageList", L"frmListMaintenance"));
    note(3, TimeOfClick(workplace, FindWindowW(L"frmListMaintenance", nullptr), L"cmdClose", "GetOpenDBName", main));
    PostMessageW(main, WM_CLOSE, 0, 0);
    REQUIRE(program.ExitCode() == 0u);
}

void MeasureTimes(const Workplace& workplace, std::array<Action, 4>& actions, size_t size) {
    workplace.WriteList(kSizes.at(size));
    const ProcessGroup group;
    const Stopwatch watch;
    const Process program(group, workplace.ProgramFile(L"Kelmorra.exe"));
    HWND main = WaitUntilReady(program, Workplace::MainClass);
    actions[0].times.at(size).push_back(watch.Milliseconds());
    GoThrough(workplace, program, main,
              [&](size_t action, double time) { actions.at(action).times.at(size).push_back(time); });
}

void TellGrowth(const Action& action) {
    const auto& [few, some, many] = action.times;
    const double each = (Median(many) - Median(few)) / (kSizes.back() - kSizes.front());
    Tell({action.name, Spread(few, 1) + ", " + Spread(some, 1) + ", " + Spread(many, 1) + " ms",
          "itself: " + Fixed(each, 2) + " ms for each more",
          "x " + Spread(Ratios(some, few), 2) + ", x " + Spread(Ratios(many, few), 2), "<= x 10, x 30",
          std::to_string(Runs())});
}

} // namespace

TEST_CASE_FIXTURE(Workplace, "lists of 10, 100 and 300 databases") {
    std::array<Action, 4> actions{Action{"start, list of 10, 100, 300"}, Action{"language reload"},
                                  Action{"list maintenance opens"}, Action{"list maintenance closes"}};
    StartActElsewhere();
    for (int run = 0; run < Runs(); ++run)
        for (size_t size = 0; size < kSizes.size(); ++size) MeasureTimes(*this, actions, size);
    for (const Action& action : actions) TellGrowth(action);
}
