#include "support/Journey.h"

#include "support/Text.h"
#include "win32/AnsiText.h"

#include <array>
#include <filesystem>

namespace {

constexpr wchar_t kStandInClass[] = L"ActStandIn";

std::wstring FolderOfRun() {
    return std::filesystem::temp_directory_path() / (L"Kelmorra journeys " + std::to_wstring(GetCurrentProcessId()));
}

/// ACT! as it is installed for all journeys of a run.
class Installation {
public:
    Installation() {
        // Wine's desktop belongs to the first program that asks for it, and must outlive every journey.
        GetDesktopWindow();
        std::filesystem::remove_all(FolderOfRun()); // a killed run of the same process id may have left it
        std::filesystem::create_directories(Folder());
        for (const wchar_t* file : {L"ActStandIn.exe", L"ActEvent.dll"})
            std::filesystem::copy_file(std::filesystem::path(STANDIN_FOLDER) / file, Folder() + L'\\' + file);
        Run(L"/register");
    }
    ~Installation() {
        try {
            Run(L"/unregister");
            std::filesystem::remove_all(FolderOfRun());
        } catch (const std::exception&) {
            // What stays behind is a folder of temporary files.
        }
    }
    Installation(const Installation&) = delete;
    Installation& operator=(const Installation&) = delete;

    static std::wstring Folder() { return FolderOfRun() + L"\\ACT"; }
    static void Run(const wchar_t* option) {
        const ProcessGroup group;
        Process(group, Folder() + L"\\ActStandIn.exe", option).ExitCode();
    }
};

std::wstring NewFolder() {
    static int count = 0;
    const std::wstring folder = FolderOfRun() + L'\\' + std::to_wstring(++count);
    std::filesystem::create_directories(folder + L"\\Kelmorra");
    std::filesystem::copy_file(std::filesystem::path(KELMORRA_FOLDER) / L"Kelmorra.exe",
                               folder + L"\\Kelmorra\\Kelmorra.exe");
    return folder;
}

} // namespace

Journey::Journey() {
    static const Installation installation;
    folder_ = NewFolder();
    JourneyStores::DeleteTree(JourneyStores::UserRoot);
    JourneyStores::DeleteTree(L"Software\\Symantec");
    std::filesystem::remove_all(JourneyStores::BackupFolder());
    SetEnvironmentVariableW(L"ACT_STANDIN_LOG", File(L"act.log").c_str());
    SetEnvironmentVariableW(L"ACT_STANDIN_STATE", File(L"act.ini").c_str());
    JourneyStores::User(L"Settings", L"Installed", L"1");
    JourneyStores::User(L"Settings", L"Version", L"32");
}

Journey::~Journey() {
    CheckNoneInvisible();
    CloseWhatIsLeft();
    EndAct();
    CHECK_MESSAGE(Within([this] { return group_.Alive() == 0; }), "a program of the journey goes on");
    CHECK_MESSAGE(!FindWindowW(kStandInClass, nullptr), "the program has started an ACT! of its own");
}

void Journey::CheckNoneInvisible() const {
    for (const Process& program : programs_)
        CHECK_MESSAGE(Within([&] { return !program.Running() || !JourneyWindow::Visible(program.Id()).empty(); }),
                      "a process without a visible window is left");
}

void Journey::CloseWhatIsLeft() const {
    for (const Process& program : programs_) {
        const bool isClosed = Within([&] {
            const std::vector<HWND> windows = JourneyWindow::Visible(program.Id());
            if (!windows.empty()) PostMessageW(windows.front(), WM_CLOSE, 0, 0);
            return program.ExitCode(100).has_value();
        });
        CHECK_MESSAGE(isClosed, "the program cannot be closed");
        if (!isClosed) program.Terminate();
        const DWORD code = program.ExitCode().value_or(Process::Terminated);
        CHECK_MESSAGE((code == 0 || code == Process::Terminated), "the program has crashed");
    }
}

void Journey::EndAct() const {
    if (!act_) return;
    if (HWND window = JourneyWindow::Find(act_->Id(), kStandInClass)) PostMessageW(window, WM_CLOSE, 0, 0);
    const bool isClosed = act_->ExitCode().has_value();
    CHECK_MESSAGE(isClosed, "the ACT! stand-in cannot be closed");
    if (!isClosed) act_->Terminate();
}

