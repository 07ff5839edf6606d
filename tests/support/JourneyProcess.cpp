#include "support/JourneyProcess.h"

#include "support/Wide.h"

bool Within(const std::function<bool()>& condition, DWORD milliseconds) {
    constexpr DWORD kPollMilliseconds = 15;
    const DWORD start = GetTickCount();
    while (!condition()) {
        if (GetTickCount() - start >= milliseconds) return false;
        Sleep(kPollMilliseconds);
    }
    return true;
}

ProcessGroup::ProcessGroup() : job_(CreateJobObjectW(nullptr, nullptr)) {
    JOBOBJECT_EXTENDED_LIMIT_INFORMATION limits{};
    limits.BasicLimitInformation.LimitFlags = JOB_OBJECT_LIMIT_KILL_ON_JOB_CLOSE;
    REQUIRE(SetInformationJobObject(job_.Get(), JobObjectExtendedLimitInformation, &limits, sizeof limits));
}

DWORD ProcessGroup::Alive() const {
    JOBOBJECT_BASIC_ACCOUNTING_INFORMATION accounting{};
    QueryInformationJobObject(job_.Get(), JobObjectBasicAccountingInformation, &accounting, sizeof accounting, nullptr);
    return accounting.ActiveProcesses;
}

Process::Process(const ProcessGroup& group, const std::wstring& path, const std::wstring& arguments) {
    std::wstring command = L'"' + path + L'"' + (arguments.empty() ? L"" : L" " + arguments);
    const std::wstring folder = path.substr(0, path.rfind(L'\\'));
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION started{};
    // Suspended: what it starts must already belong to the group.
    REQUIRE(CreateProcessW(path.c_str(), command.data(), nullptr, nullptr, FALSE, CREATE_SUSPENDED, nullptr,
                           folder.c_str(), &startup, &started));
    process_.Reset(started.hProcess);
    const KernelHandle thread(started.hThread);
    id_ = started.dwProcessId;
    REQUIRE(AssignProcessToJobObject(group.Job(), process_.Get()));
    ResumeThread(thread.Get());
}

Process::Process(HWND window) {
    GetWindowThreadProcessId(window, &id_);
    process_.Reset(OpenProcess(SYNCHRONIZE | PROCESS_QUERY_INFORMATION | PROCESS_TERMINATE, FALSE, id_));
    REQUIRE(process_.Get());
}

std::optional<DWORD> Process::ExitCode(DWORD milliseconds) const {
    DWORD code = 0;
    if (WaitForSingleObject(process_.Get(), milliseconds) != WAIT_OBJECT_0) return std::nullopt;
    return GetExitCodeProcess(process_.Get(), &code) ? std::optional(code) : std::nullopt;
}
