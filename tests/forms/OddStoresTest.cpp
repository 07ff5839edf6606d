// Whatever the stores hold, the windows come up in sound sizes, on the screen, and the choices fall back on defaults.

#include "i18n/modLangues.h"
#include "quickswitch/frmAssign.h"
#include "quickswitch/frmQuickSwitch.h"
#include "support/ActDesk.h"

namespace {

const std::wstring kOddTexts[] = {
    L" ", L"-1", L"2147483648", L"999999999,9", L"%s%n", std::wstring(L"5\0 5", 4), std::wstring(100'000, L'9')};

constexpr const wchar_t* kUserKeys[][2] = {
    {L"Settings", L"Width"},     {L"Settings", L"Height"},   {L"Settings", L"Column0"}, {L"Settings", L"Column4"},
    {L"Settings", L"QuickLeft"}, {L"Settings", L"QuickTop"}, {L"Display", L"Selected"}, {L"Options", L"Language"}};

bool IsOnScreen(HWND window) {
    RECT place{};
    GetWindowRect(window, &place);
    return MonitorFromRect(&place, MONITOR_DEFAULTTONULL) != nullptr;
}

/// Starts, shows the palette and its settings, and ends.
void UseAll() {
    DialogScript script;
    script.Otherwise(Leave);
    Main window;
    REQUIRE(window.Visible());
    CHECK(IsOnScreen(window.Handle()));
    CHECK(window.OuterSize().Width >= 8460);
    CHECK(window.OuterSize().Height >= 5175);
    for (int column = 0; column < 5; ++column) CHECK(window.ListView1.ColumnWidth(column) <= 100'015);
    CHECK(window.ListView1.Selected() < window.ListView1.RowCount());
    CHECK(CurrentLanguage >= 0);
    CHECK(CurrentLanguage <= 2);
    {
        frmQuickSwitch palette(window);
        palette.Load();
        CHECK(IsOnScreen(palette.Handle()));
        palette.Unload();
        frmAssign().ShowModal();
    }
}

} // namespace

TEST_CASE("Sizes, columns, positions, language, scheme and selection may be any text") {
    for (const std::wstring& text : kOddTexts) {
        CAPTURE(text.substr(0, 20));
        ActDesk desk;
        desk.AddDatabase(L"Sales", {{L"Path", L"C:\\Sales.dbf"}});
        for (const auto& [section, key] : kUserKeys) UserStore::Set(section, key, text);
        for (const wchar_t* key : {L"QuickSwitchScheme", L"QuickSwitchStartup", L"QuickSwitch"})
            IniLib::WriteKeyValue(L"General", key, text);
        UseAll();
        CHECK(IniLib::GetKeyValue(L"Sales", L"Path") == L"C:\\Sales.dbf");
    }
}
