#include "settings/IniLib.h"

#include "support/ErrorReport.h"
#include "support/Text.h"
#include "win32/AnsiText.h"
#include "win32/Windows.h"

#include <string_view>
#include <utility>

namespace {

constexpr DWORD kOfferedSize = 999;
// The platform's calls carry texts in 64 KB of wide characters; Wine's writer crashes on more.
constexpr DWORD kLongestValue = 32766;

std::wstring& CurrentFile() {
    static std::wstring path;
    return path;
}

void UseSettingsFile(std::wstring& fileName) {
    if (fileName.empty()) fileName = IniLib::SettingsFile();
}

/// The bytes that the platform returns for a buffer of `size`. A null section or key lists names.
std::string Read(const char* section, const char* key, const char* fallback, DWORD size, const std::wstring& fileName) {
    std::string buffer(size + 1, '\0');
    buffer.resize(GetPrivateProfileStringA(section, key, fallback, buffer.data(), size, ToAnsi(fileName).c_str()));
    return buffer;
}

std::string ReadValue(const std::wstring& section, const std::wstring& key, const char* fallback, DWORD size,
                      const std::wstring& fileName) {
    if (section.empty()) return fallback;
    return Read(ToAnsi(section).c_str(), ToAnsi(key).c_str(), fallback, size, fileName);
}

/// A missing key gives back whichever default is offered; a present one, even empty, cannot equal both.
bool KeyExists(const std::wstring& section, const std::wstring& key, const std::wstring& fileName) {
    constexpr DWORD kSmall = 3;
    return ReadValue(section, key, "0", kSmall, fileName) != "0" ||
           ReadValue(section, key, "1", kSmall, fileName) != "1";
}

constexpr bool IsBlank(char character) { return character == ' ' || character == '\t'; }
constexpr bool IsQuote(char character) { return character == '"' || character == '\''; }

/// The platform strips outer blanks and takes one pair of quotes off a value that it reads.
std::string Quoted(std::string value) {
    if (value.empty()) return value;
    const bool blankAtEnd = IsBlank(value.front()) || IsBlank(value.back());
    const bool wrapped = value.size() > 1 && IsQuote(value.front()) && value.front() == value.back();
    return blankAtEnd || wrapped ? '"' + std::move(value) + '"' : value;
}

} // namespace

namespace IniLib {

const std::wstring& SettingsFile() { return CurrentFile(); }

void SettingsFile(std::wstring path) { CurrentFile() = std::move(path); }

std::wstring GetKeyValue(const std::wstring& section, const std::wstring& key, const std::wstring& defaultText,
                         const std::wstring& valueKind, const std::wstring& replacement, std::wstring& fileName) try {
    UseSettingsFile(fileName);
    const std::wstring stored = ToWide(ReadValue(section, key, "", kOfferedSize, fileName));
    const std::wstring& value = stored.empty() ? defaultText : stored;
    const bool mustBeNumber = valueKind == L"Numeric" || valueKind == L"Boolean";
    return mustBeNumber && !replacement.empty() && !Text::IsNumeric(value) ? replacement : value;
} catch (...) {
    ErrorReport(L"IniLib: Function GetKeyValue");
    return defaultText;
}

std::wstring GetKeyValue(const std::wstring& section, const std::wstring& key, const std::wstring& defaultText) {
    std::wstring fileName;
    return GetKeyValue(section, key, defaultText, {}, {}, fileName);
}

std::wstring GetWholeValue(const std::wstring& section, const std::wstring& key) {
    for (DWORD size = kOfferedSize;; size *= 2) {
        const std::string value = ReadValue(section, key, "", size, SettingsFile());
        if (value.size() + 1 < size || size > kLongestValue) return ToWide(value);
    }
}

bool WriteKeyValue(const std::wstring& section, const std::wstring& key, const std::wstring& value,
                   std::wstring& fileName) {
    UseSettingsFile(fileName);
    const std::string bytes = Quoted(ToAnsi(value));
    return !section.empty() && bytes.size() <= kLongestValue &&
           WritePrivateProfileStringA(ToAnsi(section).c_str(), ToAnsi(key).c_str(), bytes.c_str(),
                                      ToAnsi(fileName).c_str()) != 0;
}

bool WriteKeyValue(const std::wstring& section, const std::wstring& key, const std::wstring& value) {
    std::wstring fileName;
    return WriteKeyValue(section, key, value, fileName);
}

bool DeleteKey(const std::wstring& section, const std::wstring& key, std::wstring& fileName) {
    UseSettingsFile(fileName);
    if (section.empty()) return false;
    // The platform would rewrite the whole file, a shared one at that, for a key that is not there.
    return !KeyExists(section, key, fileName) ||
           WritePrivateProfileStringA(ToAnsi(section).c_str(), ToAnsi(key).c_str(), nullptr,
                                      ToAnsi(fileName).c_str()) != 0;
}

bool DeleteKey(const std::wstring& section, const std::wstring& key) {
    std::wstring fileName;
    return DeleteKey(section, key, fileName);
}

bool DeleteSection(const std::wstring& section, std::wstring& fileName) {
    UseSettingsFile(fileName);
    return !section.empty() &&
           WritePrivateProfileStringA(ToAnsi(section).c_str(), nullptr, nullptr, ToAnsi(fileName).c_str()) != 0;
}

bool DeleteSection(const std::wstring& section) {
    std::wstring fileName;
    return DeleteSection(section, fileName);
}

std::vector<std::wstring> Extract_Sections(std::wstring& fileName) {
    std::vector<std::wstring> names;
    try {
        UseSettingsFile(fileName);
        const std::string list = Read(nullptr, nullptr, "", kOfferedSize, fileName);
        size_t start = 0;
        for (size_t end = list.find('\0'); end != std::string::npos && end > start; end = list.find('\0', start)) {
            names.push_back(ToWide(std::string_view(list).substr(start, end - start)));
            start = end + 1;
        }
    } catch (...) {
        ErrorReport(L"IniLib: Sub Extract_Sections");
    }
    return names;
}

std::vector<std::wstring> Extract_Sections() {
    std::wstring fileName;
    return Extract_Sections(fileName);
}

} // namespace IniLib
