#pragma once

#include <string>

/// Commands that clients have added, kept in the state file: [AuxCommands] name=arguments, [Toolbar] and [ToolsMenu]
/// view,name=1.
namespace AuxCommands {

inline constexpr int kLastView = 6;

/// The names of a view's commands in "Toolbar" or "ToolsMenu", with ", " between them.
std::wstring NamesIn(const wchar_t* place, int view);

} // namespace AuxCommands
