#pragma once

#include "win32/Windows.h"

#include <string>

/// The tool tips of one form's controls.
class ToolTip {
public:
    /// Shows a text while the pointer rests on a control; "" for none. Both windows must exist.
    void Set(HWND form, HWND control, const std::wstring& text);

private:
    HWND window_ = nullptr; ///< owned by the form, which takes it along
};
