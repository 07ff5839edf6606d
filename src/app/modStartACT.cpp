#include "app/modStartACT.h"

#include "databases/DatabaseList.h"
#include "databases/Keys.h"
#include "dialogs/frmProperties.h"
#include "i18n/Caption.h"
#include "i18n/modLangues.h"
#include "opening/StartAct.h"
#include "program/Program.h"
#include "program/SettingsNotice.h"
#include "quickswitch/frmQuickSwitch.h"
#include "stores/IniLib.h"
#include "stores/UserStore.h"
#include "support/Application.h"
#include "support/ErrorReport.h"
#include "support/MsgBox.h"

namespace {

void AskForUsername() {
    MsgBox(L"Because it is the first time you are opening this database with QuickSwitch\r\n"
           L"and no username has been setup,\r\n"
           L"you need to enter your username (and optionally a password).",
           MsgIcon::Exclamation);
    if (const auto stored = IniLib::ReadFile()) Program().DatabaseNames = DatabaseList::Read(*stored).shown;
    frmProperties properties(nullptr);
    properties.IsNew(false);
    properties.AskForUsername(true);
    properties.ShowModal();
}

} // namespace

namespace modStartACT {

void StartACT_mode(MainWindow& mainWindow) try {
    ProgramState& program = Program();
    program.StartActMode = true;
    program.ACTStartedByProgram = true;
    program.FriendlyName.clear();
    frmQuickSwitch(mainWindow).ShowModal();
    if (program.FriendlyName.empty()) return;
    if (UserStore::Get(program.FriendlyName, Keys::Username).empty()) AskForUsername();
    const std::wstring name = program.FriendlyName; // the dialog may have renamed it
    const auto stored = IniLib::ReadFile();
    if (!stored)
        SettingsNotice::CannotRead();
    else if (!StartAct::On(*stored, name))
        MsgBox(LangText[Caption::RunActFirst] + Application::Title);
} catch (...) {
    ErrorReport("modStartACT: Sub StartACT_mode");
}

} // namespace modStartACT
