#pragma once

// With what every test of windows looks at or works them with.
#include "app/frmMain.h"
#include "program/Program.h"
#include "stores/IniLib.h"
#include "stores/UserStore.h"
#include "support/DialogScript.h"
#include "support/FakeAct.h"
#include "support/SettingsDesk.h"
#include "support/Wide.h"

#include <initializer_list>
#include <string>
#include <utility>

/// A user's desk: an ACT! in this process, an empty registry, a settings file of its own, and a user who has chosen
/// a language before.
class ActDesk : public SettingsDesk {
public:
    ActDesk();

    FakeAct Act;
    /// Adds a database with the given keys to the settings file, at the end of the list.
    void AddDatabase(const std::wstring& name, std::initializer_list<std::pair<const wchar_t*, std::wstring>> keys);
    std::wstring SettingsFile() const { return file.Path(); }
    /// The settings file as it lies on disk.
    std::string SettingsBytes() const { return file.Bytes(); }
    void SettingsBytes(std::string_view bytes) const { file.Bytes(bytes); }
};

/// Turns the program's message loop until it ends, like wWinMain; `main` must have ended by itself then.
void RunToEnd(frmMain& window);

/// Ends a main window that a test is done with and swallows its WM_QUIT.
void End(frmMain& window);

/// A main window that has come up. It is ended with the test, unless it has ended by then.
class Main : public frmMain {
public:
    Main() { Load(); }
    ~Main() {
        if (!Unloaded()) End(*this);
    }
};

/// A value of the settings file, of the user's store, or of ACT!'s own keys; "(none)" when it is missing.
std::wstring IniValue(const std::wstring& section, const wchar_t* key);
std::wstring UserValue(const std::wstring& section, const wchar_t* key);
std::wstring ActValue(const std::wstring& subkey, const wchar_t* name);
/// Makes the keys that ACT! makes when it runs for the first time.
void MakeActKeys();
