// An ACT! that dies inside a call of the start or of an open. An ordinary run tries one call of each kind;
// KELMORRA_SOAK_DEATHS=1 in the environment tries all.

#include "support/Journey.h"
#include "support/Setting.h"

namespace {

constexpr wchar_t kNotAccessible[] = L"This database is not accessible. Please choose another database.";

struct Death {
    const wchar_t* member;
    const wchar_t* told; ///< the beginning of what the user is told first
    bool isAlwaysTried;
};
constexpr Death kDeaths[] = {{L"OpenFile", L"Error 462: ", false},
                             {L"Views", L"Error 462: ", false},
                             {L"Preferences", L"Error 462: ", true},
                             {L"GetCurrentUserName", L"Error 462: ", false},
                             {L"DefaultContactLayout", L"Error 462: ", false},
                             {L"DefaultGroupLayout", L"Error 462: ", false},
                             {L"StartupMacro", L"Error 462: ", false},
                             {L"GetDefaultLocation", L"Error 462: ", true},
                             {L"GetOpenDBName", L"Error 462: ", false},
                             {L"openDB", kNotAccessible, true},
                             {L"Create", L"Error 462: ", true},
                             {L"SetCalendarMode", L"Error 462: ", false},
                             {L"RunMacro", L"Error 462: ", false},
                             {L"UseLastDBonStartup", L"Error 462: ", false}};

/// Starts the program and lets it open the database once its window is there; answers every box. What they told, up to
/// the end of the program or until it is at rest.
std::vector<std::wstring> StartOpenAndAnswer(Journey& journey) {
    const Process& program = journey.Start();
    std::vector<std::wstring> told;
    bool hasOpened = false;
    CHECK(Within([&] {
        if (const auto box = JourneyWindow::MessageBoxOf(program.Id())) {
            told.push_back(box->Text);
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
        return isUsable && !told.empty();
    }));
    return told;
}

} // namespace

TEST_CASE("an ACT! that dies in any call of the start or of an open is told of, and nobody is left waiting") {
    for (const Death& death : kDeaths) {
        if (!death.isAlwaysTried && !Setting("KELMORRA_SOAK_DEATHS", 0)) continue;
        CAPTURE(std::wstring(death.member));
        Journey journey; // its end checks that no process is left, and none invisible
        journey.StartAct(journey.ListRealDatabase(L"Customers"));
        journey.Ini(L"Customers", L"StartupMacro", journey.File(L"Morning.mpr"));
        JourneyStores::User(L"Display", L"Selected", L"0");
        JourneyStores::User(L"Customers", L"Username", L"Pat");
        const std::string before = JourneyStores::FileBytes(journey.SettingsFile());
        journey.Act(L"Faults", death.member, L"die");
        const std::vector<std::wstring> told = StartOpenAndAnswer(journey);
        REQUIRE_FALSE(told.empty());
        CHECK(told.front().starts_with(death.told));
        CHECK(told.size() <= 2); // an open that fails after a start with a report
        CHECK(journey.ActHasEnded());
        CHECK(JourneyStores::FileBytes(journey.SettingsFile()) == before);
        CHECK(JourneyStores::User(L"Customers", L"Username") == L"Pat");
    }
}
