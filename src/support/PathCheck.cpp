#include "support/PathCheck.h"

#include "win32/Owner.h"

#include <utility>

namespace {

struct Job {
    HWND Window;
    UINT Message;
    long Number;
    std::vector<std::wstring> Paths;
};

LONG isRunning = 0; // of one thread or the other: Interlocked calls alone touch it

DWORD WINAPI Look(void* parameter) {
    {
        const Owned<Job> owner(static_cast<Job*>(parameter));
        const Job& job = *owner.Get();
        for (size_t index = 0; index < job.Paths.size(); ++index) {
            const bool isMissing = GetFileAttributesW(job.Paths[index].c_str()) == INVALID_FILE_ATTRIBUTES;
            PostMessageW(job.Window, job.Message, index * 2 + (isMissing ? 1 : 0), job.Number);
        }
        InterlockedExchange(&isRunning, 0);
        PostMessageW(job.Window, job.Message, PathCheck::Done, job.Number);
    }
    return 0;
}

} // namespace

long PathCheck::Start(HWND window, std::vector<std::wstring> paths) {
    if (InterlockedExchange(&isRunning, 1) != 0) return 0;
    Owned<Job> job(new Job{window, message_, ++number_, std::move(paths)});
    const KernelHandle thread(CreateThread(nullptr, 0, &Look, job.Get(), 0, nullptr));
    if (!thread) {
        InterlockedExchange(&isRunning, 0);
        return 0;
    }
    static_cast<void>(job.Release()); // the thread's
    return number_;
}
