#pragma once

#include "win32/Windows.h"

/// A place on a form or the size of one, in twips (1440 to the inch).
struct Twips {
    int Left = 0;
    int Top = 0;
    int Width = 0;
    int Height = 0;
    bool operator==(const Twips&) const = default;
};

/// Dots per inch of a normal display (USER_DEFAULT_SCREEN_DPI).
inline constexpr int NormalDpi = 96;

/// Dots per inch at which a window is drawn (the system's before Windows 10; 96 for a normal display). A null window
/// gives the system's.
int WindowDpi(HWND window);

/// Pixels for a measure in twips, and back, at a given DPI.
int ToPixels(int twips, int dpi);
int ToTwips(int pixels, int dpi);

/// The font of all forms at a given DPI: the dialog font of 8 points that the designs were measured with.
LOGFONTW FormFont(int dpi);

/// A size in pixels.
struct FrameSize {
    int Width = 0;
    int Height = 0;
};

/// How much larger than its client area a window is: frame, caption and menu bar (one line), in pixels.
FrameSize NonClientSize(HWND window);
