// What an idle program holds and does.

#include "Table.h"
#include "Workplace.h"
#include "support/Setting.h"

#include <filesystem>
#include <list>
#include <map>

namespace fs = std::filesystem;

namespace {

/// How long the programs are left alone, in seconds: $KELMORRA_BENCH_IDLE, else a minute.
DWORD IdleSeconds() { return static_cast<DWORD>(Setting("KELMORRA_BENCH_IDLE", 60)); }

/// What the system under Wine knows of a thread.
struct Activity {
    double cpuMilliseconds = 0;
    double wakeUps = 0; ///< how often it has begun to wait
};

/// The system's folder of the youngest process with that program in its command line.
fs::path SystemProcess(const std::wstring& program) {
    const std::string wanted(program.begin(), program.end());
    unsigned long youngest = 0;
    for (const auto& entry : fs::directory_iterator(L"Z:\\proc")) {
        const unsigned long number = std::wcstoul(entry.path().filename().c_str(), nullptr, 10);
        if (number <= youngest) continue;
        const fs::path commandLine = entry.path() / L"cmdline";
        if (FileBytes(commandLine).find(wanted) != std::string::npos) youngest = number;
    }
    REQUIRE(youngest > 0);
    return fs::path(L"Z:\\proc") / std::to_wstring(youngest);
}

/// The number behind "field:" in a file of /proc, in its own unit.
double FieldOf(const fs::path& file, const std::string& field) {
    const std::string text = FileBytes(file);
    const size_t place = text.find('\n' + field + ':');
    REQUIRE(place != std::string::npos);
    return std::strtod(text.c_str() + place + field.size() + 2, nullptr);
}

std::map<fs::path, Activity> ActivityOf(const fs::path& process) {
    constexpr double kNanoseconds = 1e6; // in a millisecond
    std::map<fs::path, Activity> threads;
    for (const auto& thread : fs::directory_iterator(process / L"task")) {
        const std::string cpu = FileBytes(thread.path() / L"schedstat");
        threads[thread.path()] = {std::strtod(cpu.c_str(), nullptr) / kNanoseconds,
                                  FieldOf(thread.path() / L"status", "voluntary_ctxt_switches")};
    }
    return threads;
}

/// GDI objects by the table that Windows keeps of them in each process: under Wine GetGuiResources knows none.
int CountGdi(HANDLE process) {
    struct Basic {
        LONG status;
        DWORD environment; ///< address of the process environment block
        DWORD others[4];
    } basic{};
    using Query = LONG(WINAPI*)(HANDLE, int, void*, ULONG, ULONG*);
    constexpr DWORD kTablePointer = 0x94, kEntries = 0x4000, kEntrySize = 24, kTypeOffset = 14;
    const auto query = reinterpret_cast<Query>(GetProcAddress(GetModuleHandleW(L"ntdll"), "NtQueryInformationProcess"));
    DWORD table = 0;
    std::vector<BYTE> entries(static_cast<size_t>(kEntries) * kEntrySize);
    const auto read = [&](DWORD place, void* data, size_t size) {
        return ReadProcessMemory(process, reinterpret_cast<void*>(place), data, size, nullptr) != FALSE; // NOLINT
    };
    REQUIRE(query(process, 0, &basic, sizeof basic, nullptr) == 0);
    REQUIRE(read(basic.environment + kTablePointer, &table, sizeof table));
    REQUIRE(read(table, entries.data(), entries.size()));
    int count = 0;
    for (size_t entry = 0; entry < kEntries; ++entry) count += entries[entry * kEntrySize + kTypeOffset] != 0 ? 1 : 0;
    return count;
}

BOOL CALLBACK CountWindow(HWND, LPARAM count) {
    ++*reinterpret_cast<int*>(count);
    return TRUE;
}

struct Holdings {
    double cpu = 0, wakeUps = 0; ///< while it was left alone; CPU in milliseconds
    double peakMegabytes = 0;    ///< the most that was in memory
    double privateMegabytes = 0; ///< what no file backs
    int gdi = 0, windows = 1;
};

/// A program that is started and left alone.
class Idler {
public:
    Idler(const ProcessGroup& group, std::string name, const std::wstring& path, const wchar_t* windowClass,
          const std::wstring& arguments = {})
        : Name(std::move(name)), process_(group, path, arguments), window_(WaitUntilReady(process_, windowClass)),
          system_(SystemProcess(path)) {}

