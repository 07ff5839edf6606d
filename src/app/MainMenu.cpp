#include "app/MainMenu.h"

#include "app/frmMain.h"
#include "i18n/Caption.h"
#include "i18n/modLangues.h"

MainMenu::MainMenu(frmMain* form)
    : mnuFile{form, L"mnuFile"}, mnuFileOpen{form, mnuFile, L"mnuFileOpen", {.Click = &frmMain::mnuFileOpen_Click}},
      mnuSep1{mnuFile}, mnuExit{form, mnuFile, L"mnuExit", {.Click = &frmMain::mnuExit_Click}}, mnuEdit{form,
                                                                                                        L"mnuEdit"},
      mnuEditProperties{form, mnuEdit, L"mnuEditProperties", {.Click = &frmMain::mnuEditProperties_Click}},
      mnuManageList{form, mnuEdit, L"mnuManageList", {.Click = &frmMain::mnuManageList_Click}},
      mnuOptions{form, L"mnuOptions"}, mnuSettingsLocation{form,
                                                           mnuOptions,
                                                           L"mnuSettingsLocation",
                                                           {.Click = &frmMain::mnuSettingsLocation_Click}},
      mnuLanguages{form, mnuOptions, L"mnuLanguages", {.Click = &frmMain::mnuLanguages_Click}}, mnuSep2{mnuOptions},
      mnuIntegrate{form, mnuOptions, L"mnuIntegrate", {.Click = &frmMain::mnuIntegrate_Click}},
      mnuQuickSwitch{form, mnuOptions, L"mnuQuickSwitch", {.Click = &frmMain::mnuQuickSwitch_Click}},
      mnuHelp{form, L"mnuHelp"}, mnuManual{form, mnuHelp, L"mnuManual", {.Click = &frmMain::mnuManual_Click}},
      mnuOnline{form, mnuHelp, L"mnuOnline", {.Click = &frmMain::mnuOnline_Click}}, mnuSep3{mnuHelp},
      mnuAbout{form, mnuHelp, L"mnuAbout", {.Click = &frmMain::mnuAbout_Click}}, mnuPopup{form, L"mnuPopup",
                                                                                          Menu::Place::PopUp},
      mnuOpen{form, mnuPopup, L"mnuOpen", {.Click = &frmMain::mnuOpen_Click}},
      mnuProperties{form, mnuPopup, L"mnuProperties", {.Click = &frmMain::mnuProperties_Click}} {}

void MainMenu::SetCaptions() {
    mnuFile.Caption(LangText[Caption::File]);
    mnuFileOpen.Caption(LangText[Caption::Open]);
    mnuExit.Caption(LangText[Caption::Exit]);
    mnuEdit.Caption(LangText[Caption::Edit]);
    mnuEditProperties.Caption(Caption::WithDots(LangText[Caption::DatabaseProperties]));
    mnuManageList.Caption(Caption::WithDots(LangText[Caption::ManageList]));
    mnuOptions.Caption(LangText[Caption::Options]);
    mnuSettingsLocation.Caption(Caption::WithDots(LangText[Caption::SettingsFileLocation]));
    mnuLanguages.Caption(Caption::WithDots(LangText[Caption::LanguagesItem]));
    mnuIntegrate.Caption(Caption::WithDots(LangText[Caption::Integrate]));
    mnuQuickSwitch.Caption(L"QuickSwitch");
    mnuHelp.Caption(LangText[Caption::Help]);
    mnuManual.Caption(LangText[Caption::UsersManual]);
    mnuOnline.Caption(LangText[Caption::OnlineHelp]);
    mnuAbout.Caption(Caption::WithDots(LangText[Caption::AboutItem]));
    mnuOpen.Caption(LangText[Caption::Open]);
    mnuProperties.Caption(Caption::WithDots(LangText[Caption::DatabaseProperties]));
}
