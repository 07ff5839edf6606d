#include "settings/modFolderFileExists.h"

#include "support/ErrorReport.h"
#include "win32/AnsiText.h"
#include "win32/Windows.h"

namespace {

bool IsAbsolute(const std::wstring& path) {
    const bool ofShare = path.starts_with(L"\\\\") && path.size() > 2;
    const bool ofDrive = path.size() > 2 && path[1] == L':' && (path[2] == L'\\' || path[2] == L'/');
    return ofShare || ofDrive;
}

} // namespace

namespace modFolderFileExists {

bool FileExists(const std::wstring& path) try {
    if (!IsAbsolute(path)) return false;
    const std::string bytes = ToAnsi(path);
    SHFILEINFOA info{};
    // The shell alone answers yes for drives that are not there.
    return SHGetFileInfoA(bytes.c_str(), 0, &info, sizeof info, SHGFI_DISPLAYNAME) != 0 &&
           GetFileAttributesA(bytes.c_str()) != INVALID_FILE_ATTRIBUTES;
} catch (...) {
    ErrorReport("modFolderFileExists: Function FileExists");
    return false;
}

} // namespace modFolderFileExists
