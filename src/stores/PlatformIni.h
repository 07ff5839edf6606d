#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// The platform's private-profile calls, which take texts and paths in the ANSI code page.
namespace PlatformIni {

/// The path that the platform means by a file's name: one without a folder lies in the folder of Windows.
std::wstring FullPath(const std::wstring& fileName);

/// A name of the file that the ANSI code page can carry and that is not too long for the calls, with the short name of
/// a folder where the long one will not do; nothing where there is none.
std::optional<std::string> AnsiName(const std::wstring& path);

/// The value of a key, up to 32767 bytes; nothing when the key is missing.
std::optional<std::wstring> Value(const std::wstring& path, std::wstring_view section, std::wstring_view key);

/// The names of a section's keys in the file's order.
std::vector<std::wstring> Keys(const std::wstring& path, std::wstring_view section);

/// What the call returns for the names of all sections and a buffer of `size` bytes: each with a zero behind, the last
/// one cut where the buffer ends.
std::string SectionNames(const std::wstring& path, unsigned long size);

/// Writes a value, or removes a key (no value) or a section (no key). An error code.
unsigned long Write(const std::wstring& path, const std::string& section, const char* key, const char* value);

/// Writes all lines of a section, each with a zero behind. An error code.
unsigned long WriteSection(const std::wstring& path, const std::string& section, const std::string& lines);

} // namespace PlatformIni
