#pragma once

/// What users are told about a settings file that does not do what they want.
namespace SettingsNotice {

/// The settings file cannot be read, so what was asked for does not begin.
void CannotRead();
/// A change could not be made. What was to be changed is as it was.
void NotSaved();
/// Offers to save the order of the list once more; false to leave it as it was.
bool AskToSaveOrderAgain();

} // namespace SettingsNotice
