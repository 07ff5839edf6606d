#pragma once

/// Where the main window hands over to the windows it leads to: each is entered in one place.
namespace OtherWindows {

enum class Window { Integration, About };

/// True when this version has the window. Menu items that lead to one it lacks are greyed.
bool Has(Window window);

/// Shows the window; false when this version lacks it.
bool Enter(Window window);

} // namespace OtherWindows
