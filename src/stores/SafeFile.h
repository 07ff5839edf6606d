#pragma once

#include "win32/Windows.h"

#include <functional>
#include <string>

/// Changes of a small file that others read and change at the same time.
namespace SafeFile {

/// All bytes of a file, or why there are none.
struct Contents {
    DWORD Error = ERROR_SUCCESS; ///< the system's code for the opening or reading that failed
    std::string Bytes;

    bool IsRead() const { return Error == ERROR_SUCCESS; }
    /// There is no such file. A folder in its place counts as none.
    bool IsMissing() const { return Error == ERROR_FILE_NOT_FOUND || Error == ERROR_PATH_NOT_FOUND; }
};

Contents Read(const std::wstring& path);

/// Changes the file of the given path, which is a copy, or an empty one when the original is not there yet (`isNew`).
/// An error code; after one that may pass it is called again, with a fresh copy. ERROR_CANCELLED gives up.
using Edit = std::function<DWORD(const std::wstring& copy, bool isNew)>;

/// Lets `edit` change a copy of the file and puts the copy in its place in one step, while a lock file keeps other
/// writers out. Readers see the file as it was or as it is then, and a writer that dies on the way leaves it as it was.
/// The file keeps its attributes and access entries; a missing one is created; one that `edit` leaves equal is not
/// touched. Of a symbolic link the target is changed.
///
/// The bytes of the copy are written over the file itself, in one step but not safe from a kill, where the file cannot
/// be replaced: it has a second name, somebody holds it open, its access entries cannot be given to another, or no file
/// may be created beside it. False, with the file untouched, when it is read-only, a folder or in a missing folder, or
/// when another writer does not finish. Waits for other writers up to 240 milliseconds, and about as long for whoever
/// holds the file open.
bool Change(const std::wstring& path, const Edit& edit);

} // namespace SafeFile
