#include "stores/UserStore.h"

#include "support/ScratchRegistry.h"
#include "support/Wide.h"

namespace {

constexpr wchar_t kRoot[] = L"Software\\VB and VBA Program Settings\\Kelmorra";

RegistryKey Open(const std::wstring& section) {
    RegistryKey key;
    RegOpenKeyExW(HKEY_CURRENT_USER, (kRoot + section).c_str(), 0, KEY_ALL_ACCESS, key.Receive());
    return key;
}

} // namespace

TEST_CASE_FIXTURE(ScratchRegistry, "Deleting takes a value, a section but none below or beside it, or everything") {
    for (const wchar_t* section : {L"A", L"A\\B", L"AB", L"Settings"}) UserStore::Set(section, L"Username", section);
    UserStore::Set(L"A", L"Password", L"x");
    UserStore::Delete(L"A", L"Password");
    CHECK(UserStore::Get(L"A", L"Password", L"gone") == L"gone");
    CHECK(UserStore::Get(L"A", L"Username") == L"A");
    CHECK_FALSE(UserStore::Set(L"", L"Username", L"x")); // an empty name names no section
    UserStore::DeleteSection(L"");
    UserStore::DeleteSection(L"a");
    CHECK(UserStore::Get(L"A", L"Username", L"gone") == L"gone");
    for (const wchar_t* section : {L"A\\B", L"AB", L"Settings"}) CHECK(UserStore::Get(section, L"Username") == section);
    UserStore::DeleteSection(L"A\\B");
    UserStore::DeleteSection(L"A");
    CHECK_FALSE(Open(L"\\A"));
    UserStore::DeleteAll();
    CHECK_FALSE(Open(L""));
}

TEST_CASE_FIXTURE(ScratchRegistry, "A value that cannot be written is false") {
    RefuseKeysBelow(HKEY_CURRENT_USER);
    CHECK_FALSE(UserStore::Set(L"Settings", L"Height", L"1"));
}
