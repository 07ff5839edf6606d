#pragma once

#include "win32/Windows.h"

#include <string>

/// The registry and files as they stand, read and written by plain Windows calls and not through the product.
namespace JourneyStores {

inline constexpr wchar_t UserRoot[] = L"Software\\VB and VBA Program Settings\\Kelmorra";
inline constexpr wchar_t ActRoot[] = L"Software\\Symantec\\ACT!";

void DeleteTree(const std::wstring& path);
/// A text of the current user's registry; "(none)" when it is missing or no text.
std::wstring Read(const std::wstring& path, const std::wstring& name);
void Write(const std::wstring& path, const std::wstring& name, const std::wstring& text);

/// The same in the per-user store.
std::wstring User(const std::wstring& section, const std::wstring& key);
void User(const std::wstring& section, const std::wstring& key, const std::wstring& text);

/// Where the program keeps copies of settings files for the user.
std::wstring BackupFolder();

std::string FileBytes(const std::wstring& path);
void FileBytes(const std::wstring& path, const std::string& bytes);
bool FileExists(const std::wstring& path);

} // namespace JourneyStores
