#pragma once

#include <functional>
#include <optional>
#include <string>

/// Changes of a small file that others read and change at the same time.
namespace SafeFile {

/// Changes the file of the given path; false when it could not, with the system's error code set. May be called again
/// after a failure.
using Edit = std::function<bool(const std::wstring& path)>;

/// Lets `edit` change a copy beside the file and puts the copy in its place in one step, while a lock file keeps other
/// writers out. Readers see the file as it was or as it is then, and a writer that dies on the way leaves it as it was.
/// The file keeps its attributes and permissions; a missing one is created; one that `edit` leaves equal is not
/// touched.
///
/// Where no file may be created beside it, or somebody holds it open, `edit` is let at the file itself. False, with
/// the file untouched, when it is read-only, a folder or in a missing folder, or when another writer does not finish.
/// Waits for other writers up to 240 milliseconds, and as long for whoever holds the file open.
bool Change(const std::wstring& path, const Edit& edit);

/// All bytes of a file; nothing when it cannot be opened or read.
std::optional<std::string> Read(const std::wstring& path);

} // namespace SafeFile
