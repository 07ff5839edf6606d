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

/// Full paths of a settings file's copies, oldest first.
std::vector<std::wstring> Copies(const std::wstring& settingsFile) {
    std::vector<std::wstring> copies;
    const std::wstring folder = BackupFolder();
    WIN32_FIND_DATAW found{};
    const FindHandle search(FindFirstFileW((folder + Prefix(settingsFile) + L"*.ini").c_str(), &found));
    if (!search) return copies;
    do {
        const std::wstring path = folder + found.cFileName;
        copies.insert(std::ranges::upper_bound(copies, path), path);
    } while (FindNextFileW(search.Get(), &found));
    return copies;
}

using Bytes = std::optional<std::string>;

bool HoldsSettings(const Bytes& bytes) {
    return FileHealth::Inspect(bytes) == FileHealth::State::Sound && bytes->find('[') != std::string::npos;
}

/// A write cuts lines at their first zero byte: what such a file holds behind it would be gone.
bool WouldBeCut(const Bytes& bytes) {
    return FileHealth::Inspect(bytes) == FileHealth::State::Empty &&
           bytes->find_first_not_of('\0') != std::string::npos;
}

/// Neither hidden nor read-only: the copy must be easy to find and to replace.
bool Copy(const std::wstring& from, const std::wstring& to) {
    return CopyFileW(from.c_str(), to.c_str(), FALSE) && SetFileAttributesW(to.c_str(), FILE_ATTRIBUTE_NORMAL);
}

} // namespace

namespace Backup {

void KeepOnce(const std::wstring& settingsFile) {
    static std::wstring kept;
    if (settingsFile == kept) return;
    const Bytes bytes = SafeFile::Read(settingsFile);
    kept = bytes ? settingsFile : L""; // one that nobody can read now may be kept later
    if (!bytes) return;
    const bool isSound = HoldsSettings(bytes);
    const auto newest = LastGood(settingsFile);
    if (isSound && newest && SafeFile::Read(*newest) == bytes) return;
    const std::wstring folder = isSound || WouldBeCut(bytes) ? BackupFolder() : L"";
    const wchar_t* const ending = isSound ? L".ini" : L".damaged.txt"; // the latter is never offered
    if (folder.empty() || !Copy(settingsFile, folder + Prefix(settingsFile) + TimeStamp() + ending)) return;
    const std::vector<std::wstring> copies = Copies(settingsFile);
    for (size_t index = 0; index + kKept < copies.size(); ++index) DeleteFileW(copies[index].c_str());
}

std::optional<std::wstring> LastGood(const std::wstring& settingsFile) {
    const std::vector<std::wstring> copies = Copies(settingsFile);
    const auto newest = std::ranges::find_if(
        copies.rbegin(), copies.rend(), [](const std::wstring& copy) { return HoldsSettings(SafeFile::Read(copy)); });
    if (newest == copies.rend()) return std::nullopt;
    return *newest;
}

bool Restore(const std::wstring& settingsFile) {
    const auto copy = LastGood(settingsFile);
    return copy && SafeFile::Change(settingsFile, [&](const std::wstring& path) { return Copy(*copy, path); });
}

} // namespace Backup
