#include "databases/RemovedDatabase.h"

#include "stores/UserStore.h"
#include "support/Text.h"

#include <algorithm>

namespace {

std::wstring Buttons() { return IniLib::GetWholeValue(L"General", L"QuickSwitch"); }

template <class Values>
bool Has(const Values& values, const std::wstring& key) {
    return std::ranges::any_of(values, [&](const auto& value) { return Text::EqualNoCase(value.first, key); });
}

} // namespace

RemovedDatabase::RemovedDatabase(std::wstring name, int line)
    : name_(std::move(name)), line_(line), fileValues_(IniLib::ReadSection(name_)),
      userValues_(UserStore::GetSection(name_)), buttonsBefore_(Buttons()) {}

void RemovedDatabase::NoteRemoval() { buttonsAfter_ = Buttons(); }

void RemovedDatabase::RestoreFile(IniLib::Change& change) const {
    const Values present = IniLib::ReadSection(name_);
    for (const auto& [key, value] : fileValues_)
        if (!Has(present, key)) change.WriteKeyValue(name_, key, value);
    if (buttonsBefore_ != buttonsAfter_ && Buttons() == buttonsAfter_)
        change.WriteKeyValue(L"General", L"QuickSwitch", buttonsBefore_);
}

void RemovedDatabase::RestoreUser() const {
    const Values present = UserStore::GetSection(name_);
    for (const auto& [key, value] : userValues_)
        if (!Has(present, key)) UserStore::Set(name_, key, value);
}
