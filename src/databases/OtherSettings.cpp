#include "databases/OtherSettings.h"

#include "databases/DatabaseList.h"
#include "databases/Record.h"
#include "stores/IniLib.h"
#include "support/Text.h"
#include "win32/AnsiText.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace {

using IniLib::Reading;
using NameList::Names;
using Values = Reading::Values;

/// What is left of a text once it has been stored.
std::wstring Stored(const std::wstring& text) { return ToWide(ToAnsi(IniLib::Shown(text))); }

/// The names of a list to come, as long as all of them can be shown.
class Room {
public:
    explicit Room(const Reading& stored, Names names) : stored_(stored), names_(std::move(names)) {}

    /// Takes a name in, or a free one like it; "" when there is no room for it.
    std::wstring Take(const std::wstring& wanted) {
        std::wstring name = DatabaseList::FreeName(stored_, Stored(wanted), names_);
        names_.push_back(name);
        if (const std::wstring list = Text::Join(names_, L';'); IniLib::Shown(list) == list) return name;
        names_.pop_back();
        return {};
    }
    Names& All() { return names_; }

private:
    const Reading& stored_;
    Names names_;
};

/// Those of the keys that have a value.
template <class Keys>
Values Only(const Keys& keys, const Values& values) {
    Values kept;
    for (const wchar_t* key : keys)
        if (std::wstring value = Stored(ValueIn(values, key)); !value.empty()) kept.emplace_back(key, std::move(value));
    return kept;
}

} // namespace

void AddedDatabases::TakeBack(const Reading& stored, IniLib::Change& change, Names& names) const {
    const Names buttons = Text::Split(stored.Whole(Keys::General, Keys::QuickSwitch).value_or(L""), L';');
    Names going;
    for (const auto& [name, values] : Written)
        if (stored.Section(name) == values && !NameList::Has(buttons, name)) going.push_back(name);
    Values lenders; // by the name of who borrows from them
    for (const std::wstring& name : DatabaseList::ReadAll(stored))
        lenders.emplace_back(name, stored.Value(name, Keys::UseLocationsFrom));
    const auto isLent = [&](const std::wstring& name) {
        return std::ranges::any_of(
            lenders, [&](const auto& one) { return one.second == name && !NameList::Has(going, one.first); });
    };
    for (auto lent = going.begin(); (lent = std::ranges::find_if(going, isLent)) != going.end();) going.erase(lent);
    for (const std::wstring& name : going) {
        DatabaseList::DeleteFileRecord(stored, change, name);
        std::erase(names, name);
    }
}

std::optional<OtherSettings> OtherSettings::Load(const std::wstring& fileName) {
    const auto stored = IniLib::ReadFile();
    const auto other = IniLib::ReadFile(fileName, IniLib::ReadingPatience);
    if (!other) return std::nullopt;
    OtherSettings settings(std::move(*other));
    settings.Offer(*stored);
    if (settings.offered_.empty() && settings.leftOut_ == 0) return std::nullopt;
    return settings;
}

void OtherSettings::Offer(const Reading& stored) {
    constexpr size_t kMost = 1000; // more than any list can show; each takes a look through the whole file
    const Names present = DatabaseList::ReadAll(stored);
    Names paths;
    for (const std::wstring& name : present) paths.push_back(stored.Value(name, Keys::Path));
    Names all = DatabaseList::ReadAll(other_);
    const size_t unseen = all.size() - std::min(all.size(), kMost);
    all.resize(all.size() - unseen);
    std::vector<Entry> entries;
    for (const std::wstring& name : all) {
        const Values values = other_.Section(name);
        const bool isTwice = std::ranges::find(entries, name, &Entry::Name) != entries.end();
        if (values.empty() || isTwice) continue;
        const std::wstring path = ValueIn(values, Keys::Path);
        const bool isListed =
            std::ranges::any_of(present, [&](const std::wstring& own) { return Text::EqualNoCase(own, name); }) ||
            std::ranges::any_of(paths, [&](const std::wstring& own) { return Text::SamePath(own, path); });
        entries.push_back({name, path, isListed});
    }
    Room room(stored, present);
    Names taken;
    for (const bool isListed : {false, true})
        for (const Entry& entry : entries)
            if (entry.IsListed == isListed && !room.Take(entry.Name).empty()) taken.push_back(entry.Name);
    for (const Entry& entry : entries)
        if (NameList::Has(taken, entry.Name)) offered_.push_back(entry);
    leftOut_ = entries.size() - offered_.size() + (entries.empty() ? 0 : unseen);
}

std::wstring OtherSettings::LenderIn(const Reading& stored, const std::wstring& lender) const {
    const std::wstring path = other_.Value(lender, Keys::Path);
    const auto isSame = [&](const std::wstring& name) {
        return Text::SamePath(stored.Value(name, Keys::Path), path) || (path.empty() && name == lender);
    };
    const Names names = DatabaseList::ReadAll(stored);
    if (NameList::Has(names, lender) && isSame(lender)) return lender;
    const auto same = std::ranges::find_if(names, isSame);
    return same == names.end() ? std::wstring() : *same;
}

AddedDatabases OtherSettings::Add(const Reading& stored, IniLib::Change& change, Names& names,
                                  const std::vector<size_t>& chosen) const {
    constexpr std::array kOwnKeys{Keys::Path, Keys::ContactLayout, Keys::GroupLayout, Keys::OpeningMacro};
    Values renamed; // all of them first: a lender may come behind
    Room room(stored, std::move(names));
    for (const size_t index : chosen)
        if (std::wstring name = room.Take(offered_.at(index).Name); !name.empty())
            renamed.emplace_back(offered_[index].Name, std::move(name));
    names = std::move(room.All());
    AddedDatabases added;
    for (const auto& [name, newName] : renamed) {
        const Values values = other_.Section(name);
        Values written = Only(kOwnKeys, values);
        const std::wstring lender = ValueIn(values, Keys::UseLocationsFrom);
        std::wstring newLender = ValueIn(renamed, lender);
        if (newLender.empty() && !lender.empty()) newLender = LenderIn(stored, lender);
        if (newLender.empty())
            std::ranges::copy(Only(Keys::Locations, lender.empty() ? values : other_.Section(lender)),
                              std::back_inserter(written));
        else
            written.emplace_back(Keys::UseLocationsFrom, newLender);
        change.WriteSection(newName, written);
        added.Written.emplace_back(newName, std::move(written));
    }
    return added;
}
