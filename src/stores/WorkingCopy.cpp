#include "stores/WorkingCopy.h"

#include "stores/Patience.h"
#include "stores/Permissions.h"
#include "win32/Owner.h"

#include <array>

namespace {

DWORD ErrorUnless(BOOL isDone) { return isDone ? ERROR_SUCCESS : GetLastError(); }

std::wstring TemporaryName() {
    std::array<wchar_t, MAX_PATH + 1> folder{};
    std::array<wchar_t, MAX_PATH + 1> name{};
    if (!GetTempPathW(folder.size(), folder.data()) || !GetTempFileNameW(folder.data(), L"kel", 0, name.data()))
        return {};
    return name.data();
}

FileHandle Create(const std::wstring& path) {
    return FileHandle(
        CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr));
}

void FlushToDisk(const std::wstring& path) {
    const FileHandle file(
        CreateFileW(path.c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr));
    if (file) FlushFileBuffers(file.Get());
}

/// To replace one name of such a file would part it from its others.
bool HasSecondName(const std::wstring& path) {
    constexpr DWORD kAllSharing = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    const FileHandle file(
        CreateFileW(path.c_str(), FILE_READ_ATTRIBUTES, kAllSharing, nullptr, OPEN_EXISTING, 0, nullptr));
    BY_HANDLE_FILE_INFORMATION information{};
    return file && GetFileInformationByHandle(file.Get(), &information) && information.nNumberOfLinks > 1;
}

/// The file gets its new length first: a disk that is full refuses before anything is overwritten.
bool WriteOver(HANDLE file, const std::string& bytes) {
    LARGE_INTEGER before{};
    const auto length = static_cast<LONG>(bytes.size());
    if (!GetFileSizeEx(file, &before)) return false;
    if (before.QuadPart < length &&
        (SetFilePointer(file, length, nullptr, FILE_BEGIN) == INVALID_SET_FILE_POINTER || !SetEndOfFile(file)))
        return false;
    DWORD written = 0;
    SetFilePointer(file, 0, nullptr, FILE_BEGIN);
    return WriteFile(file, bytes.data(), static_cast<DWORD>(length), &written, nullptr) && SetEndOfFile(file) &&
           FlushFileBuffers(file);
}

} // namespace

WorkingCopy::WorkingCopy(const std::wstring& original, bool isBeside)
    : original_(original), path_(isBeside ? original + L".new" : TemporaryName()), isBeside_(isBeside) {}

void WorkingCopy::Remove() const {
    SetFileAttributesW(path_.c_str(), FILE_ATTRIBUTE_NORMAL);
    DeleteFileW(path_.c_str());
}

DWORD WorkingCopy::Change(const SafeFile::Edit& edit) {
    return Persist(Patience(Patience::ForOthers), [&]() -> DWORD {
        const DWORD error = CopyAfresh();
        return error == ERROR_SUCCESS ? edit(path_, isNew_) : error;
    });
}

DWORD WorkingCopy::CopyAfresh() {
    if (path_.empty()) return ERROR_PATH_NOT_FOUND;
    Remove();
    isNew_ = false;
    isMisplaced_ = false;
    if (CopyFileW(original_.c_str(), path_.c_str(), FALSE)) {
        // A hidden copy could not be opened by every kind of writing.
        SetFileAttributesW(path_.c_str(), FILE_ATTRIBUTE_NORMAL);
        return ERROR_SUCCESS;
    }
    const DWORD error = GetLastError();
    const SafeFile::Contents original = SafeFile::Read(original_);
    isNew_ = original.IsMissing();
    isMisplaced_ = original.IsRead() && error != ERROR_DISK_FULL && !Patience::IsOutage(error);
    // Made here: Wine takes what it remembers of an earlier file of that name for one that is still to be made.
    if (isNew_) return ErrorUnless(static_cast<bool>(Create(path_)));
    return original.IsRead() ? error : original.Error;
}

DWORD WorkingCopy::PutInPlace() const {
    const DWORD attributes = GetFileAttributesW(original_.c_str());
    if (!isNew_ && attributes == INVALID_FILE_ATTRIBUTES) return GetLastError();
    const SafeFile::Contents before = SafeFile::Read(original_);
    const SafeFile::Contents after = SafeFile::Read(path_);
    if (!after.IsRead()) return after.Error;
    if (isNew_ && after.Bytes.empty()) return ERROR_SUCCESS;
    if (before.IsRead() && before.Bytes == after.Bytes) return ERROR_SUCCESS;
    const Patience patience(Patience::ForOthers);
    const bool mayReplace = isBeside_ && (isNew_ || !HasSecondName(original_));
    const DWORD error = mayReplace ? Replace(attributes, patience) : ERROR_ACCESS_DENIED;
    // A share that goes away at this moment is no reason to do without the one step.
    if (error == ERROR_SUCCESS || Patience::IsOutage(error)) return error;
    return Overwrite(after.Bytes, patience);
}

DWORD WorkingCopy::Replace(DWORD attributes, const Patience& patience) const {
    FlushToDisk(path_);
    if (!isNew_) {
        if (const DWORD error = Permissions::CarryOver(original_, path_)) return error;
        SetFileAttributesW(path_.c_str(), attributes);
    }
    // One that has come back meanwhile is not replaced: nobody has read it.
    const DWORD how = MOVEFILE_WRITE_THROUGH | (isNew_ ? 0 : MOVEFILE_REPLACE_EXISTING);
    return Persist(patience, [&] { return ErrorUnless(MoveFileExW(path_.c_str(), original_.c_str(), how)); });
}

DWORD WorkingCopy::Overwrite(const std::string& bytes, const Patience& patience) const {
    FileHandle file;
    const DWORD error = Persist(patience, [&] {
        file.Reset(CreateFileW(original_.c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr,
                               isNew_ ? CREATE_NEW : OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
        return ErrorUnless(static_cast<bool>(file));
    });
    return error == ERROR_SUCCESS ? ErrorUnless(WriteOver(file.Get(), bytes)) : error;
}
