// frmMain's commands: opening a database, and what buttons, labels and menu items do.

#include "app/frmMain.h"

#include "databases/Keys.h"
#include "dialogs/frmAbout.h"
#include "dialogs/frmLanguage.h"
#include "dialogs/frmListMaintenance.h"
#include "dialogs/frmLocations.h"
#include "dialogs/frmProperties.h"
#include "i18n/Caption.h"
#include "i18n/modLangues.h"
#include "integration/frmIntegrateNew.h"
#include "opening/OpenInAct.h"
#include "program/Program.h"
#include "program/SettingsNotice.h"
#include "quickswitch/frmQuickSwitch.h"
#include "stores/IniLib.h"
#include "stores/UserStore.h"
#include "support/Application.h"
#include "support/ErrorReport.h"
#include "support/MsgBox.h"
#include "support/Shell.h"
#include "support/Text.h"
#include "support/Vendor.h"
#include "support/modFolderFileExists.h"

#include <array>

namespace {

void Tell(OpenInAct::Outcome outcome) {
    if (outcome == OpenInAct::Outcome::MacroRefused)
        MsgBox(Text::Concat({L"Macro cannot be executed by ", Application::Title, L"."}), MsgIcon::None,
               L"Invalid Macro File");
    else if (outcome == OpenInAct::Outcome::NotSelected)
        MsgBox(LangText[Caption::SelectFirst] + L"\r\n\r\n" + LangText[Caption::EmptyListHint], MsgIcon::None,
               LangText[Caption::NoDatabaseSelected].c_str());
    else if (outcome == OpenInAct::Outcome::NotAccessible)
        MsgBox(LangText[Caption::NotAccessible]);
}

/// The code of the view that is chosen.
short CheckedView(const frmMain& window) {
    for (std::size_t view = 0; view < frmMain::ViewCount; ++view)
        if (window.optView[view].Value()) return static_cast<short>(view);
    return 0;
}

} // namespace

void frmMain::Open_DB(const std::wstring& name, short viewCode, bool mainHidden) {
    if (Program().StartActMode) {
        Program().FriendlyName = name;
        return;
    }
    if (name.empty()) {
        if (mainHidden) Show();
        MsgBox(LangText[Caption::NoDatabaseSelected]);
        ListView1.SetFocus();
        return;
    }
    try {
        if (OpenFromList(name, viewCode, mainHidden)) Unload();
    } catch (...) {
        if (!Program().ActIsClosing) Show();
        ErrorReport("frmMain: Sub cmdOpen_Click");
    }
    EndIfInvisible();
}

bool frmMain::OpenFromList(const std::wstring& name, short viewCode, bool mainHidden) {
    const auto stored = IniLib::ReadFile();
    if (!stored) {
        if (mainHidden) Show();
        SettingsNotice::CannotRead();
        ListView1.SetFocus();
        return false;
    }
    if (!mainHidden) Hide();
    const OpenInAct opening(Program(), *stored, name);
    const OpenInAct::Outcome outcome = opening.Run(viewCode);
    const bool isOpen = outcome == OpenInAct::Outcome::Opened || outcome == OpenInAct::Outcome::MacroRefused;
    if (!isOpen && !Program().ActIsClosing) Show();
    Tell(outcome);
    if (isOpen) {
        opening.Finish();
        return true;
    }
    ToFront();
    ListView1.SetFocus();
    opening.PutDefaultsBack();
    return false;
}

void frmMain::SelectedIndex(int index) { UserStore::Set(Keys::Display, Keys::Selected, Text::FromNumber(index)); }

void frmMain::cmdOpen_Click() { Open_DB(table_.SelectedName(), CheckedView(*this), false); }

void frmMain::lblView_Click(int index) {
    for (OptionButton& option : optView) option.Value(option.Index() == index);
    ListView1.SetFocus();
}

void frmMain::lblLink_Click() { OpenWithShell(Vendor::Site); }

void frmMain::mnuManual_Click() {
    // In the order of the languages' numbers. An installation may have left out those that it does not need.
    constexpr std::array kManuals{L"Kelmorra_manual.pdf", L"Kelmorra_manual_fr.pdf", L"Kelmorra_manual_de.pdf"};
    const std::wstring own = Application::FileInFolder(kManuals.at(static_cast<size_t>(CurrentLanguage)));
    OpenWithShell(modFolderFileExists::FileExists(own) ? own : Application::FileInFolder(kManuals.front()));
}

void frmMain::mnuOnline_Click() { OpenWithShell(Vendor::Tutorials + LangText[Caption::OnlineHelpPage] + L".htm"); }

void frmMain::mnuEditProperties_Click() {
    const std::wstring name = table_.SelectedName();
    if (name.empty()) {
        MsgBox(LangText[Caption::NoDatabaseSelected]);
        ListView1.SetFocus();
        return;
    }
    Program().FriendlyName = name;
    frmProperties properties(this);
    properties.IsNew(false);
    ShowDialog(properties);
}

void frmMain::mnuManageList_Click() {
    frmListMaintenance maintenance(*this);
    ShowDialog(maintenance);
    if (!Program().ActIsClosing && !Unloaded()) table_.Reload();
}

void frmMain::mnuSettingsLocation_Click() {
    frmLocations locations;
    ShowDialog(locations);
    if (locations.LocationChanged())
        MsgBox(L"Please close and restart Kelmorra for the changes to take effect.", MsgIcon::Information);
}

void frmMain::mnuIntegrate_Click() {
    frmIntegrateNew integrate;
    ShowDialog(integrate);
    if (Program().RestartAct) Unload();
}

void frmMain::mnuAbout_Click() {
    frmAbout about;
    ShowDialog(about);
}

void frmMain::mnuQuickSwitch_Click() {
    Hide();
    frmQuickSwitch palette(*this);
    ShowDialog(palette);
    if (palette.ExitRequested()) Unload();
}

void frmMain::mnuLanguages_Click() {
    frmLanguage languages;
    ShowDialog(languages);
    if (Program().ActIsClosing || Unloaded()) return;
    // What is stored is restored: the window must not jump back to the size of the last run.
    SaveLayout();
    if (startup_.Reconnect())
        Furnish(false);
    else
        Unload();
}
