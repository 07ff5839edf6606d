#pragma once

#include "win32/Windows.h"

#include <string>
#include <vector>

/// Looks for files on a thread of its own: a share that does not answer holds nobody up.
class PathCheck {
public:
    /// The answers go to `window` as `message`, one for each path that is not there: wParam is its index, lParam the
    /// number that Start returned.
    explicit PathCheck(UINT message) : message_(message) {}
    PathCheck(const PathCheck&) = delete;
    PathCheck& operator=(const PathCheck&) = delete;

    /// Asks for a list of full paths, in place of the one before; answers with another number are out of date. While a
    /// thread still waits for an answer of its own no second one is started, and the result is 0: ask again later.
    long Start(HWND window, std::vector<std::wstring> paths);

private:
    UINT message_;
    long number_ = 0;
};
