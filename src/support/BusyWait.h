#pragma once

#include "win32/Windows.h"

/// What the windows do while a call into ACT! is refused again and again, for ACT! knows none of them. Each may be
/// null.
struct BusyWait {
    /// Told again and again how long the call has been refused, in milliseconds; true ends the waiting.
    bool (*IsCancelled)(DWORD milliseconds) = nullptr;
    /// The call has been taken, or given up.
    void (*Over)() = nullptr;
    /// Uses a message as a key of a dialog; true when it was one.
    bool (*Translate)(MSG& message) = nullptr;

    static inline const BusyWait* Now = nullptr; ///< the one in force; set once
};
