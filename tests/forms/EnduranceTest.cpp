// Every window again and again: what the process holds must not grow. KELMORRA_SOAK_CYCLES in the environment sets
// another number of cycles than that of an ordinary run.

#include "dialogs/frmAbout.h"
#include "dialogs/frmLanguage.h"
#include "dialogs/frmListMaintenance.h"
#include "dialogs/frmLocations.h"
#include "dialogs/frmPrefLocations.h"
#include "dialogs/frmProperties.h"
#include "integration/frmIntegrateNew.h"
#include "quickswitch/frmAssign.h"
#include "quickswitch/frmQuickSwitch.h"
#include "support/ActDesk.h"
#include "support/Setting.h"
#include "win32/Owner.h"

namespace {

using BitmapHandle = Owner<owners::Gdi<HBITMAP>>;

template <class Handle>
Handle Value(UINT_PTR number) {
    return reinterpret_cast<Handle>(number); // NOLINT(performance-no-int-to-ptr)
}

bool IsKernelObject(HANDLE handle) {
    DWORD flags = 0;
    return GetHandleInformation(handle, &flags) != 0;
}

bool IsIcon(HICON icon) {
    ICONINFO info{};
    if (!GetIconInfo(icon, &info)) return false;
    const BitmapHandle mask(info.hbmMask), color(info.hbmColor);
    return true;
}

bool IsOurs(HWND window) { return GetWindowThreadProcessId(window, nullptr) == GetCurrentThreadId(); }

/// What this process holds at a moment: the system does not count, so every value is tried that a handle can have.
struct Resources {
    Resources() {
        for (UINT_PTR number = 1; number <= 0xFFFF; ++number) {
            Handles += number % 4 == 0 && IsKernelObject(Value<HANDLE>(number));
            Gdi += GetObjectType(Value<HGDIOBJ>(number)) != 0;
            User += number % 2 == 0 &&
                    (IsOurs(Value<HWND>(number)) || IsMenu(Value<HMENU>(number)) || IsIcon(Value<HICON>(number)));
        }
    }
    int Handles = 0; ///< files, keys, events, threads
    int Gdi = 0;     ///< fonts, brushes, bitmaps, device contexts
    int User = 0;    ///< windows, menus, icons
};

/// Opens and leaves everything that can be opened over a main window, whose ACT! cannot open databases.
void OpenAll(frmMain& window) {
    Program().FriendlyName = L"Sales";
    DialogScript script;
    script.Otherwise(Leave);
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

} // namespace

TEST_CASE("Dialogs, palette and failed opens leave no handle, GDI or USER object behind") {
    ActDesk desk;
    desk.AddDatabase(L"Sales", {{L"Path", L"C:\\Sales.dbf"}});
    desk.AddDatabase(L"Service", {});
    IniLib::WriteKeyValue(L"General", L"QuickSwitch", L"Sales;Service;;Sales");
    desk.Act.Failures[L"openDB"] = {.wCode = 3044};
    Main window;
    constexpr unsigned long kWarmUp = 3; // cycles until everything has been made that is made once
    const unsigned long cycles = kWarmUp + Setting("KELMORRA_SOAK_CYCLES", 3);
    Resources before;
    for (unsigned long cycle = 0; cycle < cycles; ++cycle) {
        if (cycle == kWarmUp) before = Resources();
        OpenAll(window);
    }
    const Resources after = Resources();
    MESSAGE("after " << cycles << " cycles: " << after.Handles << " handles, " << after.Gdi << " GDI and " << after.User
                     << " USER objects");
    CHECK(after.Handles <= before.Handles);
    CHECK(after.Gdi <= before.Gdi);
    CHECK(after.User <= before.User);
}
