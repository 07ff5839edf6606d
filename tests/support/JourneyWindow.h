#pragma once

#include "win32/Windows.h"

#include <optional>
#include <string>
#include <vector>

/// Windows of another process, found as a tool for screen automation would find them. Clicks are posted: one that
/// opens a modal box must not hold the test up.
namespace JourneyWindow {

/// The process's visible top-level windows, topmost first.
std::vector<HWND> Visible(DWORD process);
/// A top-level window by its class, visible or not; null when there is none.
HWND Find(DWORD process, const wchar_t* className);

/// A control by its name and, in a control array, its index; null when there is none.
HWND Control(HWND form, const wchar_t* name, int index = 0);
/// Caption of a window or text of a control.
std::wstring Text(HWND window);
void Click(HWND form, const wchar_t* control, int index = 0);
void ClickMenu(HWND form, const wchar_t* item);
/// Whether an option button is checked.
bool Checked(HWND option);
/// Whether a control has the focus of its form. A form that is not active, for the window manager has preferred another
/// one, is activated first: ask again.
bool HasFocus(HWND control);
/// Waits until a control has the focus of the window in the foreground, so that the screen shows it and real keys reach
/// it; false when that does not come about.
bool InFront(HWND control);

/// Waits until the window stands where it did a moment ago: the window manager moves new ones.
void Settle(HWND window);
/// Moves the mouse to a place of the window's client area. It is the display's own: a window manager that moves windows
/// does not see the input that Windows programs send.
void MoveMouse(HWND window, POINT place);
/// Waits until the window rests, and presses and releases the left button at a place of it.
void ClickMouse(HWND window, POINT place, int times = 1);
/// Drags a window by a place in its client area, so many pixels to the right and down.
void Drag(HWND window, POINT place, SIZE distance);
/// The middle of a window in its own client coordinates.
POINT Middle(HWND window);

/// Presses and releases a key, as a user's keyboard does: it goes to the window in the foreground.
void Press(WORD key);

/// A message box on the screen.
struct Box {
    HWND Window = nullptr;
    std::wstring Text;
};
/// The topmost message box of a process, if any.
std::optional<Box> MessageBoxOf(DWORD process);
/// Presses a button of a message box, IDYES for example.
void Answer(const Box& box, int button);

} // namespace JourneyWindow
