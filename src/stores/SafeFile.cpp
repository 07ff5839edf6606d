#include "stores/SafeFile.h"

#include "win32/Owner.h"

#include <vector>

namespace {

constexpr DWORD kLockPatience = 240; // milliseconds, for other writers
constexpr DWORD kPatience = 200;     // for everybody else; "access denied" may mean truly no right
constexpr DWORD kPause = 1;          // short: whoever reads the file in a loop leaves it closed for no longer

/// How long a part of a change has been waiting.
class Patience {
public:
    explicit Patience(DWORD milliseconds) : start_(GetTickCount()), milliseconds_(milliseconds) {}
    bool IsOver() const { return GetTickCount() - start_ >= milliseconds_; }

private:
    DWORD start_;
    DWORD milliseconds_;
};

/// Repeats a call that others get in the way of. The error code of the last try, ERROR_SUCCESS when it went well.
template <class Call>
DWORD Persist(const Patience& patience, Call call) {
    Patience denied(kPatience);
    while (!call()) {
        const DWORD error = GetLastError();
        if (error == ERROR_SHARING_VIOLATION)
            denied = Patience(kPatience);
        else if (error != ERROR_ACCESS_DENIED || denied.IsOver())
            return error;
        if (patience.IsOver()) return error;
        Sleep(kPause);
    }
    return ERROR_SUCCESS;
}

bool IsInTheWay(DWORD error) { return error == ERROR_ACCESS_DENIED || error == ERROR_SHARING_VIOLATION; }

bool MayBeWritten(const std::wstring& path) {
    constexpr DWORD kUnwritable = FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_DIRECTORY;
    const DWORD attributes = GetFileAttributesW(path.c_str());
    return attributes == INVALID_FILE_ATTRIBUTES || (attributes & kUnwritable) == 0;
}

/// The discretionary access list of a file as the system hands it out; empty when it has none to give.
std::vector<BYTE> Permissions(const std::wstring& path) {
    DWORD size = 0;
    GetFileSecurityW(path.c_str(), DACL_SECURITY_INFORMATION, nullptr, 0, &size);
    std::vector<BYTE> permissions(size);
    if (!GetFileSecurityW(path.c_str(), DACL_SECURITY_INFORMATION, permissions.data(), size, &size)) return {};
    return permissions;
}

/// The copy was made with the folder's permissions; the file may have been given others.
void KeepPermissions(const std::wstring& from, const std::wstring& to) {
    std::vector<BYTE> permissions = Permissions(from);
    if (!permissions.empty() && permissions != Permissions(to))
        SetFileSecurityW(to.c_str(), DACL_SECURITY_INFORMATION, permissions.data());
}

void FlushToDisk(const std::wstring& path) {
    const FileHandle file(
        CreateFileW(path.c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr));
    if (file) FlushFileBuffers(file.Get());
}

/// The copy that is changed. The name is always the same, so that what a killed writer left goes with the next change.
class WorkingCopy {
public:
    explicit WorkingCopy(const std::wstring& original) : original_(original), path_(original + L".new") { Remove(); }
    ~WorkingCopy() { Remove(); }
    WorkingCopy(const WorkingCopy&) = delete;
    WorkingCopy& operator=(const WorkingCopy&) = delete;

    /// Copies the original, if there is one, changes the copy and moves it over the original. An error code.
    DWORD Replace(const SafeFile::Edit& edit) const;

private:
    void Remove() const {
        SetFileAttributesW(path_.c_str(), FILE_ATTRIBUTE_NORMAL);
        DeleteFileW(path_.c_str());
    }

    const std::wstring& original_;
    std::wstring path_;
    Patience patience_{kPatience};
};

DWORD WorkingCopy::Replace(const SafeFile::Edit& edit) const {
    const DWORD attributes = GetFileAttributesW(original_.c_str());
    const bool isNew = attributes == INVALID_FILE_ATTRIBUTES;
    const auto copy = [&] { return CopyFileW(original_.c_str(), path_.c_str(), FALSE) != 0; };
    if (const DWORD error = isNew ? ERROR_SUCCESS : Persist(patience_, copy)) return error;
    // A hidden copy could not be opened by every kind of writing.
    SetFileAttributesW(path_.c_str(), FILE_ATTRIBUTE_NORMAL);
    if (const DWORD error = Persist(patience_, [&] { return edit(path_); })) return error;
    if (SafeFile::Read(path_) == SafeFile::Read(original_)) return ERROR_SUCCESS;
    FlushToDisk(path_);
    if (!isNew) {
        KeepPermissions(original_, path_);
        SetFileAttributesW(path_.c_str(), attributes);
    }
    return Persist(patience_, [&] {
        return MoveFileExW(path_.c_str(), original_.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0;
    });
}

} // namespace

namespace SafeFile {

bool Change(const std::wstring& path, const Edit& edit) {
    if (!MayBeWritten(path)) return false;
    const std::wstring lockPath = path + L".lock";
    FileHandle lock;
    const DWORD refused = Persist(Patience(kLockPatience), [&] {
        lock.Reset(CreateFileW(lockPath.c_str(), GENERIC_WRITE, 0, nullptr, OPEN_ALWAYS,
                               FILE_ATTRIBUTE_HIDDEN | FILE_FLAG_DELETE_ON_CLOSE, nullptr));
        return static_cast<bool>(lock);
    });
    if (refused != ERROR_SUCCESS && refused != ERROR_ACCESS_DENIED) return false;
    if (!lock) return edit(path);
    const DWORD error = WorkingCopy(path).Replace(edit);
    return error == ERROR_SUCCESS || (IsInTheWay(error) && edit(path));
}

std::optional<std::string> Read(const std::wstring& path) {
    const FileHandle file(CreateFileW(path.c_str(), GENERIC_READ,
                                      FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_EXISTING, 0,
                                      nullptr));
    if (!file) return std::nullopt;
    constexpr DWORD kBlock = 0x4000; // a settings file of some forty databases
    std::string bytes;
    DWORD count = 0;
    do {
        const size_t before = bytes.size();
        bytes.resize(before + kBlock);
        if (!ReadFile(file.Get(), &bytes[before], kBlock, &count, nullptr)) return std::nullopt;
        bytes.resize(before + count);
    } while (count > 0);
    return bytes;
}

} // namespace SafeFile
