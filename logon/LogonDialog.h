#pragma once

#include "StoredText.h"
#include "win32/Windows.h"

/// How ACT!'s log-on dialog is known. Each line is a default that the value of that name in the per-user store's
/// section "LogonDialog" replaces.
struct LogonDialogTraits {
    static constexpr wchar_t Section[] = L"LogonDialog";

    StoredText Program{Section, L"Program"};        ///< program's file name; "": the program that opens .dbf files
    StoredText Class{Section, L"Class", L"#32770"}; ///< window class: Windows' own of dialogs
    StoredText Title{Section, L"Title"};            ///< how the title begins, for it may go on with a name; "": any
    StoredText UserId{Section, L"UserId", L"0"};    ///< control id; 0: the text box before the password's
    StoredText PasswordId{Section, L"PasswordId", L"0"}; ///< control id; 0: the one text box that hides what it holds
    StoredText ButtonId{Section, L"ButtonId", L"1"};     ///< control id of the confirming button: that of OK
};

/// ACT!'s log-on dialog on the screen.
struct LogonDialog {
    HWND Window = nullptr; ///< null: there is none
    HWND User = nullptr;
    HWND Password = nullptr;
    HWND Button = nullptr;

    /// The dialog, if it is there and waits for its user. Dialogs of other programs are never it.
    static LogonDialog Find(const LogonDialogTraits& traits);

    /// Writes into a text box; false when the program does not take it.
    static bool Fill(HWND box, const wchar_t* text);
    /// Presses the button, without waiting for what comes of it.
    void Confirm() const;
    /// Leaves the dialog to its user, who goes on with the password.
    void AskForPassword() const;
};
