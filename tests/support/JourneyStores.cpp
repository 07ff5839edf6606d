#include "support/JourneyStores.h"

#include <shlobj.h>
#include <shlwapi.h>

#include <array>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace JourneyStores {

void DeleteTree(const std::wstring& path) { SHDeleteKeyW(HKEY_CURRENT_USER, path.c_str()); }

std::wstring Read(const std::wstring& path, const std::wstring& name) {
    std::array<wchar_t, 2048> text{};
    DWORD type = REG_NONE, size = sizeof text;
    const LSTATUS status = SHGetValueW(HKEY_CURRENT_USER, path.c_str(), name.c_str(), &type, text.data(), &size);
    return status == ERROR_SUCCESS && type == REG_SZ ? text.data() : L"(none)";
}

void Write(const std::wstring& path, const std::wstring& name, const std::wstring& text) {
    const auto size = static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t));
    SHSetValueW(HKEY_CURRENT_USER, path.c_str(), name.c_str(), REG_SZ, text.c_str(), size);
}

std::wstring User(const std::wstring& section, const std::wstring& key) {
    return Read(std::wstring(UserRoot) + L'\\' + section, key);
}

void User(const std::wstring& section, const std::wstring& key, const std::wstring& text) {
    Write(std::wstring(UserRoot) + L'\\' + section, key, text);
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
