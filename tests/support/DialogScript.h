#pragma once

#include "support/Controls.h"

#include <deque>
#include <functional>
#include <vector>

/// Plays the user of dialogs and message boxes that the code under test shows: each window that comes up in this thread
/// meets the next step, run inside its modal loop. A window nobody expected fails the test and is closed, so nothing
/// hangs; a step that was never reached fails it at the script's end.
class DialogScript {
public:
    /// What a dialog showed: title and, of a message box, text.
    struct Seen {
        std::wstring Title;
        std::wstring Text;
    };

    DialogScript();
    ~DialogScript();
    DialogScript(const DialogScript&) = delete;
    DialogScript& operator=(const DialogScript&) = delete;

    /// The next window gets this.
    DialogScript& Then(std::function<void(HWND)> step);
    /// The next window is a message box and gets this answer (IDOK, IDYES, ...).
    DialogScript& Answer(int button);
    /// Every window that no step expects gets this, and is expected so.
    DialogScript& Otherwise(std::function<void(HWND)> step);
    /// Everything that came up so far, in order.
    const std::vector<Seen>& All() const { return seen_; }

private:
    static void CALLBACK OnTimer(HWND, UINT, UINT_PTR, DWORD);
    static BOOL CALLBACK Choose(HWND window, LPARAM next);
    void Meet(HWND window);

    UINT_PTR timer_;
    std::deque<std::function<void(HWND)>> steps_;
    std::function<void(HWND)> otherwise_;
    std::vector<HWND> met_;
    std::vector<Seen> seen_;
};

/// Leaves a dialog as by Cancel, a message box by OK or No.
void Leave(HWND window);

/// The control that has the focus in a form. When the window manager has just given the focus to somebody else, the
/// form is brought back first.
HWND FocusIn(HWND form);

/// Presses a button or a label that is clicked; what it does has been done when this returns.
void Press(HWND form, const wchar_t* name, int index = 0);

/// Types into a text box.
void Type(HWND form, const wchar_t* box, const std::wstring& text);

/// Presses a key in a control, with another one held or none (0), and lets the control's form deal with it.
void TranslateKey(HWND control, WORD key, WORD held = 0);

/// Handles waiting messages until a condition holds; fails the test after the deadline.
void PumpUntil(const std::function<bool()>& condition, unsigned milliseconds = 5000);
