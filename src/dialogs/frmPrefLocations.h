#pragma once

#include "databases/EditedDatabase.h"
#include "ui/Button.h"
#include "ui/Form.h"
#include "ui/ListView.h"

#include <string>

/// Edits the twelve preference locations of one database. They are loaded and cleared under the current friendly name
/// and written under the name that stands in the properties dialog, which may be a new one not saved yet.
class frmPrefLocations : public Form {
public:
    /// `currentName` is empty for a new database; `typedName` is the text of the name box.
    frmPrefLocations(std::wstring currentName, std::wstring typedName);

    ListView lvwPref{this, L"lvwPref", {120, 120, 5550, 3150}, {.DblClick = &frmPrefLocations::lvwPref_DblClick}};
    CommandButton cmdOK{this, L"cmdOK", {5700, 120, 1290, 345}, {.Click = &frmPrefLocations::cmdOK_Click}, Default};
    CommandButton cmdCancel{
        this, L"cmdCancel", {5700, 570, 1290, 345}, {.Click = &frmPrefLocations::cmdCancel_Click}, Cancel};
    CommandButton cmdEditlocation{
        this, L"cmdEditlocation", {5700, 1170, 1290, 345}, {.Click = &frmPrefLocations::cmdEditlocation_Click}};
    CommandButton cmdClear{this, L"cmdClear", {5700, 1620, 1290, 345}, {.Click = &frmPrefLocations::cmdClear_Click}};

private:
    bool Form_Initialize() override;
    void Form_Load() override;
    void Form_Resize() override;
    void lvwPref_DblClick();
    void cmdEditlocation_Click();
    void cmdClear_Click();
    void cmdOK_Click();
    void cmdCancel_Click();

    std::wstring currentName_;
    std::wstring typedName_;
    Read<OwnLocations> locations_{Unreadable()}; ///< none when the settings file could not be read
};
