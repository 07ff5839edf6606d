#include "common/Automation.h"
#include "common/Faults.h"
#include "common/Protocol.h"
#include "common/State.h"
#include "server/ClassObjects.h"
#include "server/Installation.h"
#include "server/Registration.h"
#include "server/Session.h"
#include "server/StandInWindow.h"
#include "support/Text.h"
#include "win32/Owner.h"

namespace {

struct WordList {
    using Handle = wchar_t**;
    static Handle None() { return nullptr; }
    static void Close(Handle words) { LocalFree(words); }
};

struct CommandLine {
    bool Register = false;
    bool Unregister = false;
    bool Embedding = false;
    std::wstring Database;
};

CommandLine Parse() {
    CommandLine parsed;
    int count = 0;
    const Owner<WordList> words(CommandLineToArgvW(GetCommandLineW(), &count));
    for (int index = 1; index < count; ++index) {
        const std::wstring word = words.Get()[index];
        const std::wstring option = word.starts_with(L'/') || word.starts_with(L'-') ? word.substr(1) : L"";
        if (Text::EqualNoCase(option, L"register"))
            parsed.Register = true;
        else if (Text::EqualNoCase(option, L"unregister"))
            parsed.Unregister = true;
        else if (Text::EqualNoCase(option, L"Embedding"))
            parsed.Embedding = true;
        else
            parsed.Database = word;
    }
    return parsed;
}

void Open(const std::wstring& path) {
    try {
        Session::OpenDatabase(path);
        Journal::Note(L"OpenDatabase", path);
    } catch (const Failure& failure) {
        Journal::Note(L"OpenDatabase", path, failure.Description);
    }
}

void OpenLastUsed() {
    const Installation::LastUsed last = Installation::ReadLastUsed();
    if (!last.Use) return;
    Open(last.Database);
    Session::UseLayouts(last.ContactLayout, last.GroupLayout);
    Journal::Note(L"UseLayouts", last.ContactLayout + L", " + last.GroupLayout);
    if (last.Macro.empty()) return;
    Session::RunMacro(last.Macro);
    Journal::Note(L"RunMacro", last.Macro);
}

void OpenAtStart(const CommandLine& line) {
    const std::wstring preset = State::Text(L"Presets", L"OpenDatabase").value_or(L"");
    if (!line.Database.empty())
        Open(line.Database);
    else if (!preset.empty())
        Open(preset);
    else if (!line.Embedding)
        OpenLastUsed();
}

/// There is one ACT! per desktop: true when this process is it, false when the start was handed to the running one.
bool IsTheOne(const KernelHandle& mutex, const std::wstring& database) {
    constexpr DWORD kPause = 100;
    constexpr int kTries = 100;
    for (int tries = 0; tries < kTries; ++tries) {
        // A running one that is just closing gives the mutex up; one that is just starting shows its window soon.
        const DWORD result = WaitForSingleObject(mutex.Get(), kPause);
        if (result == WAIT_OBJECT_0 || result == WAIT_ABANDONED) return true;
        if (const HWND running = FindWindowW(Protocol::WindowClass, nullptr)) {
            StandInWindow::HandOver(running, database);
            return false;
        }
    }
    return false;
}

int Serve(const CommandLine& line) {
    Installation::CreateKeys();
    Faults::SetDeath(ClassObjects::RevokeAndDie);
    StandInWindow window;
    Journal::Note(L"Start", line.Embedding ? L"Embedding" : line.Database);
    OpenAtStart(line);
    const HRESULT registered = ClassObjects::Register();
    if (SUCCEEDED(registered)) window.Run();
    ClassObjects::Revoke();
    Journal::Note(L"End");
    return SUCCEEDED(registered) ? 0 : 1;
}

/// Under Wine 8 OleUninitialize now and then waits for ever when a client lets go of its objects meanwhile. It cannot
/// be left out: it is what sends the last answers.
DWORD WINAPI EndAnyway(void*) {
    constexpr DWORD kPatience = 2000;
    Sleep(kPatience);
    return TerminateProcess(GetCurrentProcess(), 0) ? 0 : 1;
}

} // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, wchar_t*, int) {
    const CommandLine line = Parse();
    if (line.Register) return Registration::Register() ? 0 : 1;
    if (line.Unregister) return Registration::Unregister() ? 0 : 1;
    const KernelHandle mutex(CreateMutexW(nullptr, FALSE, L"Local\\ActStandIn.Running"));
    if (!IsTheOne(mutex, line.Database)) return 0;
    const INITCOMMONCONTROLSEX controls{sizeof(controls), ICC_LISTVIEW_CLASSES | ICC_BAR_CLASSES};
    InitCommonControlsEx(&controls);
    if (FAILED(OleInitialize(nullptr))) return 1;
    const int code = Serve(line);
    const KernelHandle guard(CreateThread(nullptr, 0, &EndAnyway, nullptr, 0, nullptr));
    OleUninitialize();
    return code;
}
