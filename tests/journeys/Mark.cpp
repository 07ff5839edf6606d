// Leaves a file beside itself that tells how it was started: its current folder, and behind a "+" its first argument.

#include "win32/Owner.h"

#include <array>
#include <string>

int wmain(int count, wchar_t** arguments) {
    std::array<wchar_t, MAX_PATH> folder{};
    GetCurrentDirectoryW(static_cast<DWORD>(folder.size()), folder.data());
    const std::wstring text = folder.data() + (count > 1 ? std::wstring(L"+") + arguments[1] : std::wstring());
    const std::wstring mark = std::wstring(arguments[0]) + L".mark";
    {
        const FileHandle file(CreateFileW((mark + L".new").c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                          FILE_ATTRIBUTE_NORMAL, nullptr));
        DWORD written = 0;
        WriteFile(file.Get(), text.data(), static_cast<DWORD>(text.size() * sizeof(wchar_t)), &written, nullptr);
    }
    return MoveFileExW((mark + L".new").c_str(), mark.c_str(), MOVEFILE_REPLACE_EXISTING) ? 0 : 1;
}
