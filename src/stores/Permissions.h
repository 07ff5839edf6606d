#pragma once

#include <string>

/// Access entries of files.
namespace Permissions {

/// Gives a copy those access entries of the original that it has not inherited from its folder. An error code.
unsigned long CarryOver(const std::wstring& original, const std::wstring& copy);

} // namespace Permissions
