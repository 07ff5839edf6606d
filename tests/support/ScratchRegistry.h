#pragma once

#include "support/Detour.h"
#include "win32/Owner.h"

#include <optional>
#include <string>

/// While one lives, HKEY_CURRENT_USER and HKEY_CLASSES_ROOT of this process are empty scratch keys of their own.
class ScratchRegistry {
public:
    ScratchRegistry();
    ~ScratchRegistry();
    ScratchRegistry(const ScratchRegistry&) = delete;
    ScratchRegistry& operator=(const ScratchRegistry&) = delete;

    /// From now on every creation of a lasting key right below that root fails, though not for want of rights.
    void RefuseKeysBelow(HKEY root);

    /// From now on creating a key below that root is denied, as it is to a user who is no administrator. Wine itself
    /// asks for no right to create, so the denial is played by the program's import of RegCreateKeyExA.
    void DenyKeysBelow(HKEY root);

    /// From now on the user's local application data lies in that folder.
    static void LocalData(const std::wstring& folder);

private:
    void Override(HKEY root, const wchar_t* name, DWORD options);

    std::wstring path_;
    std::optional<Detour<decltype(&RegCreateKeyExA)>> denial_;
};
