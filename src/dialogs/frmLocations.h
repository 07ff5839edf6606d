#pragma once

#include "ui/Button.h"
#include "ui/Form.h"
#include "ui/Label.h"
#include "ui/TextBox.h"

#include <string>

/// Points the program at another settings file. The change is in force at once for later accesses; the list of the main
/// window follows after a restart.
class frmLocations : public Form {
public:
    frmLocations();
    /// True when OK has made another path the current one.
    bool LocationChanged() const { return locationChanged_; }

    Label Label1{this, L"Label1", {120, 120, 5400, 255}};
    TextBox txtPath{this, L"txtPath", {120, 390, 5100, 315}};
    CommandButton cmdBrowse{this, L"cmdBrowse", {5310, 375, 420, 345}, {.Click = &frmLocations::cmdBrowse_Click}};
    CommandButton cmdOK{this, L"cmdOK", {3150, 960, 1215, 345}, {.Click = &frmLocations::cmdOK_Click}, Default};
    CommandButton cmdCancel{
        this, L"cmdCancel", {4515, 960, 1215, 345}, {.Click = &frmLocations::cmdCancel_Click}, Cancel};

private:
    void Form_Activate() override;
    void cmdBrowse_Click();
    void cmdOK_Click();
    void cmdCancel_Click();

    std::wstring pathAtActivation_;
    std::wstring pickedFile_; ///< what the file dialog holds: empty until a file was picked
    bool isActivated_ = false;
    bool locationChanged_ = false;
};
