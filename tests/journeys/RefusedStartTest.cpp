// A start beside a program that is there already. (Other refusals are those of one process.)

#include "support/Journey.h"

TEST_CASE_FIXTURE(Journey, "a second instance is refused and leaves the first one and the stores alone") {
    StartAct(ListRealDatabase(L"Customers"));
    const Process& first = Start();
    HWND window = Window(first, L"frmMain");
    const std::wstring calls = Calls();
    const std::string settings = FileBytes(SettingsFile());
    Start();
    CHECK(AnswerBox() == L"An instance of this program is already running!");
    CHECK(Program().ExitCode() == 0u);
    CHECK(User(L"Settings", L"Width") == L"(none)");
    CHECK(FileBytes(SettingsFile()) == settings);
    CHECK(first.Running());
    CHECK(IsWindowVisible(window));
    CHECK(Calls() == calls);
}
