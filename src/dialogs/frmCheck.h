#pragma once

#include "databases/ListCheck.h"
#include "program/MainWindow.h"
#include "support/PathCheck.h"
#include "ui/Button.h"
#include "ui/Form.h"
#include "ui/Label.h"
#include "ui/ListView.h"
#include "ui/ProgressBar.h"
#include "ui/Timer.h"

#include <optional>
#include <vector>

/// Looks at every database of the list and shows what is missing of each. No share is waited for longer than ten
/// seconds.
class frmCheck : public Form {
public:
    /// `ask` looks for one path.
    explicit frmCheck(MainWindow& mainWindow, PathCheck::Ask ask = &PathCheck::IsThere);

    Label lblState{this, L"lblState", {120, 120, 8160, 225}};
    ProgressBar barProgress{this, L"barProgress", {120, 375, 8160, 180}};
    ListView lvwMissing{this, L"lvwMissing", {120, 660, 8160, 3000}, {.DblClick = &frmCheck::cmdProperties_Click}};
    CommandButton cmdProperties{
        this, L"cmdProperties", {120, 3780, 1815, 345}, {.Click = &frmCheck::cmdProperties_Click}, Default};
    CommandButton cmdCopy{this, L"cmdCopy", {2070, 3780, 1215, 345}, {.Click = &frmCheck::cmdCopy_Click}};
    CommandButton cmdClose{this, L"cmdClose", {7065, 3780, 1215, 345}, {.Click = &frmCheck::cmdClose_Click}, Cancel};
    Timer tmrPatience{this, L"tmrPatience", {.Timer = &frmCheck::Finish}};

    /// After showing: a database has been changed from here.
    bool HasChanged() const { return hasChanged_; }

private:
    bool Form_Initialize() override { return ReadParts(); }
    void Form_Load() override;
    void Form_Resize() override;
    void Form_CloseBox() override { Unload(); }
    bool Form_KeyDown(const KeyPress& press) override;
    bool OnMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) override;
    bool ReadParts();
    void Begin();
    void Take(WPARAM answer);
    void Finish();
    void cmdProperties_Click();
    void cmdCopy_Click();
    void cmdClose_Click();

    MainWindow& mainWindow_;
    PathCheck::Ask ask_;
    std::vector<ListCheck::Part> parts_;
    std::vector<size_t> asked_; ///< parts whose paths are looked for
    std::vector<size_t> shown_; ///< parts by row
    std::optional<PathCheck> check_;
    long number_ = 0; ///< of the look that goes on; 0 for none
    size_t answered_ = 0;
    int lastRow_ = 0; ///< the row that was worked on last
    bool hasChanged_ = false;
};
