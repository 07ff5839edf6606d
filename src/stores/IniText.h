#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// The text of an INI file as the platform's private-profile calls understand it.
namespace IniText {

/// The value behind the first key of that name in the first section of that name, without the blanks at its ends and
/// without one pair of quotes around it; nothing when there is no such section or key. Lines end at a carriage return
/// or a line feed. Blanks around names do not count, nor does the case of the letters A to Z. A section whose name
/// differs in the case of other letters is taken when there is none that is closer: the platform may know both.
std::optional<std::wstring_view> Find(std::wstring_view text, std::wstring_view section, std::wstring_view key);

/// The keys of a section with their values, in their order; of a key that stands there again only the first.
std::vector<std::pair<std::wstring, std::wstring>> Section(std::wstring_view text, std::wstring_view section);

} // namespace IniText
