#include "support/JourneyProcess.h"

#include "support/Text.h"

#include <stdexcept>

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
    if (!SetInformationJobObject(job_.Get(), JobObjectExtendedLimitInformation, &limits, sizeof limits))
        throw std::runtime_error("no job for the processes of a journey");
}

bool ProcessGroup::Add(HANDLE process) const { return AssignProcessToJobObject(job_.Get(), process) != FALSE; }

DWORD ProcessGroup::Alive() const {
    JOBOBJECT_BASIC_ACCOUNTING_INFORMATION accounting{};
    if (!QueryInformationJobObject(job_.Get(), JobObjectBasicAccountingInformation, &accounting, sizeof accounting,
                                   nullptr))
        throw std::runtime_error("the processes of a journey cannot be counted");
    return accounting.ActiveProcesses;
}

Process::Process(const ProcessGroup& group, const std::wstring& path, const std::wstring& arguments) {
    std::wstring command = L'"' + path + L'"' + (arguments.empty() ? L"" : L" " + arguments);
    const std::wstring folder = path.substr(0, path.rfind(L'\\'));
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION started{};
    // Suspended: what it starts must already belong to the group.
    if (!CreateProcessW(path.c_str(), command.data(), nullptr, nullptr, FALSE, CREATE_SUSPENDED, nullptr,
                        folder.c_str(), &startup, &started))
        throw std::runtime_error("a program of the journey cannot be started");
    process_.Reset(started.hProcess);
    const KernelHandle thread(started.hThread);
    id_ = started.dwProcessId;
    const bool belongs = group.Add(process_.Get());
    ResumeThread(thread.Get());
    if (!belongs) throw std::runtime_error("a program of the journey cannot be grouped");
}

Process::Process(HWND window) {
    GetWindowThreadProcessId(window, &id_);
    process_.Reset(OpenProcess(SYNCHRONIZE | PROCESS_QUERY_INFORMATION | PROCESS_TERMINATE, FALSE, id_));
    if (!process_) throw std::runtime_error("a program of the journey cannot be watched");
}

std::optional<DWORD> Process::ExitCode(DWORD milliseconds) const {
    DWORD code = 0;
    if (WaitForSingleObject(process_.Get(), milliseconds) != WAIT_OBJECT_0) return std::nullopt;
    if (!GetExitCodeProcess(process_.Get(), &code)) return std::nullopt;
    return code;
}
