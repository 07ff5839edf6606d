#include "databases/modUpgrade32.h"

#include "stores/IniLib.h"
#include "stores/UserStore.h"
#include "support/ErrorReport.h"
#include "support/Text.h"

#include <array>

namespace {

constexpr std::array kMovedKeys{L"Username", L"Password", L"UsePassword", L"NoPasswordAtACTStartup"};

void Store(const std::wstring& section, const std::wstring& key, Where at = Where::current()) {
    const std::wstring value = IniLib::GetKeyValue(section, key);
    if (!value.empty() && !UserStore::Set(section, key, value))
        throw Error(BasicError::InvalidCall, L"Invalid procedure call or argument", at);
}

} // namespace

namespace modUpgrade32 {

void Upgrade_to_32() try {
    if (!IniLib::MayHold({L"Username", L"Password"})) return; // what the names of all four keys contain
    for (const std::wstring& section : IniLib::Extract_Sections()) {
        // One reading instead of some for each key: most sections hold none of these.
        const std::wstring names = IniLib::KeyNames(section);
        IniLib::Change change;
        for (const std::wstring key : kMovedKeys) {
            if (!Text::ContainsNoCase(names, key)) continue;
            Store(section, key);
            change.DeleteKey(section, key);
        }
        change.Commit();
    }
} catch (...) {
    ErrorReport("modUpgrade32: Function Upgrade_to_32");
}

} // namespace modUpgrade32
