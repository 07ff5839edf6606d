#pragma once

#include "win32/Owner.h"

#include <functional>
#include <optional>
#include <string>

/// How long a journey waits for anything before it fails, in milliseconds.
inline constexpr DWORD JourneyPatience = 15'000;

/// Polls a condition until it holds; false when it does not within `milliseconds`.
bool Within(const std::function<bool()>& condition, DWORD milliseconds = JourneyPatience);

/// The processes of one journey, with all that they start. What is left at the end is ended with it.
class ProcessGroup {
public:
    ProcessGroup();

    /// What a process is put into.
    HANDLE Job() const { return job_.Get(); }
    /// Processes alive at this moment.
    DWORD Alive() const;

private:
    KernelHandle job_;
};

/// A program that a journey has started.
class Process {
public:
    /// Starts a program, with arguments or without, in its own folder. The running test ends when it cannot be started.
    Process(const ProcessGroup& group, const std::wstring& path, const std::wstring& arguments = {});

    /// The program that a window belongs to.
    explicit Process(HWND window);

    DWORD Id() const { return id_; }
    bool Running() const { return WaitForSingleObject(process_.Get(), 0) == WAIT_TIMEOUT; }
    /// Waits for the end of the program: its exit code, or nothing when it goes on.
    std::optional<DWORD> ExitCode(DWORD milliseconds = JourneyPatience) const;
    /// Ends the program as the task manager does; its exit code tells.
    static constexpr DWORD Terminated = 99;
    void Terminate() const { TerminateProcess(process_.Get(), Terminated); }

private:
    KernelHandle process_;
    DWORD id_ = 0;
};
