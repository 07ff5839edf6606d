// Many sessions one after another, and programs that are killed while they save. The environment's
// KELMORRA_SOAK_STARTS, _OPENS, _RESTARTS and _SAVES set other counts than the small ones of an ordinary run.

#include "support/JourneyDialogs.h"
#include "support/Setting.h"
#include "support/Text.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <functional>
#include <random>
#include <set>

namespace fs = std::filesystem;

namespace {

using namespace JourneyDialogs;
using JourneyStores::FileBytes;
using JourneyStores::User;

/// What a session could leave: files beside the program and the settings, temporary files, registry keys and values.
std::set<std::wstring> Traces(const Journey& journey) {
    std::set<std::wstring> traces;
    std::array<wchar_t, MAX_PATH + 1> temporary{};
    GetTempPathW(MAX_PATH + 1, temporary.data());
    for (const fs::path& folder : {fs::path(journey.File(L"")), fs::path(temporary.data())})
        for (const auto& entry : fs::directory_iterator(folder)) traces.insert(entry.path().wstring());
    for (const auto& entry : fs::directory_iterator(fs::path(journey.ProgramFile(L""))))
        traces.insert(entry.path().wstring());
    for (const wchar_t* root : {JourneyStores::UserRoot, L"Software\\Symantec"})
        for (const auto& [name, value] : JourneyStores::ReadTree(root)) traces.insert(root + (L'|' + name));
    return traces;
}

/// Goes through a session once to make what stays for good, then many times.
void Repeat(Journey& journey, unsigned long count, const std::function<void()>& session) {
    session();
    const std::set<std::wstring> before = Traces(journey);
    const DWORD alive = journey.Group().Alive();
    for (unsigned long number = 1; number < count; ++number) session();
    CHECK(Within([&] { return journey.Group().Alive() == alive; }));
    for (const std::wstring& trace : Traces(journey)) {
        CAPTURE(trace);
        CHECK(before.contains(trace));
    }
    MESSAGE(count << " sessions, " << before.size() << " files, keys and values before and after");
}

/// A dialog that saves: how it is opened and change number n made in it, the button that saves, and what the stores
/// hold of it. Parts of a value that are stored one after another are divided by "|".
struct Saving {
    const char* name;
    HWND (*change)(const Journey& journey, int number);
    const wchar_t* button;
    std::wstring (*stored)(const Journey& journey, int number);
    std::wstring (*wanted)(const Journey& journey, int number);
};

std::wstring IniValue(const Journey& journey, const wchar_t* section, const wchar_t* key) {
    std::array<wchar_t, 1000> value{};
    GetPrivateProfileStringW(section, key, L"", value.data(), value.size(), journey.SettingsFile().c_str());
    return value.data();
}

std::wstring UserValue(const wchar_t* section, const wchar_t* key) { return User(section, key).value_or(L""); }

HWND OpenProperties(const Journey& journey) { return OpenByMenu(journey, L"mnuEditProperties", L"frmProperties"); }

HWND ChangeProperties(const Journey& journey, int number) {
    HWND dialog = OpenProperties(journey);
    Type(dialog, {{L"txtGL", std::to_wstring(number)}, {L"txtUsername", L"Pat " + std::to_wstring(number)}});
    return dialog;
}

std::wstring ListInOrder(const Journey&, int number) { return number % 2 ? L"Sales;B;A" : L"Sales;A;B"; }

HWND ChangeList(const Journey& journey, int number) {
    HWND dialog = OpenByMenu(journey, L"mnuManageList", L"frmListMaintenance");
    if (Lines(dialog) == ListInOrder(journey, number)) return dialog;
    HWND list = JourneyWindow::Control(dialog, L"lstDB");
    SendMessageW(list, LB_SETCURSEL, 1, 0);
    SendMessageW(dialog, WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(list), LBN_SELCHANGE), reinterpret_cast<LPARAM>(list));
    JourneyWindow::Click(dialog, L"cmdDown");
    REQUIRE(Within([&] { return Lines(dialog) == ListInOrder(journey, number); }));
    return dialog;
}

HWND ChangeFolders(const Journey& journey, int number) {
    HWND properties = OpenProperties(journey);
    Type(properties, {{L"txtName", L"Folders " + std::to_wstring(number)}});
    ShowTab(properties, 1);
    return OpenByButton(journey, properties, L"cmdEditLocations", L"frmPrefLocations");
}

