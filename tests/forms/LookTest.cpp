// Every window in every language: no caption cut off, nothing over the edge. With KELMORRA_PICTURES set, a picture of
// each.

#include "support/Look.h"
#include "app/frmWaiting.h"
#include "dialogs/frmCheck.h"
#include "dialogs/frmImport.h"
#include "dialogs/frmLanguage.h"
#include "dialogs/frmListMaintenance.h"
#include "dialogs/frmLocations.h"
#include "dialogs/frmPrefLocations.h"
#include "dialogs/frmProperties.h"
#include "i18n/modLangues.h"
#include "quickswitch/Artwork.h"
#include "quickswitch/frmAssign.h"
#include "support/ActDesk.h"
#include "support/Detour.h"

#include <array>
#include <filesystem>
#include <fstream>

// NOLINTNEXTLINE(readability-redundant-declaration)
extern decltype(&TrackPopupMenu) importedTrackPopupMenu __asm__("__imp__TrackPopupMenu@28");

namespace {

/// What the demonstration has too.
void FillDesk(ActDesk& desk) {
    desk.Act.OpenDatabase = L"E:\\databases\\Sales.dbf";
    desk.Act.State[{L"Preferences", L"DefaultLocation6"}] = L"E:\\layouts";
    desk.Act.State[{L"Preferences", L"DefaultLocation7"}] = L"E:\\macros";
    desk.AddDatabase(L"Sales", {{L"Path", L"E:\\databases\\Sales.dbf"},
                                {L"CLY", L"E:\\layouts\\Contacts.cly"},
                                {L"GLY", L"E:\\layouts\\Groups.gly"},
                                {L"StartupMacro", L"E:\\macros\\Morning.mpr"},
                                {L"Document", L"E:\\Sales\\Document"},
                                {L"Query", L"E:\\Sales\\Query"}});
    desk.AddDatabase(L"Service", {{L"Path", L"E:\\databases\\Service.dbf"},
                                  {L"CLY", L"E:\\layouts\\Telephone.cly"},
                                  {L"GLY", L"E:\\layouts\\Groups.gly"}});
    desk.AddDatabase(L"Staff", {{L"Path", L"E:\\databases\\Staff.dbf"}, {L"UseLocationsFrom", L"Service"}});
    IniLib::WriteKeyValue(L"General", L"QuickSwitch", L"Sales;Service;Staff");
    UserStore::Set(L"Sales", L"Username", L"Nora Alder");
    UserStore::Set(L"Display", L"Selected", L"0");
}

/// Looks at a window that has come up: language and DPI go into the picture's name.
void Inspect(HWND window, const wchar_t* name) {
    CHECK(CutCaptions(window) == L"");
    CHECK(ControlsOutside(window) == L"");
    CHECK(Nameless(window) == L"");
    CHECK(ClashingKeys(GetMenu(window)) == L"");
    // In English the bar's Options and the main window's Open share a key.
    const bool sharesOne = CurrentLanguage == 0 && GetMenu(window);
    CHECK(ClashingKeys(window) == (sharesOne ? L"&Open; " : L""));
    constexpr const wchar_t* kLanguages[] = {L"en", L"fr", L"de"};
    TakePicture(window,
                std::wstring(name) + L"-" + kLanguages[CurrentLanguage] + L"-" + std::to_wstring(WindowDpi(window)));
}

/// Looks at a menu instead of showing it.
BOOL WINAPI InspectPopUp(HMENU menu, UINT, int, int, int, HWND, const RECT*) {
    std::array<wchar_t, 8> caption{};
    GetMenuStringW(menu, 0, caption.data(), static_cast<int>(caption.size()), MF_BYPOSITION);
    CHECK_FALSE(std::wstring(caption.data()).starts_with(L"mnu")); // that is a name
    CHECK(ClashingKeys(menu) == L"");
    return FALSE;
}

void InspectAndCancel(HWND window, const wchar_t* name) {
    Inspect(window, name);
    SendMessageW(window, WM_CLOSE, 0, 0);
}

void InspectTabs(HWND window, const wchar_t* control, std::initializer_list<const wchar_t*> names) {
    HWND tabs = FindControl(window, control);
    WPARAM tab = 0;
    for (const wchar_t* name : names) {
        NMHDR change{tabs, 0, TCN_SELCHANGE};
        SendMessageW(tabs, TCM_SETCURSEL, tab++, 0);
        SendMessageW(window, WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&change));
        Inspect(window, name);
    }
    SendMessageW(window, WM_CLOSE, 0, 0);
}

bool IsThere(const std::wstring& path) { return path.find(L"Telephone") == path.find(L"Query"); }

