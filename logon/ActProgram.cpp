#include "ActProgram.h"

#include "win32/Owner.h"

#include <tlhelp32.h>

#include <array>
#include <cwchar>

namespace {

using Command = std::array<wchar_t, 1024>;

/// The text of a key under HKEY_CLASSES_ROOT, "" when there is none.
Command ClassText(const wchar_t* key) {
    Command text{};
    auto size = static_cast<LONG>(sizeof text - sizeof(wchar_t));
    if (RegQueryValueW(HKEY_CLASSES_ROOT, key, text.data(), &size) != ERROR_SUCCESS) text = {};
    return text;
}

/// The command that opens .dbf files. FindExecutable would do the same with more, but needs a file to look at.
Command OpeningCommand() {
    constexpr wchar_t kCommand[] = L"\\shell\\open\\command";
    Command type = ClassText(L".dbf");
    const size_t length = std::wcslen(type.data());
    if (length == 0 || length + std::size(kCommand) > type.size()) return {};
    std::wmemcpy(type.data() + length, kCommand, std::size(kCommand));
    return ClassText(type.data());
}

/// True when a command or path names a file, in whatever folder.
bool Names(const wchar_t* command, const wchar_t* file) {
    const size_t length = std::wcslen(file);
    for (const wchar_t* place = command; *place; ++place) {
        const bool begins = place == command || place[-1] == L'\\' || place[-1] == L'"';
        if (!begins || _wcsnicmp(place, file, length) != 0) continue;
        const wchar_t next = place[length];
        if (next == L'\0' || next == L'"' || next == L' ') return true;
    }
    return false;
}

PROCESSENTRY32W ProcessOf(HWND window) {
    DWORD id = 0;
    GetWindowThreadProcessId(window, &id);
    const FileHandle processes(CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0));
    PROCESSENTRY32W entry{};
    entry.dwSize = sizeof entry;
    for (BOOL is = Process32FirstW(processes.Get(), &entry); is; is = Process32NextW(processes.Get(), &entry))
        if (entry.th32ProcessID == id) return entry;
    return {};
}

} // namespace

bool IsOfProgram(HWND window, const wchar_t* program) {
    const PROCESSENTRY32W process = ProcessOf(window);
    if (!process.szExeFile[0]) return false;
    return Names(*program ? program : OpeningCommand().data(), process.szExeFile);
}
