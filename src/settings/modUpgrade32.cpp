#include "settings/modUpgrade32.h"

#include "settings/IniLib.h"
#include "settings/UserStore.h"
#include "support/ErrorReport.h"

#include <array>

namespace {

constexpr std::array kMovedKeys{L"Username", L"Password", L"UsePassword", L"NoPasswordAtACTStartup"};

void Store(const std::wstring& section, const wchar_t* key, Where at = Where::current()) {
    const std::wstring value = IniLib::GetKeyValue(section, key);
    if (!value.empty() && !UserStore::Set(section, key, value))
        throw Error(BasicError::InvalidCall, L"Invalid procedure call or argument", at);
}

} // namespace

namespace modUpgrade32 {

void Upgrade_to_32() try {
    for (const std::wstring& section : IniLib::Extract_Sections()) {
        for (const wchar_t* key : kMovedKeys) Store(section, key);
        IniLib::Change change;
        for (const wchar_t* key : kMovedKeys) change.DeleteKey(section, key);
        change.Commit();
    }
} catch (...) {
    ErrorReport("modUpgrade32: Function Upgrade_to_32");
}

} // namespace modUpgrade32
