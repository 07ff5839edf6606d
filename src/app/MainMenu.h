#pragma once

#include "ui/Menu.h"

class frmMain;

/// The main window's menus; their commands are the window's.
struct MainMenu {
    explicit MainMenu(frmMain* form);

    /// Gives all of them their texts in the language in use.
    void SetCaptions();

    Menu mnuFile;
    MenuItem mnuFileOpen;
    MenuSeparator mnuSep1;
    MenuItem mnuExit;
    Menu mnuEdit;
    MenuItem mnuEditProperties;
    MenuItem mnuManageList;
    Menu mnuOptions;
    MenuItem mnuSettingsLocation;
    MenuItem mnuLanguages;
    MenuSeparator mnuSep2;
    MenuItem mnuIntegrate;
    MenuItem mnuQuickSwitch;
    Menu mnuHelp;
    MenuItem mnuManual;
    MenuItem mnuOnline;
    MenuSeparator mnuSep3;
    MenuItem mnuAbout;
    Menu mnuPopup;
    MenuItem mnuOpen;
    MenuItem mnuProperties;
};
