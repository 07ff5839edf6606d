#pragma once

#include "win32/Windows.h"

#include <string>

/// The controls of a form that are no wider than their caption with room to spare, each with both widths in pixels.
std::wstring CutCaptions(HWND form);

/// The controls of a form that reach over its edge, by caption; "" when none does.
std::wstring ControlsOutside(HWND form);

/// Visible controls that assistive tools have no name for.
std::wstring Nameless(HWND form);

/// The captions of the menu bar and of visible controls whose access key an earlier one has. A Cancel button has Esc.
std::wstring ClashingKeys(HWND form);

/// The same of a menu's items, and of the menus below it, each for itself.
std::wstring ClashingKeys(HMENU menu);

/// Writes the window as it stands on the screen, with its frame, to a bitmap file of that name in the folder that the
/// environment variable KELMORRA_PICTURES names. Does nothing when there is no such variable.
void TakePicture(HWND window, const std::wstring& name);

/// A control's place in its form, in pixels.
RECT PlaceOf(HWND control);

/// A colour at the left or right edge of a window, half way down, as it stands on the screen.
COLORREF ColorAtEdge(HWND window, bool isLeft);

/// Moves the mouse onto a control.
void HoverOver(HWND control);
