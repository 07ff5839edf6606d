#include "stores/SafeFile.h"

#include "stores/FileLock.h"
#include "stores/Patience.h"
#include "stores/WorkingCopy.h"
#include "support/Text.h"
#include "win32/Owner.h"

namespace {

constexpr DWORD kAllSharing = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

/// The path that a file or folder is really at; "" where nobody tells. The function came with Windows Vista, like
/// links.
std::wstring FinalPath(const std::wstring& path) {
    using FinalPathByHandle = DWORD(WINAPI*)(HANDLE, wchar_t*, DWORD, DWORD);
    const auto finalPath = reinterpret_cast<FinalPathByHandle>(
        GetProcAddress(GetModuleHandleW(L"kernel32.dll"), "GetFinalPathNameByHandleW"));
    const FileHandle file(CreateFileW(path.c_str(), FILE_READ_ATTRIBUTES, kAllSharing, nullptr, OPEN_EXISTING,
                                      FILE_FLAG_BACKUP_SEMANTICS, nullptr));
    std::wstring target(0x8000, L'\0');
    target.resize(finalPath && file ? finalPath(file.Get(), target.data(), static_cast<DWORD>(target.size()), 0) : 0);
    if (target.starts_with(L"\\\\?\\UNC\\")) return L"\\\\" + target.substr(8);
    return target.starts_with(L"\\\\?\\") ? target.substr(4) : target;
}

/// The path behind a symbolic link, and any other path as it is: a link is what leads out of its own folder. Other
/// reparse points, of clouds and of deduplication, do not.
std::wstring Target(const std::wstring& path) {
    const std::wstring target = FinalPath(path);
    const std::wstring folder = FinalPath(Text::ExtractPath(path));
    const bool isLink = !target.empty() && !folder.empty() &&
                        !Text::EqualNoCase(target, Text::JoinPath(folder, Text::AfterLast(path, L'\\')));
    return isLink ? target : path;
}

/// False also when the file cannot be asked: only one that is not there is known to be none.
bool MayBeWritten(const std::wstring& path) {
    constexpr DWORD kUnwritable = FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_DIRECTORY;
    DWORD attributes = INVALID_FILE_ATTRIBUTES;
    const DWORD error = Persist(Patience(Patience::ForOthers), [&] {
        attributes = GetFileAttributesW(path.c_str());
        return attributes == INVALID_FILE_ATTRIBUTES ? GetLastError() : ERROR_SUCCESS;
    });
    if (error != ERROR_SUCCESS) return SafeFile::Contents{error, {}}.IsMissing();
    return (attributes & kUnwritable) == 0;
}

} // namespace

namespace SafeFile {

bool Change(const std::wstring& path, const Edit& edit) {
    const std::wstring file = Target(path);
    if (!MayBeWritten(file)) return false;
    const FileLock lock(file);
    if (lock.IsRefused()) return false;
    if (lock.IsTaken()) {
        WorkingCopy copy(file, true);
        const DWORD error = copy.Change(edit);
        if (error == ERROR_SUCCESS) return copy.PutInPlace() == ERROR_SUCCESS;
        if (!copy.IsMisplaced() && (Patience::Helps(error) || error == ERROR_CANCELLED)) return false;
    }
    WorkingCopy elsewhere(file, false);
    return elsewhere.Change(edit) == ERROR_SUCCESS && elsewhere.PutInPlace() == ERROR_SUCCESS;
}

Contents Read(const std::wstring& path) {
    const FileHandle file(CreateFileW(path.c_str(), GENERIC_READ, kAllSharing, nullptr, OPEN_EXISTING, 0, nullptr));
    if (!file) {
        const DWORD error = GetLastError();
        const DWORD attributes = error == ERROR_ACCESS_DENIED ? GetFileAttributesW(path.c_str()) : 0;
        const bool isFolder = attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
        return {isFolder ? ERROR_FILE_NOT_FOUND : error, {}};
    }
    constexpr DWORD kBlock = 0x4000; // a settings file of some forty databases
    Contents contents;
    DWORD count = 0;
    do {
        const size_t before = contents.Bytes.size();
        contents.Bytes.resize(before + kBlock);
        if (!ReadFile(file.Get(), &contents.Bytes[before], kBlock, &count, nullptr)) return {GetLastError(), {}};
        contents.Bytes.resize(before + count);
    } while (count > 0);
    return contents;
}

} // namespace SafeFile
