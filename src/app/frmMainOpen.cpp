// frmMain's opening of a database in the running ACT!.

#include "app/frmMain.h"

#include "act/LogonHelper.h"
#include "databases/ActSettings.h"
#include "databases/Logon.h"
#include "i18n/Caption.h"
#include "i18n/modLangues.h"
#include "program/Program.h"
#include "program/SettingsNotice.h"
#include "stores/IniLib.h"
#include "stores/UserStore.h"
#include "support/Application.h"
#include "support/ErrorReport.h"
#include "support/MsgBox.h"
#include "support/Shell.h"

namespace {

std::wstring OrRecorded(const std::wstring& layout, const wchar_t* recordedKey) {
    return layout.empty() ? UserStore::Get(Keys::Settings, recordedKey) : layout;
}

} // namespace

void frmMain::Open_DB(const std::wstring& name, short viewCode, bool mainHidden) {
    if (Program().StartActMode) {
        Program().FriendlyName = name;
        return;
    }
    if (name.empty()) {
        if (mainHidden) Show();
        MsgBox(LangText[Caption::NoDatabaseSelected]);
        ListView1.SetFocus();
        return;
    }
    try {
        if (OpenInAct(name, viewCode, mainHidden)) Unload();
    } catch (...) {
        if (!Program().ActIsClosing) Show();
        ErrorReport("frmMain: Sub cmdOpen_Click");
    }
    EndIfInvisible();
}

bool frmMain::OpenInAct(const std::wstring& name, short viewCode, bool mainHidden) {
    const ActPreferences& preferences = Program().Preferences;
    const auto stored = IniLib::ReadFile();
    if (!stored) {
        if (mainHidden) Show();
        SettingsNotice::CannotRead();
        ListView1.SetFocus();
        return false;
    }
    const DatabaseRecord record = ExtractInfo(*stored, name);
    if (!mainHidden) Hide();
    // Empty means "keep ACT!'s own": the last database's layout must not stay in force.
    preferences.DefaultContactLayout(OrRecorded(record.ContactLayout, Keys::OriginalCL));
    preferences.DefaultGroupLayout(OrRecorded(record.GroupLayout, Keys::OriginalGL));
    ActSettings::WriteLocations(UsedFolders(*stored, name));
    LogonHandOver::CopyToLogon(name);
    if (!OpenDatabase(record.Path)) return false;
    ShowView(viewCode);
    RunOpeningMacro(record.OpeningMacro);
    if (!preferences.UseLastDBonStartup()) PutDefaultsBack();
    return true;
}

bool frmMain::OpenDatabase(const std::wstring& path) {
    try {
        const LogonHelper helper;
        Program().Application.openDB(path);
        return true;
    } catch (const Error& error) {
        if (!Program().ActIsClosing) Show();
        if (error.Number == BasicError::ObjectNotSet)
            MsgBox(LangText[Caption::SelectFirst] + L"\r\n\r\n" + LangText[Caption::EmptyListHint], MsgIcon::None,
                   LangText[Caption::NoDatabaseSelected].c_str());
        else
            MsgBox(LangText[Caption::NotAccessible]);
    }
    ToFront();
    ListView1.SetFocus();
    try {
        PutDefaultsBack();
    } catch (const Error&) {
        // The user has had the message about the failure itself.
    }
    return false;
}

void frmMain::ShowView(short viewCode) {
    constexpr short kFirstCalendar = 4;
    constexpr short kCalendarView = 5;
    constexpr short kModeOffset = 296; // ACT!'s calendar modes are 300 to 302
    const ActViews& views = Program().Views;
    if (viewCode < kFirstCalendar)
        views.Show(static_cast<short>(viewCode + 1));
    else
        views.Create(kCalendarView).SetCalendarMode(static_cast<short>(viewCode + kModeOffset));
}

void frmMain::RunOpeningMacro(const std::wstring& macro) {
    if (macro.empty()) return;
    if (macro.ends_with(L".mpr"))
        Program().Application.RunMacro(macro);
    else if (macro.ends_with(L".exe"))
        OpenWithShell(macro);
    else
        MsgBox(std::wstring(L"Macro cannot be executed by ") + Application::Title + L".", MsgIcon::None,
               L"Invalid Macro File");
}

void frmMain::PutDefaultsBack() {
    const ActPreferences& preferences = Program().Preferences;
    preferences.DefaultContactLayout(UserStore::Get(Keys::Settings, Keys::OriginalCL));
    preferences.DefaultGroupLayout(UserStore::Get(Keys::Settings, Keys::OriginalGL));
    preferences.StartupMacro(UserStore::Get(Keys::Settings, Keys::OriginalMacro));
}

short frmMain::CheckedView() const {
    for (std::size_t view = 0; view < ViewCount; ++view)
        if (optView[view].Value()) return static_cast<short>(view);
    return 0;
}
