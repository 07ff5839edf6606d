// An ACT! that dies inside a call of the start or of an open. An ordinary run tries one call of each kind;
// KELMORRA_SOAK_DEATHS=1 in the environment tries all.

#include "support/Journey.h"
#include "support/Setting.h"
#include "support/Text.h"

namespace {

constexpr wchar_t kNotAccessible[] = L"This database is not accessible. Please choose another database.";

/// The first four by the kind of call: on the program's objects, of the start, of the open itself, and behind it.
constexpr wchar_t kCalls[] =
    L"Preferences;GetDefaultLocation;openDB;Create;OpenFile;Views;GetCurrentUserName;DefaultContactLayout;"
    L"DefaultGroupLayout;GetOpenDBName;SetCalendarMode;StartupMacro;RunMacro;UseLastDBonStartup";
constexpr size_t kKinds = 4;

/// Starts the program and lets it open the database once its window is there; answers every box. What they told, up to
/// the end of the program or until it is at rest.
std::vector<std::wstring> StartOpenAndAnswer(Journey& journey) {
    const Process& program = journey.Start();
    std::vector<std::wstring> told;
    bool hasOpened = false;
    CHECK(Within([&] {
        if (HWND box = MessageBoxOf(program.Id())) {
            told.push_back(MessageText(box));
            Answer(box, IDOK);
            Within([box] { return !IsWindow(box); });
            return false;
        }
        if (!program.Running()) return true;
        HWND window = FindWindowOf(program.Id(), L"frmMain");
        const bool isUsable = window && IsWindowVisible(window) && IsWindowEnabled(window);
        if (isUsable && !hasOpened) {
            Click(FindControl(window, L"optView", 6));
            Click(FindControl(window, L"cmdOpen"));
            hasOpened = true;
            return false;
        }
        return isUsable && !told.empty();
    }));
    return told;
}

} // namespace

TEST_CASE("an ACT! that dies in any call of the start or of an open is told of, and nobody is left waiting") {
    std::vector<std::wstring> calls = Text::Split(kCalls, L';');
    if (!Setting("KELMORRA_SOAK_DEATHS", 0)) calls.resize(kKinds);
    for (const std::wstring& call : calls) {
        CAPTURE(call);
        Journey journey; // its end checks that no process is left, and none invisible
        journey.StartAct(journey.ListRealDatabase(L"Customers"));
        journey.Ini(L"Customers", L"StartupMacro", journey.File(L"Morning.mpr"));
        User(L"Display", L"Selected", L"0");
        const std::string before = FileBytes(journey.SettingsFile());
        journey.Act(L"Faults", call, L"die");
        const std::vector<std::wstring> told = StartOpenAndAnswer(journey);
        REQUIRE_FALSE(told.empty());
        CHECK(told.front().starts_with(call == L"openDB" ? kNotAccessible : L"Error 462: "));
        CHECK(told.size() <= 2); // an open that fails after a start with a report
        CHECK(journey.ActHasEnded());
        CHECK(FileBytes(journey.SettingsFile()) == before);
    }
}
