#include "win32/AnsiCodes.h"

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

// Made before anything runs: a static of a function would bring its guard from the C++ library into small programs.
const std::array<wchar_t, 256> characters = MakeCharacters();

} // namespace

unsigned char AnsiCode(wchar_t character) {
    for (size_t code = 0; code < characters.size(); ++code)
        if (characters[code] == character) return static_cast<unsigned char>(code);
    return '?';
}

wchar_t AnsiCharacter(unsigned char code) { return characters[code]; }
