#pragma once

#include "win32/Owner.h"

#include <optional>
#include <string>
#include <vector>

/// The registry and files as they stand, read and written by plain Windows calls and not through the product.
namespace JourneyStores {

inline constexpr wchar_t UserRoot[] = L"Software\\VB and VBA Program Settings\\Kelmorra";
inline constexpr wchar_t ActRoot[] = L"Software\\Symantec\\ACT!";

struct Value {
    DWORD Type = REG_NONE;
    std::vector<BYTE> Data;
};

void DeleteTree(const std::wstring& path);
std::optional<Value> Read(const std::wstring& path, const std::wstring& name);
void Write(const std::wstring& path, const std::wstring& name, const std::wstring& text);

/// A value of the per-user store; nothing when it is missing or no text.
std::optional<std::wstring> User(const std::wstring& section, const std::wstring& key);
void User(const std::wstring& section, const std::wstring& key, const std::wstring& text);
/// A whole section of the per-user store: "key=text;" for each value, in the order of the keys. "(none)" without one.
std::wstring UserSection(const std::wstring& section);

/// Where the program keeps copies of settings files for the user.
std::wstring BackupFolder();

std::string FileBytes(const std::wstring& path);
void FileBytes(const std::wstring& path, const std::string& bytes);
bool FileExists(const std::wstring& path);

} // namespace JourneyStores
