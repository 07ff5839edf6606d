#pragma once

#include <string>
#include <vector>

/// Commands that clients have added, kept in the state file: [AuxCommands] name=arguments, [Toolbar] and [ToolsMenu]
/// view,name=1.
namespace AuxCommands {

inline constexpr int kLastView = 6;

/// The names of a view's commands in "Toolbar" or "ToolsMenu", with ", " between them.
std::wstring NamesIn(const wchar_t* place, int view);

/// A command in a toolbar or Tools menu, as it was defined.
struct Placed {
    int View;
    std::wstring Name;
    std::wstring Program;
    std::wstring Folder;
    std::wstring ToolTip;
    std::wstring SmallIcon;
};
std::vector<Placed> In(const wchar_t* place);

} // namespace AuxCommands
