// frmMain's buttons, labels and menu items.

#include "app/frmMain.h"

#include "dialogs/frmAbout.h"
#include "dialogs/frmLanguage.h"
#include "dialogs/frmListMaintenance.h"
#include "dialogs/frmLocations.h"
#include "dialogs/frmProperties.h"
#include "i18n/Caption.h"
#include "i18n/modLangues.h"
#include "integration/frmIntegrateNew.h"
#include "program/Program.h"
#include "support/Application.h"
#include "support/MsgBox.h"
#include "support/Shell.h"
#include "support/Vendor.h"
#include "support/modFolderFileExists.h"

#include <array>

void frmMain::cmdOpen_Click() { Open_DB(SelectedName(), CheckedView(), false); }
void frmMain::mnuFileOpen_Click() { cmdOpen_Click(); }
void frmMain::mnuOpen_Click() { cmdOpen_Click(); }

void frmMain::cmdCancel_Click() { Unload(); }
void frmMain::mnuExit_Click() { Unload(); }

void frmMain::lblView_Click(int index) {
    for (OptionButton& option : optView) option.Value(option.Index() == index);
    ListView1.SetFocus();
}

void frmMain::optView_Click(int) { ListView1.SetFocus(); }

void frmMain::lblLink_Click() { OpenWithShell(Vendor::Site); }

void frmMain::mnuManual_Click() {
    // In the order of the languages' numbers. An installation may have left out those that it does not need.
    constexpr std::array kManuals{L"Kelmorra_manual.pdf", L"Kelmorra_manual_fr.pdf", L"Kelmorra_manual_de.pdf"};
    const std::wstring own = Application::FileInFolder(kManuals.at(static_cast<size_t>(CurrentLanguage)));
    OpenWithShell(modFolderFileExists::FileExists(own) ? own : Application::FileInFolder(kManuals.front()));
}

void frmMain::mnuOnline_Click() { OpenWithShell(Vendor::Tutorials + LangText[Caption::OnlineHelpPage] + L".htm"); }

void frmMain::mnuEditProperties_Click() {
    const std::wstring name = SelectedName();
    if (name.empty()) {
        MsgBox(LangText[Caption::NoDatabaseSelected]);
        ListView1.SetFocus();
        return;
    }
    Program().FriendlyName = name;
    frmProperties properties(this);
    properties.IsNew(false);
    properties.ShowModal();
    EndIfInvisible();
}

void frmMain::mnuProperties_Click() { mnuEditProperties_Click(); }

void frmMain::mnuManageList_Click() {
    frmListMaintenance(*this).ShowModal();
    if (!Program().ActIsClosing) ReloadList();
    EndIfInvisible();
}

void frmMain::mnuSettingsLocation_Click() {
    frmLocations locations;
    locations.ShowModal();
    if (locations.LocationChanged())
        MsgBox(L"Please close and restart Kelmorra for the changes to take effect.", MsgIcon::Information);
    EndIfInvisible();
}

void frmMain::mnuIntegrate_Click() {
    frmIntegrateNew().ShowModal();
    if (Program().RestartAct)
        Unload();
    else
        EndIfInvisible();
}

void frmMain::mnuAbout_Click() {
    frmAbout().ShowModal();
    EndIfInvisible();
}

void frmMain::mnuQuickSwitch_Click() { ShowQuickSwitch(); }

void frmMain::mnuLanguages_Click() {
    frmLanguage().ShowModal();
    if (Program().ActIsClosing) return;
    // The load sequence restores what is stored: the window must not jump back to the size of the last run.
    SaveLayout();
    reload_ = true;
    if (Form_Initialize())
        Form_Load();
    else
        Unload();
    EndIfInvisible();
}
