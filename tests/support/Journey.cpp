#include "support/Journey.h"

#include "support/Text.h"
#include "win32/AnsiText.h"

#include <commctrl.h>
#include <shlwapi.h>

#include <array>

namespace fs = std::filesystem;

namespace {

constexpr wchar_t kStandInClass[] = L"ActStandIn";
const std::wstring kStandIn = (fs::path(STANDIN_FOLDER) / L"ActStandIn.exe").make_preferred();

/// Makes ACT! known to Windows, for all journeys of a run.
bool RegisterAct() {
    // Wine's desktop belongs to the first program that asks for it, and must outlive every journey.
    GetDesktopWindow();
    const ProcessGroup group;
    return Process(group, kStandIn, L"/register").ExitCode() == 0u;
}

} // namespace

Journey::Journey() {
    static const bool isRegistered = RegisterAct();
    REQUIRE(isRegistered);
    fs::create_directory(ProgramFile({}));
    fs::copy_file(fs::path(KELMORRA_FOLDER) / L"Kelmorra.exe", ProgramFile(L"Kelmorra.exe"));
    UserStore::DeleteAll();
    SHDeleteKeyW(HKEY_CURRENT_USER, L"Software\\Symantec");
    fs::remove_all(BackupFolder());
    SetEnvironmentVariableW(L"ACT_STANDIN_LOG", log_.Path().c_str());
    SetEnvironmentVariableW(L"ACT_STANDIN_STATE", File(L"act.ini").c_str());
    User(L"Settings", L"Installed", L"1");
    User(L"Settings", L"Version", L"32");
}

Journey::~Journey() {
    for (const Process& program : programs_)
        CHECK_MESSAGE(Within([&] { return !program.Running() || !Visible(program.Id()).empty(); }),
                      "a process without a visible window is left");
    EndPrograms();
    EndAct();
    CHECK_MESSAGE(Within([this] { return group_.Alive() == 0; }), "a program of the journey goes on");
    CHECK_MESSAGE(!FindWindowW(kStandInClass, nullptr), "the program has started an ACT! of its own");
}

void Journey::EndPrograms() const {
    for (const Process& program : programs_) {
        const bool isClosed = Within([&] {
            const std::vector<HWND> windows = Visible(program.Id());
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
    if (HWND window = FindWindowOf(act_->Id(), kStandInClass)) PostMessageW(window, WM_CLOSE, 0, 0);
    const bool isClosed = act_->ExitCode().has_value();
    CHECK_MESSAGE(isClosed, "the ACT! stand-in cannot be closed");
    if (!isClosed) act_->Terminate();
}

void Journey::Ini(const std::wstring& section, const std::wstring& key, const std::wstring& value) const {
    WritePrivateProfileStringW(section.c_str(), key.c_str(), value.c_str(), SettingsFile().c_str());
}

std::wstring Journey::ListRealDatabase(const std::wstring& name) {
    const std::wstring path = File(name + L".dbf");
    FileBytes(path, "dBASE");
    std::array<wchar_t, 2048> before{};
    GetPrivateProfileStringW(L"General", L"Sort", L"", before.data(), before.size(), SettingsFile().c_str());
    Ini(L"General", L"Sort", before[0] ? before.data() + (L';' + name) : name);
    Ini(name, L"Path", path);
    return path;
}

void Journey::StartAct(const std::wstring& database) {
    Act(L"Presets", L"OpenDatabase", database);
    act_.emplace(group_, kStandIn);
    // Its window answers once its message loop turns, and that is after it has begun to serve.
    REQUIRE(Within([this] {
        HWND window = FindWindowOf(act_->Id(), kStandInClass);
        return window && Count(L"STANDIN", L"Start") > 0 &&
               SendMessageTimeoutW(window, WM_NULL, 0, 0, SMTO_ABORTIFHUNG, JourneyPatience, nullptr);
    }));
}

void Journey::StartActElsewhere() {
    const std::wstring path = File(L"Elsewhere.dbf");
    FileBytes(path, "dBASE");
    StartAct(path);
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

void Journey::ActUserCloses() const { PostMessageW(FindWindowOf(act_->Id(), kStandInClass), WM_CLOSE, 0, 0); }

void Journey::ActValue(const std::wstring& subkey, const wchar_t* name, const std::wstring& text) {
    const auto size = static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t));
    SHSetValueW(HKEY_CURRENT_USER, (L"Software\\Symantec\\ACT!" + subkey).c_str(), name, REG_SZ, text.c_str(), size);
}

std::vector<Journey::Call> Journey::Log() const {
    std::vector<Call> calls;
    const std::wstring log = Text::Replace(FromUtf8(log_.Bytes()), L"\r\n", L"\n");
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
        window = FindWindowOf(program.Id(), className);
        return window && IsWindowVisible(window);
    });
    HWND box = isShown ? nullptr : MessageBoxOf(program.Id());
    CAPTURE(std::wstring(className));
    CAPTURE(MessageText(box));
    CAPTURE(program.Running());
    REQUIRE(isShown);
    return window;
}

HWND Journey::Box() const {
    HWND box = nullptr;
    REQUIRE(Within([&] { return (box = MessageBoxOf(Program().Id())) != nullptr; }));
    return box;
}

std::wstring Journey::AnswerBox() const {
    HWND box = Box();
    const std::wstring text = MessageText(box);
    Answer(box, IDOK);
    REQUIRE(Within([box] { return !IsWindow(box); }));
    return text;
}

HWND Journey::OpenByMenu(const wchar_t* item, const wchar_t* dialogClass) const {
    ClickMenu(Window(Program(), L"frmMain"), item);
    return Window(Program(), dialogClass);
}

HWND Journey::OpenByButton(HWND form, const wchar_t* button, const wchar_t* dialogClass) const {
    Click(FindControl(form, button));
    return Window(Program(), dialogClass);
}

std::wstring User(const std::wstring& section, const std::wstring& key) {
    return UserStore::Get(section, key, L"(none)");
}

void User(const std::wstring& section, const std::wstring& key, const std::wstring& text) {
    UserStore::Set(section, key, text);
}

std::wstring BackupFolder() { return _wgetenv(L"LOCALAPPDATA") + std::wstring(L"\\Kelmorra\\Backup"); }

void Type(HWND form, const std::vector<std::pair<const wchar_t*, std::wstring>>& texts) {
    for (const auto& [box, text] : texts) {
        CAPTURE(box);
        HWND control = FindControl(form, box);
        SendMessageW(control, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text.c_str()));
        REQUIRE(WindowText(control) == text);
    }
}

void Leave(HWND dialog, const wchar_t* button) {
    Click(FindControl(dialog, button));
    REQUIRE(Within([dialog] { return !IsWindow(dialog); }));
}

POINT MiddleOfRow(HWND list, int row) {
    const auto height = [list](int rows) {
        return HIWORD(SendMessageW(list, LVM_APPROXIMATEVIEWRECT, static_cast<WPARAM>(rows), -1));
    };
    RECT titles{};
    GetClientRect(reinterpret_cast<HWND>(SendMessageW(list, LVM_GETHEADER, 0, 0)), &titles);
    const LONG rowHeight = height(2) - height(1);
    return {20, titles.bottom + row * rowHeight + rowHeight / 2};
}

LRESULT SelectedRow(HWND list) { return SendMessageW(list, LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED); }
