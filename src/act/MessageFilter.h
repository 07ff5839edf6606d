#pragma once

#include "win32/ComPtr.h"

/// While it lives, a busy ACT! is called again until it answers, and the system's "server busy" box never shows:
/// opening a database may take minutes. One per user-interface thread, after OleInitialize.
class MessageFilter {
public:
    MessageFilter();
    ~MessageFilter();
    MessageFilter(const MessageFilter&) = delete;
    MessageFilter& operator=(const MessageFilter&) = delete;

private:
    ComPtr<IMessageFilter> previous_;
};
