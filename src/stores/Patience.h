#pragma once

#include "win32/Windows.h"

/// How long a part of a change has been waiting, in milliseconds.
class Patience {
public:
    explicit Patience(DWORD milliseconds) : start_(GetTickCount()), milliseconds_(milliseconds) {}
    bool IsOver() const { return GetTickCount() - start_ >= milliseconds_; }

    /// For a program that reads or replaces the file right now; "access denied" may also mean truly no right.
    static constexpr DWORD ForOthers = 200;
    /// Short: whoever reads a file in a loop leaves it closed for no longer.
    static constexpr DWORD Pause = 1;

    /// True for the errors of a call that others get in the way of, which pass.
    static bool Helps(DWORD error) { return error == ERROR_ACCESS_DENIED || error == ERROR_SHARING_VIOLATION; }

    /// True for the errors of a file whose folder or share is away.
    static bool IsOutage(DWORD error) {
        switch (error) {
        case ERROR_FILE_NOT_FOUND:
        case ERROR_PATH_NOT_FOUND:
        case ERROR_NOT_READY:
        case ERROR_BAD_NETPATH:
        case ERROR_BAD_NET_NAME:
        case ERROR_NETNAME_DELETED:
        case ERROR_NETWORK_UNREACHABLE: return true;
        default: return false;
        }
    }

private:
    DWORD start_;
    DWORD milliseconds_;
};

/// Repeats a call, which gives an error code, while others get in its way. The code of the last try.
template <class Call>
DWORD Persist(const Patience& patience, Call call) {
    for (;;) {
        const DWORD error = call();
        if (!Patience::Helps(error) || patience.IsOver()) return error;
        Sleep(Patience::Pause);
    }
}
