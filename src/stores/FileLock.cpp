#include "stores/FileLock.h"

#include "stores/Patience.h"

namespace {

/// A file on its way out answers "access denied" like one that nobody may open. Only the status tells them apart.
bool IsOnItsWayOut() {
    using LastStatus = LONG(WINAPI*)();
    static const auto lastStatus =
        reinterpret_cast<LastStatus>(GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "RtlGetLastNtStatus"));
    constexpr auto kDeletePending = static_cast<LONG>(0xC0000056);
    return lastStatus && lastStatus() == kDeletePending;
}

} // namespace

FileLock::FileLock(const std::wstring& file) {
    constexpr DWORD kPatience = 240;
    const std::wstring path = file + L".lock";
    const Patience patience(kPatience);
    const DWORD error = Persist(patience, [&]() -> DWORD {
        lock_.Reset(CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, OPEN_ALWAYS,
                                FILE_ATTRIBUTE_HIDDEN | FILE_FLAG_DELETE_ON_CLOSE, nullptr));
        if (lock_) return ERROR_SUCCESS;
        if (IsOnItsWayOut()) return ERROR_SHARING_VIOLATION;
        const DWORD code = GetLastError();
        // The folder is away, unless its name has left no room for the lock's: nothing may be written unlocked then.
        if (Patience::IsOutage(code) && path.size() < MAX_PATH) return ERROR_SHARING_VIOLATION;
        return code == ERROR_ACCESS_DENIED ? ERROR_NOACCESS : code; // no right: nothing to wait for
    });
    refused_ = error == ERROR_SHARING_VIOLATION;
}
