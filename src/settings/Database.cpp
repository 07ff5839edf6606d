#include "settings/Database.h"

#include "settings/FileHealth.h"
#include "settings/UserStore.h"
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

/// The list "Sort" as it is stored, divided into the names that a cut read shows whole and those behind them.
struct SortList {
    std::vector<std::wstring> shown;
    std::vector<std::wstring> unseen;
};

bool& LastReading() {
    static bool wasGood = true;
    return wasGood;
}

/// A whole list of names as it is stored, with a note whether it could be read.
std::wstring ReadList(const wchar_t* key) {
    LastReading() = FileHealth::CanBeTrusted(IniLib::SettingsFile());
    return IniLib::GetWholeValue(kGeneral, key);
}

SortList ReadSortList() {
    const std::vector<std::wstring> all = Text::Split(ReadList(kSort), L';');
    SortList list{Text::Split(IniLib::GetKeyValue(kGeneral, kSort), L';'), {}};
    // Counted in names, not in bytes: the cut may have gone through a character of two bytes.
    if (!list.shown.empty() && list.shown.size() <= all.size() && list.shown.back() != all[list.shown.size() - 1])
        list.shown.pop_back();
    if (list.shown.size() < all.size())
        list.unseen.assign(all.begin() + static_cast<std::ptrdiff_t>(list.shown.size()), all.end());
    return list;
}

} // namespace

DatabaseRecord ExtractInfo(const std::wstring& name) {
    return {IniLib::GetKeyValue(name, L"Path"), IniLib::GetKeyValue(name, L"CLY"), IniLib::GetKeyValue(name, L"GLY"),
            IniLib::GetKeyValue(name, L"StartupMacro")};
}

namespace DatabaseList {

std::vector<std::wstring> ReadSort() { return ReadSortList().shown; }

std::vector<std::wstring> ReadWholeSort() {
    SortList list = ReadSortList();
    std::ranges::move(list.unseen, std::back_inserter(list.shown));
    return list.shown;
}

bool WasRead() { return LastReading(); }

void WriteSort(IniLib::Change& change, const std::vector<std::wstring>& names) {
    if (!WasRead()) change.Refuse();
    std::vector<std::wstring> all = names;
    for (std::wstring& name : ReadSortList().unseen)
        if (std::ranges::find(names, name) == names.end()) all.push_back(std::move(name));
    if (!WasRead()) change.Refuse();
    change.WriteKeyValue(kGeneral, kSort, Text::Join(all, L';'));
}

void RenameInSort(IniLib::Change& change, const std::wstring& oldName, const std::wstring& newName) {
    std::wstring sort = ReadList(kSort) + L';';
    if (!WasRead()) change.Refuse();
    sort = Text::Replace(sort, oldName + L';', newName + L';');
    sort.pop_back();
    change.WriteKeyValue(kGeneral, kSort, sort);
}

bool IsLongerThanShown() { return !ReadSortList().unseen.empty(); }

std::vector<std::wstring> ReadQuickSwitch() {
    LastReading() = FileHealth::CanBeTrusted(IniLib::SettingsFile());
    std::vector<std::wstring> names = Text::Split(IniLib::GetKeyValue(kGeneral, kQuickSwitch), L';');
    names.resize(std::max(names.size(), ButtonCount));
    return names;
}

void ReplaceInQuickSwitch(IniLib::Change& change, const std::wstring& oldName, const std::wstring& newName) {
    std::vector<std::wstring> names = Text::Split(ReadList(kQuickSwitch), L';');
    if (!WasRead()) change.Refuse();
    // An empty name is a button without a database, not one to be renamed.
    if (oldName.empty() || std::ranges::find(names, oldName) == names.end()) return;
    if (newName.empty())
        std::erase(names, oldName);
    else
        std::ranges::replace(names, oldName, newName);
    change.WriteKeyValue(kGeneral, kQuickSwitch, Text::Join(names, L';'));
}

void DeleteFileRecord(IniLib::Change& change, const std::wstring& name) {
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
