#include "stores/UserStore.h"

#include "stores/modEnCrypt.h"
#include "support/ScratchRegistry.h"
#include "support/Wide.h"
#include "win32/AnsiCodes.h"

namespace {

constexpr wchar_t kRoot[] = L"Software\\VB and VBA Program Settings\\Kelmorra";

void SetRaw(const wchar_t* section, DWORD type, const std::wstring& text, size_t size) {
    RegistryKey key;
    RegCreateKeyExW(HKEY_CURRENT_USER, (std::wstring(kRoot) + L'\\' + section).c_str(), 0, nullptr, 0, KEY_WRITE,
                    nullptr, key.Receive(), nullptr);
    RegSetValueExW(key.Get(), L"Key", 0, type, reinterpret_cast<const BYTE*>(text.c_str()), static_cast<DWORD>(size));
}

bool HasKey(const std::wstring& path) {
    RegistryKey key;
    return RegOpenKeyExW(HKEY_CURRENT_USER, path.c_str(), 0, KEY_READ, key.Receive()) == ERROR_SUCCESS;
}

std::wstring EveryCharacter() {
    std::wstring text;
    for (int code = 0; code < 256; ++code) text += AnsiCharacter(static_cast<unsigned char>(code));
    return text;
}

} // namespace

TEST_CASE_FIXTURE(ScratchRegistry, "Every character of a text comes back, zeros and line ends at its ends included") {
    const std::wstring every = EveryCharacter();
    const std::wstring rows[] = {L"",
                                 L"plain",
                                 every,
                                 every.substr(1) + L'\0',
                                 std::wstring(2, L'\0'),
                                 std::wstring(L"\r\n\0\r\0", 5),
                                 std::wstring(5000, L'ÿ')};
    for (const std::wstring& text : rows) {
        CHECK(UserStore::Set(L"Sales", L"Password", text));
        CHECK(UserStore::Get(L"sales", L"PASSWORD", L"default") == text);
    }
    const std::wstring cipher = modEnCrypt::EncryptText(every, L"Kelmorra");
    UserStore::Set(L"Sales", L"Password", cipher);
    CHECK(modEnCrypt::DecryptText(UserStore::Get(L"Sales", L"Password"), L"Kelmorra") == every);
}

TEST_CASE_FIXTURE(ScratchRegistry, "Values lie where the platform keeps a program's settings, ended by a zero") {
    UserStore::Set(L"Options", L"Language", L"2");
    wchar_t text[8] = L"";
    DWORD size = sizeof text;
    DWORD type = REG_NONE;
    RegistryKey key;
    RegOpenKeyExW(HKEY_CURRENT_USER, (std::wstring(kRoot) + L"\\Options").c_str(), 0, KEY_READ, key.Receive());
    RegQueryValueExW(key.Get(), L"Language", nullptr, &type, reinterpret_cast<BYTE*>(text), &size);
    CHECK(type == REG_SZ);
    CHECK(size == 2 * sizeof(wchar_t));
    CHECK(std::wstring(text) == L"2");
}

TEST_CASE_FIXTURE(ScratchRegistry, "Values that others wrote are read sanely") {
    CHECK(UserStore::Get(L"S", L"Key", L"default") == L"default");
    SetRaw(L"S", REG_SZ, L"unended", 7 * sizeof(wchar_t));
    CHECK(UserStore::Get(L"S", L"Key") == L"unended");
    SetRaw(L"S", REG_SZ, L"", 0);
    CHECK(UserStore::Get(L"S", L"Key", L"default").empty());
    SetRaw(L"S", REG_DWORD, L"12", 4);
    CHECK(UserStore::Get(L"S", L"Key", L"default") == L"default");
    SetRaw(L"S", REG_BINARY, L"ab", 3);
    CHECK(UserStore::Get(L"S", L"Key", L"default") == L"default");
}

TEST_CASE_FIXTURE(ScratchRegistry, "Deleting a section leaves those below it and beside it") {
    for (const wchar_t* section : {L"A", L"A\\B", L"AB", L"Settings"}) UserStore::Set(section, L"Username", section);
    UserStore::Set(L"A", L"Password", L"x");
    UserStore::DeleteSection(L"a");
    CHECK(UserStore::Get(L"A", L"Username").empty());
    CHECK(UserStore::Get(L"A", L"Password").empty());
    CHECK(UserStore::Get(L"A\\B", L"Username") == L"A\\B");
    UserStore::DeleteSection(L"A\\B");
    UserStore::DeleteSection(L"A");
    CHECK_FALSE(HasKey(std::wstring(kRoot) + L"\\A"));
    for (const wchar_t* section : {L"AB", L"Settings"}) CHECK(UserStore::Get(section, L"Username") == section);
}

TEST_CASE_FIXTURE(ScratchRegistry,
                  "One value can be deleted; an empty name names no section; everything can be deleted") {
    UserStore::Set(L"A", L"Username", L"u");
    UserStore::Set(L"A", L"Password", L"p");
    UserStore::Set(L"A\\B\\C", L"Username", L"u");
    UserStore::Delete(L"A", L"Password");
    CHECK(UserStore::Get(L"A", L"Password", L"gone") == L"gone");
    CHECK_FALSE(UserStore::Set(L"", L"Username", L"x"));
    UserStore::DeleteSection(L"");
    CHECK(UserStore::Get(L"A", L"Username") == L"u");
    UserStore::DeleteAll();
    CHECK_FALSE(HasKey(kRoot));
    CHECK(HasKey(L"Software\\VB and VBA Program Settings"));
}

TEST_CASE_FIXTURE(ScratchRegistry, "A value that cannot be written is false") {
    RefuseKeysBelow(HKEY_CURRENT_USER);
    CHECK_FALSE(UserStore::Set(L"Settings", L"Height", L"1"));
}
