#pragma once

#include <optional>
#include <string>

/// Copies of settings files in the user's own folder, Kelmorra\Backup of the local application data: the last five of
/// each settings file, named after the time (UTC) at which they were made.
namespace Backup {

/// Copies a settings file, the first time that this run asks for it; call before a change and at the end. A file that
/// is as the newest copy or has no section is not copied, for it would push out better ones. One with zero bytes
/// between others is, under a name of its own: it is never offered, but holds what a change is going to cut off.
void KeepOnce(const std::wstring& settingsFile);

/// The newest copy of a settings file that is not empty itself.
std::optional<std::wstring> LastGood(const std::wstring& settingsFile);

/// Puts the last good copy in the settings file's place; false when there is none or the file cannot be written.
bool Restore(const std::wstring& settingsFile);

} // namespace Backup
