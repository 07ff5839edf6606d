#include "support/JourneyStores.h"

#include "win32/Owner.h"

#include <shlobj.h>

#include <array>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace JourneyStores {

namespace {

constexpr size_t kLongestName = 512;

RegistryKey Open(const std::wstring& path, REGSAM access) {
    RegistryKey key;
    if (RegOpenKeyExW(HKEY_CURRENT_USER, path.c_str(), 0, access, key.Receive()) != ERROR_SUCCESS) return {};
    return key;
}

std::vector<std::wstring> Subkeys(const std::wstring& path) {
    std::vector<std::wstring> names;
    const RegistryKey key = Open(path, KEY_READ);
    std::array<wchar_t, kLongestName> name{};
    for (DWORD index = 0; key; ++index) {
        DWORD length = name.size();
        if (RegEnumKeyExW(key.Get(), index, name.data(), &length, nullptr, nullptr, nullptr, nullptr)) break;
        names.emplace_back(name.data(), length);
    }
    return names;
}

void ReadInto(Snapshot& snapshot, const std::wstring& path) {
    const RegistryKey key = Open(path, KEY_READ);
    if (!key) return;
    snapshot[path];
    std::array<wchar_t, kLongestName> name{};
    for (DWORD index = 0;; ++index) {
        DWORD length = name.size();
        if (RegEnumValueW(key.Get(), index, name.data(), &length, nullptr, nullptr, nullptr, nullptr)) break;
        snapshot[path + L"|" + name.data()] = Read(path, name.data()).value_or(Value{});
    }
    for (const std::wstring& subkey : Subkeys(path)) ReadInto(snapshot, path + L'\\' + subkey);
}

RegistryKey Create(const std::wstring& path) {
    RegistryKey key;
    RegCreateKeyExW(HKEY_CURRENT_USER, path.c_str(), 0, nullptr, 0, KEY_WRITE, nullptr, key.Receive(), nullptr);
    return key;
}

} // namespace

Snapshot ReadTree(const std::wstring& path) {
    Snapshot snapshot;
    ReadInto(snapshot, path);
    return snapshot;
}

void DeleteTree(const std::wstring& path) {
    for (const std::wstring& subkey : Subkeys(path)) DeleteTree(path + L'\\' + subkey);
    RegDeleteKeyW(HKEY_CURRENT_USER, path.c_str());
}

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
    const std::wstring path = std::wstring(UserRoot) + L'\\' + section;
    const Snapshot values = ReadTree(path);
    std::wstring text;
    for (const auto& [place, value] : values) {
        if (place == path) continue;
        const std::wstring key = place.substr(path.size() + 1);
        text += key + L'=' + User(section, key).value_or(L"(no text)") + L';';
    }
    return values.empty() ? L"(none)" : text;
}

void DeleteBackups() {
    std::array<wchar_t, MAX_PATH> local{};
    if (SHGetFolderPathW(nullptr, CSIDL_LOCAL_APPDATA, nullptr, SHGFP_TYPE_CURRENT, local.data()) == S_OK)
        std::filesystem::remove_all(std::filesystem::path(local.data()) / L"Kelmorra" / L"Backup");
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

HiddenClass::HiddenClass(const wchar_t* key) {
    RegOpenKeyExW(HKEY_LOCAL_MACHINE, (std::wstring(L"Software\\Classes\\") + key).c_str(), 0, KEY_ALL_ACCESS,
                  key_.Receive());
    DWORD size = 0;
    RegQueryValueExW(key_.Get(), L"", nullptr, nullptr, nullptr, &size);
    value_.resize(size);
    RegQueryValueExW(key_.Get(), L"", nullptr, nullptr, value_.data(), &size);
    RegDeleteValueW(key_.Get(), L"");
}

HiddenClass::~HiddenClass() {
    RegSetValueExW(key_.Get(), L"", 0, REG_SZ, value_.data(), static_cast<DWORD>(value_.size()));
}
