#pragma once

#include <string>
#include <string_view>

/// Text in the ANSI code page (CP_ACP), as the platform's functions ending in A take and give it. Characters that the
/// code page lacks become its default character.
std::string ToAnsi(std::wstring_view text);

/// ANSI bytes (CP_ACP) as wide text.
std::wstring ToWide(std::string_view bytes);

/// The code (0 to 255) of one character in the single-byte ANSI code page: CP_ACP when it is a single-byte one, else
/// Windows-1252. The five codes that Windows-1252 leaves open (81, 8D, 8F, 90, 9D) are the C1 controls of that number.
/// A character that the code page lacks gives the code of "?".
unsigned char AnsiCode(wchar_t character);

/// The character of a code in the same code page: the reverse of AnsiCode for all 256 codes.
wchar_t AnsiCharacter(unsigned char code);
