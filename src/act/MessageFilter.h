#pragma once

#include "win32/ComPtr.h"

/// While it lives, the system's "server busy" box never shows: a call that a busy ACT! refuses comes back, and Dispatch
/// repeats it. One per user-interface thread, after OleInitialize.
class MessageFilter {
public:
    MessageFilter();
    ~MessageFilter();
    MessageFilter(const MessageFilter&) = delete;
    MessageFilter& operator=(const MessageFilter&) = delete;

private:
    ComPtr<IMessageFilter> previous_;
};
