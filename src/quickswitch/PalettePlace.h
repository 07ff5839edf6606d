#pragma once

#include "win32/Windows.h"

#include <vector>

/// Where the palette comes up, in pixels of the screen.
namespace PalettePlace {

/// What the monitors show beside their task bars.
std::vector<RECT> Screens();

/// The palette's place when the control box, a square of `side` pixels in its upper right corner, is wholly on a
/// screen; else the nearest place where the palette is, as far as it fits. Without screens it stays where it is.
RECT WithinReach(const RECT& palette, int side, const std::vector<RECT>& screens);

} // namespace PalettePlace
