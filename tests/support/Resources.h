#pragma once

/// What this process holds at a moment. Where the system does not count for its own process, handles are found by
/// trying every value that one can have.
struct Resources {
    int Handles = 0; ///< files, keys, events, threads
    int Gdi = 0;     ///< fonts, brushes, bitmaps, device contexts
    int User = 0;    ///< windows, menus, icons

    static Resources Now();
};
