#include "Turn.h"

#include "act/LogonHelper.h"

#include <array>

namespace {

/// What can be had, or has been given up, when the call has ended.
KernelHandle CallOfLauncher() {
    std::array<wchar_t, MAX_PATH> name{};
    const DWORD length =
        GetEnvironmentVariableW(LogonHelper::CallVariable, name.data(), static_cast<DWORD>(name.size()));
    if (length == 0) return KernelHandle(CreateEventW(nullptr, TRUE, FALSE, nullptr)); // of no call: that never ends
    // A call that has ended has left none. The new one is nobody's, so it can be had at once.
    return KernelHandle(CreateMutexW(nullptr, FALSE, name.data()));
}

} // namespace

Turn::Turn()
    : call_(CallOfLauncher()), leave_(CreateEventW(nullptr, TRUE, FALSE, LogonHelper::LeaveEvent)),
      looking_(CreateMutexW(nullptr, FALSE, L"Local\\Kelmorra.Logon.Waiting")) {
    constexpr DWORD kPatienceMilliseconds = 15'000; // an ACT! that hangs may hold the older one up
    constexpr DWORD kPauseMilliseconds = 100;
    const std::array<HANDLE, 2> either{call_.Get(), looking_.Get()};
    const auto wait = [&](DWORD milliseconds) {
        return WaitForMultipleObjects(static_cast<DWORD>(either.size()), either.data(), FALSE, milliseconds);
    };
    const DWORD start = GetTickCount();
    DWORD came = wait(0);
    while (came == WAIT_TIMEOUT && GetTickCount() - start < kPatienceMilliseconds) {
        SetEvent(leave_.Get()); // each time: another newcomer takes it back
        came = wait(kPauseMilliseconds);
    }
    if (came == WAIT_OBJECT_0 + 1 || came == WAIT_ABANDONED_0 + 1) ResetEvent(leave_.Get());
}

bool Turn::IsOver(DWORD milliseconds) const {
    const std::array<HANDLE, 2> either{call_.Get(), leave_.Get()};
    return WaitForMultipleObjects(static_cast<DWORD>(either.size()), either.data(), FALSE, milliseconds) !=
           WAIT_TIMEOUT;
}
