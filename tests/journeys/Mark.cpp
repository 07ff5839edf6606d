// Leaves a file beside itself that tells the folder in which it was started.

#include "win32/Windows.h"

#include <filesystem>
#include <fstream>

int wmain(int, wchar_t** arguments) {
    const std::filesystem::path mark = std::wstring(arguments[0]) + L".mark", whole = mark.wstring() + L".new";
    std::ofstream(whole, std::ios::binary) << std::filesystem::current_path().string();
    std::filesystem::rename(whole, mark);
    return 0;
}
