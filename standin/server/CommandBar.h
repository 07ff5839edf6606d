#pragma once

#include "server/AuxCommands.h"
#include "win32/Owner.h"

#include <vector>

/// The commands that clients have added, as they stood at the start: a toolbar and a Tools menu, each item named after
/// its view. A stand-in has no views of its own to show them in.
class CommandBar {
public:
    /// Puts the commands into a window that has a menu bar.
    void Show(HWND window);
    /// Fits the toolbar to its window; returns its height in pixels, 0 without one.
    int Arrange() const;
    /// Launches the program of a menu item or button; does nothing for another identifier.
    void Launch(int identifier) const;

private:
    void ShowMenu(HWND window);
    void ShowToolbar(HWND window);

    std::vector<AuxCommands::Placed> inMenu_;
    std::vector<AuxCommands::Placed> inToolbar_;
    HWND toolbar_ = nullptr;
    ImageListHandle icons_;
};
