#pragma once

#include "app/DatabaseTable.h"
#include "app/FindBox.h"
#include "app/MainMenu.h"
#include "app/OpenDialogs.h"
#include "app/Startup.h"
#include "program/MainWindow.h"
#include "ui/Button.h"
#include "ui/ControlArray.h"
#include "ui/Form.h"
#include "ui/Frame.h"
#include "ui/Label.h"
#include "ui/ListView.h"
#include "ui/TextBox.h"
#include "ui/Timer.h"

#include <string>

/// The main window: the list of databases, the choice of the view to open in, and the menus. It owns the run: its load
/// is the program's start, its unload the program's end.
class frmMain : public Form, public MainMenu, public MainWindow {
public:
    frmMain();

    void Open_DB(const std::wstring& name, short viewCode, bool mainHidden) override;
    void ShowMain() override;
    int SelectedIndex() const override { return ListView1.Selected(); }
    void SelectedIndex(int index) override;
    void ReplaceRow(const std::wstring& oldName, const std::wstring& name, const DatabaseRecord& record) override {
        table_.Replace(oldName, name, record);
    }

    static constexpr std::size_t ViewCount = 7;

    Line Line1{this, L"Line1", {0, 0, 8475, 15}, COLOR_BTNSHADOW};
    Line Line2{this, L"Line2", {0, 15, 8475, 15}, COLOR_BTNHIGHLIGHT};
    Label lblFind{this, L"lblFind", {120, 165, 945, 225}};
    TextBox txtFind{this, L"txtFind", {1080, 120, 5535, 315}, {.Change = &frmMain::txtFind_Change}};
    ListView ListView1{this,
                       L"ListView1",
                       {120, 120, 6495, 2415},
                       {.DblClick = &frmMain::ListView1_DblClick,
                        .ColumnClick = &frmMain::ListView1_ColumnClick,
                        .RightClick = &frmMain::ListView1_MouseDown,
                        .Tip = &frmMain::ListView1_Tip}};
    Frame Frame1{this, L"Frame1", {120, 2715, 6495, 1290}};
    ControlArray<OptionButton, ViewCount> optView{this,
                                                  L"optView",
                                                  In(Frame1, Grid<ViewCount>({180, 255, 210, 210}, 4, 3120, 255)),
                                                  {.Click = &frmMain::optView_Click}};
    ControlArray<Label, ViewCount> lblView{this,
                                           L"lblView",
                                           In(Frame1, Grid<ViewCount>({450, 255, 2700, 225}, 4, 3120, 255)),
                                           {.Click = &frmMain::lblView_Click}};
    CommandButton cmdOpen{this, L"cmdOpen", {7100, 120, 1135, 345}, {.Click = &frmMain::cmdOpen_Click}, Default};
    CommandButton cmdCancel{this, L"cmdCancel", {7100, 570, 1135, 345}, {.Click = &frmMain::cmdCancel_Click}, Cancel};
    Label lblMore{this, L"lblMore", {6100, 4140, 600, 255}};
    LinkLabel lblLink{this, L"lblLink", {6700, 4140, 1655, 255}, {.Click = &frmMain::lblLink_Click}};
    Timer Timer1{this, L"Timer1", {.Timer = &frmMain::Timer1_Timer}};
    Timer tmrLeaveDialogs{this, L"tmrLeaveDialogs", {.Timer = &frmMain::tmrLeaveDialogs_Timer}};

private:
    friend struct MainMenu; // binds the commands
    bool Form_Initialize() override { return startup_.Connect(); }
    void Form_Load() override;
    void Form_Resize() override;
    void Form_Unload() override;
    void Form_CloseBox() override;
    bool Form_KeyDown(const KeyPress& press) override;
    bool OnMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) override;
    void ActEvent1_OnActUserWantsToClose();
    void Timer1_Timer();
    void tmrLeaveDialogs_Timer();
    void txtFind_Change() { find_.Narrow(); }
    void ListView1_ColumnClick(int column) { table_.SortBy(column); }
    void ListView1_DblClick() { cmdOpen_Click(); }
    void ListView1_MouseDown() { mnuPopup.PopUp(ListView1.MenuPosition()); }
    std::wstring ListView1_Tip(int row) { return table_.Tip(row); }
    void cmdOpen_Click();
    void cmdCancel_Click() { Unload(); }
    void lblLink_Click();
    void lblView_Click(int index);
    void optView_Click(int) { ListView1.SetFocus(); }
    void mnuFileOpen_Click() { cmdOpen_Click(); }
    void mnuOpen_Click() { cmdOpen_Click(); }
    void mnuExit_Click() { Unload(); }
    void mnuEditProperties_Click();
    void mnuProperties_Click() { mnuEditProperties_Click(); }
    void mnuManageList_Click();
    void mnuSettingsLocation_Click();
    void mnuLanguages_Click();
    void mnuIntegrate_Click();
    void mnuQuickSwitch_Click();
    void mnuManual_Click();
    void mnuOnline_Click();
    void mnuAbout_Click();

    void Furnish(bool isStart);
    void RestoreSize(bool isStart);
    void ShowFirstWindow();
    void SetCaptions();
    void SaveLayout();
    void LookForFiles();
    void ShowDialog(Form& dialog);
    void EndIfInvisible();
    void EndSession();
    bool OpenFromList(const std::wstring& name, short viewCode, bool mainHidden);

    FindBox find_{lblFind, txtFind, ListView1};
    DatabaseTable table_;
    Startup startup_;
    OpenDialogs openDialogs_{*this};
    int ticks_ = 0;           ///< of Timer1
    bool sizeLoaded_ = false; ///< the size is saved only when it was loaded in this run
};