void Journey::Ini(const std::wstring& section, const std::wstring& key, const std::wstring& value) const {
    WritePrivateProfileStringW(section.c_str(), key.c_str(), value.c_str(), SettingsFile().c_str());
}

std::wstring Journey::ListRealDatabase(const std::wstring& name) {
    const std::wstring path = File(name + L".dbf");
    JourneyStores::FileBytes(path, "dBASE");
    std::array<wchar_t, 2048> before{};
    GetPrivateProfileStringW(L"General", L"Sort", L"", before.data(), before.size(), SettingsFile().c_str());
    Ini(L"General", L"Sort", before[0] ? before.data() + (L';' + name) : name);
    Ini(name, L"Path", path);
    return path;
}

void Journey::StartAct(const std::wstring& database) {
    Act(L"Presets", L"OpenDatabase", database);
    act_.emplace(group_, Installation::Folder() + L"\\ActStandIn.exe");
    // Its window answers once its message loop turns, and that is after it has begun to serve.
    REQUIRE(Within([this] {
        HWND window = JourneyWindow::Find(act_->Id(), kStandInClass);
        return window && Count(L"STANDIN", L"Start") > 0 &&
               SendMessageTimeoutW(window, WM_NULL, 0, 0, SMTO_ABORTIFHUNG, JourneyPatience, nullptr);
    }));
}

bool Journey::AdoptAct() {
    HWND window = nullptr;
    if (!Within([&] { return (window = FindWindowW(kStandInClass, nullptr)) != nullptr && IsWindowVisible(window); }))
        return false;
    act_.emplace(window);
    return true;
}

void Journey::Act(const std::wstring& section, const std::wstring& key, const std::wstring& value) const {
    WritePrivateProfileStringW(section.c_str(), key.c_str(), value.c_str(), File(L"act.ini").c_str());
}

void Journey::ActUserCloses() const { PostMessageW(JourneyWindow::Find(act_->Id(), kStandInClass), WM_CLOSE, 0, 0); }

std::vector<Journey::Call> Journey::Log() const {
    std::vector<Call> calls;
    const std::wstring log = Text::Replace(FromUtf8(JourneyStores::FileBytes(File(L"act.log"))), L"\r\n", L"\n");
    for (const std::wstring& line : Text::Split(log, L'\n')) {
        const std::vector<std::wstring> fields = Text::Split(line, L'\t');
        if (fields.size() == 6) calls.push_back({fields[1], fields[2], fields[3], fields[4], fields[5]});
    }
    return calls;
}

size_t Journey::Count(const std::wstring& object, const std::wstring& member) const {
    size_t count = 0;
    for (const Call& call : Log())
        if (call.Object == object && call.Member == member) ++count;
    return count;
}

std::wstring Journey::Calls() const {
    std::wstring lines;
    for (const Call& call : Log()) {
        // What the stand-in notes about itself and its event component is no call into ACT!.
        if (call.Object == L"STANDIN" || call.Object == L"EVENT") continue;
        lines += call.Object + L' ' + call.Member + L' ' + call.Flags;
        lines += (call.Arguments.empty() ? L"" : L' ' + call.Arguments) + L'\n';
    }
    return lines;
}

const Process& Journey::Start() { return programs_.emplace_back(group_, ProgramFile(L"Kelmorra.exe")); }

HWND Journey::Window(const Process& program, const wchar_t* className) {
    HWND window = nullptr;
    const bool isShown = Within([&] {
        window = JourneyWindow::Find(program.Id(), className);
        return window && IsWindowVisible(window);
    });
    const auto box = isShown ? std::nullopt : JourneyWindow::MessageBoxOf(program.Id());
    CAPTURE(std::wstring(className));
    CAPTURE(box ? box->Text : L"no message box");
    CAPTURE(program.Running());
    REQUIRE(isShown);
    return window;
}

JourneyWindow::Box Journey::Box(const Process& program) const {
    std::optional<JourneyWindow::Box> box;
    REQUIRE(Within([&] { return (box = JourneyWindow::MessageBoxOf(program.Id())).has_value(); }));
    return *box;
}

JourneyWindow::Box Journey::AnswerBox() const {
    const JourneyWindow::Box box = Box(Program());
    JourneyWindow::Answer(box, IDOK);
    REQUIRE(Within([&] { return !IsWindow(box.Window); }));
    return box;
}
