// The log-on helper: fills in ACT!'s log-on dialog with the values that the launcher has put ready, and ends.

#include "LogonDialog.h"
#include "Turn.h"
#include "stores/Cipher.h"
#include "support/Application.h"

#include <algorithm>
#include <array>
#include <cwchar>

namespace {

constexpr wchar_t kLogon[] = L"Logon";
constexpr DWORD kPollMilliseconds = 100;
constexpr int kLongestWaitSeconds = 60;

LogonDialog WaitForDialog(const LogonDialogTraits& traits, const Turn& turn) {
    const int seconds = StoredText(LogonDialogTraits::Section, L"Seconds", L"60").Number();
    const auto wait = static_cast<DWORD>(std::clamp(seconds, 0, kLongestWaitSeconds)) * 1000;
    const DWORD start = GetTickCount();
    for (DWORD pause = 0; !turn.IsOver(pause); pause = kPollMilliseconds) {
        if (const LogonDialog dialog = LogonDialog::Find(traits); dialog.Window) return dialog;
        if (GetTickCount() - start >= wait) break;
    }
    return {};
}

bool FillInPassword(const LogonDialog& dialog, StoredText& password) {
    std::array<wchar_t, std::size(Application::Title) - 1> key{};
    std::copy_n(Application::Title, key.size(), key.begin());
    Cipher::Shift(password.Characters(), key, -1);
    return LogonDialog::Fill(dialog.Password, password.Get());
}

/// Without a password to use nothing is confirmed: an attempt with an empty one would count as one.
bool LogOn(const LogonDialog& dialog, const LogonDialogTraits& traits, const Turn& turn) {
    StoredText password(kLogon, L"Password");
    const bool confirms = !password.IsEmpty() && std::wcscmp(StoredText(kLogon, L"UsePassword").Get(), L"1") == 0;
    if (!LogonDialog::Fill(dialog.User, StoredText(kLogon, L"Username").Get())) return false;
    if (confirms && !FillInPassword(dialog, password)) return false;
    // Meanwhile ACT! may have closed the dialog and shown another one.
    if (turn.IsOver(0) || LogonDialog::At(dialog.Window, traits) != dialog) return false;
    if (confirms)
        dialog.Confirm();
    else
        dialog.AskForPassword();
    return true;
}

} // namespace

/// Exit code: 0 when a dialog was filled in, else 1.
int WINAPI wWinMain(HINSTANCE, HINSTANCE, wchar_t*, int) {
    const Turn turn;
    if (StoredText(kLogon, L"Username").IsEmpty()) return 1;
    const LogonDialogTraits traits;
    const LogonDialog dialog = WaitForDialog(traits, turn);
    return dialog.Window && LogOn(dialog, traits, turn) ? 0 : 1;
}
