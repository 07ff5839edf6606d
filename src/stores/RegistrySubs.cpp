#include "stores/RegistrySubs.h"

#include "win32/AnsiText.h"
#include "win32/Owner.h"

#include <cstring>
#include <optional>
#include <string_view>
#include <type_traits>
#include <utility>

namespace {

using RegistrySubs::Bytes;
using RegistrySubs::Value;

constexpr size_t kFirstBuffer = 1024;

RegistryKey Open(HKEY root, const std::wstring& subkey, REGSAM access) {
    RegistryKey key;
    if (RegOpenKeyExA(root, ToAnsi(subkey).c_str(), 0, access, key.Receive()) != ERROR_SUCCESS) return {};
    return key;
}

LSTATUS Create(HKEY root, const std::wstring& subkey, DWORD& disposition) {
    RegistryKey key;
    return RegCreateKeyExA(root, ToAnsi(subkey).c_str(), 0, nullptr, REG_OPTION_NON_VOLATILE, 0, nullptr, key.Receive(),
                           &disposition);
}

struct Stored {
    DWORD type;
    Bytes data;
};

std::optional<Stored> Query(HKEY key, const std::string& name) {
    Stored stored{REG_NONE, Bytes(kFirstBuffer)};
    const auto query = [&](DWORD& size) {
        size = static_cast<DWORD>(stored.data.size());
        return RegQueryValueExA(key, name.c_str(), nullptr, &stored.type, stored.data.data(), &size);
    };
    DWORD size = 0;
    LSTATUS status = query(size);
    if (status == ERROR_MORE_DATA) {
        stored.data.resize(size);
        status = query(size);
    }
    if (status != ERROR_SUCCESS) return std::nullopt;
    stored.data.resize(size);
    return stored;
}

/// The text without its ending zeros, at most `zeros` of them: a value may have been stored without.
std::wstring TextOf(const Bytes& data, int zeros) {
    std::string_view bytes(reinterpret_cast<const char*>(data.data()), data.size());
    for (; zeros > 0 && bytes.ends_with('\0'); --zeros) bytes.remove_suffix(1);
    return ToWide(bytes);
}

std::int32_t NumberOf(const Bytes& data) {
    std::int32_t number = 0;
    std::memcpy(&number, data.data(), sizeof number);
    return number;
}

LSTATUS Write(HKEY key, const std::string& name, DWORD type, const void* data, size_t size) {
    return RegSetValueExA(key, name.c_str(), 0, type, static_cast<const BYTE*>(data), static_cast<DWORD>(size));
}

} // namespace

namespace RegistrySubs {

bool CheckRegistryKey(HKEY root, const std::wstring& subkey) { return static_cast<bool>(Open(root, subkey, KEY_READ)); }

bool CreateRegistryKey(HKEY root, const std::wstring& subkey) {
    DWORD disposition = 0;
    LSTATUS status = Create(root, subkey, disposition);
    if (status == ERROR_ACCESS_DENIED && root == HKEY_CLASSES_ROOT)
        status = Create(HKEY_CURRENT_USER, L"Software\\Classes\\" + subkey, disposition);
    if (status != ERROR_SUCCESS)
        throw Error(CannotCreateKey, L"Unable to create the registry key", Where::current(),
                    L"RegistrySubs: Function CreateRegistryKey");
    return disposition == REG_CREATED_NEW_KEY;
}

Value GetRegistryValue(HKEY root, const std::wstring& subkey, const std::wstring& name, Value defaultValue) {
    const RegistryKey key = Open(root, subkey, KEY_READ);
    if (!key) return defaultValue;
    std::optional<Stored> stored = Query(key.Get(), ToAnsi(name));
    if (!stored) return defaultValue;
    switch (stored->type) {
    case REG_SZ:
    case REG_EXPAND_SZ: return TextOf(stored->data, 1);
    case REG_MULTI_SZ: return TextOf(stored->data, 2);
    case REG_BINARY: return std::move(stored->data);
    case REG_DWORD: return stored->data.size() == sizeof(std::int32_t) ? NumberOf(stored->data) : defaultValue;
    default: return defaultValue;
    }
}

bool SetRegistryValue(HKEY root, const std::wstring& subkey, const std::wstring& name, const Value& value) {
    // Always under HKEY_CLASSES_ROOT, whatever the caller's root: a missing key there is not created by this layer.
    if (!CheckRegistryKey(HKEY_CLASSES_ROOT, subkey)) CreateRegistryKey(HKEY_CLASSES_ROOT, subkey);
    const RegistryKey key = Open(root, subkey, KEY_WRITE);
    if (!key) return false;
    const std::string ansiName = ToAnsi(name);
    if (const auto* text = std::get_if<std::wstring>(&value)) {
        // The ending zero is not counted, but the platform looks for it behind the data, where std::string has one.
        const std::string bytes = ToAnsi(*text);
        return Write(key.Get(), ansiName, REG_SZ, bytes.c_str(), bytes.size()) == ERROR_SUCCESS;
    }
    if (const auto* bytes = std::get_if<Bytes>(&value))
        return Write(key.Get(), ansiName, REG_BINARY, bytes->data(), bytes->size()) == ERROR_SUCCESS;
    const auto* shortNumber = std::get_if<std::int16_t>(&value);
    const auto* longNumber = std::get_if<std::int32_t>(&value);
    if (!shortNumber && !longNumber)
        throw Error(UnsupportedType, L"Unsupported value type", Where::current(),
                    L"RegistrySubs: Function SetRegistryValue");
    const std::int32_t number = longNumber ? *longNumber : *shortNumber;
    return Write(key.Get(), ansiName, REG_DWORD, &number, sizeof number) == ERROR_SUCCESS;
}

} // namespace RegistrySubs