/// Shows the import with a copy chosen that has a database more than the list.
void ImportFromCopy(const ActDesk& desk, DialogScript& script) {
    std::filesystem::create_directories(desk.backups.Folder() + L"\\Kelmorra\\Backup");
    std::ofstream(
        std::filesystem::path(desk.backups.Folder() + L"\\Kelmorra\\Backup\\Kelmorra-00000000-20990101-120000.ini"))
        << "[General]\nSort=Sales;Suppliers\n[Sales]\nPath=E:\\databases\\Sales.dbf\n"
           "[Suppliers]\nPath=E:\\databases\\Suppliers.dbf\n";
    script.Then([](HWND dialog) {
        HWND files = FindControl(dialog, L"cboFile");
        SendMessageW(files, CB_SETCURSEL, 0, 0);
        SendMessageW(dialog, WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(files), CBN_SELCHANGE),
                     reinterpret_cast<LPARAM>(files));
        InspectAndCancel(dialog, L"import");
    });
    auto list = EditedList::Load();
    frmImport(*list, list->Shown()).ShowModal();
}

} // namespace

TEST_CASE("No caption of any window is cut off in any language, and nothing reaches over an edge") {
    for (const short language : {short{0}, short{1}, short{2}}) {
        ActDesk desk;
        FillDesk(desk);
        UserStore::Set(L"Options", L"Language", std::to_wstring(language));
        DialogScript script;
        const Detour popUps(importedTrackPopupMenu, &InspectPopUp);
        Main window;
        PumpUntil([&] { return !window.ListView1.AccessibleName().empty(); }); // told once the window stands
        Inspect(window.Handle(), L"main");
        window.mnuPopup.PopUp({});
        for (const auto& [item, name] : {std::pair{&frmMain::mnuLanguages, L"language"},
                                         {&frmMain::mnuManageList, L"list"},
                                         {&frmMain::mnuSettingsLocation, L"settings-file"},
                                         {&frmMain::mnuIntegrate, L"integration"},
                                         {&frmMain::mnuAbout, L"about"}}) {
            script.Then([item, name](HWND dialog) {
                if (item == &frmMain::mnuManageList)
                    static_cast<frmListMaintenance*>(Form::FromWindow(dialog))->mnuList.PopUp({});
                InspectAndCancel(dialog, name);
            });
            (window.*item).Click();
        }
        script.Then([](HWND dialog) {
            const auto& check = *static_cast<frmCheck*>(Form::FromWindow(dialog));
            PumpUntil([&] { return check.lvwMissing.RowCount() > 0; });
            InspectAndCancel(dialog, L"check");
        });
        frmCheck(window, &IsThere).ShowModal();
        ImportFromCopy(desk, script);
        script.Then([](HWND dialog) {
            InspectTabs(dialog, L"mstOptions", {L"properties-general", L"properties-locations", L"properties-logon"});
        });
        window.mnuEditProperties.Click();
        script.Then([](HWND dialog) { InspectAndCancel(dialog, L"preference-locations"); });
        frmPrefLocations(L"Sales", L"Sales").ShowModal();
        script.Then([](HWND dialog) { InspectTabs(dialog, L"mstAssign", {L"assign-buttons", L"assign-colors"}); });
        frmAssign().ShowModal();
        script.Then([](HWND dialog) {
            Inspect(dialog, L"waiting");
            Form::Loaded().back()->Unload();
        });
        frmWaiting().ShowModal();
    }
    const ActDesk firstRun;
    UserStore::DeleteAll();
    DialogScript script;
    script.Then([](HWND dialog) {
        Inspect(dialog, L"language-first-run");
        Click(FindControl(dialog, L"cmdOK"));
    });
    frmLanguage().ShowModal();
}

TEST_CASE("The palette is drawn in every scheme and width, its strip in the colour of active and inactive captions") {
    const std::wstring names[] = {L"Sales;Service", L";Staff;A very long name indeed", L";;Sales", L";;Staff"};
    std::array<wchar_t, 2> setting{};
    const bool takesPictures = GetEnvironmentVariableW(L"KELMORRA_PICTURES", setting.data(), 2) != 0;
    for (int scheme = 0; scheme < Artwork::SchemeCount; ++scheme) {
        std::wstring assigned;
        for (int columns = 1; columns <= 4; ++columns) {
            assigned += names[columns - 1];
            if (!takesPictures && columns != 1 + scheme % 4) continue; // each scheme and width once
            ActDesk desk;
            FillDesk(desk);
            IniLib::WriteKeyValue(L"General", L"QuickSwitch", assigned);
            IniLib::WriteKeyValue(L"General", L"QuickSwitchScheme", std::to_wstring(scheme));
            DialogScript script;
            Main window;
            script.Then([&](HWND palette) {
                const std::wstring name = L"palette-scheme" + std::to_wstring(scheme) + L"-" +
                                          std::to_wstring(columns * 2) + L"-buttons-" +
                                          std::to_wstring(WindowDpi(palette));
                HoverOver(FindControl(palette, columns == 1 ? L"pic1" : L"pic3"));
                CHECK(ColorAtEdge(palette, false) == GetSysColor(COLOR_ACTIVECAPTION));
                TakePicture(palette, name);
                SendMessageW(palette, WM_ACTIVATE, WA_INACTIVE, 0);
                CHECK(ColorAtEdge(palette, false) == GetSysColor(COLOR_INACTIVECAPTION));
                if (columns == 1) TakePicture(palette, name + L"-inactive");
                SendMessageW(palette, WM_COMMAND, IDCANCEL, 0);
            });
            window.mnuQuickSwitch.Click();
            RunToEnd(window);
        }
    }
}
