#pragma once

#include "win32/Owner.h"

/// The time in which this helper may fill in a dialog. It is over when the call into ACT! has ended for which the
/// helper was started, however late that was, and when a newer helper comes: one of them looks at a time.
class Turn {
public:
    /// Sends an older helper away, and waits until it has gone. In a turn that is over nobody is sent away.
    Turn();

    /// True when it is over, or gets so within a time.
    bool IsOver(DWORD milliseconds) const;

private:
    KernelHandle call_;
    KernelHandle leave_;
    KernelHandle looking_; ///< owned by the helper whose turn it is
};
