#pragma once

#include <optional>
#include <string_view>

/// The text of an INI file as the platform's private-profile calls understand it.
namespace IniText {

/// The value behind the first key of that name in the first section of that name, without the blanks at its ends and
/// without one pair of quotes around it; nothing when there is no such section or key. Blanks around sections and
/// keys do not count, nor does letter case; of sections that differ in the case of other letters than A to Z, the
/// platform may know several: the one that is closest is taken. Lines end at a carriage return or
/// a line feed.
std::optional<std::wstring_view> Find(std::wstring_view text, std::wstring_view section, std::wstring_view key);

} // namespace IniText
