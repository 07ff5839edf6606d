#pragma once

#include <string>
#include <string_view>

/// Text in the ANSI code page (CP_ACP), as the platform's functions ending in A take and give it. Characters that the
/// code page lacks become its default character.
std::string ToAnsi(std::wstring_view text);

/// ANSI bytes (CP_ACP) as wide text.
std::wstring ToWide(std::string_view bytes);

/// UTF-8 as wide text.
std::wstring FromUtf8(std::string_view bytes);
