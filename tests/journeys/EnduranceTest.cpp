// Many sessions one after another. KELMORRA_SOAK_SESSIONS in the environment sets another count than the small one of
// an ordinary run.

#include "support/Journey.h"
#include "support/Setting.h"

#include <array>
#include <filesystem>
#include <set>

namespace fs = std::filesystem;

namespace {

/// What a session could leave: files beside the program and the settings, temporary files, registry keys and values.
std::set<std::wstring> Traces(const Journey& journey) {
    std::set<std::wstring> traces;
    std::array<wchar_t, MAX_PATH + 1> temporary{};
    GetTempPathW(MAX_PATH + 1, temporary.data());
    for (const fs::path& folder :
         {fs::path(journey.File(L"")), fs::path(journey.ProgramFile(L"")), fs::path(temporary.data())})
        for (const auto& entry : fs::directory_iterator(folder)) traces.insert(entry.path().wstring());
    for (const wchar_t* root : {JourneyStores::UserRoot, L"Software\\Symantec"})
        for (const auto& [name, value] : JourneyStores::ReadTree(root)) traces.insert(root + (L'|' + name));
    return traces;
}

} // namespace

TEST_CASE_FIXTURE(Journey, "starts, opens and ends leave no process, file, key or value behind") {
    StartAct(ListRealDatabase(L"Customers"));
    JourneyStores::User(L"Display", L"Selected", L"0");
    const unsigned long sessions = Setting("KELMORRA_SOAK_SESSIONS", 2);
    std::set<std::wstring> before;
    for (unsigned long session = 0; session < sessions; ++session) {
        StartToMainWindow();
        Close();
        JourneyWindow::Click(StartToMainWindow(), L"cmdOpen");
        REQUIRE(Program().ExitCode() == 0u);
        if (session == 0) before = Traces(*this); // what stays for good
    }
    CHECK(Within([&] { return Group().Alive() == 1; })); // ACT!
    for (const std::wstring& trace : Traces(*this)) {
        CAPTURE(trace);
        CHECK(before.contains(trace));
    }
    CHECK(Count(L"APPOBJECT", L"openDB") == sessions);
    MESSAGE(sessions << " sessions, " << before.size() << " files, keys and values before and after");
}
