#include "stores/PlatformIni.h"

#include "support/Text.h"
#include "win32/AnsiText.h"
#include "win32/Windows.h"

#include <array>

namespace {

// The calls carry texts in 64 KB of wide characters.
constexpr DWORD kLongestValue = 32768;

std::wstring ShortName(const std::wstring& path) {
    std::wstring name(GetShortPathNameW(path.c_str(), nullptr, 0), L'\0');
    name.resize(GetShortPathNameW(path.c_str(), name.data(), static_cast<DWORD>(name.size())));
    return name;
}

/// The bytes that the call returns for a buffer of `size`. A null section or key lists names.
std::string Read(const std::wstring& path, const char* section, const char* key, const char* otherwise, DWORD size) {
    const auto file = PlatformIni::AnsiName(path);
    if (!file) return {};
    std::string buffer(size + 1, '\0');
    buffer.resize(GetPrivateProfileStringA(section, key, otherwise, buffer.data(), size, file->c_str()));
    return buffer;
}

} // namespace

namespace PlatformIni {

std::wstring FullPath(const std::wstring& fileName) {
    if (fileName.empty() || Text::HasFolder(fileName)) return fileName;
    std::array<wchar_t, MAX_PATH + 1> windows{};
    GetWindowsDirectoryW(windows.data(), windows.size());
    return Text::JoinPath(windows.data(), fileName);
}

std::optional<std::string> AnsiName(const std::wstring& path) {
    const auto carried = [](const std::wstring& name) -> std::optional<std::string> {
        std::string bytes = ToAnsi(name);
        // Of a longer name Wine's calls take the beginning, and say that all went well.
        if (name.empty() || bytes.size() >= MAX_PATH || ToWide(bytes) != name) return std::nullopt;
        return bytes;
    };
    if (auto name = carried(path)) return name;
    const std::wstring folder = ShortName(Text::ExtractPath(path));
    if (!folder.empty())
        if (auto name = carried(Text::JoinPath(folder, Text::AfterLast(path, L'\\')))) return name;
    return carried(ShortName(path));
}

std::optional<std::wstring> Value(const std::wstring& path, std::wstring_view section, std::wstring_view key) {
    // A missing key gives back whichever text is offered instead; a present one cannot equal both.
    std::string value;
    for (const char* otherwise : {"0", "1"}) {
        value = Read(path, ToAnsi(section).c_str(), ToAnsi(key).c_str(), otherwise, kLongestValue);
        if (value != otherwise) return ToWide(value);
    }
    return std::nullopt;
}

std::vector<std::wstring> Keys(const std::wstring& path, std::wstring_view section) {
    constexpr DWORD kFirstSize = 1000;
    for (DWORD size = kFirstSize;; size *= 2) {
        const std::string keys = Read(path, ToAnsi(section).c_str(), nullptr, "", size);
        if (keys.size() + 2 >= size) continue; // a list that is cut fills the buffer
        std::vector<std::wstring> names = Text::Split(ToWide(keys), L'\0');
        std::erase(names, std::wstring());
        return names;
    }
}

std::string SectionNames(const std::wstring& path, unsigned long size) {
    return Read(path, nullptr, nullptr, "", size) + '\0';
}

unsigned long Write(const std::wstring& path, const std::string& section, const char* key, const char* value) {
    const auto file = AnsiName(path);
    if (!file) return ERROR_INVALID_NAME;
    return WritePrivateProfileStringA(section.c_str(), key, value, file->c_str()) ? ERROR_SUCCESS : GetLastError();
}

unsigned long WriteSection(const std::wstring& path, const std::string& section, const std::string& lines) {
    const auto file = AnsiName(path);
    if (!file) return ERROR_INVALID_NAME;
    return WritePrivateProfileSectionA(section.c_str(), lines.c_str(), file->c_str()) ? ERROR_SUCCESS : GetLastError();
}

} // namespace PlatformIni
