#pragma once

#include <string>

/// ACT!'s own settings in the current user's registry, as far as this program writes them.
namespace ActSettings {

/// Hands a database's preference locations to ACT!: those of the database it borrows from, or its own. Empty ones leave
/// ACT!'s folder alone. Throws Error as RegistrySubs::SetRegistryValue does.
void WriteLocations(const std::wstring& name);

} // namespace ActSettings
