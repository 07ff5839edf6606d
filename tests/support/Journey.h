#pragma once

#include "support/JourneyProcess.h"
#include "support/JourneyStores.h"
#include "support/JourneyWindow.h"
#include "support/Wide.h"

#include <list>
#include <optional>
#include <string>
#include <vector>

/// One user's session: empty stores, a folder of its own with a copy of the program, and an ACT! stand-in with its own
/// log and state. Unless told otherwise the program has run before, in English.
///
/// At the end no process of the program may be left without a visible window, and no process at all once the windows
/// have been closed as by their user. None may have crashed.
class Journey {
public:
    Journey();
    ~Journey();
    Journey(const Journey&) = delete;
    Journey& operator=(const Journey&) = delete;

    /// Full path of a file in the journey's folder, or in the program's.
    std::wstring File(const std::wstring& name) const { return folder_ + L'\\' + name; }
    std::wstring ProgramFile(const std::wstring& name) const { return File(L"Kelmorra\\" + name); }

    // The settings file
    std::wstring SettingsFile() const { return ProgramFile(L"Kelmorra.ini"); }
    void Ini(const std::wstring& section, const std::wstring& key, const std::wstring& value) const;
    /// Puts a database that ACT! can open at the end of the list; returns its path.
    std::wstring ListRealDatabase(const std::wstring& name);

    // ACT!
    /// Starts ACT! with a database open, or with none; it serves when this returns.
    void StartAct(const std::wstring& database);
    /// Takes over an ACT! that the program has started, so that the journey ends it. False when none comes.
    bool AdoptAct();
    /// Sets a preset or fault of the stand-in.
    void Act(const std::wstring& section, const std::wstring& key, const std::wstring& value) const;
    /// ACT!'s user closes it: the event component is asked first.
    void ActUserCloses() const;
    bool ActHasEnded() const { return !act_ || act_->ExitCode(); }

    struct Call {
        std::wstring Object, Member, Flags, Arguments, Result;
    };
    /// What the stand-in's log holds.
    std::vector<Call> Log() const;
    size_t Count(const std::wstring& object, const std::wstring& member) const;
    /// The calls into ACT!, one per line: object, member, flags and arguments.
    std::wstring Calls() const;

    // The program
    const Process& Start();
    /// The main window of another one, once it is on the screen.
    HWND StartToMainWindow() { return Window(Start(), L"frmMain"); }
    const Process& Program() const { return programs_.back(); }
    /// The next message box of a program; the running test ends when none comes.
    JourneyWindow::Box Box(const Process& program) const;
    /// The same for the program started last, with its box dismissed and gone.
    JourneyWindow::Box AnswerBox() const;
    /// A visible window of a program by its class; the running test ends when it does not come.
    static HWND Window(const Process& program, const wchar_t* className);

    const ProcessGroup& Group() const { return group_; }

private:
    void CheckNoneInvisible() const;
    void CloseWhatIsLeft() const;
    void EndAct() const;

    std::wstring folder_;
    ProcessGroup group_;
    std::list<Process> programs_;
    std::optional<Process> act_;
};
