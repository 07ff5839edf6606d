#pragma once

#include "databases/EditedList.h"
#include "program/MainWindow.h"
#include "ui/Button.h"
#include "ui/Form.h"
#include "ui/Label.h"
#include "ui/ListBox.h"

#include <string>
#include <vector>

class frmProperties;

/// Edits the list of databases: adds, removes, imports and orders them. Removals and imports are written at once and
/// can be undone until the dialog closes; moves are written when it closes, unless it is ACT! that closes. What
/// somebody else has changed in a shared list meanwhile is kept.
class frmListMaintenance : public Form {
public:
    explicit frmListMaintenance(MainWindow& mainWindow);

    Label Label1{this, L"Label1", {120, 120, 3600, 255}};
    ListBox lstDB{this,
                  L"lstDB",
                  {120, 390, 3600, 3255},
                  {.Click = &frmListMaintenance::lstDB_Click,
                   .RightClick = &frmListMaintenance::lstDB_RightClick,
                   .Drop = &frmListMaintenance::lstDB_Drop}};
    CommandButton cmdAdd{this, L"cmdAdd", {3900, 390, 1500, 345}, {.Click = &frmListMaintenance::cmdAdd_Click}};
    CommandButton cmdRemove{
        this, L"cmdRemove", {3900, 840, 1500, 345}, {.Click = &frmListMaintenance::cmdRemove_Click}};
    CommandButton cmdUp{this, L"cmdUp", {3900, 1560, 1500, 345}, {.Click = &frmListMaintenance::cmdUp_Click}};
    CommandButton cmdDown{this, L"cmdDown", {3900, 2010, 1500, 345}, {.Click = &frmListMaintenance::cmdDown_Click}};
    CommandButton cmdClose{
        this, L"cmdClose", {3900, 3300, 1500, 345}, {.Click = &frmListMaintenance::cmdClose_Click}, Cancel};

    Menu mnuList{this, L"mnuList", Menu::Place::PopUp};
    MenuItem mnuAdd{this, mnuList, L"mnuAdd", {.Click = &frmListMaintenance::cmdAdd_Click}};
    MenuItem mnuAddOpen{this, mnuList, L"mnuAddOpen", {.Click = &frmListMaintenance::mnuAddOpen_Click}};
    MenuItem mnuDuplicate{this, mnuList, L"mnuDuplicate", {.Click = &frmListMaintenance::mnuDuplicate_Click}};
    MenuItem mnuRemove{this, mnuList, L"mnuRemove", {.Click = &frmListMaintenance::cmdRemove_Click}};
    MenuItem mnuUndo{this, mnuList, L"mnuUndo", {.Click = &frmListMaintenance::mnuUndo_Click}};
    MenuSeparator mnuListSep1{mnuList};
    MenuItem mnuUp{this, mnuList, L"mnuUp", {.Click = &frmListMaintenance::cmdUp_Click}};
    MenuItem mnuDown{this, mnuList, L"mnuDown", {.Click = &frmListMaintenance::cmdDown_Click}};
    MenuSeparator mnuListSep2{mnuList};
    MenuItem mnuImport{this, mnuList, L"mnuImport", {.Click = &frmListMaintenance::mnuImport_Click}};
    MenuItem mnuCheck{this, mnuList, L"mnuCheck", {.Click = &frmListMaintenance::mnuCheck_Click}};

private:
    bool Form_Initialize() override;
    void Form_Load() override;
    void Form_Unload() override;
    bool Form_KeyDown(const KeyPress& press) override;
    void SetMenuCaptions();
    void Create_List();
    void EnableButtons();
    /// Moves one line, the selected one for a negative index, and selects it. Does nothing when the new index lies
    /// outside the list.
    static void MoveListboxItem(ListBox& list, int index, int newIndex);
    bool SaveMoves();
    void AddByProperties(frmProperties& properties);
    void lstDB_Click();
    void lstDB_RightClick(POINT position);
    void lstDB_Drop(int from, int to);
    void cmdAdd_Click();
    void cmdRemove_Click();
    void cmdUp_Click();
    void cmdDown_Click();
    void cmdClose_Click();
    void mnuDuplicate_Click();
    void mnuUndo_Click();
    void mnuAddOpen_Click();
    void mnuImport_Click();
    void mnuCheck_Click();
    bool Save_List();
    std::vector<std::wstring> Lines() const;
    std::wstring SelectedName() const;
    void ShowList(int selected);
    void ShowList(const std::wstring& selected);

    MainWindow& mainWindow_;
    Read<EditedList> list_{Unreadable()}; ///< none when the settings file could not be read
    bool isLeft_ = false;                 ///< by Close: what could be saved then has been saved
};
