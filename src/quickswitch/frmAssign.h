#pragma once

#include "databases/Palette.h"
#include "quickswitch/Drawing.h"
#include "ui/Button.h"
#include "ui/ComboBox.h"
#include "ui/ControlArray.h"
#include "ui/Form.h"
#include "ui/Frame.h"
#include "ui/Label.h"
#include "ui/PictureBox.h"
#include "ui/TabControl.h"

#include <array>

/// The palette's settings: which database each button opens, the colour scheme, and whether it comes up at the start.
class frmAssign : public Form {
public:
    frmAssign();

    static constexpr std::size_t ButtonCount = Palette::ButtonCount;

    TabControl mstAssign{this, L"mstAssign", {120, 120, 7500, 4740}, {.Click = &frmAssign::mstAssign_Click}};

    Frame fraButtons{this, L"fraButtons", {300, 600, 7140, 4110}};
    ControlArray<Label, ButtonCount> lblDB{this, L"lblDB", In(fraButtons, LabelPlaces())};
    ControlArray<ComboBox, ButtonCount> cboDB{this, L"cboDB", In(fraButtons, ListPlaces())};
    Label lblLayout{this, L"lblLayout", In(fraButtons, {4530, 330, 2400, 225})};
    PictureBox picPosition{
        this, L"picPosition", In(fraButtons, {4530, 600, 2430, 1155}), {.Draw = &frmAssign::DrawPosition}};
    CheckBox chkStartup{this, L"chkStartup", In(fraButtons, {150, 3735, 6840, 255})};

    Frame fraColors{this, L"fraColors", {300, 600, 7140, 4110}};
    ControlArray<OptionButton, Artwork::SchemeCount> optColor{this, L"optColor", In(fraColors, OptionPlaces())};
    ControlArray<PictureBox, Artwork::SchemeCount> picSample{
        this,
        L"picSample",
        In(fraColors, SamplePlaces()),
        {.Draw = &frmAssign::DrawSample, .Click = &frmAssign::picSample_Click}};

    CommandButton cmdOK{this, L"cmdOK", {5040, 4980, 1215, 345}, {.Click = &frmAssign::cmdOK_Click}, Default};
    CommandButton cmdCancel{
        this, L"cmdCancel", {6405, 4980, 1215, 345}, {.Click = &frmAssign::cmdCancel_Click}, Cancel};

private:
    bool Form_Initialize() override;
    void Form_Load() override;
    bool Form_KeyDown(const KeyPress& press) override { return mstAssign.TakesKey(press); }
    void SetCaptions();
    void SetButtonCaption(size_t index);
    void FillLists();
    void mstAssign_Click(int previousTab);
    void picSample_Click(int scheme);
    void cmdOK_Click();
    void cmdCancel_Click();
    void ShowPage(int tab);
    static std::array<Twips, ButtonCount> LabelPlaces();
    static std::array<Twips, ButtonCount> ListPlaces();
    static std::array<Twips, Artwork::SchemeCount> OptionPlaces();
    static std::array<Twips, Artwork::SchemeCount> SamplePlaces();
    void DrawSample(int scheme, HDC canvas, const RECT& area, bool isFocused);
    void DrawPosition(int number, HDC canvas, const RECT& area, bool isFocused);

    Read<Palette::Edited> settings_{Unreadable()}; ///< none when the settings file could not be read
};
