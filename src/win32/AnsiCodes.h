#pragma once

/// The code (0 to 255) of one character in the single-byte ANSI code page: CP_ACP when it is a single-byte one, else
/// Windows-1252. The five codes that Windows-1252 leaves open (81, 8D, 8F, 90, 9D) are the C1 controls of that number.
/// A character that the code page lacks gives the code of "?".
unsigned char AnsiCode(wchar_t character);

/// The character of a code in the same code page: the reverse of AnsiCode for all 256 codes.
wchar_t AnsiCharacter(unsigned char code);
