#include "support/ScratchRegistry.h"

#include <shlwapi.h>

extern decltype(&RegCreateKeyExA) importedCreateKey __asm__("__imp__RegCreateKeyExA@36");

namespace {

decltype(&RegCreateKeyExA) const realCreateKey = importedCreateKey;
HKEY deniedRoot = nullptr;

LSTATUS WINAPI DenyingCreateKey(HKEY root, LPCSTR path, DWORD reserved, LPSTR className, DWORD options, REGSAM access,
                                LPSECURITY_ATTRIBUTES security, HKEY* key, DWORD* disposition) {
    if (root == deniedRoot) return ERROR_ACCESS_DENIED;
    return realCreateKey(root, path, reserved, className, options, access, security, key, disposition);
}

} // namespace

ScratchRegistry::ScratchRegistry() : path_(L"Software\\KelmorraTests\\" + std::to_wstring(GetCurrentProcessId())) {
    SHDeleteKeyW(HKEY_CURRENT_USER, path_.c_str()); // left by a process of that number that crashed
    Override(HKEY_CURRENT_USER, L"User", REG_OPTION_NON_VOLATILE);
    Override(HKEY_CLASSES_ROOT, L"Classes", REG_OPTION_NON_VOLATILE);
}

ScratchRegistry::~ScratchRegistry() {
    RegOverridePredefKey(HKEY_CURRENT_USER, nullptr);
    RegOverridePredefKey(HKEY_CLASSES_ROOT, nullptr);
    SHDeleteKeyW(HKEY_CURRENT_USER, path_.c_str());
}

void ScratchRegistry::RefuseKeysBelow(HKEY root) {
    // A lasting key cannot be made below one that ends with the session.
    Override(root, L"Volatile", REG_OPTION_VOLATILE);
}

void ScratchRegistry::DenyKeysBelow(HKEY root) {
    deniedRoot = root;
    denial_.emplace(importedCreateKey, DenyingCreateKey);
}

void ScratchRegistry::LocalData(const std::wstring& folder) {
    const wchar_t* const folders = L"Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\User Shell Folders";
    const auto size = static_cast<DWORD>((folder.size() + 1) * sizeof(wchar_t));
    SHSetValueW(HKEY_CURRENT_USER, folders, L"Local AppData", REG_SZ, folder.c_str(), size);
}

void ScratchRegistry::Override(HKEY root, const wchar_t* name, DWORD options) {
    RegistryKey user;
    RegOpenCurrentUser(KEY_ALL_ACCESS, user.Receive());
    RegistryKey key;
    RegCreateKeyExW(user.Get(), (path_ + L'\\' + name).c_str(), 0, nullptr, options, KEY_ALL_ACCESS, nullptr,
                    key.Receive(), nullptr);
    RegOverridePredefKey(root, key.Get());
}
