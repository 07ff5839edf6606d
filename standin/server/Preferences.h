#pragma once

#include <string>

/// Preferences as they stand in the state file's section [Preferences].
namespace Preferences {

std::wstring Text(const wchar_t* name);
/// The folder of a kind (0 databases, 6 layouts, 7 macros): "DefaultLocation<kind>", else one of the sample folders.
std::wstring Location(long kind);

} // namespace Preferences
