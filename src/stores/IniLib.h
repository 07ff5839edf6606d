#pragma once

#include "stores/IniChange.h"
#include "stores/Reading.h"

#include <string>
#include <vector>

/// The settings file: an INI text file in the ANSI code page. Every call opens and closes it; nothing is cached.
///
/// A `fileName` that is empty is set to the current settings file's path, in the caller's own variable; the overloads
/// without one always mean the current settings file. An empty section name is never passed on to the platform: such a
/// read yields its default, such a write does nothing and fails.
///
/// These calls never tell a value that is not there from one that cannot be read. Who may write back what was read
/// takes a Reading.
namespace IniLib {

/// How much of a value is shown, in bytes of the ANSI code page, and that much of a value.
inline constexpr size_t ShownBytes = 998;
std::wstring Shown(const std::wstring& value);

/// Full path of the current settings file; empty until it is set.
const std::wstring& SettingsFile();
void SettingsFile(std::wstring path);

/// The value of a key, cut to 998 bytes; `defaultText` when the key is missing or empty. For the value kinds "Numeric"
/// and "Boolean" a value that is no number in the user's locale is replaced by `replacement` unless that is empty.
/// An error is reported to the user and gives the default.
std::wstring GetKeyValue(const std::wstring& section, const std::wstring& key, const std::wstring& defaultText,
                         const std::wstring& valueKind, const std::wstring& replacement, std::wstring& fileName);
std::wstring GetKeyValue(const std::wstring& section, const std::wstring& key, const std::wstring& defaultText = {});

/// Writes a value, or removes a key or a section with its keys, as a Change of one step. False when it could not be
/// made; the file is as it was then. A blank at either end of a value and quotes around it survive.
bool WriteKeyValue(const std::wstring& section, const std::wstring& key, const std::wstring& value,
                   std::wstring& fileName);
bool WriteKeyValue(const std::wstring& section, const std::wstring& key, const std::wstring& value);
bool DeleteKey(const std::wstring& section, const std::wstring& key, std::wstring& fileName);
bool DeleteKey(const std::wstring& section, const std::wstring& key);
bool DeleteSection(const std::wstring& section, std::wstring& fileName);
bool DeleteSection(const std::wstring& section);

/// The names of the file's sections, as many as fit into 998 bytes, the last one cut there. An error is reported to the
/// user.
std::vector<std::wstring> Extract_Sections(std::wstring& fileName);
std::vector<std::wstring> Extract_Sections();

} // namespace IniLib
