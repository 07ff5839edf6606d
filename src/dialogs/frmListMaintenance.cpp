#include "dialogs/frmListMaintenance.h"

#include "databases/DatabaseList.h"
#include "dialogs/frmCheck.h"
#include "dialogs/frmImport.h"
#include "dialogs/frmProperties.h"
#include "i18n/Caption.h"
#include "i18n/MoreText.h"
#include "i18n/modLangues.h"
#include "program/Program.h"
#include "program/SettingsNotice.h"
#include "stores/IniLib.h"
#include "support/MsgBox.h"
#include "support/Text.h"

#include <algorithm>
#include <iterator>

frmListMaintenance::frmListMaintenance(MainWindow& mainWindow)
    : Form({L"frmListMaintenance", 5610, 4200}), mainWindow_(mainWindow) {}

bool frmListMaintenance::Form_Initialize() {
    list_ = EditedList::Load();
    if (!list_) SettingsNotice::CannotRead();
    return static_cast<bool>(list_);
}

void frmListMaintenance::Form_Load() {
    // The text is a menu caption: without its access key mark.
    Caption(LangText[Caption::ManageList].substr(1));
    Label1.Text(LangText[Caption::DatabasesListed] + L":");
    cmdAdd.Text(LangText[Caption::Add]);
    cmdRemove.Text(LangText[Caption::Remove]);
    cmdUp.Text(LangText[Caption::MoveUp]);
    cmdDown.Text(LangText[Caption::MoveDown]);
    cmdClose.Text(LangText[Caption::Close]);
    SetMenuCaptions();
    Create_List();
    if (lstDB.ListCount() > 0) lstDB.ListIndex(0);
    if (const int selected = mainWindow_.SelectedIndex(); selected != -1) lstDB.ListIndex(selected);
    EnableButtons();
}

void frmListMaintenance::SetMenuCaptions() {
    const auto set = [](MenuItem& item, const std::wstring& caption, const wchar_t* held, const std::wstring& key) {
        item.Caption(Text::Concat({caption, L"\t", held, key}));
    };
    const std::wstring ctrl = Translated(MoreText::KeyCtrl);
    set(mnuAdd, LangText[Caption::Add], L"", Translated(MoreText::KeyInsert));
    set(mnuAddOpen, Caption::WithDots(Translated(MoreText::AddOpenDatabase)), ctrl.c_str(), L"+O");
    set(mnuDuplicate, Translated(MoreText::Duplicate), ctrl.c_str(), L"+D");
    set(mnuRemove, LangText[Caption::Remove], L"", Translated(MoreText::KeyDelete));
    set(mnuUndo, Translated(list_->UndoesImport() ? MoreText::UndoImport : MoreText::UndoRemoval), ctrl.c_str(), L"+Z");
    set(mnuUp, LangText[Caption::MoveUp], L"Alt+", Translated(MoreText::KeyUp));
    set(mnuDown, LangText[Caption::MoveDown], L"Alt+", Translated(MoreText::KeyDown));
    set(mnuImport, Caption::WithDots(Translated(MoreText::Import)), ctrl.c_str(), L"+I");
    set(mnuCheck, Caption::WithDots(Translated(MoreText::CheckList)), L"", L"F5");
}

void frmListMaintenance::Create_List() { ShowList(-1); }

void frmListMaintenance::ShowList(int selected) {
    lstDB.Clear();
    for (const std::wstring& name : list_->Shown()) lstDB.AddItem(name);
    if (selected >= 0) lstDB.ListIndex(std::min(selected, lstDB.ListCount() - 1));
    EnableButtons();
}

void frmListMaintenance::ShowList(const std::wstring& selected) {
    ShowList(static_cast<int>(std::ranges::find(list_->Shown(), selected) - list_->Shown().begin()));
}

std::vector<std::wstring> frmListMaintenance::Lines() const {
    std::vector<std::wstring> names;
    names.reserve(static_cast<size_t>(lstDB.ListCount()));
    for (int index = 0; index < lstDB.ListCount(); ++index) names.push_back(lstDB.List(index));
    return names;
}

bool frmListMaintenance::Save_List() {
    const std::wstring selected = SelectedName();
    if (!list_->Save(Lines())) return false;
    if (Lines() != list_->Shown()) ShowList(selected);
    return true;
}

