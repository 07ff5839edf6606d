#include "stores/RegistrySubs.h"

#include "support/ScratchRegistry.h"
#include "support/Wide.h"

using RegistrySubs::Value;

namespace {

constexpr wchar_t kKey[] = L"Software\\Symantec\\ACT!";

Value Get() { return RegistrySubs::GetRegistryValue(HKEY_CURRENT_USER, kKey, L"Value", L"default"); }
bool Set(const Value& value) { return RegistrySubs::SetRegistryValue(HKEY_CURRENT_USER, kKey, L"Value", value); }

} // namespace

TEST_CASE_FIXTURE(ScratchRegistry, "Texts and numbers lie as ACT! reads them, and others' values are read sanely") {
    CHECK(Get() == Value(L"default"));
    CHECK_FALSE(Set(L"no such key"));
    CHECK(RegistrySubs::CreateRegistryKey(HKEY_CURRENT_USER, kKey));
    CHECK_FALSE(RegistrySubs::CreateRegistryKey(HKEY_CURRENT_USER, kKey));
    RegistryKey key;
    RegOpenKeyExW(HKEY_CURRENT_USER, kKey, 0, KEY_ALL_ACCESS, key.Receive());
    using namespace std::string_literals;
    struct Row {
        Value value;
        DWORD type;
        std::string bytes;
        bool isOurs; ///< written by the program, too
    };
    const Row rows[] = {{L"C:\\B\u00fccher\\", REG_SZ,
                         "C:\\B\xFC"
                         "cher\\\0"s,
                         true},
                        {std::wstring(5000, L'x'), REG_SZ, std::string(5000, 'x') + '\0', true},
                        {std::int32_t{-2}, REG_DWORD, "\xFE\xFF\xFF\xFF", true},
                        {L"", REG_SZ, "", false},
                        {L"%PATH%", REG_EXPAND_SZ, "%PATH%\0"s, false},
                        {L"default", REG_QWORD, "12345678", false},
                        {L"default", REG_NONE, "x", false}};
    for (const auto& [value, type, bytes, isOurs] : rows) {
        CAPTURE(type);
        RegSetValueExA(key.Get(), "Value", 0, type, reinterpret_cast<const BYTE*>(bytes.data()),
                       static_cast<DWORD>(bytes.size()));
        CHECK(Get() == value);
        if (!isOurs) continue;
        CHECK(Set(value));
        std::string stored(6000, '?');
        auto size = static_cast<DWORD>(stored.size());
        DWORD found = REG_NONE;
        RegQueryValueExA(key.Get(), "Value", nullptr, &found, reinterpret_cast<BYTE*>(stored.data()), &size);
        CHECK(found == type);
        CHECK(stored.substr(0, size) == bytes);
    }
}

TEST_CASE_FIXTURE(ScratchRegistry, "Where HKEY_CLASSES_ROOT is closed to the user, its per-user half gets the key") {
    RegistrySubs::CreateRegistryKey(HKEY_CURRENT_USER, kKey);
    DenyKeysBelow(HKEY_CLASSES_ROOT);
    CHECK(Set(L"x"));
    CHECK(RegistrySubs::CheckRegistryKey(HKEY_CURRENT_USER, std::wstring(L"Software\\Classes\\") + kKey));
    CHECK(Get() == Value(L"x"));
}
