#include "dialogs/frmLocations.h"

#include "databases/Keys.h"
#include "i18n/Caption.h"
#include "i18n/modLangues.h"
#include "stores/IniLib.h"
#include "stores/UserStore.h"
#include "support/Application.h"
#include "support/MsgBox.h"
#include "support/Text.h"
#include "support/modFolderFileExists.h"
#include "ui/CommonDialogs.h"

frmLocations::frmLocations() : Form({L"frmLocations", 5940, 1875}) {}

void frmLocations::Form_Activate() {
    // Coming back from the file dialog or a message is no new beginning.
    if (isActivated_) return;
    isActivated_ = true;
    Caption(LangText[Caption::SettingsFileLocation]);
    Label1.Text(LangText[Caption::SettingsFileLocation] + L":");
    cmdOK.Text(LangText[Caption::OK]);
    cmdCancel.Text(LangText[Caption::Cancel]);
    cmdBrowse.Text(L"...");
    cmdBrowse.AccessibleName(Caption::WithDots(LangText[Caption::SettingsFileLocation]));
    pathAtActivation_ = IniLib::SettingsFile();
    txtPath.Text(pathAtActivation_);
    txtPath.SelectAll();
}

void frmLocations::cmdBrowse_Click() {
    std::wstring folder = Text::ExtractPath(txtPath.Text());
    if (folder.empty()) folder = Application::Folder();
    pickedFile_ = PickFile(Handle(), L"ini Files (*.ini)|*.ini", folder).value_or(pickedFile_);
    txtPath.Text(pickedFile_);
}

void frmLocations::cmdOK_Click() {
    const std::wstring path = txtPath.Text();
    if (!modFolderFileExists::FileExists(path)) {
        MsgBox(L"Invalid file specified!");
        txtPath.SetFocus();
        return;
    }
    UserStore::Set(Keys::Settings, Keys::IniLocation, path);
    if (path != pathAtActivation_) {
        IniLib::SettingsFile(path);
        locationChanged_ = true;
    }
    Unload();
}

void frmLocations::cmdCancel_Click() { Unload(); }
