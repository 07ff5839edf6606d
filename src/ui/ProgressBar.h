#pragma once

#include "ui/Control.h"

/// A bar that shows how much of some work is done.
class ProgressBar : public Control {
public:
    ProgressBar(Form* form, const wchar_t* name, const Placement& place)
        : Control(form, name, place, {PROGRESS_CLASSW, 0}) {}

    /// So many parts of all of them.
    void Show(size_t done, size_t all) {
        SendMessageW(Handle(), PBM_SETRANGE32, 0, static_cast<LPARAM>(all));
        SendMessageW(Handle(), PBM_SETPOS, done, 0);
    }
};
