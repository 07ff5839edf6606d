#include "dialogs/frmListMaintenance.h"

#include "databases/Database.h"
#include "dialogs/frmProperties.h"
#include "i18n/MoreText.h"
#include "i18n/modLangues.h"
#include "program/Program.h"
#include "support/ErrorReport.h"
#include "support/MsgBox.h"
#include "support/Text.h"

#include <algorithm>
#include <iterator>

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
    SetMenuCaptions();
    Create_List();
    if (lstDB.ListCount() > 0) lstDB.ListIndex(0);
    if (const int selected = mainWindow_.SelectedIndex(); selected != -1) lstDB.ListIndex(selected);
    EnableButtons();
} catch (...) {
    ErrorReport("frmListMaintenance: Sub Form_Load");
}

void frmListMaintenance::SetMenuCaptions() {
    const auto set = [](MenuItem& item, const std::wstring& caption, const wchar_t* held, const std::wstring& key) {
        item.Caption(Text::Concat({caption, L"\t", held, key}));
    };
    const std::wstring ctrl = Translated(MoreText::KeyCtrl);
    set(mnuAdd, LangText[87], L"", Translated(MoreText::KeyInsert));
    set(mnuDuplicate, Translated(MoreText::Duplicate), ctrl.c_str(), L"+D");
    set(mnuRemove, LangText[88], L"", Translated(MoreText::KeyDelete));
    set(mnuUndo, Translated(MoreText::UndoRemoval), ctrl.c_str(), L"+Z");
    set(mnuUp, LangText[94], L"Alt+", Translated(MoreText::KeyUp));
    set(mnuDown, LangText[95], L"Alt+", Translated(MoreText::KeyDown));
}

void frmListMaintenance::Create_List() {
    lstDB.Clear();
    for (const std::wstring& name : DatabaseList::ReadSort()) lstDB.AddItem(name);
    isListRead_ = DatabaseList::WasRead();
    NoteStored();
}

void frmListMaintenance::Form_Unload() try {
    if (Program().ActIsClosing) return; // nobody chose to keep the moves
    Save_List();
    mainWindow_.SelectedIndex(lstDB.ListIndex());
    if (isMerged_) MsgBox(Translated(MoreText::ListMerged), MsgIcon::Information);
} catch (...) {
    ErrorReport("frmListMaintenance: Sub Form_Unload");
}

bool frmListMaintenance::Form_KeyDown(const KeyPress& press) {
    using Command = void (frmListMaintenance::*)();
    struct Shortcut {
        KeyPress Press;
        Command Run;
    };
    static constexpr Shortcut kShortcuts[] = {
        {{.Key = VK_INSERT}, &frmListMaintenance::cmdAdd_Click},
        {{.Key = VK_DELETE}, &frmListMaintenance::cmdRemove_Click},
        {{.Key = VK_UP, .Alt = true}, &frmListMaintenance::cmdUp_Click},
        {{.Key = VK_DOWN, .Alt = true}, &frmListMaintenance::cmdDown_Click},
        {{.Key = 'D', .Ctrl = true}, &frmListMaintenance::mnuDuplicate_Click},
        {{.Key = 'Z', .Ctrl = true}, &frmListMaintenance::mnuUndo_Click},
    };
    const auto* const found = std::ranges::find(kShortcuts, press, &Shortcut::Press);
    if (found == std::end(kShortcuts)) return false;
    (this->*found->Run)();
    return true;
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

void frmListMaintenance::lstDB_RightClick(POINT position) {
    const int selected = lstDB.ListIndex();
    for (MenuItem* item : {&mnuDuplicate, &mnuRemove}) item->Enabled(selected >= 0);
    mnuUndo.Enabled(!removed_.empty());
    mnuUp.Enabled(selected > 0);
    mnuDown.Enabled(selected >= 0 && selected != lstDB.ListCount() - 1);
    mnuList.PopUp(position);
}

void frmListMaintenance::lstDB_Drop(int from, int to) { MoveListboxItem(lstDB, from, to); }

void frmListMaintenance::AddByProperties(const std::wstring& model) {
    // Moves made so far are written first: the properties dialog adds the new name to what is stored.
    Save_List();
    frmProperties properties(&mainWindow_);
    properties.IsNew(true);
    properties.Model(model);
    properties.ShowModal();
    if (properties.Cancelled()) return;
    Create_List();
    lstDB.ListIndex(lstDB.ListCount() - 1);
}

void frmListMaintenance::cmdAdd_Click() { AddByProperties({}); }

void frmListMaintenance::mnuDuplicate_Click() {
    if (lstDB.ListIndex() >= 0) AddByProperties(lstDB.List(lstDB.ListIndex()));
}

void frmListMaintenance::cmdRemove_Click() {
    const int line = lstDB.ListIndex();
    if (line < 0) return;
    RemovedDatabase removed(lstDB.List(line), line);
    IniLib::Change change;
    DatabaseList::DeleteFileRecord(change, removed.Name());
    lstDB.RemoveItem(line);
    if (line < lstDB.ListCount())
        lstDB.ListIndex(line);
    else if (lstDB.ListCount() > 0)
        lstDB.ListIndex(0);
    EnableButtons();
    DatabaseList::ReplaceInQuickSwitch(change, removed.Name(), {});
    // A database that stays in the list keeps its log-on.
    if (!Save_List(change)) return;
    DatabaseList::DeleteUserRecord(removed.Name());
    removed.NoteRemoval();
    removed_.push_back(std::move(removed));
}

void frmListMaintenance::mnuUndo_Click() {
    if (removed_.empty()) return;
    const RemovedDatabase& last = removed_.back();
    const int line = std::min(last.Line(), lstDB.ListCount());
    IniLib::Change change;
    last.RestoreFile(change);
    lstDB.InsertItem(last.Name(), line);
    lstDB.ListIndex(line);
    if (!Save_List(change)) {
        lstDB.RemoveItem(line);
        EnableButtons();
        return;
    }
    last.RestoreUser();
    removed_.pop_back();
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
