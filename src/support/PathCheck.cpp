#include "support/PathCheck.h"

#include "support/Text.h"

#include <algorithm>
#include <utility>

/// One list of paths that is asked for. Threads touch its counters by Interlocked calls alone.
struct PathCheck::Round {
    HWND Window;
    UINT Message;
    Ask IsThere;
    long Number;
    LONG Users = 1;   ///< its threads, and the check itself
    LONG Working = 0; ///< its threads that have not finished
    LONG IsOver = 0;

    /// False when there is nobody any more to be told.
    bool Tell(WPARAM answer) const {
        while (!PostMessageW(Window, Message, answer, Number)) {
            constexpr DWORD kPause = 10; // milliseconds, for the queue to get shorter
            if (GetLastError() != ERROR_NOT_ENOUGH_QUOTA) return false;
            Sleep(kPause);
        }
        return true;
    }
};

/// What one thread asks for.
struct PathCheck::Job {
    Round* Owner;
    std::wstring Share;
    std::vector<std::pair<size_t, std::wstring>> Paths;
};

namespace {

/// "C:", "\\server" or "".
std::wstring ShareOf(const std::wstring& path) {
    const size_t end = path.find(L'\\', path.starts_with(L"\\\\") ? 2 : 0);
    return path.substr(0, end == std::wstring::npos ? 0 : end);
}

} // namespace

bool PathCheck::IsThere(const std::wstring& path) {
    return GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES;
}

void PathCheck::LetGo(Round* round) {
    if (InterlockedDecrement(&round->Users) == 0) delete round;
}

DWORD WINAPI PathCheck::Work(void* parameter) {
    const Owned<Job> job(static_cast<Job*>(parameter));
    Round* const round = job.Get()->Owner;
    for (const auto& [index, path] : job.Get()->Paths) {
        if (InterlockedCompareExchange(&round->IsOver, 0, 0) != 0) break;
        if (!round->Tell(index * 2 + (round->IsThere(path) ? 0 : 1))) break;
    }
    if (InterlockedDecrement(&round->Working) == 0) round->Tell(Done);
    LetGo(round);
    return 0;
}

long PathCheck::Start(HWND window, const std::vector<std::wstring>& paths) {
    static long number = 0; // of all checks: what an earlier one still says must not be taken for this one's
    if (round_ && InterlockedCompareExchange(&round_->Working, 0, 0) != 0) return 0;
    if (round_) LetGo(round_);
    threads_.clear();
    std::vector<Owned<Job>> jobs;
    round_ = new Round{window, message_, ask_, ++number};
    for (size_t index = 0; index < paths.size(); ++index) {
        const std::wstring share = ShareOf(paths[index]);
        auto job = std::ranges::find_if(
            jobs, [&](const Owned<Job>& other) { return Text::EqualNoCase(other.Get()->Share, share); });
        if (job == jobs.end()) job = jobs.insert(job, Owned<Job>(new Job{round_, share, {}}));
        job->Get()->Paths.emplace_back(index, paths[index]);
    }
    round_->Users = round_->Working = static_cast<LONG>(jobs.size()) + 1;
    for (Owned<Job>& job : jobs) {
        Job* const given = job.Release(); // to the thread
        threads_.emplace_back(CreateThread(nullptr, 0, &Work, given, 0, nullptr));
        if (!threads_.back()) Work(given); // late, but answered
    }
    // No thread is done before all have been started.
    if (InterlockedDecrement(&round_->Working) == 0) round_->Tell(Done);
    return number;
}

PathCheck::~PathCheck() {
    if (!round_) return;
    InterlockedExchange(&round_->IsOver, 1);
    using Cancel = BOOL(WINAPI*)(HANDLE);
    const auto cancel =
        reinterpret_cast<Cancel>(GetProcAddress(GetModuleHandleW(L"kernel32.dll"), "CancelSynchronousIo"));
    for (const KernelHandle& thread : threads_)
        if (cancel && thread) cancel(thread.Get());
    LetGo(round_);
}
