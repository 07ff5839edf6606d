#pragma once

#include "act/ActEvent.h"
#include "app/SingleInstance.h"
#include "databases/Record.h"
#include "integration/clsToolbarIcon.h"
#include "program/MainWindow.h"
#include "support/PathCheck.h"
#include "ui/Button.h"
#include "ui/ControlArray.h"
#include "ui/Form.h"
#include "ui/Frame.h"
#include "ui/Label.h"
#include "ui/ListView.h"
#include "ui/Menu.h"
#include "ui/TextBox.h"
#include "ui/Timer.h"

#include <array>
#include <optional>
#include <string>
#include <vector>

/// The main window: the list of databases, the choice of the view to open in, and the menus. It owns the run: its load
/// is the program's start, its unload the program's end.
class frmMain : public Form, public MainWindow {
public:
    frmMain();

    void Open_DB(const std::wstring& name, short viewCode, bool mainHidden) override;
    void ShowMain() override;

    int SelectedIndex() const override { return ListView1.Selected(); }
    void SelectedIndex(int index) override;
    void ReplaceRow(const std::wstring& name, const DatabaseRecord& record) override;

    static constexpr std::size_t ViewCount = 7;
    static constexpr std::array<Twips, ViewCount> OptionPlaces{{{180, 255, 210, 210},
                                                                {180, 510, 210, 210},
                                                                {180, 765, 210, 210},
                                                                {180, 1020, 210, 210},
                                                                {3300, 255, 210, 210},
                                                                {3300, 510, 210, 210},
                                                                {3300, 765, 210, 210}}};
    static constexpr std::array<Twips, ViewCount> ViewLabelPlaces{{{450, 255, 2700, 225},
                                                                   {450, 510, 2700, 225},
                                                                   {450, 765, 2700, 225},
                                                                   {450, 1020, 2700, 225},
                                                                   {3570, 255, 2700, 225},
                                                                   {3570, 510, 2700, 225},
                                                                   {3570, 765, 2700, 225}}};

    Line Line1{this, L"Line1", {0, 0, 8475, 15}, COLOR_BTNSHADOW};
    Line Line2{this, L"Line2", {0, 15, 8475, 15}, COLOR_BTNHIGHLIGHT};
    Label lblFind{this, L"lblFind", {120, 165, 945, 225}};
    TextBox txtFind{this, L"txtFind", {1080, 120, 5535, 315}, &frmMain::txtFind_Change};
    ListView ListView1{this,
                       L"ListView1",
                       {120, 120, 6495, 2415},
                       {.DblClick = &frmMain::ListView1_DblClick,
                        .ColumnClick = &frmMain::ListView1_ColumnClick,
                        .RightClick = &frmMain::ListView1_MouseDown,
                        .Tip = &frmMain::ListView1_Tip}};
    Frame Frame1{this, L"Frame1", {120, 2715, 6495, 1290}};
    ControlArray<OptionButton, ViewCount> optView{this, Frame1, L"optView", OptionPlaces, &frmMain::optView_Click};
    ControlArray<Label, ViewCount> lblView{this, Frame1, L"lblView", ViewLabelPlaces, &frmMain::lblView_Click};
    CommandButton cmdOpen{this, L"cmdOpen", {7100, 120, 1135, 345}, &frmMain::cmdOpen_Click, Default};
    CommandButton cmdCancel{this, L"cmdCancel", {7100, 570, 1135, 345}, &frmMain::cmdCancel_Click, Cancel};
    Label lblMore{this, L"lblMore", {6100, 4140, 600, 255}};
    LinkLabel lblLink{this, L"lblLink", {6700, 4140, 1655, 255}, &frmMain::lblLink_Click};

    Menu mnuFile{this, L"mnuFile"};
    MenuItem mnuFileOpen{this, mnuFile, L"mnuFileOpen", &frmMain::mnuFileOpen_Click};
    MenuSeparator mnuSep1{mnuFile};
    MenuItem mnuExit{this, mnuFile, L"mnuExit", &frmMain::mnuExit_Click};
    Menu mnuEdit{this, L"mnuEdit"};
    MenuItem mnuEditProperties{this, mnuEdit, L"mnuEditProperties", &frmMain::mnuEditProperties_Click};
    MenuItem mnuManageList{this, mnuEdit, L"mnuManageList", &frmMain::mnuManageList_Click};
    Menu mnuOptions{this, L"mnuOptions"};
    MenuItem mnuSettingsLocation{this, mnuOptions, L"mnuSettingsLocation", &frmMain::mnuSettingsLocation_Click};
    MenuItem mnuLanguages{this, mnuOptions, L"mnuLanguages", &frmMain::mnuLanguages_Click};
    MenuSeparator mnuSep2{mnuOptions};
    MenuItem mnuIntegrate{this, mnuOptions, L"mnuIntegrate", &frmMain::mnuIntegrate_Click};
    MenuItem mnuQuickSwitch{this, mnuOptions, L"mnuQuickSwitch", &frmMain::mnuQuickSwitch_Click};
    Menu mnuHelp{this, L"mnuHelp"};
    MenuItem mnuManual{this, mnuHelp, L"mnuManual", &frmMain::mnuManual_Click};
    MenuItem mnuOnline{this, mnuHelp, L"mnuOnline", &frmMain::mnuOnline_Click};
    MenuSeparator mnuSep3{mnuHelp};
    MenuItem mnuAbout{this, mnuHelp, L"mnuAbout", &frmMain::mnuAbout_Click};
    Menu mnuPopup{this, L"mnuPopup", Menu::Place::PopUp};
    MenuItem mnuOpen{this, mnuPopup, L"mnuOpen", &frmMain::mnuOpen_Click};
    MenuItem mnuProperties{this, mnuPopup, L"mnuProperties", &frmMain::mnuProperties_Click};
    Timer Timer1{this, L"Timer1", &frmMain::Timer1_Timer};
    Timer tmrClose{this, L"tmrClose", &frmMain::tmrClose_Timer};

private:
    /// What ACT! answers about itself, asked once for all rows.
    struct ActPlaces {
        std::wstring Layouts;
        std::wstring Macros;
        std::wstring OpenDatabase;
        std::optional<Error> Failure; ///< the first of these, whose answers are empty
    };

