#include "server/EmailAccount.h"

#include "common/Journal.h"
#include "common/Protocol.h"
#include "common/State.h"
#include "server/resource.h"
#include "win32/Windows.h"

#include <array>

namespace {

constexpr wchar_t kSection[] = L"EmailAccount";

HWND open = nullptr;

void Show(HWND dialog, bool withServer) {
    open = dialog;
    for (const int id : {IDC_SERVER_LABEL, IDC_SERVER})
        ShowWindow(GetDlgItem(dialog, id), withServer ? SW_SHOWNA : SW_HIDE);
}

void End(HWND dialog, int command) {
    std::array<wchar_t, 256> user{};
    GetDlgItemTextW(dialog, IDC_USER, user.data(), static_cast<int>(user.size()));
    Journal::Note(kSection, user.data(), command == IDOK ? L"confirmed" : L"cancelled");
    EndDialog(dialog, command);
}

INT_PTR CALLBACK DialogProcedure(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    try {
        switch (message) {
        case WM_INITDIALOG: Show(dialog, lParam != 0); return TRUE;
        case WM_COMMAND:
            if (LOWORD(wParam) == IDOK || LOWORD(wParam) == IDCANCEL) End(dialog, LOWORD(wParam));
            return TRUE;
        case WM_DESTROY: open = nullptr; return TRUE;
        default: return FALSE;
        }
    } catch (...) {
        return FALSE;
    }
}

void Ask(bool withServer) {
    if (!open)
        DialogBoxParamW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(IDD_EMAIL),
                        FindWindowW(Protocol::WindowClass, nullptr), DialogProcedure, withServer);
}

void CALLBACK AskNow(HWND, UINT, UINT_PTR timer, DWORD) {
    KillTimer(nullptr, timer);
    Ask(false);
}

} // namespace

namespace EmailAccount {

AtOpen::AtOpen() {
    if (State::Flag(kSection, L"DuringOpen")) Ask(true);
}

AtOpen::~AtOpen() {
    if (const auto delay = State::Number(kSection, L"AfterOpen"))
        SetTimer(nullptr, 0, static_cast<UINT>(*delay), AskNow);
}

void Cancel() {
    if (open) SendMessageW(open, WM_COMMAND, IDCANCEL, 0);
}

} // namespace EmailAccount
