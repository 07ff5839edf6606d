#include "Measure.h"

#include <stdexcept>

namespace {

/// Polls, but leaves the processor and Wine's server to what is measured: each look for a window is a question to the
/// server that all programs share.
template <class Condition>
void Await(Condition condition, const char* what, DWORD pauseMilliseconds = 4) {
    const Stopwatch watch;
    while (!condition()) {
        if (watch.Milliseconds() > JourneyPatience) throw std::runtime_error(std::string("never came: ") + what);
        Sleep(pauseMilliseconds);
    }
}

void Answer(HWND window) {
    if (!SendMessageTimeoutW(window, WM_NULL, 0, 0, SMTO_NORMAL, JourneyPatience, nullptr))
        throw std::runtime_error("a window does not answer");
}

} // namespace

double Stopwatch::Milliseconds() const {
    LARGE_INTEGER now{}, frequency{};
    QueryPerformanceCounter(&now);
    QueryPerformanceFrequency(&frequency);
    return static_cast<double>(now.QuadPart - start_.QuadPart) * 1000.0 / static_cast<double>(frequency.QuadPart);
}

void WaitUntilDrawn(HWND window) {
    Answer(window);
    RedrawWindow(window, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    Answer(window);
}

HWND WaitUntilReady(const Process& program, const wchar_t* windowClass) {
    HWND window = nullptr;
    const auto isShown = [&] {
        DWORD process = 0;
        window = FindWindowW(windowClass, nullptr);
        return window && GetWindowThreadProcessId(window, &process) && process == program.Id() &&
               IsWindowVisible(window);
    };
    Await(isShown, "a window");
    WaitUntilDrawn(window);
    return window;
}

DWORD WaitUntilEnded(const Process& program) {
    std::optional<DWORD> code;
    const auto hasEnded = [&] {
        FindWindowW(L"No such window", nullptr); // as WaitUntilReady asks
        code = program.ExitCode(0);
        return code.has_value();
    };
    Await(hasEnded, "an end");
    return *code;
}

double TimeToReady(const std::wstring& path, const wchar_t* windowClass, const std::wstring& arguments) {
    const ProcessGroup group;
    const Stopwatch watch;
    const Process program(group, path, arguments);
    HWND window = WaitUntilReady(program, windowClass);
    const double time = watch.Milliseconds();
    PostMessageW(window, WM_CLOSE, 0, 0);
    if (!program.ExitCode()) throw std::runtime_error("a program cannot be closed");
    return time;
}

JournalTail::JournalTail(const std::wstring& path)
    : journal_(CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                           OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr)) {
    SetFilePointer(journal_.Get(), 0, nullptr, FILE_END);
}

void JournalTail::WaitFor(const std::string& member) {
    const std::string field = '\t' + member + '\t';
    const auto isCalled = [&] {
        std::string part(4096, '\0');
        DWORD length = 0;
        ReadFile(journal_.Get(), part.data(), static_cast<DWORD>(part.size()), &length, nullptr);
        text_.append(part, 0, length);
        return text_.find(field) != std::string::npos;
    };
    Await(isCalled, member.c_str(), 1); // a look into a file burdens nobody
}
