#include "server/Registration.h"

#include "common/Module.h"
#include "common/Protocol.h"
#include "win32/Owner.h"

#include <algorithm>
#include <array>
#include <string>
#include <vector>

namespace {

constexpr wchar_t kClasses[] = L"Software\\Classes\\";
constexpr wchar_t kFileClass[] = L"ActStandIn.Database";
constexpr wchar_t kReplaced[] = L"ActStandIn.Replaced";

struct Entry {
    std::wstring key; ///< under Software\Classes; parents come before their children
    std::wstring name;
    std::wstring value;
};

std::wstring IdText(const CLSID& id) {
    std::array<wchar_t, 64> text{};
    StringFromGUID2(id, text.data(), static_cast<int>(text.size()));
    return text.data();
}

void AddClass(std::vector<Entry>& entries, const wchar_t* progId, const CLSID& id, const wchar_t* kind,
              const std::wstring& server) {
    const std::wstring classKey = L"CLSID\\" + IdText(id);
    const std::wstring serverKey = classKey + L'\\' + kind;
    entries.insert(entries.end(), {{progId, L"", L"ACT! stand-in"},
                                   {std::wstring(progId) + L"\\CLSID", L"", IdText(id)},
                                   {classKey, L"", std::wstring(L"ACT! stand-in: ") + progId},
                                   {classKey + L"\\ProgID", L"", progId},
                                   {serverKey, L"", server}});
    if (kind == std::wstring(L"InprocServer32")) entries.push_back({serverKey, L"ThreadingModel", L"Apartment"});
}

std::vector<Entry> Entries() {
    const std::wstring program = L'"' + ModulePath() + L'"';
    std::vector<Entry> entries;
    AddClass(entries, L"ACTOLE.APPOBJECT", ClassIds::AppObject, L"LocalServer32", program);
    AddClass(entries, L"ACTOLE.AUXCMDS", ClassIds::AuxCommands, L"LocalServer32", program);
    AddClass(entries, L"ACTEVENTLib.ActEvent", ClassIds::ActEvent, L"InprocServer32", BesideModule(L"ActEvent.dll"));
    const std::wstring fileClass = kFileClass;
    entries.insert(entries.end(), {{fileClass, L"", L"ACT! database"},
                                   {fileClass + L"\\shell", L"", L"open"},
                                   {fileClass + L"\\shell\\open", L"", L"Open"},
                                   {fileClass + L"\\shell\\open\\command", L"", program + L" \"%1\""}});
    return entries;
}

std::wstring Read(HKEY root, const std::wstring& key, const wchar_t* name) {
    RegistryKey opened;
    std::array<wchar_t, 1024> text{};
    DWORD size = sizeof(text) - sizeof(wchar_t);
    if (RegOpenKeyExW(root, (kClasses + key).c_str(), 0, KEY_QUERY_VALUE, opened.Receive()) != ERROR_SUCCESS ||
        RegQueryValueExW(opened.Get(), name, nullptr, nullptr, reinterpret_cast<BYTE*>(text.data()), &size) !=
            ERROR_SUCCESS)
        return {};
    return text.data();
}

bool Write(HKEY root, const Entry& entry) {
    RegistryKey key;
    const size_t size = (entry.value.size() + 1) * sizeof(wchar_t);
    return RegCreateKeyExW(root, (kClasses + entry.key).c_str(), 0, nullptr, 0, KEY_WRITE, nullptr, key.Receive(),
                           nullptr) == ERROR_SUCCESS &&
           RegSetValueExW(key.Get(), entry.name.c_str(), 0, REG_SZ, reinterpret_cast<const BYTE*>(entry.value.c_str()),
                          static_cast<DWORD>(size)) == ERROR_SUCCESS;
}

bool Associate(HKEY root) {
    const std::wstring before = Read(root, L".dbf", L"");
    if (before == kFileClass) return true;
    if (!before.empty() && !Write(root, {L".dbf", kReplaced, before})) return false;
    return Write(root, {L".dbf", L"", kFileClass});
}

void DeleteIfEmpty(HKEY root, const std::wstring& key) {
    DWORD keys = 1, values = 1;
    {
        RegistryKey opened;
        if (RegOpenKeyExW(root, (kClasses + key).c_str(), 0, KEY_READ, opened.Receive()) != ERROR_SUCCESS) return;
        RegQueryInfoKeyW(opened.Get(), nullptr, nullptr, nullptr, &keys, nullptr, nullptr, &values, nullptr, nullptr,
                         nullptr, nullptr);
    }
    if (keys == 0 && values == 0) RegDeleteKeyW(root, (kClasses + key).c_str());
}

bool DeleteValue(HKEY root, const std::wstring& key, const wchar_t* name) {
    RegistryKey opened;
    if (RegOpenKeyExW(root, (kClasses + key).c_str(), 0, KEY_SET_VALUE, opened.Receive()) != ERROR_SUCCESS)
        return false;
    return RegDeleteValueW(opened.Get(), name) == ERROR_SUCCESS;
}

void Dissociate(HKEY root) {
    if (Read(root, L".dbf", L"") != kFileClass) return;
    const std::wstring before = Read(root, L".dbf", kReplaced);
    if (before.empty())
        DeleteValue(root, L".dbf", L"");
    else
        Write(root, {L".dbf", L"", before});
    DeleteValue(root, L".dbf", kReplaced);
    DeleteIfEmpty(root, L".dbf");
}

bool RegisterUnder(HKEY root) {
    for (const Entry& entry : Entries())
        if (!Write(root, entry)) return false;
    return Associate(root);
}

void UnregisterUnder(HKEY root) {
    std::vector<Entry> entries = Entries();
    std::ranges::reverse(entries);
    for (const Entry& entry : entries) {
        DeleteValue(root, entry.key, entry.name.c_str());
        DeleteIfEmpty(root, entry.key);
    }
    for (const Entry& entry : entries) DeleteIfEmpty(root, entry.key);
    Dissociate(root);
}

bool IsGone(HKEY root) { return Read(root, L"ACTOLE.APPOBJECT\\CLSID", L"").empty(); }

} // namespace

namespace Registration {

bool Register() { return RegisterUnder(HKEY_LOCAL_MACHINE) || RegisterUnder(HKEY_CURRENT_USER); }

bool Unregister() {
    UnregisterUnder(HKEY_LOCAL_MACHINE);
    UnregisterUnder(HKEY_CURRENT_USER);
    return IsGone(HKEY_LOCAL_MACHINE) && IsGone(HKEY_CURRENT_USER);
}

} // namespace Registration
