#include "stores/IniLib.h"

#include "stores/FileHealth.h"
#include "stores/IniText.h"
#include "stores/SafeFile.h"
#include "support/ErrorReport.h"
#include "support/Text.h"
#include "win32/AnsiText.h"
#include "win32/Windows.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace {

constexpr DWORD kOfferedSize = 999;
// The platform's calls carry texts in 64 KB of wide characters.
constexpr DWORD kLongestValue = 32768;

std::wstring& CurrentFile() {
    static std::wstring path;
    return path;
}

void UseSettingsFile(std::wstring& fileName) {
    if (fileName.empty()) fileName = IniLib::SettingsFile();
}

/// The bytes that the platform returns for a buffer of `size`. A null section or key lists names.
std::string Read(const char* section, const char* key, DWORD size, const std::wstring& fileName) {
    std::string buffer(size + 1, '\0');
    const std::string file = ToAnsi(fileName);
    buffer.resize(GetPrivateProfileStringA(section, key, "", buffer.data(), size, file.c_str()));
    if (!buffer.empty()) FileHealth::NoteRead(ToWide(file));
    return buffer;
}

/// True for a file that the platform alone understands: in UTF-16, or with a mark of its encoding.
bool IsMarked(const std::string& bytes) {
    return bytes.find('\0') != std::string::npos || bytes.starts_with("\xEF\xBB\xBF");
}

/// The whole value. As the platform would return it, but in a part of the time: that takes a whole file apart for each.
std::wstring ReadValue(const std::wstring& section, const std::wstring& key, const std::wstring& fileName) {
    if (section.empty() || key.empty()) return {};
    const std::wstring path = ToWide(ToAnsi(fileName));
    const bool isBare = !Text::HasFolder(path); // the platform knows where such a file lies
    const auto bytes = isBare ? std::nullopt : SafeFile::Read(path);
    if (isBare || (bytes && IsMarked(*bytes)))
        return ToWide(Read(ToAnsi(section).c_str(), ToAnsi(key).c_str(), kLongestValue, fileName));
    if (!bytes) return {};
    const std::wstring text = ToWide(*bytes);
    std::wstring value(IniText::Find(text, section, key).value_or(std::wstring_view()));
    if (!value.empty()) FileHealth::NoteRead(path);
    return value;
}

} // namespace

namespace IniLib {

std::wstring Shown(const std::wstring& value) {
    const std::string bytes = ToAnsi(value);
    return bytes.size() <= ShownBytes ? value : ToWide(bytes.substr(0, ShownBytes));
}

const std::wstring& SettingsFile() { return CurrentFile(); }

void SettingsFile(std::wstring path) { CurrentFile() = std::move(path); }

std::wstring GetKeyValue(const std::wstring& section, const std::wstring& key, const std::wstring& defaultText,
                         const std::wstring& valueKind, const std::wstring& replacement, std::wstring& fileName) try {
    UseSettingsFile(fileName);
    const std::wstring stored = Shown(ReadValue(section, key, fileName));
    const std::wstring& value = stored.empty() ? defaultText : stored;
    const bool mustBeNumber = valueKind == L"Numeric" || valueKind == L"Boolean";
    return mustBeNumber && !replacement.empty() && !Text::IsNumeric(value) ? replacement : value;
} catch (...) {
    ErrorReport("IniLib: Function GetKeyValue");
    return defaultText;
}

std::wstring GetKeyValue(const std::wstring& section, const std::wstring& key, const std::wstring& defaultText) {
    std::wstring fileName;
    return GetKeyValue(section, key, defaultText, {}, {}, fileName);
}

std::wstring GetWholeValue(const std::wstring& section, const std::wstring& key, const std::wstring& fileName) {
    return ReadValue(section, key, fileName);
}

bool MayHold(std::initializer_list<std::wstring_view> words) {
    const auto bytes = SafeFile::Read(SettingsFile());
    if (!bytes || bytes->find('\0') != std::string::npos) return true; // UTF-16 too
    const std::wstring text = ToWide(*bytes);
    return std::ranges::any_of(words, [&](std::wstring_view word) { return Text::ContainsNoCase(text, word); });
}

std::wstring KeyNames(const std::wstring& section) {
    if (section.empty()) return {};
    const std::string name = ToAnsi(section);
    for (DWORD size = kOfferedSize;; size *= 2) {
        const std::string keys = Read(name.c_str(), nullptr, size, SettingsFile());
        if (keys.size() + 2 < size) return ToWide(keys); // a list that is cut fills the buffer
    }
}

std::vector<std::pair<std::wstring, std::wstring>> ReadSection(const std::wstring& section) {
    std::vector<std::pair<std::wstring, std::wstring>> values;
    for (const std::wstring& key : Text::Split(KeyNames(section), L'\0'))
        if (!key.empty()) values.emplace_back(key, GetWholeValue(section, key));
    return values;
}

bool WriteKeyValue(const std::wstring& section, const std::wstring& key, const std::wstring& value,
                   std::wstring& fileName) {
    UseSettingsFile(fileName);
    Change change(fileName);
    change.WriteKeyValue(section, key, value);
    return change.Commit();
}

bool WriteKeyValue(const std::wstring& section, const std::wstring& key, const std::wstring& value) {
    std::wstring fileName;
    return WriteKeyValue(section, key, value, fileName);
}

bool DeleteKey(const std::wstring& section, const std::wstring& key, std::wstring& fileName) {
    UseSettingsFile(fileName);
    Change change(fileName);
    change.DeleteKey(section, key);
    return change.Commit();
}

bool DeleteKey(const std::wstring& section, const std::wstring& key) {
    std::wstring fileName;
    return DeleteKey(section, key, fileName);
}

bool DeleteSection(const std::wstring& section, std::wstring& fileName) {
    UseSettingsFile(fileName);
    Change change(fileName);
    change.DeleteSection(section);
    return change.Commit();
}

bool DeleteSection(const std::wstring& section) {
    std::wstring fileName;
    return DeleteSection(section, fileName);
}

std::vector<std::wstring> Extract_Sections(std::wstring& fileName) {
    std::vector<std::wstring> names;
    try {
        UseSettingsFile(fileName);
        const std::string list = Read(nullptr, nullptr, kOfferedSize, fileName);
        size_t start = 0;
        for (size_t end = list.find('\0'); end != std::string::npos && end > start; end = list.find('\0', start)) {
            names.push_back(ToWide(std::string_view(list).substr(start, end - start)));
            start = end + 1;
        }
    } catch (...) {
        ErrorReport("IniLib: Sub Extract_Sections");
    }
    return names;
}

std::vector<std::wstring> Extract_Sections() {
    std::wstring fileName;
    return Extract_Sections(fileName);
}

} // namespace IniLib
