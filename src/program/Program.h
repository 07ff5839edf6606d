#pragma once

#include "act/ActApplication.h"

#include <string>
#include <vector>

/// State that lives as long as the process, owned by the main window.
struct ProgramState {
    ActApplication Application;
    ActViews Views;
    ActPreferences Preferences;
    std::wstring DefaultDatabaseLocation;    ///< ACT!'s default folder for databases
    std::wstring FriendlyName;               ///< the database being edited or opened
    std::vector<std::wstring> DatabaseNames; ///< the list, in the order of "Sort"
    std::wstring OpenDatabaseNames;          ///< the databases that ACT! has open, each as "|" + name + "|"
    bool ActIsClosing = false;   ///< ACT!'s user is closing it: the program follows, nothing more is saved in dialogs
    bool RestartAct = false;     ///< ACT! is to be closed and opened again when this program ends
    bool AskForUsername = false; ///< the properties dialog is to ask for the user name
    bool QuickSwitchHandled = false;  ///< the palette was left in a way that does not bring the main window back
    bool ExitRequested = false;       ///< the palette's Exit was chosen
    bool ACTStartedByProgram = false; ///< ACT! is being started by this program
    bool StartActMode = false;        ///< ACT! was not running: Open_DB only records the chosen name
};

ProgramState& Program();
