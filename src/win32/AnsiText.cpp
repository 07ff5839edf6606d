#include "win32/AnsiText.h"

#include "win32/Windows.h"

#include <array>

namespace {

constexpr UINT kWindows1252 = 1252;

UINT SingleByteCodePage() {
    CPINFO info{};
    return GetCPInfo(CP_ACP, &info) && info.MaxCharSize == 1 ? GetACP() : kWindows1252;
}

std::array<wchar_t, 256> MakeCharacters() {
    std::array<wchar_t, 256> characters{};
    const UINT codePage = SingleByteCodePage();
    for (size_t code = 0; code < characters.size(); ++code) {
        const char byte = static_cast<char>(code);
        // Open codes must come back as themselves, or stored cipher text would lose bytes.
        if (MultiByteToWideChar(codePage, MB_ERR_INVALID_CHARS, &byte, 1, &characters[code], 1) != 1)
            characters[code] = static_cast<wchar_t>(code);
    }
    return characters;
}

const std::array<wchar_t, 256>& Characters() {
    static const std::array<wchar_t, 256> characters = MakeCharacters();
    return characters;
}

} // namespace

std::string ToAnsi(std::wstring_view text) {
    if (text.empty()) return {};
    const int length = static_cast<int>(text.size());
    const int size = WideCharToMultiByte(CP_ACP, 0, text.data(), length, nullptr, 0, nullptr, nullptr);
    std::string bytes(static_cast<size_t>(size), '\0');
    WideCharToMultiByte(CP_ACP, 0, text.data(), length, bytes.data(), size, nullptr, nullptr);
    return bytes;
}

std::wstring ToWide(std::string_view bytes) {
    if (bytes.empty()) return {};
    const int size = static_cast<int>(bytes.size());
    const int length = MultiByteToWideChar(CP_ACP, 0, bytes.data(), size, nullptr, 0);
    std::wstring text(static_cast<size_t>(length), L'\0');
    MultiByteToWideChar(CP_ACP, 0, bytes.data(), size, text.data(), length);
    return text;
}

unsigned char AnsiCode(wchar_t character) {
    const auto& characters = Characters();
    for (size_t code = 0; code < characters.size(); ++code)
        if (characters[code] == character) return static_cast<unsigned char>(code);
    return '?';
}

wchar_t AnsiCharacter(unsigned char code) { return Characters()[code]; }
