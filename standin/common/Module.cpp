#include "common/Module.h"

#include "support/Text.h"
#include "win32/Windows.h"

#include <array>

std::wstring ModulePath() {
    HMODULE module = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       reinterpret_cast<const wchar_t*>(&ModulePath), &module);
    std::array<wchar_t, 32768> path{};
    return {path.data(), GetModuleFileNameW(module, path.data(), path.size())};
}

std::wstring BesideModule(const std::wstring& fileName) {
    const std::wstring path = ModulePath();
    return Text::JoinPath(path.substr(0, path.rfind(L'\\')), fileName);
}

std::wstring NamedOrBeside(const wchar_t* variable, const std::wstring& fileName) {
    std::array<wchar_t, 32768> path{};
    const DWORD length = GetEnvironmentVariableW(variable, path.data(), path.size());
    return length > 0 && length < path.size() ? std::wstring(path.data(), length) : BesideModule(fileName);
}
