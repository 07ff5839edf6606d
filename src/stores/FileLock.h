#pragma once

#include "win32/Owner.h"

#include <string>

/// The lock file beside a file that is going to be changed: its name with ".lock" behind. It goes with its handle, so
/// also with a program that is killed.
class FileLock {
public:
    /// Waits for other writers up to 240 milliseconds.
    explicit FileLock(const std::wstring& file);

    /// Another writer does not finish, or the folder is away.
    bool IsRefused() const { return refused_; }
    /// False also where no file can be made beside the other one, so that nobody can lock it.
    bool IsTaken() const { return static_cast<bool>(lock_); }

private:
    FileHandle lock_;
    bool refused_ = false;
};
