#include "support/PathCheck.h"

#include "win32/Owner.h"

#include <atomic>
#include <memory>
#include <utility>

namespace {

struct Job {
    HWND Window;
    UINT Message;
    long Number;
    std::vector<std::wstring> Paths;
};

std::atomic<bool> isRunning;

DWORD WINAPI Look(void* parameter) {
    {
        const std::unique_ptr<Job> job(static_cast<Job*>(parameter));
        for (size_t index = 0; index < job->Paths.size(); ++index) {
            const bool isMissing = GetFileAttributesW(job->Paths[index].c_str()) == INVALID_FILE_ATTRIBUTES;
            PostMessageW(job->Window, job->Message, index * 2 + (isMissing ? 1 : 0), job->Number);
        }
        isRunning = false;
        PostMessageW(job->Window, job->Message, PathCheck::Done, job->Number);
    }
    return 0;
}

} // namespace

long PathCheck::Start(HWND window, std::vector<std::wstring> paths) {
    if (isRunning.exchange(true)) return 0;
    auto job = std::make_unique<Job>(Job{window, message_, ++number_, std::move(paths)});
    const KernelHandle thread(CreateThread(nullptr, 0, &Look, job.get(), 0, nullptr));
    if (!thread) {
        isRunning = false;
        return 0;
    }
    static_cast<void>(job.release()); // the thread's
    return number_;
}
