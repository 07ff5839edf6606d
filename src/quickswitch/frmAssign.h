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

    TabControl mstAssign{this, L"mstAssign", {120, 120, 7500, 4740}, &frmAssign::mstAssign_Click};

    Frame fraButtons{this, L"fraButtons", {300, 600, 7140, 4110}};
    ControlArray<Label, ButtonCount> lblDB{this, fraButtons, L"lblDB", LabelPlaces(), nullptr};
    ControlArray<ComboBox, ButtonCount> cboDB{this, fraButtons, L"cboDB", ListPlaces(), nullptr};
    Label lblLayout{this, fraButtons, L"lblLayout", {4530, 330, 2400, 225}};
    PictureBox picPosition{this, fraButtons, L"picPosition", {4530, 600, 2430, 1155}, 0, &frmAssign::DrawPosition};
    CheckBox chkStartup{this, fraButtons, L"chkStartup", {150, 3735, 6840, 255}};

    Frame fraColors{this, L"fraColors", {300, 600, 7140, 4110}};
    ControlArray<OptionButton, Artwork::SchemeCount> optColor{this, fraColors, L"optColor", OptionPlaces(), nullptr};
    PictureBox picSample0{
        this, fraColors, L"picSample", SamplePlace(0), 0, &frmAssign::DrawSample, &frmAssign::picSample_Click};
    PictureBox picSample1{
        this, fraColors, L"picSample", SamplePlace(1), 1, &frmAssign::DrawSample, &frmAssign::picSample_Click};
    PictureBox picSample2{
        this, fraColors, L"picSample", SamplePlace(2), 2, &frmAssign::DrawSample, &frmAssign::picSample_Click};
    PictureBox picSample3{
        this, fraColors, L"picSample", SamplePlace(3), 3, &frmAssign::DrawSample, &frmAssign::picSample_Click};
    PictureBox picSample4{
        this, fraColors, L"picSample", SamplePlace(4), 4, &frmAssign::DrawSample, &frmAssign::picSample_Click};

    CommandButton cmdOK{this, L"cmdOK", {5040, 4980, 1215, 345}, &frmAssign::cmdOK_Click, Default};
    CommandButton cmdCancel{this, L"cmdCancel", {6405, 4980, 1215, 345}, &frmAssign::cmdCancel_Click, Cancel};

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
    static Twips SamplePlace(int scheme);
    void DrawSample(int scheme, HDC canvas, const RECT& area, bool isFocused);
    void DrawPosition(int number, HDC canvas, const RECT& area, bool isFocused);

    Read<Palette::Edited> settings_{Unreadable()}; ///< none when the settings file could not be read
};
