#pragma once

#include "program/MainWindow.h"
#include "settings/IniLib.h"
#include "ui/Button.h"
#include "ui/Form.h"
#include "ui/Label.h"
#include "ui/ListBox.h"

/// Edits the list of databases: adds, removes and orders them. Removals are written at once, moves when it closes,
/// unless it is ACT! that closes.
class frmListMaintenance : public Form {
public:
    explicit frmListMaintenance(MainWindow& mainWindow);

    Label Label1{this, L"Label1", {120, 120, 3600, 255}};
    ListBox lstDB{this, L"lstDB", {120, 390, 3600, 3255}, &frmListMaintenance::lstDB_Click};
    CommandButton cmdAdd{this, L"cmdAdd", {3900, 390, 1500, 345}, &frmListMaintenance::cmdAdd_Click};
    CommandButton cmdRemove{this, L"cmdRemove", {3900, 840, 1500, 345}, &frmListMaintenance::cmdRemove_Click};
    CommandButton cmdUp{this, L"cmdUp", {3900, 1560, 1500, 345}, &frmListMaintenance::cmdUp_Click};
    CommandButton cmdDown{this, L"cmdDown", {3900, 2010, 1500, 345}, &frmListMaintenance::cmdDown_Click};
    CommandButton cmdClose{this, L"cmdClose", {3900, 3300, 1500, 345}, &frmListMaintenance::cmdClose_Click, Cancel};

private:
    void Form_Load() override;
    void Form_Unload() override;
    void Create_List();
    void Save_List() const;
    void Save_List(IniLib::Change& change) const;
    void EnableButtons();
    /// Moves one line, the selected one for a negative index, and selects it. Does nothing when the new index lies
    /// outside the list.
    static void MoveListboxItem(ListBox& list, int index, int newIndex);
    void lstDB_Click();
    void cmdAdd_Click();
    void cmdRemove_Click();
    void cmdUp_Click();
    void cmdDown_Click();
    void cmdClose_Click();

    MainWindow& mainWindow_;
    bool isListRead_ = false;
};
