// The log-on helper: fills in ACT!'s log-on dialog with the values that the launcher has put ready, and ends.

#include "LogonDialog.h"
#include "stores/Cipher.h"
#include "support/Application.h"
#include "win32/Owner.h"

#include <algorithm>
#include <array>
#include <cwchar>

namespace {

constexpr wchar_t kLogon[] = L"Logon";
constexpr DWORD kPollMilliseconds = 100;
constexpr int kLongestWaitSeconds = 60;

/// One helper waits at a time. A new one sends the older away, for whose database is no longer being opened.
class Turn {
public:
    Turn() {
        constexpr DWORD kLeaveMilliseconds = 15'000; // an ACT! that hangs may hold the older one up
        if (WaitForSingleObject(waiting_.Get(), 0) == WAIT_TIMEOUT) {
            SetEvent(newer_.Get());
            WaitForSingleObject(waiting_.Get(), kLeaveMilliseconds);
        }
        ResetEvent(newer_.Get());
    }

    /// Waits for a moment; true when a newer helper has started.
    bool IsOver() const { return WaitForSingleObject(newer_.Get(), kPollMilliseconds) != WAIT_TIMEOUT; }

private:
    KernelHandle newer_{CreateEventW(nullptr, TRUE, FALSE, L"Local\\Kelmorra.Logon.Newer")};
    KernelHandle waiting_{CreateMutexW(nullptr, FALSE, L"Local\\Kelmorra.Logon.Waiting")};
};

LogonDialog WaitForDialog(const Turn& turn) {
    const LogonDialogTraits traits;
    const int seconds = StoredText(LogonDialogTraits::Section, L"Seconds", L"60").Number();
    const auto wait = static_cast<DWORD>(std::clamp(seconds, 0, kLongestWaitSeconds)) * 1000;
    const DWORD start = GetTickCount();
    do {
        if (const LogonDialog dialog = LogonDialog::Find(traits); dialog.Window) return dialog;
    } while (!turn.IsOver() && GetTickCount() - start < wait);
    return {};
}

bool FillInPassword(const LogonDialog& dialog) {
    StoredText password(kLogon, L"Password");
    std::array<wchar_t, std::size(Application::Title) - 1> key{};
    std::copy_n(Application::Title, key.size(), key.begin());
    Cipher::Shift(password.Characters(), key, -1);
    return LogonDialog::Fill(dialog.Password, password.Get());
}

bool LogOn(const LogonDialog& dialog) {
    if (!LogonDialog::Fill(dialog.User, StoredText(kLogon, L"Username").Get())) return false;
    if (std::wcscmp(StoredText(kLogon, L"UsePassword").Get(), L"1") != 0) {
        dialog.AskForPassword();
        return true;
    }
    if (!FillInPassword(dialog)) return false;
    dialog.Confirm();
    return true;
}

} // namespace

/// Exit code: 0 when a dialog was filled in, else 1.
int WINAPI wWinMain(HINSTANCE, HINSTANCE, wchar_t*, int) {
    const Turn turn;
    if (StoredText(kLogon, L"Username").IsEmpty()) return 1;
    const LogonDialog dialog = WaitForDialog(turn);
    return dialog.Window && LogOn(dialog) ? 0 : 1;
}
