#include "opening/StartAct.h"

#include "act/LogonHelper.h"
#include "databases/ActSettings.h"
#include "databases/Keys.h"
#include "databases/Logon.h"
#include "databases/Record.h"
#include "opening/clsToolbarIcon.h"
#include "stores/RegistrySubs.h"
#include "stores/UserStore.h"
#include "support/Shell.h"

namespace {

constexpr wchar_t kDatabaseKey[] = L"Software\\Symantec\\ACT!\\Database";
constexpr wchar_t kGeneralKey[] = L"Software\\Symantec\\ACT!\\General";

void SetActValue(const wchar_t* key, const wchar_t* name, const RegistrySubs::Value& value) {
    RegistrySubs::SetRegistryValue(HKEY_CURRENT_USER, key, name, value);
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

namespace StartAct {

bool On(const IniLib::Reading& stored, const std::wstring& name) {
    WriteActSettings(stored, name);
    const std::wstring program = clsToolbarIcon().GetACTLocation();
    if (program.empty() || program == L"none") return false;
    OpenWithShell(program);
    WriteLogonValues(name);
    LogonHelper::Start();
    return true;
}

} // namespace StartAct
