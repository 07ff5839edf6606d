#pragma once

#include "support/Controls.h"

#include <vector>

// Windows of another process, worked by the display's own mouse and keyboard.

/// The process's visible top-level windows, topmost first.
std::vector<HWND> Visible(DWORD process);
/// A top-level window by its class, visible or not; null when there is none.
HWND FindWindowOf(DWORD process, const wchar_t* className);
/// The topmost message box of a process; null when there is none.
HWND MessageBoxOf(DWORD process);

void ClickMenu(HWND form, const wchar_t* item);
/// Whether a control has the focus of its form. A form that is not active, for the window manager has preferred another
/// one, is activated first: ask again.
bool HasFocus(HWND control);
/// Waits until a control has the focus of the window in the foreground, so that the screen shows it and real keys reach
/// it; false when that does not come about.
bool InFront(HWND control);

/// A window's place on the screen, once it stands where it did a moment ago: the window manager moves new ones.
RECT SettledPlace(HWND window);
/// Moves the mouse to a place of the window's client area. It is the display's own: a window manager that moves windows
/// does not see the input that Windows programs send.
void MoveMouse(HWND window, POINT place);
/// Waits until the window rests, and presses and releases the left button at a place of it.
void ClickMouse(HWND window, POINT place, int times = 1);
/// Drags a window by a place in its client area, so many pixels to the right and down.
void Drag(HWND window, POINT place, SIZE distance);

/// Presses and releases a key, as a user's keyboard does: it goes to the window in the foreground.
void PressKey(int key);
