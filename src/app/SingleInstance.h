#pragma once

#include "win32/Owner.h"

/// The mark by which a second start in the same session knows that the program runs.
class SingleInstance {
public:
    /// Sets the mark; false when another process has set it. Once set by this process it stays so and is true again.
    bool Claim();
    /// Brings the window of the process that has set it to the front, or the dialog that is open over it.
    static void ShowOther();

private:
    KernelHandle mutex_;
};
