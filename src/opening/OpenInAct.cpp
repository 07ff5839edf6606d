#include "opening/OpenInAct.h"

#include "act/LogonHelper.h"
#include "databases/ActSettings.h"
#include "databases/Logon.h"
#include "databases/Record.h"
#include "opening/ActDefaults.h"
#include "support/Shell.h"

OpenInAct::Outcome OpenInAct::Run(short viewCode) const {
    const DatabaseRecord record = ExtractInfo(stored_, name_);
    ActDefaults::UseLayouts(act_.Preferences, record.ContactLayout, record.GroupLayout);
    ActSettings::WriteLocations(UsedFolders(stored_, name_));
    LogonHandOver::CopyToLogon(name_);
    try {
        const LogonHelper helper;
        act_.Application.openDB(record.Path);
    } catch (const Error& error) {
        return error.Number == BasicError::ObjectNotSet ? Outcome::NotSelected : Outcome::NotAccessible;
    }
    ShowView(viewCode);
    return RunOpeningMacro(record.OpeningMacro) ? Outcome::Opened : Outcome::MacroRefused;
}

void OpenInAct::Finish() const {
    if (!act_.Preferences.UseLastDBonStartup()) ActDefaults::PutBack(act_.Preferences);
}

void OpenInAct::PutDefaultsBack() const noexcept {
    try {
        ActDefaults::PutBack(act_.Preferences);
    } catch (...) { // NOLINT(bugprone-empty-catch): see the declaration
    }
}

void OpenInAct::ShowView(short viewCode) const {
    constexpr short kFirstCalendar = 4;
    constexpr short kCalendarView = 5;
    constexpr short kModeOffset = 296; // ACT!'s calendar modes are 300 to 302
    if (viewCode < kFirstCalendar)
        act_.Views.Show(static_cast<short>(viewCode + 1));
    else
        act_.Views.Create(kCalendarView).SetCalendarMode(static_cast<short>(viewCode + kModeOffset));
}

bool OpenInAct::RunOpeningMacro(const std::wstring& macro) const {
    if (macro.ends_with(L".mpr"))
        act_.Application.RunMacro(macro);
    else if (macro.ends_with(L".exe"))
        OpenWithShell(macro);
    else
        return macro.empty();
    return true;
}