    void Begin() { before_ = ActivityOf(system_); }
    /// Afterwards the program is closed.
    void End() {
        constexpr double kKilobytes = 1024; // in a megabyte
        for (const auto& [thread, activity] : ActivityOf(system_)) {
            Has.cpu += activity.cpuMilliseconds - before_[thread].cpuMilliseconds;
            Has.wakeUps += activity.wakeUps - before_[thread].wakeUps;
        }
        Has.peakMegabytes = FieldOf(system_ / L"status", "VmHWM") / kKilobytes;
        Has.privateMegabytes = FieldOf(system_ / L"status", "RssAnon") / kKilobytes;
        const KernelHandle process(OpenProcess(PROCESS_QUERY_INFORMATION | PROCESS_VM_READ, FALSE, process_.Id()));
        Has.gdi = CountGdi(process.Get());
        EnumChildWindows(window_, &CountWindow, reinterpret_cast<LPARAM>(&Has.windows));
        PostMessageW(window_, WM_CLOSE, 0, 0);
        CHECK(process_.ExitCode());
    }

    const std::string Name;
    Holdings Has;

private:
    Process process_;
    HWND window_;
    fs::path system_;
    std::map<fs::path, Activity> before_; ///< by thread; one that ends meanwhile does not count
};

/// A row of the first program's number against the others'.
template <class Number>
void TellOf(const std::string& figure, const std::list<Idler>& idlers, Number Holdings::*number, int digits,
            const std::string& toReach) {
    const double ours = idlers.front().Has.*number;
    Row row{figure, Fixed(ours, digits), {}, {}, toReach, "1"};
    for (auto idler = std::next(idlers.begin()); idler != idlers.end(); ++idler) {
        const double theirs = idler->Has.*number;
        const char* const comma = row.against.empty() ? "" : ", ";
        row.against += comma + idler->Name + " " + Fixed(theirs, digits);
        row.ratio += comma + (theirs > 0 ? Fixed(ours / theirs, 2) : std::string("-"));
    }
    Tell(row);
}

} // namespace

TEST_CASE_FIXTURE(Workplace, "memory, and a minute of idleness") {
    const int before = CountGdi(GetCurrentProcess());
    const BrushHandle planted(CreateSolidBrush(RGB(1, 2, 3)));
    REQUIRE(CountGdi(GetCurrentProcess()) == before + 1);

    WriteList(10);
    StartActElsewhere();
    const ProcessGroup group;
    std::list<Idler> idlers;
    idlers.emplace_back(group, "Kelmorra", ProgramFile(L"Kelmorra.exe"), MainClass);
    idlers.emplace_back(group, "minimal", Minimal(), MinimalClass, L"10");
    idlers.emplace_back(group, "connected bare client", Client(), ClientClass, ClientArguments());
    idlers.emplace_back(group, "notepad", L"C:\\windows\\notepad.exe", L"Notepad");
    constexpr DWORD kCalm = 3000; // until what a start leaves behind has been done
    Sleep(kCalm);
    for (Idler& idler : idlers) idler.Begin();
    Sleep(IdleSeconds() * 1000);
    for (Idler& idler : idlers) idler.End();

    const std::string seconds = std::to_string(IdleSeconds()) + " s";
    TellOf("peak working set, MB", idlers, &Holdings::peakMegabytes, 1, "stated");
    TellOf("private bytes, MB", idlers, &Holdings::privateMegabytes, 2, "<= minimal + 2");
    TellOf("GDI objects", idlers, &Holdings::gdi, 0, "stated");
    TellOf("windows", idlers, &Holdings::windows, 0, "stated");
    TellOf("CPU while idle for " + seconds + ", ms", idlers, &Holdings::cpu, 1, "0");
    TellOf("wake-ups while idle for " + seconds, idlers, &Holdings::wakeUps, 0, "0");
}
