#pragma once

#include "program/MainWindow.h"
#include "quickswitch/Artwork.h"
#include "quickswitch/Tracker.h"
#include "ui/Button.h"
#include "ui/Form.h"
#include "ui/Menu.h"
#include "ui/PictureBox.h"
#include "ui/ToolTip.h"

#include <array>
#include <string>
#include <utility>
#include <vector>

/// The palette: a small window on top of all others with up to eight buttons, each of which opens a database.
/// Every way of leaving it that must not bring the main window back sets the program's QuickSwitchHandled.
class frmQuickSwitch : public Form {
public:
    explicit frmQuickSwitch(MainWindow& mainWindow);

    static constexpr int ButtonCount = 8;

    PictureBox pic1{this, L"pic1", ButtonPlace(1), PictureEvents(1)};
    PictureBox pic2{this, L"pic2", ButtonPlace(2), PictureEvents(2)};
    PictureBox pic3{this, L"pic3", ButtonPlace(3), PictureEvents(3)};
    PictureBox pic4{this, L"pic4", ButtonPlace(4), PictureEvents(4)};
    PictureBox pic5{this, L"pic5", ButtonPlace(5), PictureEvents(5)};
    PictureBox pic6{this, L"pic6", ButtonPlace(6), PictureEvents(6)};
    PictureBox pic7{this, L"pic7", ButtonPlace(7), PictureEvents(7)};
    PictureBox pic8{this, L"pic8", ButtonPlace(8), PictureEvents(8)};
    CommandButton cmdCancel{this, L"cmdCancel", {}, {.Click = &frmQuickSwitch::cmdCancel_Click}, Cancel};

    Menu mnuControl{this, L"mnuControl", Menu::Place::PopUp};
    MenuItem mnuAssign{this, mnuControl, L"mnuAssign", {.Click = &frmQuickSwitch::mnuAssign_Click}};
    MenuSeparator mnuControlSep10{mnuControl};
    MenuItem mnuControlClose{this, mnuControl, L"mnuControlClose", {.Click = &frmQuickSwitch::mnuControlClose_Click}};
    MenuItem mnuExit{this, mnuControl, L"mnuExit", {.Click = &frmQuickSwitch::mnuExit_Click}};

    /// The place of a button (1 to 8) in twips: odd ones above, even ones below, a column to the right for each pair.
    static Twips ButtonPlace(int button);
    /// After showing: Exit was chosen.
    bool ExitRequested() const { return exitRequested_; }

private:
    static PictureBoxEvents<frmQuickSwitch> PictureEvents(int button) {
        return {.Number = button,
                .Draw = &frmQuickSwitch::pic_Draw,
                .Click = &frmQuickSwitch::pic_Click,
                .Hover = &frmQuickSwitch::pic_Hover,
                .KeyDown = &frmQuickSwitch::pic_KeyDown};
    }
    template <size_t... Index>
    std::array<Tracker, ButtonCount> MakeTrackers(std::index_sequence<Index...>) {
        return {Tracker{this,
                        static_cast<int>(Index) + 1,
                        {.Mouse = &frmQuickSwitch::TrackerN_Mouse, .Click = &frmQuickSwitch::TrackerN_Click}}...};
    }
    void Form_Load() override;
    void Form_Activate() override;
    void Form_Deactivate() override;
    void Form_Resize() override;
    void Form_Unload() override;
    void Form_CloseBox() override { Unload(); }
    bool OnMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) override;
    void Form_Paint();
    void Form_MouseDown(POINT position);
    void Refresh_Screen();
    void ShowColumns();
    void TipControlBox();
    void AttachTrackers();
    void RestorePosition();
    void Save_Position() const;
    void TrackerN_Click(int button);
    void TrackerN_Mouse(int button, int action);
    void MouseAction(PictureBox& picture, int action, int button);
    void pic_Click(int button) { TrackerOf(button).Clicked(); }
    void pic_Hover(int button, bool isOver);
    void pic_Draw(int button, HDC canvas, const RECT& area, bool isFocused);
    Artwork::Rgb CaptionColor(int button) const;
    void Write_Picture(int button, HDC canvas, const RECT& area) const;
    bool pic_KeyDown(int button, int key);
    void ShowControlMenu(POINT position);
    bool IsOpenInAct(const std::wstring& name) const;
    const std::wstring& NameOf(int button) const;
    std::wstring CaptionOf(int button) const;
    int StripWidth() const;
    PictureBox& Picture(int button);
    Tracker& TrackerOf(int button) { return trackers_.at(static_cast<size_t>(button) - 1); }
    void mnuAssign_Click();
    void mnuControlClose_Click();
    void mnuExit_Click();
    void cmdCancel_Click();

    MainWindow& mainWindow_;
    std::array<Tracker, ButtonCount> trackers_ = MakeTrackers(std::make_index_sequence<ButtonCount>());
    std::array<bool, ButtonCount> isHighlighted_{};
    std::vector<std::wstring> QuickSwitchNames_;
    bool exitRequested_ = false;
    short Scheme_ = 0;
    RECT ControlBoxRect_{};
    int StripColor_ = COLOR_ACTIVECAPTION;
    ToolTip toolTip_;
};
