#include "stores/UserStore.h"

#include "support/Application.h"
#include "support/Text.h"
#include "win32/Owner.h"
#include "win32/Windows.h"

#include <algorithm>
#include <array>

namespace {

constexpr DWORD kCharacterSize = sizeof(wchar_t);
constexpr size_t kLongestValueName = 16384; // 16383 characters and the zero
constexpr size_t kLongestKeyName = 256;     // 255 characters and the zero

std::wstring ApplicationPath() { return std::wstring(UserStore::Root) + L'\\' + Application::Title; }

std::wstring SectionPath(std::wstring_view section) { return ApplicationPath().append(L"\\").append(section); }

RegistryKey Open(const std::wstring& path, REGSAM access) {
    RegistryKey key;
    if (RegOpenKeyExW(HKEY_CURRENT_USER, path.c_str(), 0, access, key.Receive()) != ERROR_SUCCESS) return {};
    return key;
}

void DeleteValues(HKEY key) {
    std::wstring name(kLongestValueName, L'\0');
    for (;;) {
        DWORD length = kLongestValueName;
        // Always the first: the others move up. A value that cannot be deleted must not be met for ever.
        if (RegEnumValueW(key, 0, name.data(), &length, nullptr, nullptr, nullptr, nullptr) != ERROR_SUCCESS ||
            RegDeleteValueW(key, name.c_str()) != ERROR_SUCCESS)
            return;
    }
}

bool HasSubkeys(HKEY key) {
    DWORD count = 0;
    return RegQueryInfoKeyW(key, nullptr, nullptr, nullptr, &count, nullptr, nullptr, nullptr, nullptr, nullptr,
                            nullptr, nullptr) != ERROR_SUCCESS ||
           count > 0;
}

/// Deletes a key and everything below it. RegDeleteTree came after Windows XP.
LSTATUS DeleteTree(HKEY parent, const wchar_t* path) {
    RegistryKey key;
    if (const LSTATUS status = RegOpenKeyExW(parent, path, 0, KEY_READ | KEY_WRITE, key.Receive())) return status;
    std::array<wchar_t, kLongestKeyName> name{};
    for (DWORD length = name.size();
         RegEnumKeyExW(key.Get(), 0, name.data(), &length, nullptr, nullptr, nullptr, nullptr) == ERROR_SUCCESS;
         length = name.size())
        if (const LSTATUS status = DeleteTree(key.Get(), name.data())) return status;
    key.Reset();
    return RegDeleteKeyW(parent, path);
}

} // namespace

namespace UserStore {

bool IsSameSection(std::wstring_view one, std::wstring_view other) {
    const auto keys = [](std::wstring_view name) {
        std::vector<std::wstring> path = Text::Split(name, L'\\');
        std::erase(path, std::wstring());
        return path;
    };
    return std::ranges::equal(keys(one), keys(other), &Text::EqualNoCase);
}

std::wstring Get(std::wstring_view section, std::wstring_view key, std::wstring_view defaultText) {
    if (section.empty()) return std::wstring(defaultText);
    const RegistryKey opened = Open(SectionPath(section), KEY_QUERY_VALUE);
    if (!opened) return std::wstring(defaultText);
    const std::wstring name(key);
    DWORD type = REG_NONE;
    DWORD size = 0;
    if (RegQueryValueExW(opened.Get(), name.c_str(), nullptr, &type, nullptr, &size) != ERROR_SUCCESS || type != REG_SZ)
        return std::wstring(defaultText);
    std::wstring text((size + 1) / kCharacterSize, L'\0');
    size = static_cast<DWORD>(text.size()) * kCharacterSize;
    BYTE* const bytes = reinterpret_cast<BYTE*>(text.data());
    if (RegQueryValueExW(opened.Get(), name.c_str(), nullptr, nullptr, bytes, &size) != ERROR_SUCCESS)
        return std::wstring(defaultText);
    // Exactly one zero ends the value, if any: a cipher text may end in zeros of its own.
    if (text.ends_with(L'\0')) text.pop_back();
    return text;
}

std::vector<std::pair<std::wstring, std::wstring>> GetSection(std::wstring_view section) {
    std::vector<std::pair<std::wstring, std::wstring>> values;
    const RegistryKey opened = section.empty() ? RegistryKey() : Open(SectionPath(section), KEY_QUERY_VALUE);
    if (!opened) return values;
    std::wstring name(kLongestValueName, L'\0');
    DWORD type = REG_NONE;
    DWORD length = kLongestValueName;
    for (DWORD index = 0;
         RegEnumValueW(opened.Get(), index, name.data(), &length, nullptr, &type, nullptr, nullptr) == ERROR_SUCCESS;
         ++index, length = kLongestValueName)
        if (const std::wstring key(name, 0, length); type == REG_SZ) values.emplace_back(key, Get(section, key));
    return values;
}

bool Set(std::wstring_view section, std::wstring_view key, std::wstring_view text) {
    if (section.empty()) return false;
    RegistryKey opened;
    if (RegCreateKeyExW(HKEY_CURRENT_USER, SectionPath(section).c_str(), 0, nullptr, REG_OPTION_NON_VOLATILE,
                        KEY_SET_VALUE, nullptr, opened.Receive(), nullptr) != ERROR_SUCCESS)
        return false;
    const std::wstring name(key), value(text);
    const DWORD size = static_cast<DWORD>(value.size() + 1) * kCharacterSize;
    return RegSetValueExW(opened.Get(), name.c_str(), 0, REG_SZ, reinterpret_cast<const BYTE*>(value.c_str()), size) ==
           ERROR_SUCCESS;
}

void Delete(std::wstring_view section, std::wstring_view key) {
    if (section.empty()) return;
    if (const RegistryKey opened = Open(SectionPath(section), KEY_SET_VALUE))
        RegDeleteValueW(opened.Get(), std::wstring(key).c_str());
}

void DeleteSection(std::wstring_view section) {
    if (section.empty()) return;
    const std::wstring path = SectionPath(section);
    RegistryKey opened = Open(path, KEY_READ | KEY_WRITE);
    if (!opened) return;
    DeleteValues(opened.Get());
    const bool holdsOthers = HasSubkeys(opened.Get());
    opened.Reset();
    if (!holdsOthers) RegDeleteKeyW(HKEY_CURRENT_USER, path.c_str());
}

void DeleteAll() { DeleteTree(HKEY_CURRENT_USER, ApplicationPath().c_str()); }

} // namespace UserStore
