#pragma once

#include <string>
#include <vector>

/// The settings file: an INI text file in the ANSI code page. Every call opens and closes it; nothing is cached.
///
/// A `fileName` that is empty is set to the current settings file's path, in the caller's own variable; the overloads
/// without one always mean the current settings file. An empty section name is never passed on to the platform: such a
/// read yields its default, such a write does nothing and fails.
namespace IniLib {

/// Full path of the current settings file; empty until it is set.
const std::wstring& SettingsFile();
void SettingsFile(std::wstring path);

/// The value of a key, cut to 998 bytes; `defaultText` when the key is missing or empty. For the value kinds "Numeric"
/// and "Boolean" a value that is no number in the user's locale is replaced by `replacement` unless that is empty.
/// An error is reported to the user and gives the default.
std::wstring GetKeyValue(const std::wstring& section, const std::wstring& key, const std::wstring& defaultText,
                         const std::wstring& valueKind, const std::wstring& replacement, std::wstring& fileName);
std::wstring GetKeyValue(const std::wstring& section, const std::wstring& key, const std::wstring& defaultText = {});

/// The value of a key without the cut (as far as the platform reads, 32766 bytes or more); "" when missing. For those
/// who write a long value back and must not lose its end.
std::wstring GetWholeValue(const std::wstring& section, const std::wstring& key);

/// Writes a value, or removes a key or a section with its keys; false when the platform could not
/// or the value is longer than 32766 bytes. A blank at either end of a
/// value and quotes around it survive; removing a missing key does not touch the file.
bool WriteKeyValue(const std::wstring& section, const std::wstring& key, const std::wstring& value,
                   std::wstring& fileName);
bool WriteKeyValue(const std::wstring& section, const std::wstring& key, const std::wstring& value);
bool DeleteKey(const std::wstring& section, const std::wstring& key, std::wstring& fileName);
bool DeleteKey(const std::wstring& section, const std::wstring& key);
bool DeleteSection(const std::wstring& section, std::wstring& fileName);
bool DeleteSection(const std::wstring& section);

/// The names of the file's sections, as many as fit into 998 bytes. An error is reported to the user.
std::vector<std::wstring> Extract_Sections(std::wstring& fileName);
std::vector<std::wstring> Extract_Sections();

} // namespace IniLib
