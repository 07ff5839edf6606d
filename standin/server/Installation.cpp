#include "server/Installation.h"

#include "win32/Owner.h"

#include <array>

namespace {

constexpr wchar_t kRoot[] = L"Software\\Symantec\\ACT!";
constexpr wchar_t kDatabase[] = L"Software\\Symantec\\ACT!\\Database";
constexpr wchar_t kGeneral[] = L"Software\\Symantec\\ACT!\\General";

RegistryKey OpenKey(const wchar_t* path, REGSAM access) {
    RegistryKey key;
    RegOpenKeyExW(HKEY_CURRENT_USER, path, 0, access, key.Receive());
    return key;
}

/// A value as text, whether it is stored as text or as a number.
std::wstring AsText(DWORD type, const std::array<BYTE, 2048>& data) {
    if (type == REG_DWORD) return std::to_wstring(*reinterpret_cast<const DWORD*>(data.data()));
    return type == REG_SZ || type == REG_EXPAND_SZ ? reinterpret_cast<const wchar_t*>(data.data()) : std::wstring();
}

std::wstring Value(const wchar_t* path, const wchar_t* name) {
    const RegistryKey key = OpenKey(path, KEY_QUERY_VALUE);
    alignas(DWORD) std::array<BYTE, 2048> data{};
    DWORD size = data.size() - sizeof(wchar_t), type = 0;
    if (!key || RegQueryValueExW(key.Get(), name, nullptr, &type, data.data(), &size) != ERROR_SUCCESS) return {};
    return AsText(type, data);
}

} // namespace

namespace Installation {

void CreateKeys() {
    for (const wchar_t* path : {kRoot, kDatabase, kGeneral}) {
        RegistryKey key;
        RegCreateKeyExW(HKEY_CURRENT_USER, path, 0, nullptr, 0, KEY_WRITE, nullptr, key.Receive(), nullptr);
    }
}

void RecordLastDatabase(const std::wstring& path) {
    const RegistryKey key = OpenKey(kDatabase, KEY_SET_VALUE);
    const size_t size = (path.size() + 1) * sizeof(wchar_t);
    if (key)
        RegSetValueExW(key.Get(), L"Last DB Name", 0, REG_SZ, reinterpret_cast<const BYTE*>(path.c_str()),
                       static_cast<DWORD>(size));
}

LastUsed ReadLastUsed() {
    return {Value(kDatabase, L"Use Last DB") == L"1", Value(kDatabase, L"Last DB Name"),
            Value(kDatabase, L"Contact Layout"), Value(kDatabase, L"Group Layout"), Value(kGeneral, L"Macro Name")};
}

std::vector<std::pair<std::wstring, std::wstring>> FileTypes() {
    std::vector<std::pair<std::wstring, std::wstring>> found;
    const RegistryKey key = OpenKey(kRoot, KEY_QUERY_VALUE);
    for (DWORD index = 0; key; ++index) {
        std::array<wchar_t, 256> name{};
        alignas(DWORD) std::array<BYTE, 2048> data{};
        DWORD length = name.size(), size = data.size() - sizeof(wchar_t), type = 0;
        const LSTATUS status =
            RegEnumValueW(key.Get(), index, name.data(), &length, nullptr, &type, data.data(), &size);
        if (status == ERROR_NO_MORE_ITEMS) break;
        const std::wstring text(name.data(), status == ERROR_SUCCESS ? length : 0);
        if (text.ends_with(L" File Type")) found.emplace_back(text, AsText(type, data));
    }
    return found;
}

} // namespace Installation
