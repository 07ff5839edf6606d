#pragma once

#include "win32/Owner.h"

/// The log-on helper, logon.exe beside the program: it fills in ACT!'s log-on dialog with the values that are put ready
/// for it. An object is a helper for one call into ACT!: started with the object, and from the object's end on it fills
/// in nothing, be it a kill of this program. Neither is waited for. The thread that makes an object also ends it.
class LogonHelper {
public:
    /// An environment variable that the helper inherits: the name of a mutex that is owned for as long as the call
    /// runs. Without it nobody waits for what the helper does.
    static constexpr wchar_t CallVariable[] = L"KELMORRA_LOGON_CALL";
    /// The event that sends every helper away: set by a newer one, and when a call has ended.
    static constexpr wchar_t LeaveEvent[] = L"Local\\Kelmorra.Logon.Newer";

    LogonHelper();
    ~LogonHelper();
    LogonHelper(const LogonHelper&) = delete;
    LogonHelper& operator=(const LogonHelper&) = delete;

    /// Starts a helper that ends with the first dialog that it has filled in, or after its time.
    static void Start();

private:
    KernelHandle call_;
};
