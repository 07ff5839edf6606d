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

} // namespace

namespace IniLib {

std::wstring Shown(const std::wstring& value) {
    const std::string bytes = ToAnsi(value);
    return bytes.size() <= ShownBytes ? value : ToWide(bytes.substr(0, ShownBytes));
}

const std::wstring& SettingsFile() { return CurrentFile(); }

void SettingsFile(std::wstring path) { CurrentFile() = std::move(path); }

std::vector<std::wstring> Extract_Sections(std::wstring& fileName) {
    std::vector<std::wstring> names;
    try {
        if (fileName.empty()) fileName = SettingsFile();
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
