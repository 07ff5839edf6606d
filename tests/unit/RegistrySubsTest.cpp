#include "stores/RegistrySubs.h"

#include "support/ScratchRegistry.h"
#include "support/Wide.h"

using RegistrySubs::Bytes;
using RegistrySubs::Value;

namespace {

constexpr wchar_t kKey[] = L"Software\\Symantec\\ACT!";

struct Stored {
    DWORD type;
    std::string bytes;
};

Stored Raw(const wchar_t* subkey, const char* name) {
    RegistryKey key;
    RegOpenKeyExW(HKEY_CURRENT_USER, subkey, 0, KEY_READ, key.Receive());
    Stored stored{REG_NONE, std::string(64, '?')};
    auto size = static_cast<DWORD>(stored.bytes.size());
    RegQueryValueExA(key.Get(), name, nullptr, &stored.type, reinterpret_cast<BYTE*>(stored.bytes.data()), &size);
    stored.bytes.resize(size);
    return stored;
}

void SetRaw(DWORD type, const std::string& bytes) {
    RegistryKey key;
    RegCreateKeyExW(HKEY_CURRENT_USER, kKey, 0, nullptr, 0, KEY_WRITE, nullptr, key.Receive(), nullptr);
    RegSetValueExA(key.Get(), "Value", 0, type, reinterpret_cast<const BYTE*>(bytes.data()),
                   static_cast<DWORD>(bytes.size()));
}

Value Get(Value defaultValue = {}) {
    return RegistrySubs::GetRegistryValue(HKEY_CURRENT_USER, kKey, L"Value", std::move(defaultValue));
}

bool Set(const Value& value) { return RegistrySubs::SetRegistryValue(HKEY_CURRENT_USER, kKey, L"Value", value); }

Error Caught(void (*action)()) {
    try {
        action();
    } catch (const Error& error) {
        return error;
    }
    return {0, L"nothing was thrown"};
}

} // namespace

TEST_CASE_FIXTURE(ScratchRegistry,
                  "A value is read by its registry type; other types and missing values are the default") {
    CHECK(Get(L"default") == Value(L"default"));
    CHECK(Get() == Value());
    using namespace std::string_literals;
    const std::pair<Stored, Value> rows[] = {
        {{REG_SZ, "C:\\ACT\\B\xFC"
                  "cher\0"s},
         L"C:\\ACT\\Bücher"},
        {{REG_SZ, ""}, L""},
        {{REG_SZ, std::string(5000, 'x') + '\0'}, std::wstring(5000, L'x')},
        {{REG_BINARY, std::string(1025, 'x')}, Bytes(1025, 'x')},
        {{REG_EXPAND_SZ, "%PATH%\0"s}, L"%PATH%"},
        {{REG_MULTI_SZ, "a\0b\0\0"s}, std::wstring(L"a\0b", 3)},
        {{REG_DWORD, "\xFE\xFF\xFF\xFF"}, std::int32_t{-2}},
        {{REG_BINARY, "\0\x01\xFF"s}, Bytes{0, 1, 255}},
        {{REG_QWORD, "12345678"}, L"default"},
        {{REG_NONE, "x"}, L"default"},
    };
    for (const auto& [stored, expected] : rows) {
        CAPTURE(stored.type);
        SetRaw(stored.type, stored.bytes);
        CHECK(Get(L"default") == expected);
    }
}

TEST_CASE_FIXTURE(ScratchRegistry, "Each kind of value is written as its type, into keys that exist") {
    CHECK_FALSE(Set(L"no such key"));
    CHECK(RegistrySubs::CreateRegistryKey(HKEY_CURRENT_USER, kKey));
    CHECK_FALSE(RegistrySubs::CreateRegistryKey(HKEY_CURRENT_USER, kKey));
    using namespace std::string_literals;
    const std::pair<Value, Stored> rows[] = {
        {L"C:\\Bücher\\",
         {REG_SZ, "C:\\B\xFC"
                  "cher\\\0"s}},
        {std::int16_t{-1}, {REG_DWORD, "\xFF\xFF\xFF\xFF"}},
        {std::int32_t{258}, {REG_DWORD, "\x02\x01\0\0"s}},
        {Bytes{0, 13, 255}, {REG_BINARY, "\0\r\xFF"s}},
    };
    for (const auto& [value, expected] : rows) {
        CHECK(Set(value));
        const Stored stored = Raw(kKey, "Value");
        CHECK(stored.type == expected.type);
        CHECK(stored.bytes == expected.bytes);
    }
}

TEST_CASE_FIXTURE(ScratchRegistry, "Writing first makes the key under HKEY_CLASSES_ROOT") {
    CHECK_FALSE(Set(L"x"));
    CHECK(RegistrySubs::CheckRegistryKey(HKEY_CLASSES_ROOT, kKey));
    CHECK_FALSE(RegistrySubs::CheckRegistryKey(HKEY_CURRENT_USER, kKey));
}

TEST_CASE_FIXTURE(ScratchRegistry, "Where HKEY_CLASSES_ROOT is closed to the user, its per-user half gets the key") {
    RegistrySubs::CreateRegistryKey(HKEY_CURRENT_USER, kKey);
    DenyKeysBelow(HKEY_CLASSES_ROOT);
    CHECK(Set(L"x"));
    CHECK(RegistrySubs::CheckRegistryKey(HKEY_CURRENT_USER, std::wstring(L"Software\\Classes\\") + kKey));
    CHECK(Get() == Value(L"x"));
}

TEST_CASE_FIXTURE(ScratchRegistry,
                  "A key that cannot be made and a value of another kind raise errors that name the layer") {
    RegistrySubs::CreateRegistryKey(HKEY_CURRENT_USER, kKey);
    for (const Value& value : {Value(1.5), Value()}) CHECK_THROWS_AS(Set(value), Error);
    const Error unsupported = Caught([] { Set(1.5); });
    CHECK(unsupported.Number == RegistrySubs::UnsupportedType);
    CHECK(unsupported.Description == L"Unsupported value type");
    CHECK(unsupported.Procedure == L"RegistrySubs: Function SetRegistryValue");

    RefuseKeysBelow(HKEY_CLASSES_ROOT);
    const Error refused = Caught([] { RegistrySubs::SetRegistryValue(HKEY_CURRENT_USER, L"New", L"Value", L"x"); });
    CHECK(refused.Number == RegistrySubs::CannotCreateKey);
    CHECK(refused.Description == L"Unable to create the registry key");
    CHECK(refused.Procedure == L"RegistrySubs: Function CreateRegistryKey");
}
