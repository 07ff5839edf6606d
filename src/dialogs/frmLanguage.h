#pragma once

#include "ui/Button.h"
#include "ui/ComboBox.h"
#include "ui/Form.h"
#include "ui/Label.h"

/// Lets the user pick the language of the program. It only records the choice in the per-user store ("Options",
/// "Language"); the caller puts it into force. On the first run it cannot be left without a choice.
class frmLanguage : public Form {
public:
    frmLanguage();
    /// True until a start has come up to its end once.
    static bool IsFirstRun();

    Label Label1{this, L"Label1", {120, 120, 3870, 255}};
    ComboBox cmbLanguage{this, L"cmbLanguage", {120, 420, 2505, 315}};
    CommandButton cmdOK{this, L"cmdOK", {2775, 405, 1215, 345}, {.Click = &frmLanguage::cmdOK_Click}, Default};
    CommandButton cmdCancel{
        this, L"cmdCancel", {2775, 825, 1215, 345}, {.Click = &frmLanguage::cmdCancel_Click}, Cancel};

private:
    void Form_Load() override;
    void cmdOK_Click();
    void cmdCancel_Click();

    bool isFirstRun_;
};
