#pragma once

#include "support/JourneyProcess.h"

#include <string>

/// Time since its beginning, by the performance counter.
class Stopwatch {
public:
    Stopwatch() { QueryPerformanceCounter(&start_); }
    double Milliseconds() const;

private:
    LARGE_INTEGER start_{};
};

/// Waits until a program's window is shown and the program idle. What that means must be fair to programs of any kind:
/// the window is visible, its thread answers, everything in the window has been drawn, and the thread answers again.
/// The drawing is asked for, as an idle thread would do it next. Throws when it takes too long.
HWND WaitUntilReady(const Process& program, const wchar_t* windowClass);

/// Waits for a program's end with the same burden on the system, and returns its exit code.
DWORD WaitUntilEnded(const Process& program);

/// Waits until a window's thread is idle and everything in it has been drawn.
void WaitUntilDrawn(HWND window);

/// Starts a program, waits until it is ready and closes it; milliseconds from its creation until it was ready.
double TimeToReady(const std::wstring& path, const wchar_t* windowClass, const std::wstring& arguments = {});

/// What the stand-in writes to its journal from now on.
class JournalTail {
public:
    explicit JournalTail(const std::wstring& path);

    /// Waits until a member of the stand-in has been called. Throws when it takes too long.
    void WaitFor(const std::string& member);

private:
    FileHandle journal_;
    std::string text_;
};
