#pragma once

#include "databases/EditedDatabase.h"
#include "program/MainWindow.h"
#include "ui/Button.h"
#include "ui/ComboBox.h"
#include "ui/ControlArray.h"
#include "ui/Form.h"
#include "ui/Frame.h"
#include "ui/Label.h"
#include "ui/TabControl.h"
#include "ui/TextBox.h"

#include <array>
#include <optional>
#include <string>

/// Edits one database: its name and files, where its preference locations come from, and its log-on. Works on the
/// program's current friendly name; on OK it writes both stores.
class frmProperties : public Form {
public:
    /// Without a main window (ACT! is not running) there is neither a list row to renew nor an ACT! to ask.
    explicit frmProperties(MainWindow* mainWindow);

    /// Set by the caller before showing: the dialog adds a new database.
    void IsNew(bool isNew) { isNew_ = isNew; }
    /// Set by the caller before showing: the user name is what is missing.
    void AskForUsername(bool asks) {
        asksForUsername_ = asks;
        if (asks) firstPage_ = 2;
    }
    /// Set by the caller before showing: the new database begins with the values of another one, "" for none.
    void Model(std::wstring name) { model_ = std::move(name); }
    /// Set by the caller before showing: the new database begins with these values.
    void Suggest(DatabaseValues values) { suggestion_ = std::move(values); }
    /// Set by the caller before showing: the page to begin with, 0 to 2.
    void FirstPage(int page) { firstPage_ = page; }
    /// After showing: the user left without OK, or the dialog could not open.
    bool Cancelled() const { return cancelled_; }
    /// ACT!'s own folder for a preference location, 0 to 11, from ACT!'s registry values; "" when it has none. Any
    /// other index throws std::out_of_range.
    static std::wstring GetACTSetting(int index);

    TabControl mstOptions{this, L"mstOptions", {120, 120, 6660, 3840}, {.Click = &frmProperties::mstOptions_Click}};

    Frame fraGeneral{this, L"fraGeneral", {180, 510, 6540, 3390}, Frame::Kind::Page};
    Label Label4{this, L"Label4", In(fraGeneral, {150, 75, 5400, 225})};
    TextBox txtName{this, L"txtName", In(fraGeneral, {150, 300, 5670, 315})};
    Label Label5{this, L"Label5", In(fraGeneral, {150, 720, 5400, 225})};
    TextBox txtPath{this, L"txtPath", In(fraGeneral, {150, 945, 5670, 315})};
    CommandButton cmdBrowse3{this,
                             L"cmdBrowse",
                             In(fraGeneral, {5910, 930, 420, 345}),
                             {.Index = 3, .Click = &frmProperties::cmdBrowse_Click}};
    Label Label1{this, L"Label1", In(fraGeneral, {150, 1365, 5400, 225})};
    TextBox txtCL{this, L"txtCL", In(fraGeneral, {150, 1590, 5670, 315})};
    CommandButton cmdBrowse0{this,
                             L"cmdBrowse",
                             In(fraGeneral, {5910, 1575, 420, 345}),
                             {.Index = 0, .Click = &frmProperties::cmdBrowse_Click}};
    Label Label2{this, L"Label2", In(fraGeneral, {150, 2010, 5400, 225})};
    TextBox txtGL{this, L"txtGL", In(fraGeneral, {150, 2235, 5670, 315})};
    CommandButton cmdBrowse1{this,
                             L"cmdBrowse",
                             In(fraGeneral, {5910, 2220, 420, 345}),
                             {.Index = 1, .Click = &frmProperties::cmdBrowse_Click}};
    Label Label3{this, L"Label3", In(fraGeneral, {150, 2655, 5400, 225})};
    TextBox txtMacro{this, L"txtMacro", In(fraGeneral, {150, 2880, 5670, 315})};
    CommandButton cmdBrowse2{this,
                             L"cmdBrowse",
                             In(fraGeneral, {5910, 2865, 420, 345}),
                             {.Index = 2, .Click = &frmProperties::cmdBrowse_Click}};

    static constexpr std::array<Twips, 2> OptionPlaces{{{150, 150, 6000, 255}, {150, 1050, 6000, 255}}};
    Frame fraLocations{this, L"fraLocations", {180, 510, 6540, 3390}, Frame::Kind::Page};
    ControlArray<OptionButton, 2> optLocations{this, L"optLocations", In(fraLocations, OptionPlaces)};
    ComboBox cboDB{this, L"cboDB", In(fraLocations, {420, 480, 3600, 315}), {.Click = &frmProperties::cboDB_Click}};
    CommandButton cmdEditLocations{this,
                                   L"cmdEditLocations",
                                   In(fraLocations, {420, 1380, 2700, 345}),
                                   {.Click = &frmProperties::cmdEditLocations_Click}};

    Frame fraLogon{this, L"fraLogon", {180, 510, 6540, 3390}, Frame::Kind::Page};
    Label lblUsername{this, L"lblUsername", In(fraLogon, {150, 150, 5400, 225})};
    TextBox txtUsername{this, L"txtUsername", In(fraLogon, {150, 375, 3600, 315})};
    CheckBox chkPassword{
        this, L"chkPassword", In(fraLogon, {150, 900, 6000, 255}), {.Click = &frmProperties::chkPassword_Click}};
    TextBox txtPassword{this, L"txtPassword", In(fraLogon, {420, 1200, 3330, 315}), {}, TextBox::Kind::Password};
    CheckBox chkNotAtACTLaunch{this, L"chkNotAtACTLaunch", In(fraLogon, {150, 1800, 6240, 255})};

    CommandButton cmdOK{this, L"cmdOK", {4200, 4080, 1215, 345}, {.Click = &frmProperties::cmdOK_Click}, Default};
    CommandButton cmdCancel{
        this, L"cmdCancel", {5565, 4080, 1215, 345}, {.Click = &frmProperties::cmdCancel_Click}, Cancel};

private:
    bool Form_Initialize() override;
    void Form_Load() override;
    void Form_Activate() override;
    bool Form_KeyDown(const KeyPress& press) override { return mstOptions.TakesKey(press); }
    void SetCaptions();
    void ShowValues();
    void ShowLenders();
    void ShowTab(int tab);
    void ShowPage(int tab);
    bool Check_Name();
    bool RefuseName();
    void mstOptions_Click(int previousTab);
    void cboDB_Click();
    void chkPassword_Click();
    void cmdBrowse_Click(int index);
    void cmdEditLocations_Click();
    void cmdOK_Click();
    void cmdCancel_Click();
    DatabaseValues Values() const;
    void Save();

    MainWindow* mainWindow_;
    std::wstring OldName_;
    std::wstring model_;                          ///< of a new database: the one whose values it begins with
    std::optional<DatabaseValues> suggestion_;    ///< of a new database
    Read<EditedDatabase> database_{Unreadable()}; ///< none when the settings file could not be read
    bool isNew_ = false;
    bool asksForUsername_ = false;
    bool cancelled_ = true;
    bool SkipTabCheck_ = false;
    int firstPage_ = 0; ///< until it has been shown
    bool NameValid_ = false;
};
