#include "server/LogOn.h"

#include "common/Automation.h"
#include "common/Journal.h"
#include "common/Protocol.h"
#include "server/resource.h"
#include "support/Text.h"

namespace {

constexpr WORD kPermissionDenied = 70;
constexpr int kTries = 3;

struct Question {
    const std::wstring& database;
    const LogOn::Credentials& credentials;
    int refusals = 0;
};

HWND open = nullptr;

std::wstring TextOf(HWND dialog, int id) {
    std::wstring text(256, L'\0');
    text.resize(GetDlgItemTextW(dialog, id, text.data(), static_cast<int>(text.size())));
    return text;
}

void Show(HWND dialog, Question& question) {
    open = dialog;
    SetWindowLongPtrW(dialog, DWLP_USER, reinterpret_cast<LONG_PTR>(&question));
    SetWindowTextW(dialog, (L"Log on to " + Text::AfterLast(question.database, L'\\')).c_str());
    Journal::Note(L"LogOnDialog", question.database);
}

void Refuse(HWND dialog, Question& question) {
    if (++question.refusals == kTries) {
        EndDialog(dialog, IDCANCEL);
        return;
    }
    SetDlgItemTextW(dialog, IDC_MESSAGE, L"The user name or the password is wrong.");
    SetDlgItemTextW(dialog, IDC_PASSWORD, L"");
    SendMessageW(dialog, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(GetDlgItem(dialog, IDC_PASSWORD)), TRUE);
}

void Check(HWND dialog, Question& question) {
    const std::wstring user = TextOf(dialog, IDC_USER);
    const bool isRight = Text::EqualNoCase(user, question.credentials.User) &&
                         TextOf(dialog, IDC_PASSWORD) == question.credentials.Password;
    Journal::Note(L"LogOn", user, isRight ? L"right" : L"wrong");
    if (isRight)
        EndDialog(dialog, IDOK);
    else
        Refuse(dialog, question);
}

void HandleCommand(HWND dialog, int command) {
    Question& question = *reinterpret_cast<Question*>(GetWindowLongPtrW(dialog, DWLP_USER)); // NOLINT: stored by Show
    if (command == IDOK) {
        Check(dialog, question);
    } else if (command == IDCANCEL) {
        Journal::Note(L"LogOn", {}, L"cancelled");
        EndDialog(dialog, IDCANCEL);
    }
}

INT_PTR CALLBACK DialogProcedure(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    try {
        switch (message) {
        case WM_INITDIALOG:
            Show(dialog, *reinterpret_cast<Question*>(lParam));
            return TRUE; // NOLINT: handed over by Ask
        case WM_COMMAND: HandleCommand(dialog, LOWORD(wParam)); return TRUE;
        case WM_DESTROY: open = nullptr; return TRUE;
        default: return FALSE;
        }
    } catch (...) {
        return FALSE;
    }
}

} // namespace

namespace LogOn {

void Ask(const std::wstring& database, const Credentials& credentials) {
    Question question{database, credentials};
    // A call that comes in meanwhile is answered by the dialog's own message loop.
    if (open || DialogBoxParamW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(IDD_LOGON),
                                FindWindowW(Protocol::WindowClass, nullptr), DialogProcedure,
                                reinterpret_cast<LPARAM>(&question)) != IDOK)
        Fail(kPermissionDenied, L"Nobody has logged on to \"" + database + L'"');
}

void Cancel() {
    if (open) SendMessageW(open, WM_COMMAND, IDCANCEL, 0);
}

} // namespace LogOn
