#include "databases/modUpgrade32.h"

#include "databases/Keys.h"
#include "stores/IniLib.h"
#include "stores/UserStore.h"
#include "support/ErrorReport.h"

#include <array>

namespace {

constexpr std::array kMovedKeys{Keys::Username, Keys::Password, Keys::UsePassword, Keys::NoPasswordAtACTStartup};

void Store(const std::wstring& section, const wchar_t* key, const std::wstring& value, Where at = Where::current()) {
    if (!value.empty() && !UserStore::Set(section, key, value))
        throw Error(BasicError::InvalidCall, L"Invalid procedure call or argument", at);
}

/// A value that somebody has changed since it was stored for the user stays.
void Remove(IniLib::Change& change, const std::wstring& section, const wchar_t* key, const std::wstring& moved) {
    change.Compose([=](const IniLib::Reading& stored, IniLib::Change& steps) {
        if (stored.Value(section, key) == moved) steps.DeleteKey(section, key);
        return true;
    });
}

void Upgrade(const IniLib::Reading& stored, const std::wstring& section) {
    IniLib::Change change(stored.From());
    // A copy made now would show one user's log-on to whoever gets the file restored.
    change.WithoutBackup();
    for (const wchar_t* key : kMovedKeys) {
        if (!stored.Whole(section, key)) continue;
        const std::wstring value = stored.Value(section, key);
        Store(section, key, value);
        Remove(change, section, key, value);
    }
    change.Commit();
}

} // namespace

namespace modUpgrade32 {

void Upgrade_to_32() try {
    const auto stored = IniLib::ReadFile();
    if (!stored || !stored->MayHold({L"Username", L"Password"})) return; // what the names of all four keys contain
    for (const std::wstring& section : IniLib::Extract_Sections()) Upgrade(*stored, section);
} catch (...) {
    ErrorReport("modUpgrade32: Function Upgrade_to_32");
}

} // namespace modUpgrade32
