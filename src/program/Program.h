#pragma once

#include "opening/ActConnection.h"

#include <string>
#include <vector>

/// What the windows share by name for as long as the process lives. The main window owns it: its start fills it, its
/// end empties it, and the others change what is said of them here.
struct ProgramState : ActConnection {
    /// ACT!'s default folder for databases as it was at the start. No window reads it: dialogs ask for that of the
    /// moment.
    std::wstring DefaultDatabaseLocation;
    std::wstring FriendlyName;               ///< the database being edited or opened
    std::vector<std::wstring> DatabaseNames; ///< the list, in the order of "Sort"
    std::wstring OpenDatabaseNames;          ///< the databases that ACT! has open, each as "|" + name + "|"
    bool ActIsClosing = false; ///< ACT!'s user is closing it: the program follows, nothing more is saved in dialogs
    bool RestartAct = false;   ///< ACT! is to be closed and opened again when this program ends
    bool QuickSwitchHandled = false;  ///< the palette was left in a way that does not bring the main window back
    bool ACTStartedByProgram = false; ///< ACT! is being started by this program
    bool StartActMode = false;        ///< ACT! was not running: Open_DB only records the chosen name
};

ProgramState& Program();
