#include "LogonDialog.h"

#include "ActProgram.h"

#include <array>
#include <cwchar>

namespace {

struct TextBoxes {
    const LogonDialogTraits& traits;
    HWND user = nullptr; ///< the last one that shows its text; null when it stands behind the password's
    HWND password = nullptr;
    int users = 0;
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

bool IsNamed(HWND control, const StoredText& id) { return id.Number() != 0 && GetDlgCtrlID(control) == id.Number(); }

/// A list with a text box in it counts once.
bool IsTextBox(HWND control, const LogonDialogTraits& traits) {
    return IsNamed(control, traits.UserId) || IsNamed(control, traits.PasswordId) ||
           (HasClass(control, L"Edit") && !IsNamed(GetParent(control), traits.UserId));
}

BOOL CALLBACK NoteTextBox(HWND control, LPARAM parameter) {
    TextBoxes& boxes =
        *reinterpret_cast<TextBoxes*>(parameter); // NOLINT(performance-no-int-to-ptr): handed to EnumChildWindows
    if (!IsWindowVisible(control) || !IsTextBox(control, boxes.traits)) return TRUE;
    if (GetWindowLongPtrW(control, GWL_STYLE) & ES_PASSWORD) {
        boxes.password = control;
        ++boxes.passwords;
    } else {
        boxes.user = boxes.password ? nullptr : control;
        ++boxes.users;
    }
    return TRUE;
}

bool Fits(HWND control, const StoredText& id) { return control && (id.Number() == 0 || IsNamed(control, id)); }

LogonDialog Parts(HWND window, const LogonDialogTraits& traits) {
    TextBoxes boxes{traits};
    EnumChildWindows(window, NoteTextBox, reinterpret_cast<LPARAM>(&boxes));
    HWND button = GetDlgItem(window, traits.ButtonId.Number());
    const bool fit = boxes.users == 1 && boxes.passwords == 1 && Fits(boxes.user, traits.UserId) &&
                     Fits(boxes.password, traits.PasswordId) && IsWindowVisible(button) && IsWindowEnabled(button);
    return fit ? LogonDialog{window, boxes.user, boxes.password, button} : LogonDialog{};
}

BOOL CALLBACK LookAt(HWND window, LPARAM parameter) {
    Search& search = *reinterpret_cast<Search*>(parameter); // NOLINT(performance-no-int-to-ptr): handed to EnumWindows
    search.found = LogonDialog::At(window, search.traits);
    return !search.found.Window;
}

} // namespace

LogonDialog LogonDialog::Find(const LogonDialogTraits& traits) {
    Search search{traits, {}};
    EnumWindows(LookAt, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

LogonDialog LogonDialog::At(HWND window, const LogonDialogTraits& traits) {
    if (!IsWindowVisible(window) || !IsWindowEnabled(window) || !HasClass(window, traits.Class.Get()) ||
        !HasTitle(window, traits.Title.Get()))
        return {};
    const LogonDialog parts = Parts(window, traits);
    return parts.Window && IsOfProgram(window, traits.Program.Get()) ? parts : LogonDialog{};
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
