#include "stores/IniLib.h"

#include "stores/PlatformIni.h"
#include "support/ErrorReport.h"
#include "support/Text.h"
#include "win32/AnsiText.h"

#include <string_view>
#include <utility>

namespace {

constexpr unsigned long kOfferedSize = 999;

std::wstring& CurrentFile() {
    static std::wstring path;
    return path;
}

void UseSettingsFile(std::wstring& fileName) {
    if (fileName.empty()) fileName = IniLib::SettingsFile();
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
    const Read<Reading> reading = ReadFile(fileName, 0);
    const std::wstring stored = reading ? reading->Value(section, key) : std::wstring();
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
        const std::string list = PlatformIni::SectionNames(PlatformIni::FullPath(fileName), kOfferedSize);
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
