#pragma once

/// The registry entries that make the stand-in this machine's ACT!: under HKEY_LOCAL_MACHINE\Software\Classes, or
/// HKEY_CURRENT_USER where that may not be written.
namespace Registration {

bool Register();
/// Removes what Register wrote; an association of ".dbf" that it replaced comes back.
bool Unregister();

} // namespace Registration
