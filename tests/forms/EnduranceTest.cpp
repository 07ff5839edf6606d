// Every window again and again: what the process holds must not grow. KELMORRA_SOAK_CYCLES in the environment sets
// another number of cycles than that of an ordinary run.

#include "dialogs/frmAbout.h"
#include "dialogs/frmListMaintenance.h"
#include "dialogs/frmLocations.h"
#include "dialogs/frmPrefLocations.h"
#include "dialogs/frmProperties.h"
#include "dialogs/frmLanguage.h"
#include "integration/frmIntegrateNew.h"
#include "program/Program.h"
#include "quickswitch/frmAssign.h"
#include "quickswitch/frmQuickSwitch.h"
#include "stores/IniLib.h"
#include "support/ActDesk.h"
#include "support/DialogScript.h"
#include "support/Resources.h"
#include "support/Setting.h"
#include "support/Wide.h"

#include <algorithm>
#include <array>
#include <functional>
#include <vector>

namespace {

constexpr int kWarmUp = 10; // cycles until everything has been made that is made once

/// Creates a hidden control of the same class, style, font and text beside another one, and destroys it: what the
/// platform does of itself for a control.
void MakeTwin(HWND control) {
    std::array<wchar_t, 64> name{};
    GetClassNameW(control, name.data(), static_cast<int>(name.size()));
    RECT place{};
    GetClientRect(control, &place);
    const auto style = static_cast<DWORD>(GetWindowLongW(control, GWL_STYLE)) & ~DWORD{WS_VISIBLE};
    HWND twin = CreateWindowExW(0, name.data(), L"", style, 0, 0, place.right, place.bottom, GetParent(control),
                                nullptr, nullptr, nullptr);
    SendMessageW(twin, WM_SETFONT, static_cast<WPARAM>(SendMessageW(control, WM_GETFONT, 0, 0)), FALSE);
    SetWindowTextW(twin, WindowText(control).c_str());
    DestroyWindow(twin);
}

BOOL CALLBACK Collect(HWND window, LPARAM windows) {
    reinterpret_cast<std::vector<HWND>*>(windows)->push_back(window);
    return TRUE;
}

/// Heap bytes that the platform keeps for good of a dialog's controls. Wine 8 does so of labels and of texts of several
/// lines.
size_t KeptByPlatform(HWND dialog) {
    constexpr int kTimes = 8;
    std::vector<HWND> controls;
    EnumChildWindows(dialog, &Collect, reinterpret_cast<LPARAM>(&controls));
    const size_t before = Resources::Now().Heap;
    for (int time = 0; time < kTimes; ++time) std::ranges::for_each(controls, MakeTwin);
    return (Resources::Now().Heap - before) / kTimes;
}

/// Opens and leaves everything that can be opened over a main window, whose ACT! cannot open databases.
void OpenAll(frmMain& window, const std::function<void(HWND)>& leave = Leave) {
    Program().FriendlyName = L"Sales";
    DialogScript script;
    script.Otherwise(leave);
    frmAbout().ShowModal();
    frmLanguage().ShowModal();
    frmLocations().ShowModal();
    frmListMaintenance(window).ShowModal();
    frmPrefLocations(L"Sales", L"Sales").ShowModal();
    frmProperties(&window).ShowModal();
    frmIntegrateNew().ShowModal();
    frmAssign().ShowModal();
    frmQuickSwitch(window).ShowModal();
    window.Open_DB(L"Sales", 0, false);
    CHECK(script.All().size() == 10);
    CHECK(window.Visible());
}

struct Office {
    Office() {
        desk.AddDatabase(L"Sales", {{L"Path", L"C:\\Sales.dbf"}});
        desk.AddDatabase(L"Service", {});
        IniLib::WriteKeyValue(L"General", L"QuickSwitch", L"Sales;Service;;Sales");
        desk.Act.Failures[L"openDB"] = {.wCode = 3044};
        window.Load();
    }
    ~Office() { End(window); }

    ActDesk desk;
    frmMain window;
};

std::string Shown(const Resources& held) {
    return std::to_string(held.Handles) + " handles, " + std::to_string(held.Gdi) + " GDI objects, " +
           std::to_string(held.User) + " USER objects, " + std::to_string(held.Heap / 1024) + " KB in heaps, " +
           std::to_string(held.Bytes / 1024) + " KB private";
}

} // namespace

TEST_CASE_FIXTURE(Office, "Dialogs, palette and failed opens leave nothing behind") {
    constexpr size_t kSlack = 8 * 1024;   // for all cycles: the platform's own caches
    constexpr size_t kStep = 1024 * 1024; // what heaps grow by
    for (int cycle = 0; cycle < kWarmUp; ++cycle) {
        OpenAll(window);
        desk.Act.Calls.clear();
    }
    size_t kept = 0;
    OpenAll(window, [&](HWND dialog) {
        kept += KeptByPlatform(dialog);
        Leave(dialog);
    });
    desk.Act.Calls.clear();
    const Resources before = Resources::Now();
    const auto cycles = static_cast<int>(Setting("KELMORRA_SOAK_CYCLES", 14));
    for (int cycle = kWarmUp; cycle < cycles; ++cycle) {
        OpenAll(window);
        desk.Act.Calls.clear();
    }
    const Resources after = Resources::Now();
    kept *= static_cast<size_t>(cycles - kWarmUp);
    MESSAGE("kept by the platform of bare controls: " << kept / 1024 << " KB");
    MESSAGE("after " << kWarmUp << " cycles: " << Shown(before));
    MESSAGE("after " << cycles << " cycles: " << Shown(after));
    CHECK(after.Handles <= before.Handles);
    CHECK(after.Gdi <= before.Gdi);
    CHECK(after.User <= before.User);
    CHECK(after.Heap <= before.Heap + kept + kSlack);
    CHECK(after.Bytes <= before.Bytes + kStep);
}

TEST_CASE("The measure sees one object of each kind, and a few bytes") {
    constexpr size_t kLarge = 4 * 1024 * 1024;
    const Resources before = Resources::Now();
    {
        const KernelHandle event(CreateEventW(nullptr, FALSE, FALSE, nullptr));
        RegistryKey key;
        RegOpenKeyExW(HKEY_CURRENT_USER, L"Software", 0, KEY_READ, key.Receive());
        const FontHandle font(CreateFontW(17, 0, 0, 0, FW_NORMAL, 0, 0, 0, 0, 0, 0, 0, 0, L"Arial"));
        const BrushHandle brush(CreateSolidBrush(RGB(1, 2, 3)));
        const MenuHandle menu(CreatePopupMenu());
        Form window({L"frmLeak", 1000, 1000});
        window.Load();
        const std::string text(300, 'x');
        const std::vector<char> large(kLarge);
        const Resources during = Resources::Now();
        CHECK(during.Handles >= before.Handles + 2);
        CHECK(during.Gdi >= before.Gdi + 2);
        CHECK(during.User >= before.User + 2);
        CHECK(during.Heap >= before.Heap + 300);
        CHECK(during.Bytes >= before.Bytes + kLarge);
    }
}
