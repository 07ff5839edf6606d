#pragma once

#include "ui/Form.h"

/// What is open in front of the main window, and is to be left before that one goes.
class OpenDialogs {
public:
    explicit OpenDialogs(const Form& mainWindow) : mainWindow_(mainWindow) {}

    /// True while a form other than the main window is loaded.
    bool Any() const;
    /// Remembers the message box that is open now: of later ones each asks its user something.
    void Begin();
    /// Ends one dialog, message box or common dialog as by Cancel; false when none is left. Where a question is open
    /// it is waited for, unless ACT! is closing.
    bool LeaveNext();
    /// Ends all of them at once, the last one opened first.
    void LeaveAll() const;

private:
    static BOOL CALLBACK Visit(HWND window, LPARAM self);
    bool Leave(HWND window) const;

    const Form& mainWindow_;
    HWND boxAtBegin_ = nullptr;
    bool hasLeft_ = false;
};
