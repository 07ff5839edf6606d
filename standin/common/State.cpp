#include "common/State.h"

#include "common/Module.h"
#include "support/Text.h"
#include "win32/Windows.h"

#include <array>

namespace {

std::wstring FilePath() { return NamedOrBeside(L"ACT_STANDIN_STATE", L"ActStandIn.ini"); }

} // namespace

namespace State {

std::optional<std::wstring> Text(const wchar_t* section, const std::wstring& key) {
    constexpr wchar_t kMissing[] = L"\x1";
    std::array<wchar_t, 4096> buffer{};
    const DWORD length =
        GetPrivateProfileStringW(section, key.c_str(), kMissing, buffer.data(), buffer.size(), FilePath().c_str());
    std::wstring text(buffer.data(), length);
    if (text == kMissing) return std::nullopt;
    return text;
}

std::optional<long> Number(const wchar_t* section, const std::wstring& key) {
    const std::optional<std::wstring> text = Text(section, key);
    return text ? Text::WholeNumber(*text) : std::nullopt;
}

bool Flag(const wchar_t* section, const std::wstring& key, bool otherwise) {
    const std::optional<std::wstring> text = Text(section, key);
    if (!text) return otherwise;
    return Text::EqualNoCase(*text, L"True") || Text::WholeNumber(*text).value_or(0) != 0;
}

std::vector<std::wstring> Keys(const wchar_t* section) {
    std::array<wchar_t, 32768> buffer{};
    const DWORD length =
        GetPrivateProfileStringW(section, nullptr, L"", buffer.data(), buffer.size(), FilePath().c_str());
    if (length == 0) return {};
    return Text::Split({buffer.data(), length - (buffer[length - 1] == L'\0' ? 1 : 0)}, L'\0');
}

void Store(const wchar_t* section, const std::wstring& key, const std::wstring& value) {
    WritePrivateProfileStringW(section, key.c_str(), value.c_str(), FilePath().c_str());
}

void Remove(const wchar_t* section, const std::wstring& key) {
    WritePrivateProfileStringW(section, key.c_str(), nullptr, FilePath().c_str());
}

} // namespace State
