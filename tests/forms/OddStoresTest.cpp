// Whatever the stores hold, the windows come up in sound sizes, on the screen, and the choices fall back on defaults.

#include "i18n/modLangues.h"
#include "program/Program.h"
#include "quickswitch/frmAssign.h"
#include "quickswitch/frmQuickSwitch.h"
#include "stores/IniLib.h"
#include "stores/RegistrySubs.h"
#include "stores/UserStore.h"
#include "support/ActDesk.h"
#include "support/DialogScript.h"
#include "support/Wide.h"

namespace {

const std::wstring kOddTexts[] = {L" ",
                                  L"-1",
                                  L"0",
                                  L"7",
                                  L"2147483648",
                                  L"999999999",
                                  L"-999999999",
                                  L"999999999,9",
                                  L"1e9",
                                  L"-0,5",
                                  L"%s%n",
                                  L"\u0663",
                                  L"NaN",
                                  std::wstring(L"5\0 5", 4),
                                  std::wstring(100'000, L'9')};

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
    frmMain window;
    window.Load();
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
    End(window);
}

void WriteRaw(const std::wstring& path, const wchar_t* name, DWORD type, const std::vector<BYTE>& data) {
    RegistryKey key;
    REQUIRE(RegCreateKeyExW(HKEY_CURRENT_USER, path.c_str(), 0, nullptr, 0, KEY_WRITE, nullptr, key.Receive(),
                            nullptr) == ERROR_SUCCESS);
    REQUIRE(RegSetValueExW(key.Get(), name, 0, type, data.data(), static_cast<DWORD>(data.size())) == ERROR_SUCCESS);
}

std::wstring SectionKey(const wchar_t* section) { return std::wstring(UserStore::Root) + L"\\Kelmorra\\" + section; }

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

TEST_CASE("A registry value of any type and size where a text is expected is a text or none") {
    const wchar_t* const actKey = L"Software\\Symantec\\ACT!";
    for (DWORD type = REG_NONE; type <= REG_QWORD; ++type)
        for (const size_t size : {0U, 1U, 2U, 3U, 4U, 5U, 8U, 1023U, 1024U, 1025U, 100'001U}) {
            CAPTURE(type);
            CAPTURE(size);
            const ScratchRegistry registry;
            const std::vector<BYTE> data(size, 'x');
            WriteRaw(SectionKey(L"Sales"), L"Username", type, data);
            WriteRaw(actKey, L"Query File Type", type, data);
            const std::wstring text = UserStore::Get(L"Sales", L"Username", L"none");
            if (type == REG_SZ)
                CHECK(text.size() == (size + 1) / 2);
            else
                CHECK(text == L"none");
            CHECK(UserStore::GetSection(L"Sales").size() == (type == REG_SZ ? 1 : 0));
            const auto value = RegistrySubs::GetRegistryValue(HKEY_CURRENT_USER, actKey, L"Query File Type");
            if (const auto* found = std::get_if<std::wstring>(&value)) CHECK(found->size() <= size);
        }
}

TEST_CASE("With values of every other type in the stores the program starts as if they were not there") {
    for (const DWORD type : {REG_NONE, REG_EXPAND_SZ, REG_BINARY, REG_DWORD, REG_MULTI_SZ}) {
        CAPTURE(type);
        ActDesk desk;
        desk.AddDatabase(L"Sales", {});
        for (const auto& [section, key] : kUserKeys) WriteRaw(SectionKey(section), key, type, {1, 0, 0, 0});
        UseAll();
    }
}

TEST_CASE("A place of the settings file that is none gives one report and a usable window") {
    for (const std::wstring& place : {std::wstring(L"::?*|\""), std::wstring(L"Q:\\none\\x.ini"), std::wstring(L"\\"),
                                      L"C:\\" + std::wstring(30'000, L'x'), std::wstring(L"\\\\.\\pipe\\none"),
                                      std::wstring(L"C:\\windows"), std::wstring(L"\\\\?\\"), std::wstring(L" ")}) {
        CAPTURE(place.substr(0, 40));
        ActDesk desk;
        UserStore::Set(L"Settings", L"IniLocation", place);
        DialogScript script;
        script.Otherwise(Leave);
        frmMain window;
        window.Load();
        CHECK(window.Visible());
        CHECK(script.All().size() <= 1);
        End(window);
        CHECK(UserStore::Get(L"Settings", L"IniLocation") == place);
    }
}
