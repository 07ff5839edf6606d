#include "integration/frmIntegrateNew.h"

#include "i18n/Caption.h"
#include "i18n/modLangues.h"
#include "program/Program.h"
#include "support/Application.h"
#include "support/MsgBox.h"
#include "support/Text.h"

namespace {

short ViewNumber(int index) { return static_cast<short>(index % static_cast<int>(frmIntegrateNew::ViewCount) + 1); }

ActAuxCommands::Definition OwnCommand() {
    const std::wstring title = Application::Title;
    const std::wstring program = Application::FileInFolder(Application::ProgramName());
    return {title,
            program + L".exe",
            Application::Folder(),
            title,
            Text::Concat({title, L" ", LangText[Caption::ClickToLaunch]}),
            program + L".ico",
            program + L"32.ico"};
}

} // namespace

frmIntegrateNew::frmIntegrateNew() : Form({L"frmIntegrateNew", 6570, 4350}) {}

std::array<Twips, frmIntegrateNew::ViewCount> frmIntegrateNew::BoxPlaces() {
    return Grid<ViewCount>({150, 330, 210, 210}, 3, 3000, 330);
}

std::array<Twips, frmIntegrateNew::ViewCount> frmIntegrateNew::LabelPlaces() {
    return Grid<ViewCount>({450, 330, 2550, 225}, 3, 3000, 330);
}

void frmIntegrateNew::Form_Load() try {
    SetCaptions();
    commands_ = ActAuxCommands::Create();
    isLoading_ = true;
    ReadBoxes();
    isLoading_ = false;
    Changed_ = false;
} catch (...) {
    isLoading_ = false;
    throw;
}

void frmIntegrateNew::SetCaptions() {
    Caption(LangText[Caption::IntegrateTitle]);
    Frame1.Text(LangText[Caption::ToolbarViews] + L":");
    Frame2.Text(LangText[Caption::ToolsMenuViews] + L":");
    for (size_t view = 0; view < ViewCount; ++view) {
        const std::wstring& name = LangText[Caption::FirstActView + static_cast<int>(view)];
        lblScreenInToolbar[view].Text(name);
        lblScreenInMenu[view].Text(name);
        // Too narrow to be seen: for screen readers.
        chkScreenInToolbar[view].Text(name + L", " + LangText[Caption::ToolbarViews]);
        chkScreenInMenu[view].Text(name + L", " + LangText[Caption::ToolsMenuViews]);
    }
    Label2.Text(LangText[Caption::RestartNeeded]);
    cmdOK.Text(LangText[Caption::Close]);
    cmdCancel.Text(LangText[Caption::Cancel]);
}

void frmIntegrateNew::ReadBoxes() {
    for (CheckBox& box : chkScreenInToolbar)
        box.Value(commands_.AuxCommandExistsInToolbar(ViewNumber(box.Index()), Application::Title));
    for (CheckBox& box : chkScreenInMenu)
        box.Value(commands_.AuxCommandExistsInToolsMenu(ViewNumber(box.Index()), Application::Title));
}

void frmIntegrateNew::AddAuxCommand() {
    if (commands_.AddAuxCommand(OwnCommand()) != 0) MsgBox(LangText[Caption::OperationFailed]);
}

void frmIntegrateNew::chkScreen_Click(int index) {
    if (isLoading_) return;
    Changed_ = true;
    if (!commands_.AuxCommandExists(Application::Title)) AddAuxCommand();
    const short view = ViewNumber(index);
    const bool isChecked = Box(index).Value();
    if (index >= FirstToolsMenu)
        LastResult_ = isChecked ? commands_.AddAuxCommandToToolsMenu(view, Application::Title)
                                : commands_.RemoveAuxCommandFromToolsMenu(view, Application::Title);
    else
        LastResult_ = isChecked ? commands_.AddAuxCommandToToolbar(view, Application::Title)
                                : commands_.RemoveAuxCommandFromToolbar(view, Application::Title);
}

void frmIntegrateNew::lblScreen_Click(int index) { Box(index).Value(!Box(index).Value()); }

void frmIntegrateNew::cmdOK_Click() {
    if (Changed_) {
        if (LastResult_ != 0)
            MsgBox(LangText[Caption::OperationFailed]);
        else
            AskToRestart();
    }
    Unload();
}

void frmIntegrateNew::AskToRestart() {
    const bool isWanted = AskYesNo(LangText[Caption::RestartNeeded] + L"\r\n" + LangText[Caption::RestartNow]);
    LoadAgain();
    if (isWanted) Program().RestartAct = true;
}

void frmIntegrateNew::cmdCancel_Click() { Unload(); }

CheckBox& frmIntegrateNew::Box(int index) {
    return index >= FirstToolsMenu ? chkScreenInMenu[static_cast<size_t>(index - FirstToolsMenu)]
                                   : chkScreenInToolbar[static_cast<size_t>(index)];
}
