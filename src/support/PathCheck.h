#pragma once

#include "win32/Owner.h"

#include <string>
#include <vector>

/// Looks for files and folders beside the user's work. Each drive or server has a thread of its own, so that one that
/// does not answer holds up neither the user nor the others.
class PathCheck {
public:
    /// Whether a path is there. May take as long as it likes.
    using Ask = bool (*)(const std::wstring& path);
    static bool IsThere(const std::wstring& path);

    /// The answers go to a window as `message`, one for each path, and then `Done`: wParam is the answer, lParam the
    /// number that Start returned.
    explicit PathCheck(UINT message, Ask ask = &IsThere) : message_(message), ask_(ask) {}
    /// Nobody waits for answers that are still missing: asking for them is cancelled, where Windows can (since Vista).
    ~PathCheck();
    PathCheck(const PathCheck&) = delete;
    PathCheck& operator=(const PathCheck&) = delete;

    /// Asks for a list of full paths, in place of the one before; answers with another number are out of date. While a
    /// thread still waits for an answer of its own none is started, and the result is 0: ask again when it is done.
    long Start(HWND window, const std::vector<std::wstring>& paths);

    static constexpr auto Done = static_cast<WPARAM>(-1);
    static constexpr size_t Index(WPARAM answer) { return answer / 2; }
    static constexpr bool IsMissing(WPARAM answer) { return answer % 2 != 0; }

private:
    struct Round;
    struct Job;
    static DWORD WINAPI Work(void* parameter);
    static void LetGo(Round* round);

    UINT message_;
    Ask ask_;
    Round* round_ = nullptr; ///< shared with its threads, which may outlive this
    std::vector<KernelHandle> threads_;
};
