#pragma once

#include "databases/Record.h"

#include <string>

/// ACT!'s own settings in the current user's registry, as far as this program writes them.
namespace ActSettings {

/// Hands preference locations to ACT!, in the order of Keys::Locations. Empty ones leave ACT!'s folder alone. Throws
/// Error as RegistrySubs::SetRegistryValue does.
void WriteLocations(const Folders& folders);

} // namespace ActSettings
