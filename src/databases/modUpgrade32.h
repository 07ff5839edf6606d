#pragma once

namespace modUpgrade32 {

/// Moves the log-on values of every section of the current settings file into the per-user store. Empty ones are
/// dropped and leave the user's own alone. Ends at the first value that cannot be stored, with a report to the user;
/// what is not moved yet stays in the file for the next run.
void Upgrade_to_32();

} // namespace modUpgrade32
