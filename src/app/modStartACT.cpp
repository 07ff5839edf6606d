#include "app/modStartACT.h"

#include "act/LogonHelper.h"
#include "databases/ActSettings.h"
#include "databases/DatabaseList.h"
#include "databases/Logon.h"
#include "dialogs/frmProperties.h"
#include "i18n/Caption.h"
#include "i18n/modLangues.h"
#include "program/Program.h"
#include "program/SettingsNotice.h"
#include "quickswitch/frmQuickSwitch.h"
#include "stores/IniLib.h"
#include "stores/RegistrySubs.h"
#include "stores/UserStore.h"
#include "support/Application.h"
#include "support/ErrorReport.h"
#include "support/MsgBox.h"
#include "support/Shell.h"

namespace {

constexpr wchar_t kDatabaseKey[] = L"Software\\Symantec\\ACT!\\Database";
constexpr wchar_t kGeneralKey[] = L"Software\\Symantec\\ACT!\\General";

void SetActValue(const wchar_t* key, const wchar_t* name, const RegistrySubs::Value& value) {
    RegistrySubs::SetRegistryValue(HKEY_CURRENT_USER, key, name, value);
}

/// The program-wide flag is set for the time of the dialog.
void AskForUsername() {
    MsgBox(L"Because it is the first time you are opening this database with QuickSwitch\r\n"
           L"and no username has been setup,\r\n"
           L"you need to enter your username (and optionally a password).",
           MsgIcon::Exclamation);
    ProgramState& program = Program();
    if (const auto stored = IniLib::ReadFile()) program.DatabaseNames = DatabaseList::Read(*stored).shown;
    program.AskForUsername = true;
    frmProperties properties(nullptr);
    properties.IsNew(false);
    properties.ShowModal();
    program.AskForUsername = false;
}

void WriteActSettings(const IniLib::Reading& stored, const std::wstring& name) {
    const DatabaseRecord record = ExtractInfo(stored, name);
    SetActValue(kDatabaseKey, L"Last DB Name", record.Path);
    SetActValue(kDatabaseKey, L"Use Last DB", std::int32_t{1});
    // Without a layout of the database's own ACT! keeps its own.
    if (!record.ContactLayout.empty()) SetActValue(kDatabaseKey, L"Contact Layout", record.ContactLayout);
    if (!record.GroupLayout.empty()) SetActValue(kDatabaseKey, L"Group Layout", record.GroupLayout);
    SetActValue(kGeneralKey, L"Macro Name", record.OpeningMacro);
    ActSettings::WriteLocations(UsedFolders(stored, name));
}

void WriteLogonValues(const std::wstring& name) {
    UserStore::DeleteSection(Keys::Logon);
    LogonHandOver::CopyToLogon(name);
    const bool isWithoutPassword = LogonValues::Load(name).IsWithoutPasswordAtStart;
    UserStore::Set(Keys::Logon, Keys::UsePassword, isWithoutPassword ? L"0" : L"1");
}

} // namespace

namespace modStartACT {

void StartACT_mode(MainWindow& mainWindow, const clsToolbarIcon& toolbarIcon) try {
    ProgramState& program = Program();
    program.StartActMode = true;
    program.ACTStartedByProgram = true;
    program.FriendlyName.clear();
    frmQuickSwitch(mainWindow).ShowModal();
    if (program.FriendlyName.empty()) return;
    if (UserStore::Get(program.FriendlyName, Keys::Username).empty()) AskForUsername();
    const std::wstring name = program.FriendlyName; // the dialog may have renamed it
    const auto stored = IniLib::ReadFile();
    if (!stored) return SettingsNotice::CannotRead();
    WriteActSettings(*stored, name);
    const std::wstring act = toolbarIcon.GetACTLocation();
    if (act.empty() || act == L"none") {
        MsgBox(LangText[Caption::RunActFirst] + Application::Title);
        return;
    }
    OpenWithShell(act);
    WriteLogonValues(name);
    LogonHelper::Start();
} catch (...) {
    ErrorReport("modStartACT: Sub StartACT_mode");
}

} // namespace modStartACT
