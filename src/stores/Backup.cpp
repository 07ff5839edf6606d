#include "stores/Backup.h"

#include "stores/FileHealth.h"
#include "stores/SafeFile.h"
#include "win32/Owner.h"

#include <shlobj.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <vector>

namespace {

constexpr size_t kKept = 5;

/// The folder with a "\" behind it, created when it is missing; "" when the user has no such place.
std::wstring BackupFolder() {
    std::array<wchar_t, MAX_PATH> local{};
    if (SHGetFolderPathW(nullptr, CSIDL_LOCAL_APPDATA | CSIDL_FLAG_CREATE, nullptr, SHGFP_TYPE_CURRENT, local.data()) !=
        S_OK)
        return {};
    std::wstring folder = local.data();
    for (const wchar_t* name : {L"\\Kelmorra", L"\\Backup"}) CreateDirectoryW((folder += name).c_str(), nullptr);
    return folder + L'\\';
}

/// What the names of all copies of one settings file begin with: a number made of its path keeps those of different
/// files apart (FNV-1a).
std::wstring Prefix(std::wstring path) {
    CharUpperBuffW(path.data(), static_cast<DWORD>(path.size()));
    std::uint32_t number = 2166136261U;
    for (const wchar_t character : path) number = (number ^ static_cast<std::uint16_t>(character)) * 16777619U;
    std::array<wchar_t, 32> text{};
    wsprintfW(text.data(), L"Kelmorra-%08lX-", static_cast<unsigned long>(number));
    return text.data();
}

std::wstring TimeStamp() {
    SYSTEMTIME now{};
    GetSystemTime(&now);
    std::array<wchar_t, 32> text{};
    wsprintfW(text.data(), L"%04u%02u%02u-%02u%02u%02u", now.wYear, now.wMonth, now.wDay, now.wHour, now.wMinute,
              now.wSecond);
    return text.data();
}

/// The time stamp in the name of a copy.
std::wstring_view StampOf(const std::wstring& copy) {
    constexpr size_t kLength = sizeof "20261121-120000.ini" - 1;
    return std::wstring_view(copy).substr(copy.size() - std::min(copy.size(), kLength));
}

/// Full paths of the copies whose names begin so, oldest first.
std::vector<std::wstring> CopiesOf(const std::wstring& prefix) {
    std::vector<std::wstring> copies;
    const std::wstring folder = BackupFolder();
    WIN32_FIND_DATAW found{};
    const FindHandle search(FindFirstFileW((folder + prefix + L"*.ini").c_str(), &found));
    if (!search) return copies;
    do {
        const std::wstring path = folder + found.cFileName;
        copies.insert(std::ranges::upper_bound(copies, StampOf(path), {}, &StampOf), path);
    } while (FindNextFileW(search.Get(), &found));
    return copies;
}

std::vector<std::wstring> Copies(const std::wstring& settingsFile) { return CopiesOf(Prefix(settingsFile)); }

using SafeFile::Contents;

bool HoldsSettings(const Contents& contents) {
    return FileHealth::Inspect(contents) == FileHealth::State::Sound && contents.Bytes.find('[') != std::string::npos;
}

/// A write cuts lines at their first zero byte: what such a file holds behind it would be gone.
bool WouldBeCut(const Contents& contents) {
    return FileHealth::Inspect(contents) == FileHealth::State::Empty &&
           contents.Bytes.find_first_not_of('\0') != std::string::npos;
}

/// Neither hidden nor read-only: the copy must be easy to find and to replace.
bool Copy(const std::wstring& from, const std::wstring& to) {
    return CopyFileW(from.c_str(), to.c_str(), FALSE) && SetFileAttributesW(to.c_str(), FILE_ATTRIBUTE_NORMAL);
}

/// Keeps a copy of `from` under the name of a settings file. The ending of a damaged one's lets it never be offered.
bool Keep(const std::wstring& from, const std::wstring& settingsFile, bool isSound) {
    const std::wstring folder = BackupFolder();
    return !folder.empty() &&
           Copy(from, folder + Prefix(settingsFile) + TimeStamp() + (isSound ? L".ini" : L".damaged.txt"));
}

DWORD WINAPI KeepInThread(void* settingsFile) {
    try {
        Backup::KeepOnce(*static_cast<const std::wstring*>(settingsFile));
    } catch (...) {
        return 1; // no copy, and nobody left to be told
    }
    return 0;
}

} // namespace

