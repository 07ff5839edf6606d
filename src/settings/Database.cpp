#include "settings/Database.h"

#include "settings/IniLib.h"
#include "settings/UserStore.h"
#include "support/Text.h"

#include <algorithm>
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

SortList ReadWholeSort() {
    SortList list{Text::Split(IniLib::GetKeyValue(kGeneral, kSort), L';'), {}};
    const std::vector<std::wstring> all = Text::Split(IniLib::GetWholeValue(kGeneral, kSort), L';');
    // Counted in names, not in bytes: the cut may have gone through a character of two bytes.
    if (!list.shown.empty() && list.shown.size() <= all.size() && list.shown.back() != all[list.shown.size() - 1])
        list.shown.pop_back();
    if (list.shown.size() < all.size())
        list.unseen.assign(all.begin() + static_cast<std::ptrdiff_t>(list.shown.size()), all.end());
    return list;
}

void DeleteFileRecord(const std::wstring& name) {
    if (!IsOneOf(kFileSections, name)) {
        IniLib::DeleteSection(name);
        return;
    }
    for (const wchar_t* key : kFileKeys) IniLib::DeleteKey(name, key);
    for (const wchar_t* key : LocationNames) IniLib::DeleteKey(name, key);
}

void DeleteUserRecord(const std::wstring& name) {
    if (!IsOneOf(kUserSections, name)) {
        UserStore::DeleteSection(name);
        return;
    }
    for (const wchar_t* key : kUserKeys) UserStore::Delete(name, key);
}

} // namespace

DatabaseRecord ExtractInfo(const std::wstring& name) {
    return {IniLib::GetKeyValue(name, L"Path"), IniLib::GetKeyValue(name, L"CLY"), IniLib::GetKeyValue(name, L"GLY"),
            IniLib::GetKeyValue(name, L"StartupMacro")};
}

namespace DatabaseList {

std::vector<std::wstring> ReadSort() { return ReadWholeSort().shown; }

bool WriteSort(const std::vector<std::wstring>& names) {
    std::vector<std::wstring> all = names;
    for (std::wstring& name : ReadWholeSort().unseen)
        if (std::ranges::find(names, name) == names.end()) all.push_back(std::move(name));
    return IniLib::WriteKeyValue(kGeneral, kSort, Text::Join(all, L';'));
}

bool IsLongerThanShown() { return !ReadWholeSort().unseen.empty(); }

std::vector<std::wstring> ReadQuickSwitch() {
    std::vector<std::wstring> names = Text::Split(IniLib::GetKeyValue(kGeneral, kQuickSwitch), L';');
    names.resize(std::max(names.size(), ButtonCount));
    return names;
}

void ReplaceInQuickSwitch(const std::wstring& oldName, const std::wstring& newName) {
    std::vector<std::wstring> names = Text::Split(IniLib::GetWholeValue(kGeneral, kQuickSwitch), L';');
    // An empty name is a button without a database, not one to be renamed.
    if (oldName.empty() || std::ranges::find(names, oldName) == names.end()) return;
    if (newName.empty())
        std::erase(names, oldName);
    else
        std::ranges::replace(names, oldName, newName);
    IniLib::WriteKeyValue(kGeneral, kQuickSwitch, Text::Join(names, L';'));
}

void DeleteDatabase(const std::wstring& name) {
    DeleteFileRecord(name);
    DeleteUserRecord(name);
}

} // namespace DatabaseList

namespace LogonValues {

void CopyToLogon(const std::wstring& name) {
    for (const wchar_t* key : kLogonKeys) UserStore::Set(L"Logon", key, UserStore::Get(name, key));
    UserStore::Set(L"Settings", L"Last Username", UserStore::Get(name, L"Username"));
}

} // namespace LogonValues
