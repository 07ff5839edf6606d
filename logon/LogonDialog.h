#pragma once

#include "StoredText.h"
#include "win32/Windows.h"

/// How ACT!'s log-on dialog is known. Each line is a default that the value of that name in the per-user store's
/// section "LogonDialog" replaces.
struct LogonDialogTraits {
    static constexpr wchar_t Section[] = L"LogonDialog";

    StoredText Program{Section, L"Program"};        ///< file name or path; "": the program that ACT! is (IsOfProgram)
    StoredText Class{Section, L"Class", L"#32770"}; ///< window class: Windows' own of dialogs
    StoredText Title{Section, L"Title"};            ///< how the title begins, for it may go on with a name; "": any
    StoredText UserId{Section, L"UserId", L"0"};    ///< control id of the one text box; 0: any
    StoredText PasswordId{Section, L"PasswordId", L"0"}; ///< control id of the one box that hides its text; 0: any
    StoredText ButtonId{Section, L"ButtonId", L"1"};     ///< control id of the confirming button: that of OK
};

/// ACT!'s log-on dialog on the screen: one text box, behind it one box that hides its text, no further one, and a
/// button that can be pressed. A box that is named by its id may be of any class; else it is one of Windows' own.
struct LogonDialog {
    HWND Window = nullptr; ///< null: there is none
    HWND User = nullptr;
    HWND Password = nullptr;
    HWND Button = nullptr;

    bool operator==(const LogonDialog&) const = default;

    /// The dialog, if it is there and waits for its user. Dialogs of other programs are never it.
    static LogonDialog Find(const LogonDialogTraits& traits);
    /// The dialog that a window is.
    static LogonDialog At(HWND window, const LogonDialogTraits& traits);

    /// Writes into a text box; false when the program does not take it.
    static bool Fill(HWND box, const wchar_t* text);
    /// Presses the button, without waiting for what comes of it.
    void Confirm() const;
    /// Leaves the dialog to its user, who goes on with the password.
    void AskForPassword() const;
};