namespace Backup {

void KeepOnce(const std::wstring& settingsFile) {
    static std::wstring kept;
    if (settingsFile == kept) return;
    const Contents contents = SafeFile::Read(settingsFile);
    kept = contents.IsRead() ? settingsFile : L""; // one that nobody can read now may be kept later
    if (!contents.IsRead()) return;
    const bool isSound = HoldsSettings(contents);
    if (!isSound && !WouldBeCut(contents)) return;
    if (const auto newest = LastGood(settingsFile); isSound && newest) {
        const Contents last = SafeFile::Read(*newest);
        if (last.IsRead() && last.Bytes == contents.Bytes) return;
    }
    if (!Keep(settingsFile, settingsFile, isSound)) return;
    const std::vector<std::wstring> copies = Copies(settingsFile);
    for (size_t index = 0; index + kKept < copies.size(); ++index) DeleteFileW(copies[index].c_str());
}

void KeepAtEnd(const std::wstring& settingsFile) {
    constexpr DWORD kPatience = 10'000;
    if (settingsFile.empty()) return;
    std::wstring path = settingsFile;
    const KernelHandle thread(CreateThread(nullptr, 0, &KeepInThread, &path, 0, nullptr));
    // Nothing is left to be saved, and a thread that hangs would outlive what it works with.
    if (thread && WaitForSingleObject(thread.Get(), kPatience) == WAIT_TIMEOUT)
        TerminateProcess(GetCurrentProcess(), 0);
}

std::vector<std::wstring> All() {
    std::vector<std::wstring> copies = CopiesOf(L"Kelmorra-");
    std::erase_if(copies, [](const std::wstring& copy) { return !HoldsSettings(SafeFile::Read(copy)); });
    std::ranges::reverse(copies);
    return copies;
}

std::wstring TimeOf(const std::wstring& copy) {
    WIN32_FILE_ATTRIBUTE_DATA data{};
    FILETIME local{};
    SYSTEMTIME time{};
    std::array<wchar_t, 80> date{}, clock{};
    if (!GetFileAttributesExW(copy.c_str(), GetFileExInfoStandard, &data) ||
        !FileTimeToLocalFileTime(&data.ftLastWriteTime, &local) || !FileTimeToSystemTime(&local, &time))
        return {};
    GetDateFormatW(LOCALE_USER_DEFAULT, DATE_SHORTDATE, &time, nullptr, date.data(), date.size());
    GetTimeFormatW(LOCALE_USER_DEFAULT, TIME_NOSECONDS, &time, nullptr, clock.data(), clock.size());
    return std::wstring(date.data()) + L' ' + clock.data();
}

std::optional<std::wstring> LastGood(const std::wstring& settingsFile) {
    const std::vector<std::wstring> copies = Copies(settingsFile);
    const auto newest = std::ranges::find_if(
        copies.rbegin(), copies.rend(), [](const std::wstring& copy) { return HoldsSettings(SafeFile::Read(copy)); });
    if (newest == copies.rend()) return std::nullopt;
    return *newest;
}

Restored Restore(const std::wstring& settingsFile) {
    const auto good = LastGood(settingsFile);
    bool isSound = false;
    const bool isDone = good && SafeFile::Change(settingsFile, [&](const std::wstring& copy, bool) -> DWORD {
                            const Contents present = SafeFile::Read(copy);
                            isSound = FileHealth::Inspect(present) == FileHealth::State::Sound;
                            if (isSound) return ERROR_SUCCESS;
                            if (!present.IsRead()) return present.Error;
                            const bool isKept = present.Bytes.empty() || Keep(copy, settingsFile, false);
                            return isKept && Copy(*good, copy) ? ERROR_SUCCESS : ERROR_WRITE_FAULT;
                        });
    if (isSound) return Restored::NotNeeded;
    return isDone ? Restored::Done : Restored::Failed;
}

} // namespace Backup
