#include "databases/DatabaseList.h"

#include "databases/Palette.h"
#include "databases/Record.h"
#include "stores/IniLib.h"
#include "stores/UserStore.h"
#include "support/Text.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace {

using NameList::Names;

constexpr std::array kFileKeys{Keys::Path, Keys::ContactLayout, Keys::GroupLayout, Keys::OpeningMacro,
                               Keys::UseLocationsFrom};
constexpr std::array kUserSections{Keys::Settings, Keys::Options, Keys::Display, Keys::Logon, Keys::LogonDialog};
constexpr std::array kUserKeys{Keys::Username, Keys::Password, Keys::UsePassword, Keys::NoPasswordAtACTStartup};

bool SharesFileSection(const std::wstring& one, const std::wstring& other) {
    return Text::EqualNoCase(Text::Trim(one), Text::Trim(other));
}

/// Before a name that others share: they keep what is stored under it.
template <class Shares>
bool IsSharedBy(const Names& others, const std::wstring& name, Shares shares) {
    return std::ranges::any_of(others, [&](const std::wstring& other) { return other != name && shares(other, name); });
}

void WriteMissingFolders(const IniLib::Reading& stored, IniLib::Change& change, const std::wstring& name,
                         const Folders& folders) {
    const Folders present = OwnFolders(stored, name);
    for (size_t index = 0; index < folders.size(); ++index)
        if (present[index].empty() && !folders[index].empty())
            change.WriteKeyValue(name, Keys::Locations[index], folders[index]);
}

/// Databases that borrow their locations from the renamed one follow it.
void RenameLender(const IniLib::Reading& stored, IniLib::Change& change, const std::wstring& oldName,
                  const std::wstring& newName) {
    for (const std::wstring& name : DatabaseList::ReadAll(stored))
        if (!SharesFileSection(name, oldName) && stored.Value(name, Keys::UseLocationsFrom) == oldName)
            change.WriteKeyValue(name, Keys::UseLocationsFrom, newName);
}

} // namespace

namespace DatabaseList {

NameList::Divided Read(const IniLib::Reading& stored) {
    const std::wstring whole = stored.Whole(Keys::General, Keys::Sort).value_or(L"");
    return NameList::Divide(IniLib::Shown(whole), whole);
}

Names ReadAll(const IniLib::Reading& stored) {
    NameList::Divided list = Read(stored);
    std::ranges::move(list.unseen, std::back_inserter(list.shown));
    return list.shown;
}

void Write(const IniLib::Reading& stored, IniLib::Change& change, const std::wstring& list) {
    if (stored.Whole(Keys::General, Keys::Sort).value_or(L"").size() > IniLib::LongestLine) change.Refuse();
    change.WriteKeyValue(Keys::General, Keys::Sort, list);
}

std::wstring FreeName(const IniLib::Reading& stored, const std::wstring& name, const Names& names) {
    const auto isTaken = [&](const std::wstring& free) {
        const auto shares = [&](const std::wstring& other) { return SharesFileSection(free, other); };
        return shares(Keys::General) || std::ranges::any_of(names, shares) || !stored.Section(free).empty();
    };
    std::wstring free = name;
    for (int number = 2; isTaken(free); ++number) free = Text::Concat({name, L" (", Text::FromNumber(number), L")"});
    return free;
}

bool Add(const IniLib::Reading& stored, IniLib::Change& change, const std::wstring& name) {
    NameList::Divided list = Read(stored);
    if (NameList::Has(list.shown, name) || NameList::Has(list.unseen, name)) return false;
    list.shown.push_back(name);
    Write(stored, change, NameList::WithUnseen(std::move(list.shown), list.unseen));
    return true;
}

bool Rename(const IniLib::Reading& stored, IniLib::Change& change, const std::wstring& oldName,
            const std::wstring& newName) {
    if (NameList::Has(ReadAll(stored), newName)) return false;
    const std::wstring list = stored.Whole(Keys::General, Keys::Sort).value_or(L"");
    Write(stored, change, NameList::RenamedByText(list, oldName, newName));
    // Names that differ in letter case only share their section.
    if (!SharesFileSection(oldName, newName)) {
        DeleteFileRecord(stored, change, oldName);
        WriteMissingFolders(stored, change, newName, OwnFolders(stored, oldName));
    }
    Palette::ReplaceInQuickSwitch(stored, change, oldName, newName);
    RenameLender(stored, change, oldName, newName);
    return true;
}

void DeleteFileRecord(const IniLib::Reading& stored, IniLib::Change& change, const std::wstring& name) {
    if (name.empty() || IsSharedBy(ReadAll(stored), name, SharesFileSection)) return; // an empty name has no section
    if (!SharesFileSection(name, Keys::General)) {
        change.DeleteSection(name);
        return;
    }
    for (const wchar_t* key : kFileKeys) change.DeleteKey(name, key);
    for (const wchar_t* key : Keys::Locations) change.DeleteKey(name, key);
}

void DeleteUserRecord(const std::wstring& name, const Names& others) {
    if (IsSharedBy(others, name, UserStore::IsSameSection)) return;
    const auto isName = [&](const wchar_t* section) { return UserStore::IsSameSection(section, name); };
    if (std::ranges::none_of(kUserSections, isName))
        UserStore::DeleteSection(name);
    else
        for (const wchar_t* key : kUserKeys) UserStore::Delete(name, key);
}

} // namespace DatabaseList