std::wstring CountFolders(const Journey& journey, int number) {
    std::array<wchar_t, 1000> keys{};
    const DWORD size = GetPrivateProfileStringW((L"Folders " + std::to_wstring(number)).c_str(), nullptr, L"",
                                                keys.data(), keys.size(), journey.SettingsFile().c_str());
    return std::to_wstring(std::count(keys.data(), keys.data() + size, L'\0'));
}

HWND ChangeScheme(const Journey& journey, int number) {
    HWND palette = OpenByMenu(journey, L"mnuQuickSwitch", L"frmQuickSwitch");
    constexpr WPARAM kAssign = 1001; // the first item of a menu without a bar, and so without a name
    PostMessageW(palette, WM_COMMAND, kAssign, 0);
    HWND dialog = Journey::Window(journey.Program(), L"frmAssign");
    for (int scheme = 0; scheme < 5; ++scheme)
        SendMessageW(JourneyWindow::Control(dialog, L"optColor", scheme), BM_SETCHECK, scheme == number % 5, 0);
    return dialog;
}

std::wstring SettingsFileInCase(const Journey& journey, int number) {
    return journey.ProgramFile(number % 2 ? L"KELMORRA.INI" : L"Kelmorra.ini");
}

HWND ChangePlace(const Journey& journey, int number) {
    HWND dialog = OpenByMenu(journey, L"mnuSettingsLocation", L"frmLocations");
    Type(dialog, {{L"txtPath", SettingsFileInCase(journey, number)}});
    return dialog;
}

HWND ChangeLanguage(const Journey& journey, int number) {
    HWND dialog = OpenByMenu(journey, L"mnuLanguages", L"frmLanguage");
    SendMessageW(JourneyWindow::Control(dialog, L"cmbLanguage"), CB_SETCURSEL, static_cast<WPARAM>(number % 3), 0);
    return dialog;
}

const Saving kSavings[] = {
    {"properties", ChangeProperties, L"cmdOK",
     [](const Journey& journey, int) {
         return IniValue(journey, L"Sales", L"GLY") + L'|' + UserValue(L"Sales", L"Username");
     },
     [](const Journey&, int number) { return std::to_wstring(number) + L"|Pat " + std::to_wstring(number); }},
    {"list", ChangeList, L"cmdClose",
     [](const Journey& journey, int) { return IniValue(journey, L"General", L"Sort"); }, ListInOrder},
    {"folders", ChangeFolders, L"cmdOK", CountFolders, [](const Journey&, int) { return std::wstring(L"12"); }},
    {"palette", ChangeScheme, L"cmdOK",
     [](const Journey& journey, int) { return IniValue(journey, L"General", L"QuickSwitchScheme"); },
     [](const Journey&, int number) { return std::to_wstring(number % 5); }},
    {"place", ChangePlace, L"cmdOK", [](const Journey&, int) { return UserValue(L"Settings", L"IniLocation"); },
     SettingsFileInCase},
    {"language", ChangeLanguage, L"cmdOK", [](const Journey&, int) { return UserValue(L"Options", L"Language"); },
     [](const Journey&, int number) { return std::to_wstring(number % 3); }}};

/// Each part is as it was or as it was to be.
bool IsOneOrTheOther(const std::wstring& stored, const std::wstring& before, const std::wstring& wanted) {
    const auto parts = Text::Split(stored, L'|'), old = Text::Split(before, L'|'), fresh = Text::Split(wanted, L'|');
    for (size_t part = 0; part < parts.size(); ++part)
        if (parts[part] != fresh.at(part) && (part >= old.size() || parts[part] != old[part])) return false;
    return true;
}

/// Makes a change in a dialog, saves, and kills the program `milliseconds` later. True when the dialog had gone by
/// then: its user takes the change for made.
bool KillWhileSaving(Journey& journey, const Saving& saving, int number, DWORD milliseconds) {
    User(L"Display", L"Selected", L"0"); // the list has selected another
    journey.StartToMainWindow();
    HWND dialog = saving.change(journey, number);
    JourneyWindow::Click(dialog, saving.button);
    Sleep(milliseconds);
    const bool isAcknowledged = !IsWindow(dialog);
    journey.Program().Terminate();
    REQUIRE(journey.Program().ExitCode() == Process::Terminated);
    return isAcknowledged;
}

