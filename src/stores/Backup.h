#pragma once

#include <optional>
#include <string>
#include <vector>

/// Copies of settings files in the user's own folder, Kelmorra\Backup of the local application data: the last five of
/// each settings file, named after the time (UTC) at which they were made.
namespace Backup {

/// Copies a settings file, the first time that this run asks for it; call before a change. A file that
/// is as the newest copy or has no section is not copied, for it would push out better ones. One with zero bytes
/// between others is, under a name of its own: it is never offered, but holds what a change is going to cut off.
void KeepOnce(const std::wstring& settingsFile);

/// The same as the last deed of the program, which it ends when a share takes more than ten seconds to answer.
void KeepAtEnd(const std::wstring& settingsFile);

/// The copies of all settings files that can be read, newest first, by their full paths.
std::vector<std::wstring> All();
/// When the settings of a copy were last changed, as the user writes date and time.
std::wstring TimeOf(const std::wstring& copy);

/// The newest copy of a settings file that is not empty itself.
std::optional<std::wstring> LastGood(const std::wstring& settingsFile);

enum class Restored { Done, NotNeeded, Failed };

/// Puts the last good copy in the settings file's place, unless the file has become sound by then. Bytes that the file
/// holds are kept beside the copies first. Fails when there is no copy or one of the two cannot be written.
Restored Restore(const std::wstring& settingsFile);

} // namespace Backup
