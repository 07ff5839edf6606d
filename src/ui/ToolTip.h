#pragma once

#include "win32/Windows.h"

#include <string>

/// The tool tips of one form's controls.
class ToolTip {
public:
    /// Shows a text while the pointer rests on a control; "" for none. Both windows must exist.
    void Set(HWND form, HWND control, const std::wstring& text);

    /// Shows a text while the pointer rests on a part of the form itself, in client pixels: one part at a time.
    void SetPart(HWND form, const RECT& part, const std::wstring& text);

    /// Shows a text that is asked for each time (TTN_GETDISPINFO goes to the form).
    void SetAsked(HWND form, HWND control);
    /// Takes a shown tip away; it comes again when the pointer rests anew.
    void Pop() const { SendMessageW(window_, TTM_POP, 0, 0); }

private:
    void Add(TTTOOLINFOW tool);
    static TTTOOLINFOW ToolOf(HWND form, HWND control, wchar_t* text);

    HWND window_ = nullptr; ///< owned by the form, which takes it along
};
