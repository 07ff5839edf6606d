#pragma once

#include "act/ActAuxCommands.h"
#include "ui/Button.h"
#include "ui/ControlArray.h"
#include "ui/Form.h"
#include "ui/Frame.h"
#include "ui/Label.h"

#include <array>

/// Puts a command that launches this program into the toolbars and Tools menus of ACT!'s views, and takes it out again.
/// What is clicked is done at once. When the user agrees to restart ACT!, the program's restart flag is set.
class frmIntegrateNew : public Form {
public:
    frmIntegrateNew();

    static constexpr std::size_t ViewCount = 6;

    Frame Frame1{this, L"Frame1", {120, 120, 6240, 1395}};
    ControlArray<CheckBox, ViewCount> chkScreenInToolbar{
        this,
        L"chkScreen",
        In(Frame1, BoxPlaces()),
        {.Index = FirstToolbar, .Click = &frmIntegrateNew::chkScreen_Click}};
    ControlArray<Label, ViewCount> lblScreenInToolbar{
        this,
        L"lblScreen",
        In(Frame1, LabelPlaces()),
        {.Index = FirstToolbar, .Click = &frmIntegrateNew::lblScreen_Click}};
    Frame Frame2{this, L"Frame2", {120, 1635, 6240, 1395}};
    ControlArray<CheckBox, ViewCount> chkScreenInMenu{
        this,
        L"chkScreen",
        In(Frame2, BoxPlaces()),
        {.Index = FirstToolsMenu, .Click = &frmIntegrateNew::chkScreen_Click}};
    ControlArray<Label, ViewCount> lblScreenInMenu{
        this,
        L"lblScreen",
        In(Frame2, LabelPlaces()),
        {.Index = FirstToolsMenu, .Click = &frmIntegrateNew::lblScreen_Click}};
    Label Label2{this, L"Label2", {120, 3150, 6240, 225}};
    CommandButton cmdOK{this, L"cmdOK", {3780, 3510, 1215, 345}, {.Click = &frmIntegrateNew::cmdOK_Click}, Default};
    CommandButton cmdCancel{
        this, L"cmdCancel", {5145, 3510, 1215, 345}, {.Click = &frmIntegrateNew::cmdCancel_Click}, Cancel};

private:
    // The boxes are numbered through: those of the toolbars first.
    static constexpr int FirstToolbar = 0;
    static constexpr int FirstToolsMenu = static_cast<int>(ViewCount);

    static std::array<Twips, ViewCount> BoxPlaces();
    static std::array<Twips, ViewCount> LabelPlaces();
    void Form_Load() override;
    void Form_Unload() override { commands_.Release(); }
    void SetCaptions();
    void ReadBoxes();
    void AddAuxCommand();
    void AskToRestart();
    CheckBox& Box(int index);
    void chkScreen_Click(int index);
    void lblScreen_Click(int index);
    void cmdOK_Click();
    void cmdCancel_Click();

    ActAuxCommands commands_;
    bool isLoading_ = false;
    bool Changed_ = false;
    long LastResult_ = 0;
};
