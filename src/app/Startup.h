#pragma once

#include "act/ActEvent.h"
#include "app/SingleInstance.h"
#include "program/MainWindow.h"

#include <functional>

/// The steps from the first line of the program to its first window that need no control: those that can refuse the
/// start, and what is recorded before the list is filled.
class Startup {
public:
    /// `onActUserWantsToClose` is called by the event component from Connect on.
    Startup(MainWindow& window, std::function<void()> onActUserWantsToClose)
        : window_(window), onActUserWantsToClose_(std::move(onActUserWantsToClose)) {}

    /// From the mark of the only instance to the connection with ACT!. False when the start was refused; the user has
    /// been told why.
    bool Connect();
    /// The same after a change of language, with a connection that is there.
    bool Reconnect();

    /// Makes an almost empty settings file where there is none. A folder that may not be written to is told of; any
    /// other failure throws Error (FileNotAccessible).
    void CreateSettingsFile();
    /// Notes that a start has come up to its end; does nothing from the second one on.
    void CompleteFirstRun();
    /// Keeps what is put back after an open. Throws Error when ACT! does not answer.
    void RecordActDefaults();
    /// True when the palette is to come up instead of the window; false also when the settings file cannot be read.
    static bool OpensQuickSwitch();
    /// Says so when more databases are stored than the list can show.
    static void TellOfUnseen();

    ActEvent ActEvent1;

private:
    bool ClaimInstance();
    bool CheckActRuns();
    bool FirstRunLanguage();

    MainWindow& window_;
    std::function<void()> onActUserWantsToClose_;
    SingleInstance instance_;
};