void frmListMaintenance::Form_Unload() {
    if (!list_ || Program().ActIsClosing) return; // nobody chose to keep the moves
    if (!isLeft_) Save_List();
    const auto& stored = list_->Shown();
    const auto selected = std::ranges::find(stored, SelectedName());
    mainWindow_.SelectedIndex(selected == stored.end() ? -1 : static_cast<int>(selected - stored.begin()));
    if (list_->HaveOthersChanged()) MsgBox(Translated(MoreText::ListMerged), MsgIcon::Information);
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
        {{.Key = 'O', .Ctrl = true}, &frmListMaintenance::mnuAddOpen_Click},
        {{.Key = 'I', .Ctrl = true}, &frmListMaintenance::mnuImport_Click},
        {{.Key = VK_F5}, &frmListMaintenance::mnuCheck_Click},
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
    SetMenuCaptions();
    for (MenuItem* item : {&mnuDuplicate, &mnuRemove}) item->Enabled(selected >= 0);
    mnuUndo.Enabled(list_->CanUndo());
    mnuUp.Enabled(selected > 0);
    mnuDown.Enabled(selected >= 0 && selected != lstDB.ListCount() - 1);
    mnuList.PopUp(position);
}

void frmListMaintenance::lstDB_Drop(int from, int to) { MoveListboxItem(lstDB, from, to); }

std::wstring frmListMaintenance::SelectedName() const {
    return lstDB.ListIndex() < 0 ? std::wstring() : lstDB.List(lstDB.ListIndex());
}

/// Moves made so far are written first: what follows works on the list as it is stored.
bool frmListMaintenance::SaveMoves() {
    if (Lines() == list_->Shown() || Save_List()) return true;
    SettingsNotice::NotSaved();
    return false;
}

void frmListMaintenance::AddByProperties(frmProperties& properties) {
    if (!SaveMoves()) return;
    properties.IsNew(true);
    properties.ShowModal();
    if (properties.Cancelled()) return;
    if (!list_->Reload()) return SettingsNotice::CannotRead();
    Create_List();
    lstDB.ListIndex(lstDB.ListCount() - 1);
}

void frmListMaintenance::cmdAdd_Click() {
    frmProperties properties(&mainWindow_);
    AddByProperties(properties);
}

void frmListMaintenance::mnuDuplicate_Click() {
    if (lstDB.ListIndex() < 0) return;
    frmProperties properties(&mainWindow_);
    properties.Model(SelectedName());
    AddByProperties(properties);
}

void frmListMaintenance::mnuAddOpen_Click() {
    const ProgramState& act = Program();
    DatabaseValues values;
    values.Record.Path = act.Application.GetOpenDBName();
    if (values.Record.Path.empty()) return MsgBox(Translated(MoreText::NoOpenDatabase), MsgIcon::Exclamation);
    values.Record.ContactLayout = act.Preferences.DefaultContactLayout();
    values.Record.GroupLayout = act.Preferences.DefaultGroupLayout();
    values.Logon.Username = act.Application.GetCurrentUserName();
    const std::wstring name = Text::AfterLast(values.Record.Path, L'\\');
    values.Name = DatabaseList::FreeName(*IniLib::ReadFile(), name.substr(0, name.rfind(L'.')), list_->Shown());
    frmProperties properties(&mainWindow_);
    properties.Suggest(std::move(values));
    AddByProperties(properties);
}

void frmListMaintenance::mnuImport_Click() {
    if (!SaveMoves()) return;
    const int count = lstDB.ListCount();
    frmImport import(*list_, Lines());
    import.ShowModal();
    if (import.HasImported()) ShowList(count);
}

void frmListMaintenance::mnuCheck_Click() {
    if (!SaveMoves()) return;
    const int selected = lstDB.ListIndex();
    frmCheck check(mainWindow_);
    check.ShowModal();
    if (check.HasChanged() && !list_->Reload()) return SettingsNotice::CannotRead();
    ShowList(selected);
}

void frmListMaintenance::cmdRemove_Click() {
    const int line = lstDB.ListIndex();
    if (line < 0) return;
    std::vector<std::wstring> left = Lines();
    if (!list_->Remove(left, static_cast<size_t>(line))) return SettingsNotice::NotSaved();
    left.erase(left.begin() + line);
    if (left.empty())
        Create_List();
    else
        ShowList(left[static_cast<size_t>(line) < left.size() ? static_cast<size_t>(line) : 0]);
}

void frmListMaintenance::mnuUndo_Click() {
    if (!list_->CanUndo()) return;
    if (const auto line = list_->Undo(Lines()))
        ShowList(static_cast<int>(*line));
    else
        SettingsNotice::NotSaved();
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

void frmListMaintenance::cmdClose_Click() {
    while (!Program().ActIsClosing && !Save_List() && Lines() != list_->Shown() &&
           SettingsNotice::AskToSaveOrderAgain()) {
    }
    isLeft_ = true;
    Unload();
}
