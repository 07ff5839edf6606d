#pragma once

#include <concepts>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// Small operations on texts.
namespace Text {

/// The elements between separators; every separator starts a new element, empty ones are kept. "" gives no element.
std::vector<std::wstring> Split(std::wstring_view text, wchar_t separator);

/// The elements with one separator between neighbours: the reverse of Split.
std::wstring Join(const std::vector<std::wstring>& elements, wchar_t separator);

/// The parts one after another.
std::wstring Concat(std::initializer_list<std::wstring_view> parts);

/// Every occurrence of `from` replaced by `to`, from left to right; letter case counts. An empty `from` changes
/// nothing.
std::wstring Replace(std::wstring_view text, std::wstring_view from, std::wstring_view to);

/// What follows the last `separator`, or the whole text when there is none.
std::wstring AfterLast(std::wstring_view text, wchar_t separator);

/// False for the bare name of a file.
bool HasFolder(std::wstring_view path);

/// The folder part of a path, without a trailing "\" unless it is a drive's root; "" when there is none.
std::wstring ExtractPath(std::wstring_view path);

/// Without one trailing backslash.
std::wstring_view WithoutTrailingSlash(std::wstring_view path);
/// A folder and a name joined by exactly one "\", whether or not the folder ends in one.
std::wstring JoinPath(std::wstring_view folder, std::wstring_view name);

/// The text without blanks and tabs at both ends.
std::wstring Trim(std::wstring_view text);

/// Equality without regard to letter case, by the rules of file names (not of a language).
bool EqualNoCase(std::wstring_view left, std::wstring_view right);

/// True when `part` occurs in `text` without regard to letter case. An empty `part` occurs nowhere.
bool ContainsNoCase(std::wstring_view text, std::wstring_view part);

/// True when the two texts name the same path: letter case and a trailing "\" do not count. Empty texts equal nothing.
bool SamePath(std::wstring_view left, std::wstring_view right);

/// True when `path` lies in `folder`, whether or not the folder ends in "\". An empty text lies in and holds nothing.
bool ContainsFolder(std::wstring_view path, std::wstring_view folder);

/// A leading whole number such as "12" or "-3", as text of either sign; nothing when the text holds anything else.
std::optional<long> WholeNumber(std::wstring_view text);

/// A stored measure: digits with "." or "," as decimal sign, rounded to a whole number; nothing for anything else.
std::optional<long> Measure(std::wstring_view text);

/// A whole number as decimal digits.
std::wstring FromNumber(long number);
template <std::integral Number>
std::wstring FromNumber(Number number) {
    return FromNumber(static_cast<long>(number));
}

/// True when the platform's number parser accepts the text in the user's locale (VarR8FromStr).
bool IsNumeric(std::wstring_view text);

} // namespace Text
