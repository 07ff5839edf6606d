#include "support/JourneyStores.h"

#include "win32/Owner.h"

#include <shlobj.h>
#include <shlwapi.h>

#include <array>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <numeric>
#include <set>

namespace JourneyStores {

namespace {

RegistryKey Open(const std::wstring& path, REGSAM access) {
    RegistryKey key;
    if (RegOpenKeyExW(HKEY_CURRENT_USER, path.c_str(), 0, access, key.Receive()) != ERROR_SUCCESS) return {};
    return key;
}

RegistryKey Create(const std::wstring& path) {
    RegistryKey key;
    RegCreateKeyExW(HKEY_CURRENT_USER, path.c_str(), 0, nullptr, 0, KEY_WRITE, nullptr, key.Receive(), nullptr);
    return key;
}

} // namespace

void DeleteTree(const std::wstring& path) { SHDeleteKeyW(HKEY_CURRENT_USER, path.c_str()); }

std::optional<Value> Read(const std::wstring& path, const std::wstring& name) {
    const RegistryKey key = Open(path, KEY_READ);
    DWORD size = 0;
    Value value;
    if (!key || RegQueryValueExW(key.Get(), name.c_str(), nullptr, nullptr, nullptr, &size)) return std::nullopt;
    value.Data.resize(size);
    if (RegQueryValueExW(key.Get(), name.c_str(), nullptr, &value.Type, value.Data.data(), &size)) return std::nullopt;
    return value;
}

void Write(const std::wstring& path, const std::wstring& name, const std::wstring& text) {
    const RegistryKey key = Create(path);
    const auto size = static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t));
    RegSetValueExW(key.Get(), name.c_str(), 0, REG_SZ, reinterpret_cast<const BYTE*>(text.c_str()), size);
}

std::optional<std::wstring> User(const std::wstring& section, const std::wstring& key) {
    const std::optional<Value> value = Read(std::wstring(UserRoot) + L'\\' + section, key);
    if (!value || value->Type != REG_SZ || value->Data.size() < sizeof(wchar_t)) return std::nullopt;
    // Without the zero that ends it.
    return std::wstring(reinterpret_cast<const wchar_t*>(value->Data.data()), value->Data.size() / sizeof(wchar_t) - 1);
}

void User(const std::wstring& section, const std::wstring& key, const std::wstring& text) {
    Write(std::wstring(UserRoot) + L'\\' + section, key, text);
}

std::wstring UserSection(const std::wstring& section) {
    const RegistryKey key = Open(std::wstring(UserRoot) + L'\\' + section, KEY_READ);
    if (!key) return L"(none)";
    std::set<std::wstring> values;
    std::array<wchar_t, 512> name{};
    for (DWORD index = 0, length = name.size();
         RegEnumValueW(key.Get(), index, name.data(), &length, nullptr, nullptr, nullptr, nullptr) == ERROR_SUCCESS;
         ++index, length = name.size())
        values.insert(name.data() + (L'=' + User(section, name.data()).value_or(L"(no text)")) + L';');
    return std::accumulate(values.begin(), values.end(), std::wstring());
}

std::wstring BackupFolder() {
    std::array<wchar_t, MAX_PATH> local{};
    SHGetFolderPathW(nullptr, CSIDL_LOCAL_APPDATA, nullptr, SHGFP_TYPE_CURRENT, local.data());
    return std::wstring(local.data()) + L"\\Kelmorra\\Backup";
}

std::string FileBytes(const std::wstring& path) {
    std::ifstream file(std::filesystem::path(path), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

void FileBytes(const std::wstring& path, const std::string& bytes) {
    std::ofstream(std::filesystem::path(path), std::ios::binary | std::ios::trunc) << bytes;
}

bool FileExists(const std::wstring& path) { return GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES; }

} // namespace JourneyStores