    // The window and its life (frmMain.cpp)
    bool Form_Initialize() override;
    void Form_Load() override;
    void Form_Resize() override;
    void Form_Unload() override;
    void Form_CloseBox() override;
    bool Form_KeyDown(const KeyPress& press) override;
    bool OnMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) override;
    void SetCaptions();
    void SetMenuCaptions();
    void LayOut(int width, int height);
    void SaveLayout();
    void ActEvent1_OnActUserWantsToClose();
    void Timer1_Timer();
    void tmrClose_Timer();
    void EndSession();
    std::wstring CloseActForRestart() const;
    void WaitForRestart(const std::wstring& database);
    void EndIfInvisible();
    void ShowQuickSwitch();

    // Start-up (frmMainStart.cpp): each step is true when the start goes on.
    bool StartSteps();
    bool ClaimInstance();
    bool LoadLanguage();
    bool FindSettingsFile();
    bool OfferBackup();
    bool CheckActRuns();
    bool UpgradeSettings();
    bool FirstRunLanguage();
    bool CheckUserLoggedOn();
    void FinishStart();
    void CreateSettingsFile();
    void RestoreWindow();
    void RestoreColumns();
    void CompleteFirstRun();
    void RecordActDefaults();
    void FillAndSelect();
    void ShowFirstWindow();

    // The list (frmMainList.cpp)
    static ActPlaces AskPlaces();
    /// False, with the rows as they were, when the list cannot be read. ReloadList throws the failure of ACT!'s answers
    /// once the rows are there.
    bool FillList(const ActPlaces& places);
    bool ReloadList();
    void CollectOpenNames() const;
    static std::vector<std::wstring> CellsOf(const std::wstring& name, const DatabaseRecord& record,
                                             const ActPlaces& places);
    void MarkRow(int row, const std::wstring& path, const ActPlaces& places);
    static int ColumnText(int column);
    std::wstring ColumnTitle(int column) const;
    void SetColumnTitles();
    std::wstring SelectedName() const;
    void ListView1_ColumnClick(int column);
    void ListView1_DblClick();
    void ListView1_MouseDown();

    // Finding a row, and what a row's file is like (frmMainFind.cpp)
    void ShowFind();
    void HideFind();
    void txtFind_Change();
    bool FindKey(int key);
    void CheckFilesLater();
    void CheckFiles();
    void NoteFile(WPARAM answer, long number);
    std::wstring ListView1_Tip(int row);

    // Opening (frmMainOpen.cpp)
    bool OpenInAct(const std::wstring& name, short viewCode, bool mainHidden);
    bool OpenDatabase(const std::wstring& path);
    static void ShowView(short viewCode);
    static void RunOpeningMacro(const std::wstring& macro);
    static void PutDefaultsBack();
    short CheckedView() const;

    // Commands (frmMainCommands.cpp)
    void cmdOpen_Click();
    void cmdCancel_Click();
    void lblLink_Click();
    void lblView_Click(int index);
    void optView_Click(int index);
    void mnuFileOpen_Click();
    void mnuOpen_Click();
    void mnuExit_Click();
    void mnuEditProperties_Click();
    void mnuProperties_Click();
    void mnuManageList_Click();
    void mnuSettingsLocation_Click();
    void mnuLanguages_Click();
    void mnuIntegrate_Click();
    void mnuQuickSwitch_Click();
    void mnuManual_Click();
    void mnuOnline_Click();
    void mnuAbout_Click();

    SingleInstance instance_;
    ActEvent ActEvent1;
    clsToolbarIcon toolbarIcon_;
    PathCheck pathCheck_;
    long checkNumber_ = 0;              ///< of the last check of the rows' files
    bool checkAgain_ = false;           ///< the rows have changed while their files were looked for
    std::vector<std::wstring> paths_;   ///< of the database files, by row
    std::vector<std::wstring> missing_; ///< those of them that were not there when they were last looked for
    bool isFinding_ = false;
    HWND boxAtClose_ = nullptr; ///< the message box that was open when the window was told to close
    int ticks_ = 0;             ///< of Timer1
    int sortColumn_ = -1;
    bool sortDescending_ = false;
    bool reload_ = false;     ///< Form_Load runs again after a change of language
    bool sizeLoaded_ = false; ///< each of these is saved only when it was loaded in this run
    bool columnsLoaded_ = false;
    bool listLoaded_ = false;
};
