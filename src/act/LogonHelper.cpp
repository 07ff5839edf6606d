#include "act/LogonHelper.h"

#include "support/Application.h"
#include "support/Shell.h"

#include <array>

LogonHelper::LogonHelper() {
    // A name for each call: a helper that comes late must not take the next one for its own.
    std::array<wchar_t, 64> name{};
    wsprintfW(name.data(), L"Local\\Kelmorra.Logon.Call.%08lX.%08lX", GetCurrentProcessId(), GetTickCount());
    call_.Reset(CreateMutexW(nullptr, TRUE, name.data()));
    SetEnvironmentVariableW(CallVariable, name.data());
    Start();
}

LogonHelper::~LogonHelper() {
    SetEnvironmentVariableW(CallVariable, nullptr);
    ReleaseMutex(call_.Get());
    // One that was started with ACT! may still be there.
    if (const KernelHandle leave{OpenEventW(EVENT_MODIFY_STATE, FALSE, LeaveEvent)}) SetEvent(leave.Get());
}

void LogonHelper::Start() { OpenWithShell(Application::FileInFolder(L"logon.exe")); }
