#pragma once

#include "stores/UserStore.h"
#include "support/JourneyProcess.h"
#include "support/Screen.h"
#include "support/TempFile.h"
#include "support/Wide.h"

#include <list>
#include <optional>
#include <string>
#include <utility>
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
    std::wstring File(const std::wstring& name) const { return log_.Folder() + L'\\' + name; }
    std::wstring ProgramFile(const std::wstring& name) const { return File(L"My Kelmorra\\" + name); }

    // The settings file
    std::wstring SettingsFile() const { return ProgramFile(L"Kelmorra.ini"); }
    void Ini(const std::wstring& section, const std::wstring& key, const std::wstring& value) const;
    /// Puts a database that ACT! can open at the end of the list; returns its path.
    std::wstring ListRealDatabase(const std::wstring& name);

    // ACT!
    /// Starts ACT! with a database open, or with none; it serves when this returns.
    void StartAct(const std::wstring& database);
    /// The same with a database that is not in the list.
    void StartActElsewhere();
    /// Takes over an ACT! that the program has started, so that the journey ends it. False when none comes.
    bool AdoptAct();
    /// Sets a preset or fault of the stand-in.
    void Act(const std::wstring& section, const std::wstring& key, const std::wstring& value) const;
    /// ACT!'s user closes it: the event component is asked first.
    void ActUserCloses() const;
    bool ActHasEnded() const { return !act_ || act_->ExitCode(); }
    /// Sets a text of ACT!'s own below that key of the registry ("" or "\\...").
    static void ActValue(const std::wstring& subkey, const wchar_t* name, const std::wstring& text);

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
    /// The next message box of the program started last; the running test ends when none comes.
    HWND Box() const;
    /// Its text; it is dismissed and gone.
    std::wstring AnswerBox() const;
    /// A visible window of a program by its class; the running test ends when it does not come.
    static HWND Window(const Process& program, const wchar_t* className);
    /// Chooses a menu item of the main window, or clicks a button, and returns the dialog that opens.
    HWND OpenByMenu(const wchar_t* item, const wchar_t* dialogClass) const;
    HWND OpenByButton(HWND form, const wchar_t* button, const wchar_t* dialogClass) const;

    const ProcessGroup& Group() const { return group_; }

private:
    void EndPrograms() const;
    void EndAct() const;

    TempFile log_{L"act.log"};
    ProcessGroup group_;
    std::list<Process> programs_;
    std::optional<Process> act_;
};

/// A text of the program's in the current user's registry; "(none)" when it is missing or no text.
std::wstring User(const std::wstring& section, const std::wstring& key);
void User(const std::wstring& section, const std::wstring& key, const std::wstring& text);
/// Where the program keeps copies of settings files for the user.
std::wstring BackupFolder();

/// Types into text boxes, by their names. The running test ends when a text does not get there.
void Type(HWND form, const std::vector<std::pair<const wchar_t*, std::wstring>>& texts);
/// Clicks a button and waits until the dialog is gone. The window below it may still have work to do.
void Leave(HWND dialog, const wchar_t* button);
/// A place in a row of the list of databases, and the selected row.
POINT MiddleOfRow(HWND list, int row);
LRESULT SelectedRow(HWND list);
