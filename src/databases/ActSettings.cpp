#include "databases/ActSettings.h"

#include "stores/RegistrySubs.h"

namespace ActSettings {

void WriteLocations(const Folders& folders) {
    for (size_t index = 0; index < folders.size(); ++index)
        if (!folders[index].empty())
            RegistrySubs::SetRegistryValue(HKEY_CURRENT_USER, L"Software\\Symantec\\ACT!",
                                           std::wstring(Keys::Locations[index]) + L" File Type", folders[index]);
}

} // namespace ActSettings
