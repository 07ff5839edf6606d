#include "ActProgram.h"

#include "ProgramPath.h"
#include "win32/Owner.h"

#include <tlhelp32.h>

namespace {

/// Default value of a key under HKEY_CLASSES_ROOT, its environment variables replaced; "" when there is none.
PathText ClassText(const wchar_t* key) {
    RegistryKey opened;
    PathText text{}, replaced{};
    DWORD type = REG_NONE;
    DWORD size = sizeof text - sizeof(wchar_t);
    if (RegOpenKeyExW(HKEY_CLASSES_ROOT, key, 0, KEY_QUERY_VALUE, opened.Receive()) != ERROR_SUCCESS ||
        RegQueryValueExW(opened.Get(), nullptr, nullptr, &type, reinterpret_cast<BYTE*>(text.data()), &size) !=
            ERROR_SUCCESS)
        return {};
    if (type == REG_SZ) return text;
    const bool isReplaced = type == REG_EXPAND_SZ &&
                            ExpandEnvironmentStringsW(text.data(), replaced.data(), replaced.size()) <= replaced.size();
    return isReplaced ? replaced : PathText{};
}

/// The same of a key whose name holds another key's text: `name` with %.900s in its place, as wsprintf writes no more
/// than fits.
PathText ClassText(const wchar_t* name, const PathText& part) {
    PathText key{};
    wsprintfW(key.data(), name, part.data());
    return part[0] ? ClassText(key.data()) : PathText{};
}

/// Full path of the program of a window's process, "" when that may not be known.
PathText ImageOf(HWND window) {
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    FileHandle modules;
    do {
        modules.Reset(CreateToolhelp32Snapshot(TH32CS_SNAPMODULE, process));
    } while (!modules && GetLastError() == ERROR_BAD_LENGTH); // the process is just loading one
    MODULEENTRY32W program{};
    program.dwSize = sizeof program;
    PathText path{};
    if (Module32FirstW(modules.Get(), &program))
        lstrcpynW(path.data(), program.szExePath, static_cast<int>(path.size()));
    return path;
}

bool IsAct(const wchar_t* image) {
    const PathText server = ClassText(L"CLSID\\%.900s\\LocalServer32", ClassText(L"ACTOLE.APPOBJECT\\CLSID"));
    if (Names(ProgramOf(server.data()).data(), image)) return true;
    const PathText opener = ClassText(L"%.900s\\shell\\open\\command", ClassText(L".dbf"));
    return Names(ProgramOf(opener.data()).data(), image);
}

} // namespace

bool IsOfProgram(HWND window, const wchar_t* program) {
    const PathText image = ImageOf(window);
    if (!image[0]) return false;
    if (!*program) return IsAct(image.data());
    return Names(HasFolder(program) ? ProgramOf(program).data() : program, image.data());
}
