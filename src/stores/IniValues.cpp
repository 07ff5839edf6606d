// IniLib's silent readings, and its changes of one step.

#include "stores/IniLib.h"
#include "support/ErrorReport.h"
#include "support/Text.h"

namespace {

void UseSettingsFile(std::wstring& fileName) {
    if (fileName.empty()) fileName = IniLib::SettingsFile();
}

} // namespace

namespace IniLib {

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

} // namespace IniLib
