#include "databases/Database.h"

#include "databases/NameList.h"
#include "stores/FileHealth.h"
#include "stores/UserStore.h"
#include "support/Text.h"

#include <algorithm>
#include <iterator>
#include <span>
#include <utility>

namespace {

constexpr wchar_t kGeneral[] = L"General";
constexpr wchar_t kSort[] = L"Sort";
constexpr wchar_t kQuickSwitch[] = L"QuickSwitch";

using Names = std::span<const wchar_t* const>;

constexpr std::array kFileSections{kGeneral};
constexpr std::array kUserSections{L"Settings", L"Options", L"Display", L"Logon"};
constexpr std::array kFileKeys{L"Path", L"CLY", L"GLY", L"StartupMacro", L"UseLocationsFrom"};
constexpr std::array kUserKeys{L"Username", L"Password", L"UsePassword", L"NoPasswordAtACTStartup"};
constexpr std::array kLogonKeys{L"UsePassword", L"Username", L"Password"};

bool IsOneOf(Names sections, const std::wstring& name) {
    return std::ranges::any_of(sections, [&](const wchar_t* section) { return Text::EqualNoCase(section, name); });
}

bool& LastReading() {
    static bool wasGood = true;
    return wasGood;
}

/// A whole list of names as it is stored, with a note whether it could be read.
std::wstring ReadList(const wchar_t* key) {
    LastReading() = FileHealth::CanBeTrusted(IniLib::SettingsFile());
    return IniLib::GetWholeValue(kGeneral, key);
}

NameList::Divided DivideSort(const std::wstring& whole) { return NameList::Divide(IniLib::Shown(whole), whole); }

NameList::Divided ReadSortList() { return DivideSort(ReadList(kSort)); }

/// A change of a list that cannot be read now is refused.
void EditList(IniLib::Change& change, const wchar_t* key, IniLib::Change::Edit edit) {
    LastReading() = FileHealth::CanBeTrusted(IniLib::SettingsFile());
    if (!LastReading()) change.Refuse();
    change.EditKeyValue(kGeneral, key, std::move(edit));
}

} // namespace

DatabaseRecord ExtractInfo(const std::wstring& name) {
    return {IniLib::GetKeyValue(name, L"Path"), IniLib::GetKeyValue(name, L"CLY"), IniLib::GetKeyValue(name, L"GLY"),
            IniLib::GetKeyValue(name, L"StartupMacro")};
}

namespace DatabaseList {

std::vector<std::wstring> ReadSort() { return ReadSortList().shown; }

std::vector<std::wstring> ReadWholeSort() {
    NameList::Divided list = ReadSortList();
    std::ranges::move(list.unseen, std::back_inserter(list.shown));
    return list.shown;
}

bool WasRead() { return LastReading(); }

void WriteSort(IniLib::Change& change, const std::vector<std::wstring>& names) {
    if (!WasRead()) change.Refuse();
    EditList(change, kSort,
             [names](const std::wstring& whole) { return NameList::WithUnseen(names, DivideSort(whole).unseen); });
}

void MergeIntoSort(IniLib::Change& change, const std::vector<std::wstring>& names,
                   const std::vector<std::wstring>& known) {
    if (!WasRead()) change.Refuse();
    EditList(change, kSort,
             [names, known](const std::wstring& whole) { return NameList::Merged(names, known, DivideSort(whole)); });
}

void AddToSort(IniLib::Change& change, const std::wstring& name) {
    EditList(change, kSort, [name](const std::wstring& whole) {
        NameList::Divided list = DivideSort(whole);
        list.shown.push_back(name);
        return NameList::WithUnseen(std::move(list.shown), list.unseen);
    });
}

void RenameInSort(IniLib::Change& change, const std::wstring& oldName, const std::wstring& newName) {
    EditList(change, kSort, [oldName, newName](const std::wstring& whole) {
        return NameList::RenamedByText(whole, oldName, newName);
    });
}

bool IsLongerThanShown() { return !ReadSortList().unseen.empty(); }

std::vector<std::wstring> ReadQuickSwitch() {
    LastReading() = FileHealth::CanBeTrusted(IniLib::SettingsFile());
    std::vector<std::wstring> names = Text::Split(IniLib::GetKeyValue(kGeneral, kQuickSwitch), L';');
    names.resize(std::max(names.size(), ButtonCount));
    return names;
}

void ReplaceInQuickSwitch(IniLib::Change& change, const std::wstring& oldName, const std::wstring& newName) {
    // An empty name is a button without a database, not one to be renamed.
    if (oldName.empty()) return;
    EditList(change, kQuickSwitch, [oldName, newName](const std::wstring& whole) {
        std::optional<std::wstring> renamed = NameList::Renamed(whole, oldName, newName);
        if (renamed == whole) renamed.reset();
        return renamed;
    });
}

void DeleteFileRecord(IniLib::Change& change, const std::wstring& name) {
    if (name.empty()) return; // has no section
    if (!IsOneOf(kFileSections, name)) {
        change.DeleteSection(name);
        return;
    }
    for (const wchar_t* key : kFileKeys) change.DeleteKey(name, key);
    for (const wchar_t* key : LocationNames) change.DeleteKey(name, key);
}

void DeleteUserRecord(const std::wstring& name) {
    if (!IsOneOf(kUserSections, name)) {
        UserStore::DeleteSection(name);
        return;
    }
    for (const wchar_t* key : kUserKeys) UserStore::Delete(name, key);
}

} // namespace DatabaseList

namespace LogonValues {

void CopyToLogon(const std::wstring& name) {
    for (const wchar_t* key : kLogonKeys) UserStore::Set(L"Logon", key, UserStore::Get(name, key));
    UserStore::Set(L"Settings", L"Last Username", UserStore::Get(name, L"Username"));
}

} // namespace LogonValues
