#include "LogonDialog.h"

#include "ActProgram.h"

#include <array>
#include <cwchar>

namespace {

struct TextBoxes {
    HWND last = nullptr;
    HWND user = nullptr; ///< the one before the password's
    HWND password = nullptr;
    int passwords = 0;
};

struct Search {
    const LogonDialogTraits& traits;
    LogonDialog found;
};

bool HasClass(HWND window, const wchar_t* wanted) {
    std::array<wchar_t, 64> name{};
    GetClassNameW(window, name.data(), static_cast<int>(name.size()));
    return _wcsicmp(name.data(), wanted) == 0;
}

bool HasTitle(HWND window, const wchar_t* beginning) {
    std::array<wchar_t, StoredText::Longest + 1> title{};
    GetWindowTextW(window, title.data(), static_cast<int>(title.size()));
    return _wcsnicmp(title.data(), beginning, std::wcslen(beginning)) == 0;
}

BOOL CALLBACK NoteTextBox(HWND control, LPARAM boxes) {
    if (!HasClass(control, L"Edit") || !IsWindowVisible(control)) return TRUE;
    TextBoxes& noted =
        *reinterpret_cast<TextBoxes*>(boxes); // NOLINT(performance-no-int-to-ptr): handed to EnumChildWindows
    if (GetWindowLongPtrW(control, GWL_STYLE) & ES_PASSWORD) {
        noted.user = noted.last;
        noted.password = control;
        ++noted.passwords;
    }
    noted.last = control;
    return TRUE;
}

HWND ById(HWND dialog, const StoredText& id) { return GetDlgItem(dialog, id.Number()); }

/// Only one box hides what it holds: a dialog that changes a password has two or three.
LogonDialog Parts(HWND window, const LogonDialogTraits& traits) {
    TextBoxes boxes;
    EnumChildWindows(window, NoteTextBox, reinterpret_cast<LPARAM>(&boxes));
    if (boxes.passwords != 1) boxes = {};
    return {window, traits.UserId.Number() ? ById(window, traits.UserId) : boxes.user,
            traits.PasswordId.Number() ? ById(window, traits.PasswordId) : boxes.password,
            ById(window, traits.ButtonId)};
}

BOOL CALLBACK LookAt(HWND window, LPARAM parameter) {
    Search& search = *reinterpret_cast<Search*>(parameter); // NOLINT(performance-no-int-to-ptr): handed to EnumWindows
    const LogonDialogTraits& traits = search.traits;
    if (!IsWindowVisible(window) || !IsWindowEnabled(window) || !HasClass(window, traits.Class.Get()) ||
        !HasTitle(window, traits.Title.Get()))
        return TRUE;
    const LogonDialog parts = Parts(window, traits);
    if (!parts.User || !parts.Password || !parts.Button || !IsOfProgram(window, traits.Program.Get())) return TRUE;
    search.found = parts;
    return FALSE;
}

} // namespace

LogonDialog LogonDialog::Find(const LogonDialogTraits& traits) {
    Search search{traits, {}};
    EnumWindows(LookAt, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

bool LogonDialog::Fill(HWND box, const wchar_t* text) {
    constexpr UINT kAnswerMilliseconds = 5000;
    DWORD_PTR taken = FALSE;
    return SendMessageTimeoutW(box, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text), SMTO_ABORTIFHUNG,
                               kAnswerMilliseconds, &taken) &&
           taken;
}

void LogonDialog::Confirm() const {
    // A posted click would get lost in a dialog that is not active.
    const auto id = static_cast<WORD>(GetDlgCtrlID(Button));
    PostMessageW(Window, WM_COMMAND, MAKEWPARAM(id, BN_CLICKED), reinterpret_cast<LPARAM>(Button));
}

void LogonDialog::AskForPassword() const {
    PostMessageW(Window, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(Password), TRUE);
}
