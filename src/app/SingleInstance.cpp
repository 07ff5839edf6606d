#include "app/SingleInstance.h"

bool SingleInstance::Claim() {
    if (mutex_) return true;
    KernelHandle mutex(CreateMutexW(nullptr, FALSE, L"Local\\Kelmorra.Instance"));
    // One that may not be opened is there: the first instance runs with more rights.
    const DWORD error = GetLastError();
    if (error == ERROR_ALREADY_EXISTS || (!mutex && error == ERROR_ACCESS_DENIED)) return false;
    mutex_ = std::move(mutex);
    return true;
}

void SingleInstance::ShowOther() {
    for (const wchar_t* name : {L"frmMain", L"frmQuickSwitch"})
        for (HWND window = FindWindowExW(nullptr, nullptr, name, nullptr); window;
             window = FindWindowExW(nullptr, window, name, nullptr)) {
            DWORD process = 0;
            GetWindowThreadProcessId(window, &process);
            if (process == GetCurrentProcessId() || !IsWindowVisible(window)) continue;
            if (IsIconic(window)) ShowWindowAsync(window, SW_RESTORE);
            SetForegroundWindow(GetLastActivePopup(window));
            return;
        }
}
