// A start beside a program that is there already. (Other refusals are those of one process.)

#include "support/Journey.h"

TEST_CASE_FIXTURE(Journey, "a second instance is refused and leaves the first one and the stores alone") {
    StartAct(ListRealDatabase(L"Customers"));
    const Process& first = Start();
    HWND window = Window(first, L"frmMain");
    const std::wstring calls = Calls();
    const std::pair<const wchar_t*, const wchar_t*> rows[] = {
        {L"0", L"An instance of this program is already running!"},
        {L"1", L"Une copie de ce programme est d\u00e9j\u00e0 en marche !"}};
    for (const auto& [language, message] : rows) {
        JourneyStores::User(L"Options", L"Language", language);
        const std::string settings = JourneyStores::FileBytes(SettingsFile());
        const JourneyWindow::Box box = Box(Start());
        CHECK(box.Text == message);
        CHECK(JourneyWindow::Visible(Program().Id()).size() == 1);
        JourneyWindow::Answer(box, IDOK);
        CHECK(Program().ExitCode() == 0u);
        CHECK(JourneyStores::User(L"Settings", L"Width") == L"(none)");
        CHECK(JourneyStores::FileBytes(SettingsFile()) == settings);
    }
    CHECK(first.Running());
    CHECK(IsWindowVisible(window));
    CHECK(Calls() == calls);
}
