#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// The per-user store: texts in the current user's registry, by section and key. Sections and keys compare without
/// letter case. Lengths are explicit both ways: a text keeps every character it holds, zeros included.
/// An empty section name names no section.
namespace UserStore {

/// The key of the current user below which every application has its own key, named after its title.
inline constexpr wchar_t Root[] = L"Software\\VB and VBA Program Settings";

/// True when two names are those of one section: letter case does not count, nor does a "\" too many.
bool IsSameSection(std::wstring_view one, std::wstring_view other);

/// The stored text, which may be empty; `defaultText` when there is none or the value is not a text.
std::wstring Get(std::wstring_view section, std::wstring_view key, std::wstring_view defaultText = {});

/// Every text of a section by its key.
std::vector<std::pair<std::wstring, std::wstring>> GetSection(std::wstring_view section);

/// Stores a text; false when it could not be written.
bool Set(std::wstring_view section, std::wstring_view key, std::wstring_view text);

/// Removes one value, if it is there.
void Delete(std::wstring_view section, std::wstring_view key);

/// Removes a section's values and its key. Sections whose names begin with this one and a "\" lie below it and stay.
void DeleteSection(std::wstring_view section);

/// Removes every section of the application.
void DeleteAll();

} // namespace UserStore
