#pragma once

#include "win32/Windows.h"

#include <string>
#include <vector>

/// Looks for files on a thread of its own: a share that does not answer holds nobody up.
class PathCheck {
public:
    /// The answers go to `window` as `message`, one for each path, and then `Done`: wParam is the answer, lParam the
    /// number that Start returned.
    explicit PathCheck(UINT message) : message_(message) {}
    PathCheck(const PathCheck&) = delete;
    PathCheck& operator=(const PathCheck&) = delete;

    /// Asks for a list of full paths, in place of the one before; answers with another number are out of date. While a
    /// thread still waits for an answer of its own no second one is started, and the result is 0: ask again when it is
    /// done.
    long Start(HWND window, std::vector<std::wstring> paths);

    static constexpr auto Done = static_cast<WPARAM>(-1);
    static constexpr size_t Index(WPARAM answer) { return answer / 2; }
    static constexpr bool IsMissing(WPARAM answer) { return answer % 2 != 0; }

private:
    UINT message_;
    long number_ = 0;
};