/// One restart of ACT! from the dialog of its commands.
void RestartAct(Journey& journey) {
    const size_t opens = journey.Count(L"STANDIN", L"OpenDatabase");
    HWND window = journey.StartToMainWindow();
    HWND dialog = OpenByMenu(journey, L"mnuIntegrate", L"frmIntegrateNew");
    SendMessageW(JourneyWindow::Control(dialog, L"chkScreen", 0), BM_CLICK, 0, 0);
    JourneyWindow::Click(dialog, L"cmdOK");
    JourneyWindow::Answer(journey.Box(journey.Program()), IDYES);
    REQUIRE(Within([&] { return !IsWindowVisible(window); }));
    REQUIRE(journey.ActHasEnded());
    REQUIRE(journey.AdoptAct());
    REQUIRE(journey.Program().ExitCode() == 0u);
    REQUIRE(Within([&] { return journey.Count(L"STANDIN", L"OpenDatabase") > opens; }));
}

} // namespace

TEST_CASE_FIXTURE(Journey, "starts and ends leave nothing behind") {
    StartAct(ListRealDatabase(L"Customers"));
    Repeat(*this, Setting("KELMORRA_SOAK_STARTS", 3), [&] {
        StartToMainWindow();
        Close();
    });
}

TEST_CASE_FIXTURE(Journey, "opens leave nothing behind") {
    StartAct(ListRealDatabase(L"Customers"));
    User(L"Display", L"Selected", L"0");
    const unsigned long opens = Setting("KELMORRA_SOAK_OPENS", 3);
    Repeat(*this, opens, [&] {
        JourneyWindow::Click(StartToMainWindow(), L"cmdOpen");
        REQUIRE(Program().ExitCode() == 0u);
    });
    CHECK(Count(L"APPOBJECT", L"openDB") == opens);
}

TEST_CASE_FIXTURE(Journey, "restarts of ACT! leave nothing behind") {
    StartAct(ListRealDatabase(L"Customers"));
    Repeat(*this, Setting("KELMORRA_SOAK_RESTARTS", 2), [&] { RestartAct(*this); });
}

TEST_CASE_FIXTURE(Journey, "a program that is killed while it saves leaves both stores whole, and what it had told") {
    ListRealDatabase(L"Sales");
    for (const wchar_t* name : {L"A", L"B"}) List(name, L"C:\\Data\\Other.dbf");
    Ini(L"Sales", L"CLY", L"C:\\L\\Sales.cly");
    Ini(L"End", L"K", L"1");
    User(L"End", L"K", L"1");
    StartActElsewhere(*this);
    std::mt19937 random(4711); // NOLINT(cert-msc51-cpp): the same moments in every run
    std::uniform_int_distribution<DWORD> moment(0, 120);
    const auto saves = static_cast<int>(Setting("KELMORRA_SOAK_SAVES", std::size(kSavings)));
    int acknowledged = 0;
    int made = 0;
    for (int number = 1; number <= saves; ++number) {
        const Saving& saving = kSavings[static_cast<size_t>(number) % std::size(kSavings)];
        INFO(std::string(saving.name));
        CAPTURE(number);
        const std::wstring before = saving.stored(*this, number);
        const std::wstring wanted = saving.wanted(*this, number);
        const bool isAcknowledged = KillWhileSaving(*this, saving, number, moment(random));
        const std::wstring stored = saving.stored(*this, number);
        if (isAcknowledged) CHECK(stored == wanted);
        CHECK(IsOneOrTheOther(stored, before, wanted));
        acknowledged += isAcknowledged ? 1 : 0;
        made += stored == wanted ? 1 : 0;
        const std::string bytes = FileBytes(SettingsFile());
        CHECK(bytes.find("[End]\r\nK=1\r\n") != std::string::npos);
        CHECK(bytes.ends_with("\r\n"));
        CHECK(User(L"End", L"K") == L"1");
    }
    MESSAGE(saves << " kills while saving: " << acknowledged << " changes acknowledged, " << made << " made");

    // The next one that saves takes away what the killed ones have left.
    User(L"Display", L"Selected", L"0");
    StartToMainWindow();
    Leave(ChangeProperties(*this, saves + 1), L"cmdOK");
    Close();
    for (const auto& entry : fs::directory_iterator(fs::path(ProgramFile(L""))))
        CHECK(entry.path().extension() != L".new");
    CHECK_FALSE(JourneyStores::FileExists(SettingsFile() + L".lock"));
}
