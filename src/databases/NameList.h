#pragma once

#include <string>
#include <string_view>
#include <vector>

/// Lists of names as they are stored: joined by ";".
namespace NameList {

using Names = std::vector<std::wstring>;

bool Has(const Names& names, const std::wstring& name);

/// A stored list, divided into the names that a cut reading shows whole and those behind them.
struct Divided {
    Names shown, unseen;
};

/// `cut` is the beginning of `whole` that a reading gave.
Divided Divide(std::wstring_view cut, std::wstring_view whole);

/// The names, and behind them those unseen ones that are not among them.
std::wstring WithUnseen(Names names, const Names& unseen);

/// The names, with what others have changed in the list: the shown names of `list` that are neither among them nor
/// known are added, known ones that are in `list` no more are taken out, and the unseen ones stay at the end.
std::wstring Merged(Names names, const Names& known, const Divided& list);

/// A list with a name replaced by exact text replacement, the separator behind it included: a name that ends another
/// name is replaced in that too. An empty name replaces nothing but empty names.
std::wstring RenamedByText(std::wstring_view list, std::wstring_view oldName, std::wstring_view newName);

/// A list with every name that equals `oldName` replaced, or taken out for an empty new name.
std::wstring Renamed(std::wstring_view list, const std::wstring& oldName, const std::wstring& newName);

} // namespace NameList
