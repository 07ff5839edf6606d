#include "dialogs/frmListMaintenance.h"

#include "dialogs/frmProperties.h"
#include "i18n/modLangues.h"
#include "program/Program.h"
#include "settings/Database.h"
#include "support/ErrorReport.h"

frmListMaintenance::frmListMaintenance(MainWindow& mainWindow)
    : Form({L"frmListMaintenance", 5610, 4200}), mainWindow_(mainWindow) {}

void frmListMaintenance::Form_Load() try {
    // The text is a menu caption: without its access key mark.
    Caption(LangText[89].substr(1));
    Label1.Text(LangText[90] + L":");
    cmdAdd.Text(LangText[87]);
    cmdRemove.Text(LangText[88]);
    cmdUp.Text(LangText[94]);
    cmdDown.Text(LangText[95]);
    cmdClose.Text(LangText[17]);
    Create_List();
    if (lstDB.ListCount() > 0) lstDB.ListIndex(0);
    if (const int selected = mainWindow_.SelectedIndex(); selected != -1) lstDB.ListIndex(selected);
    EnableButtons();
} catch (...) {
    ErrorReport(L"frmListMaintenance: Sub Form_Load");
}

void frmListMaintenance::Create_List() {
    lstDB.Clear();
    for (const std::wstring& name : DatabaseList::ReadSort()) lstDB.AddItem(name);
    isListRead_ = DatabaseList::WasRead();
}

void frmListMaintenance::Save_List() const {
    IniLib::Change change;
    Save_List(change);
    change.Commit();
}

void frmListMaintenance::Save_List(IniLib::Change& change) const {
    if (!isListRead_) change.Refuse(); // the lines are not what is stored
    std::vector<std::wstring> names;
    names.reserve(static_cast<size_t>(lstDB.ListCount()));
    for (int index = 0; index < lstDB.ListCount(); ++index) names.push_back(lstDB.List(index));
    DatabaseList::WriteSort(change, names);
}

void frmListMaintenance::Form_Unload() try {
    if (Program().ActIsClosing) return; // nobody chose to keep the moves
    Save_List();
    mainWindow_.SelectedIndex(lstDB.ListIndex());
} catch (...) {
    ErrorReport(L"frmListMaintenance: Sub Form_Unload");
}

void frmListMaintenance::EnableButtons() {
    const int selected = lstDB.ListIndex();
    cmdRemove.Enabled(selected >= 0);
    cmdUp.Enabled(selected > 0);
    cmdDown.Enabled(selected >= 0 && selected != lstDB.ListCount() - 1);
    // A button that is disabled while it has the focus would leave the keyboard nowhere.
    if (!IsWindowEnabled(GetFocus())) lstDB.SetFocus();
}

void frmListMaintenance::lstDB_Click() { EnableButtons(); }

void frmListMaintenance::cmdAdd_Click() {
    // Moves made so far are written first: the properties dialog adds the new name to what is stored.
    Save_List();
    frmProperties properties(&mainWindow_);
    properties.IsNew(true);
    properties.ShowModal();
    if (properties.Cancelled()) return;
    Create_List();
    lstDB.ListIndex(lstDB.ListCount() - 1);
}

void frmListMaintenance::cmdRemove_Click() {
    const int removed = lstDB.ListIndex();
    if (removed < 0) return;
    const std::wstring name = lstDB.List(removed);
    IniLib::Change change;
    DatabaseList::DeleteFileRecord(change, name);
    lstDB.RemoveItem(removed);
    if (removed < lstDB.ListCount())
        lstDB.ListIndex(removed);
    else if (lstDB.ListCount() > 0)
        lstDB.ListIndex(0);
    EnableButtons();
    DatabaseList::ReplaceInQuickSwitch(change, name, {});
    Save_List(change);
    // A database that stays in the list keeps its log-on.
    if (change.Commit()) DatabaseList::DeleteUserRecord(name);
}

void frmListMaintenance::MoveListboxItem(ListBox& list, int index, int newIndex) {
    if (index < 0) index = list.ListIndex();
    if (index < 0 || newIndex < 0 || newIndex >= list.ListCount()) return;
    const std::wstring text = list.List(index);
    const LONG_PTR datum = list.ItemData(index);
    list.RemoveItem(index);
    list.InsertItem(text, newIndex);
    list.ItemData(newIndex, datum);
    list.ListIndex(newIndex);
}

void frmListMaintenance::cmdUp_Click() { MoveListboxItem(lstDB, lstDB.ListIndex(), lstDB.ListIndex() - 1); }
void frmListMaintenance::cmdDown_Click() { MoveListboxItem(lstDB, lstDB.ListIndex(), lstDB.ListIndex() + 1); }
void frmListMaintenance::cmdClose_Click() { Unload(); }
