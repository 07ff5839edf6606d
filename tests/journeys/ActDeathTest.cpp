// An ACT! that dies inside any one call of the start or of an open. An ordinary run tries some of the calls;
// KELMORRA_SOAK_DEATHS=1 in the environment tries all.

#include "support/Journey.h"
#include "support/Setting.h"

namespace {

constexpr const wchar_t* kMembers[] = {L"OpenFile",
                                       L"Views",
                                       L"Preferences",
                                       L"GetCurrentUserName",
                                       L"DefaultContactLayout",
                                       L"DefaultGroupLayout",
                                       L"StartupMacro",
                                       L"openDB",
                                       L"GetDefaultLocation",
                                       L"GetOpenDBName",
                                       L"Create",
                                       L"SetCalendarMode",
                                       L"RunMacro",
                                       L"UseLastDBonStartup"};
constexpr unsigned long kPart = 5;

/// Starts the program and lets it open the database once its window is there; answers every box. How many there were,
/// up to the end of the program or until it is at rest.
int StartOpenAndAnswer(Journey& journey) {
    const Process& program = journey.Start();
    int boxes = 0;
    bool hasOpened = false;
    CHECK(Within([&] {
        if (const auto box = JourneyWindow::MessageBoxOf(program.Id())) {
            ++boxes;
            JourneyWindow::Dismiss(*box);
            Within([&] { return !IsWindow(box->Window); });
            return false;
        }
        if (!program.Running()) return true;
        HWND window = JourneyWindow::Find(program.Id(), L"frmMain");
        const bool isUsable = window && IsWindowVisible(window) && IsWindowEnabled(window);
        if (isUsable && !hasOpened) {
            JourneyWindow::Click(window, L"optView", 6);
            JourneyWindow::Click(window, L"cmdOpen");
            hasOpened = true;
            return false;
        }
        return isUsable && boxes > 0;
    }));
    return boxes;
}

} // namespace

TEST_CASE("an ACT! that dies in any call of the start or of an open is told of, and nobody is left waiting") {
    const unsigned long part = Setting("KELMORRA_SOAK_DEATHS", kPart);
    unsigned long number = 0;
    for (const std::wstring member : kMembers) {
        if (number++ % part != 0) continue;
        CAPTURE(member);
        Journey journey; // its end checks that no process is left, and none invisible
        journey.StartAct(journey.ListRealDatabase(L"Customers"));
        journey.Ini(L"Customers", L"StartupMacro", journey.File(L"Morning.mpr"));
        JourneyStores::User(L"Display", L"Selected", L"0");
        JourneyStores::User(L"Customers", L"Username", L"Pat");
        const std::string before = JourneyStores::FileBytes(journey.SettingsFile());
        journey.Act(L"Faults", member, L"die");
        const int boxes = StartOpenAndAnswer(journey);
        CHECK(boxes >= 1);
        CHECK(boxes <= 2); // an open that fails after a start with a report
        CHECK(journey.ActHasEnded());
        CHECK(JourneyStores::FileBytes(journey.SettingsFile()) == before);
        CHECK(JourneyStores::User(L"Customers", L"Username") == L"Pat");
    }
}
