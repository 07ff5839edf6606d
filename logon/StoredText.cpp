#include "StoredText.h"

#include "stores/UserStore.h"
#include "support/Application.h"
#include "win32/Owner.h"

#include <cwchar>

namespace {

RegistryKey OpenSection(const wchar_t* section) {
    RegistryKey key, child;
    RegOpenKeyExW(HKEY_CURRENT_USER, UserStore::Root, 0, KEY_READ, key.Receive());
    for (const wchar_t* name : {Application::Title, section}) {
        if (!key || RegOpenKeyExW(key.Get(), name, 0, KEY_READ, child.Receive()) != ERROR_SUCCESS) return {};
        key.Reset(child.Release());
    }
    return key;
}

} // namespace

StoredText::StoredText(const wchar_t* section, const wchar_t* key, const wchar_t* otherwise) {
    if (Read(section, key)) return;
    SecureZeroMemory(characters_.data(), sizeof characters_);
    length_ = std::wcslen(otherwise);
    std::wmemcpy(characters_.data(), otherwise, length_);
}

StoredText::~StoredText() { SecureZeroMemory(characters_.data(), sizeof characters_); }

bool StoredText::Read(const wchar_t* section, const wchar_t* key) {
    const RegistryKey opened = OpenSection(section);
    DWORD type = REG_NONE;
    DWORD size = sizeof characters_;
    if (!opened || RegQueryValueExW(opened.Get(), key, nullptr, &type, reinterpret_cast<BYTE*>(characters_.data()),
                                    &size) != ERROR_SUCCESS)
        return false;
    length_ = size / sizeof(wchar_t);
    // Exactly one zero ends the value, if any: a cipher text may end in zeros of its own.
    if (length_ > 0 && characters_[length_ - 1] == L'\0') --length_;
    return type == REG_SZ && length_ <= Longest;
}

int StoredText::Number() const { return static_cast<int>(std::wcstol(Get(), nullptr, 10)); }
