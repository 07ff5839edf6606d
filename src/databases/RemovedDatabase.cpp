#include "databases/RemovedDatabase.h"

#include "databases/DatabaseList.h"
#include "databases/Keys.h"
#include "databases/Palette.h"
#include "stores/UserStore.h"
#include "support/Text.h"

#include <algorithm>

namespace {

std::wstring Buttons(const IniLib::Reading& stored) {
    return stored.Whole(Keys::General, Keys::QuickSwitch).value_or(L"");
}

bool Has(const IniLib::Reading::Values& values, const std::wstring& key) {
    return std::ranges::any_of(values, [&](const auto& value) { return Text::EqualNoCase(value.first, key); });
}

} // namespace

void RemovedDatabase::Remove(const IniLib::Reading& stored, IniLib::Change& change) {
    fileValues_ = stored.Section(name_);
    buttonsBefore_ = Buttons(stored);
    buttonsAfter_ = NameList::Renamed(buttonsBefore_, name_, {});
    DatabaseList::DeleteFileRecord(stored, change, name_);
    Palette::ReplaceInQuickSwitch(stored, change, name_, {});
}

void RemovedDatabase::RemoveFromUser(const NameList::Names& others) {
    userValues_ = UserStore::GetSection(name_);
    DatabaseList::DeleteUserRecord(name_, others);
}

void RemovedDatabase::Restore(const IniLib::Reading& stored, IniLib::Change& change) const {
    const Values present = stored.Section(name_);
    for (const auto& [key, value] : fileValues_)
        if (!Has(present, key)) change.WriteKeyValue(name_, key, value);
    if (buttonsBefore_ != buttonsAfter_ && Buttons(stored) == buttonsAfter_)
        change.WriteKeyValue(Keys::General, Keys::QuickSwitch, buttonsBefore_);
}

void RemovedDatabase::RestoreToUser() const {
    const Values present = UserStore::GetSection(name_);
    for (const auto& [key, value] : userValues_)
        if (!Has(present, key)) UserStore::Set(name_, key, value);
}
