#pragma once

#include <string>

/// Access entries of files.
namespace Permissions {

/// Gives a copy those access entries of the original that it has not inherited from its folder. False when the copy
/// may not be given them.
bool CarryOver(const std::wstring& original, const std::wstring& copy);

} // namespace Permissions
