#pragma once

#include "stores/Patience.h"
#include "stores/SafeFile.h"

#include <string>

/// The copy of a file that is changed in its stead. Beside the file its name is always the same, so that what a killed
/// writer left goes with the next change. What it is called and what it holds go at the end.
class WorkingCopy {
public:
    /// Beside the file, or among the user's temporary files.
    WorkingCopy(const std::wstring& original, bool isBeside);
    ~WorkingCopy() { Remove(); }
    WorkingCopy(const WorkingCopy&) = delete;
    WorkingCopy& operator=(const WorkingCopy&) = delete;

    /// Copies the original, if there is one, and changes the copy, until that is not in anybody's way. An error code.
    DWORD Change(const SafeFile::Edit& edit);
    /// True when the last failure was about the copy itself, not about the original: another place may do.
    bool IsMisplaced() const { return isMisplaced_; }

    /// Puts the changed copy in the original's place. An error code; ERROR_SUCCESS also when nothing had changed.
    DWORD PutInPlace() const;

private:
    DWORD CopyAfresh();
    DWORD Replace(DWORD attributes, const Patience& patience) const;
    DWORD Overwrite(const std::string& bytes, const Patience& patience) const;
    void Remove() const;

    const std::wstring& original_;
    std::wstring path_;
    bool isBeside_;
    bool isMisplaced_ = false;
    bool isNew_ = false;
};
