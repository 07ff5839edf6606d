#pragma once

#include "databases/EditedList.h"
#include "ui/Button.h"
#include "ui/ComboBox.h"
#include "ui/Form.h"
#include "ui/Label.h"
#include "ui/ListView.h"

#include <optional>
#include <string>
#include <vector>

/// Adds databases of another settings file to the list: of a copy that was kept, or of any file.
class frmImport : public Form {
public:
    /// `order` is the list as the user has ordered it.
    frmImport(EditedList& list, EditedList::Names order);

    Label Label1{this, L"Label1", {120, 120, 6840, 225}};
    ComboBox cboFile{this, L"cboFile", {120, 345, 6330, 315}, {.Click = &frmImport::cboFile_Click}};
    CommandButton cmdBrowse{this, L"cmdBrowse", {6540, 330, 420, 345}, {.Click = &frmImport::cmdBrowse_Click}};
    Label Label2{this, L"Label2", {120, 780, 6840, 225}};
    ListView lvwDatabases{this, L"lvwDatabases", {120, 1005, 6840, 2640}};
    Label lblLeftOut{this, L"lblLeftOut", {120, 3780, 4080, 450}};
    CommandButton cmdOK{this, L"cmdOK", {4380, 3780, 1215, 345}, {.Click = &frmImport::cmdOK_Click}, Default};
    CommandButton cmdCancel{
        this, L"cmdCancel", {5745, 3780, 1215, 345}, {.Click = &frmImport::cmdCancel_Click}, Cancel};

    /// After showing: databases have been added.
    bool HasImported() const { return hasImported_; }

private:
    void Form_Load() override;
    void Form_Resize() override;
    void Open(const std::wstring& file);
    void cboFile_Click();
    void cmdBrowse_Click();
    void cmdOK_Click();
    void cmdCancel_Click() { Unload(); }

    EditedList& list_;
    EditedList::Names order_;
    std::vector<std::wstring> files_; ///< as the drop-down list names them
    std::optional<OtherSettings> other_;
    bool hasImported_ = false;
};
