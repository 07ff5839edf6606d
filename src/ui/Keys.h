#pragma once

/// A key press as a form sees it before the control that has the focus.
struct KeyPress {
    int Key; ///< virtual key code
    bool Ctrl = false;
    bool Alt = false;
    bool Shift = false;

    bool operator==(const KeyPress&) const = default;
};
