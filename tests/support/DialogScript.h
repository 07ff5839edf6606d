#pragma once

#include "win32/Windows.h"

#include <deque>
#include <functional>
#include <string>
#include <vector>

/// Plays the user of dialogs and message boxes that the code under test shows: each window that comes up in this thread
/// meets the next step, run inside its modal loop. A window nobody expected is recorded and closed, so nothing hangs;
/// the script's end then fails the test, as it does when a step was never reached.
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
    std::vector<Seen> unexpected_;
};

/// The control of that name (and index) on a form, found as a screen-automation tool finds it; null when there is none.
HWND FindControl(HWND form, const wchar_t* name, int index = 0);

/// Leaves a dialog as by Cancel, a message box by OK or No.
void Leave(HWND window);

/// A window's text, and that inside a message box; "" for another window.
std::wstring WindowText(HWND window);
std::wstring MessageText(HWND window);

/// The control that has the focus in a form. When the window manager has just given the focus to somebody else, the
/// form is brought back first.
HWND FocusIn(HWND form);

/// Clicks a button as a user does: the message is posted.
void Click(HWND button);

/// Presses a button or a label that is clicked; what it does has been done when this returns.
void Press(HWND form, const wchar_t* name, int index = 0);

/// Types into a text box.
void Type(HWND form, const wchar_t* box, const std::wstring& text);

/// Presses a key in a control, with another one held or none (0), and lets the control's form deal with it.
void TranslateKey(HWND control, WORD key, WORD held = 0);

/// Handles waiting messages until a condition holds; fails the test after the deadline.
void PumpUntil(const std::function<bool()>& condition, unsigned milliseconds = 5000);
