#include "support/ActDesk.h"

#include "i18n/modLangues.h"
#include "stores/RegistrySubs.h"
#include "support/MsgBox.h"

ActDesk::ActDesk() {
    Program() = ProgramState();
    SilenceMessages(false);
    file.Bytes(" \r\n");
    modLangues::Init_Language(short{0});
    UserStore::Set(L"Settings", L"IniLocation", file.Path());
    UserStore::Set(L"Settings", L"Installed", L"1");
    UserStore::Set(L"Settings", L"Version", L"320");
}

void ActDesk::AddDatabase(const std::wstring& name,
                          std::initializer_list<std::pair<const wchar_t*, std::wstring>> keys) {
    const std::wstring sort = IniLib::GetKeyValue(L"General", L"Sort");
    REQUIRE(IniLib::WriteKeyValue(L"General", L"Sort", sort.empty() ? name : sort + L";" + name));
    for (const auto& [key, value] : keys) REQUIRE(IniLib::WriteKeyValue(name, key, value));
}

namespace {

void CALLBACK GiveUp(HWND, UINT, UINT_PTR, DWORD) { PostQuitMessage(1); }

} // namespace

void RunToEnd(frmMain& window) {
    constexpr UINT kDeadlineMilliseconds = 10000;
    const UINT_PTR deadline = SetTimer(nullptr, 0, kDeadlineMilliseconds, &GiveUp);
    Form::RunMessageLoop();
    KillTimer(nullptr, deadline);
    CHECK(window.Unloaded());
}

void End(frmMain& window) {
    window.Unload();
    MSG message{};
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
    }
}

std::wstring IniValue(const std::wstring& section, const wchar_t* key) {
    return IniLib::GetKeyValue(section, key, L"(none)");
}

std::wstring UserValue(const std::wstring& section, const wchar_t* key) {
    return UserStore::Get(section, key, L"(none)");
}

std::wstring ActValue(const std::wstring& subkey, const wchar_t* name) {
    const auto value = RegistrySubs::GetRegistryValue(HKEY_CURRENT_USER, L"Software\\Symantec\\ACT!" + subkey, name);
    if (const auto* number = std::get_if<std::int32_t>(&value)) return std::to_wstring(*number);
    const auto* text = std::get_if<std::wstring>(&value);
    return text ? *text : L"(none)";
}

void MakeActKeys() {
    for (const wchar_t* name : {L"Software\\Symantec\\ACT!\\Database", L"Software\\Symantec\\ACT!\\General"})
        RegistrySubs::CreateRegistryKey(HKEY_CURRENT_USER, name);
}
