#include "databases/ActSettings.h"

#include "databases/Database.h"
#include "stores/IniLib.h"
#include "stores/RegistrySubs.h"

namespace ActSettings {

void WriteLocations(const std::wstring& name) {
    const std::wstring lender = IniLib::GetKeyValue(name, L"UseLocationsFrom");
    for (const wchar_t* location : LocationNames) {
        const std::wstring folder = IniLib::GetKeyValue(lender.empty() ? name : lender, location);
        if (folder.empty()) continue;
        RegistrySubs::SetRegistryValue(HKEY_CURRENT_USER, L"Software\\Symantec\\ACT!",
                                       std::wstring(location) + L" File Type", folder);
    }
}

} // namespace ActSettings
