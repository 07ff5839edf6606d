#include "opening/ActDefaults.h"

#include "databases/Keys.h"
#include "stores/UserStore.h"

namespace {

std::wstring OrRecorded(const std::wstring& layout, const wchar_t* recordedKey) {
    return layout.empty() ? UserStore::Get(Keys::Settings, recordedKey) : layout;
}

} // namespace

namespace ActDefaults {

void Record(const ActPreferences& preferences) {
    UserStore::Set(Keys::Settings, Keys::OriginalCL, preferences.DefaultContactLayout());
    UserStore::Set(Keys::Settings, Keys::OriginalGL, preferences.DefaultGroupLayout());
    UserStore::Set(Keys::Settings, Keys::OriginalMacro, preferences.StartupMacro());
}

void UseLayouts(const ActPreferences& preferences, const std::wstring& contact, const std::wstring& group) {
    preferences.DefaultContactLayout(OrRecorded(contact, Keys::OriginalCL));
    preferences.DefaultGroupLayout(OrRecorded(group, Keys::OriginalGL));
}

void PutBack(const ActPreferences& preferences) {
    UseLayouts(preferences, {}, {});
    preferences.StartupMacro(UserStore::Get(Keys::Settings, Keys::OriginalMacro));
}

} // namespace ActDefaults
