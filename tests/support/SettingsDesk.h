#pragma once

#include "stores/IniLib.h"
#include "support/ScratchRegistry.h"
#include "support/TempFile.h"
#include "support/Wide.h"

/// Two empty stores: the registry, and a settings file alone in its folder. Copies of it are kept in a folder apart.
struct SettingsDesk : ScratchRegistry {
    SettingsDesk() {
        LocalData(backups.Folder());
        IniLib::SettingsFile(file.Path());
    }
    ~SettingsDesk() { IniLib::SettingsFile({}); }

    TempFile file{L"Kelmorra.ini"};
    TempFile backups{L"none"};
};

/// A value of the current settings file without the cut; "" when the key is missing.
inline std::wstring Whole(const std::wstring& section, const std::wstring& key) {
    return IniLib::ReadFile()->Whole(section, key).value_or(L"");
}
