#include "support/modFolderFileExists.h"

#include "support/ErrorReport.h"
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
    // Not the shell: it answers yes for drives that are not there, and loading it takes longer than all else here.
    return GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES;
} catch (...) {
    ErrorReport("modFolderFileExists: Function FileExists");
    return false;
}

} // namespace modFolderFileExists
