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
#include <string>

/// Edits one database: its name and files, where its preference locations come from, and its log-on. Works on the
/// program's current friendly name; on OK it writes both stores.
class frmProperties : public Form {
public:
    /// Without a main window (ACT! is not running) there is neither a list row to renew nor an ACT! to ask.
    explicit frmProperties(MainWindow* mainWindow);

    /// Set by the caller before showing: the dialog adds a new database.
    void IsNew(bool isNew) { isNew_ = isNew; }
    /// Set by the caller before showing: the new database begins with the values of another one, "" for none.
    void Model(std::wstring name) { model_ = std::move(name); }
    /// After showing: the user left without OK, or the dialog could not open.
    bool Cancelled() const { return cancelled_; }
    /// ACT!'s own folder for a preference location, 0 to 11, from ACT!'s registry values; "" when it has none. Any
    /// other index throws std::out_of_range.
    static std::wstring GetACTSetting(int index);

    TabControl mstOptions{this, L"mstOptions", {120, 120, 6660, 3840}, &frmProperties::mstOptions_Click};

    Frame fraGeneral{this, L"fraGeneral", {180, 510, 6540, 3390}, Frame::Kind::Page};
    Label Label4{this, fraGeneral, L"Label4", {150, 75, 5400, 225}};
    TextBox txtName{this, fraGeneral, L"txtName", {150, 300, 5670, 315}};
    Label Label5{this, fraGeneral, L"Label5", {150, 720, 5400, 225}};
    TextBox txtPath{this, fraGeneral, L"txtPath", {150, 945, 5670, 315}};
    CommandButton cmdBrowse3{this, fraGeneral, L"cmdBrowse", {5910, 930, 420, 345}, 3, &frmProperties::cmdBrowse_Click};
    Label Label1{this, fraGeneral, L"Label1", {150, 1365, 5400, 225}};
    TextBox txtCL{this, fraGeneral, L"txtCL", {150, 1590, 5670, 315}};
    CommandButton cmdBrowse0{
        this, fraGeneral, L"cmdBrowse", {5910, 1575, 420, 345}, 0, &frmProperties::cmdBrowse_Click};
    Label Label2{this, fraGeneral, L"Label2", {150, 2010, 5400, 225}};
    TextBox txtGL{this, fraGeneral, L"txtGL", {150, 2235, 5670, 315}};
    CommandButton cmdBrowse1{
        this, fraGeneral, L"cmdBrowse", {5910, 2220, 420, 345}, 1, &frmProperties::cmdBrowse_Click};
    Label Label3{this, fraGeneral, L"Label3", {150, 2655, 5400, 225}};
    TextBox txtMacro{this, fraGeneral, L"txtMacro", {150, 2880, 5670, 315}};
    CommandButton cmdBrowse2{
        this, fraGeneral, L"cmdBrowse", {5910, 2865, 420, 345}, 2, &frmProperties::cmdBrowse_Click};

    static constexpr std::array<Twips, 2> OptionPlaces{{{150, 150, 6000, 255}, {150, 1050, 6000, 255}}};
    Frame fraLocations{this, L"fraLocations", {180, 510, 6540, 3390}, Frame::Kind::Page};
    ControlArray<OptionButton, 2> optLocations{this, fraLocations, L"optLocations", OptionPlaces, nullptr};
    ComboBox cboDB{this, fraLocations, L"cboDB", {420, 480, 3600, 315}, &frmProperties::cboDB_Click};
    CommandButton cmdEditLocations{
        this, fraLocations, L"cmdEditLocations", {420, 1380, 2700, 345}, &frmProperties::cmdEditLocations_Click};

    Frame fraLogon{this, L"fraLogon", {180, 510, 6540, 3390}, Frame::Kind::Page};
    Label lblUsername{this, fraLogon, L"lblUsername", {150, 150, 5400, 225}};
    TextBox txtUsername{this, fraLogon, L"txtUsername", {150, 375, 3600, 315}};
    CheckBox chkPassword{this, fraLogon, L"chkPassword", {150, 900, 6000, 255}, &frmProperties::chkPassword_Click};
    TextBox txtPassword{this, fraLogon, L"txtPassword", {420, 1200, 3330, 315}, TextBox::Kind::Password};
    CheckBox chkNotAtACTLaunch{this, fraLogon, L"chkNotAtACTLaunch", {150, 1800, 6240, 255}};

    CommandButton cmdOK{this, L"cmdOK", {4200, 4080, 1215, 345}, &frmProperties::cmdOK_Click, Default};
    CommandButton cmdCancel{this, L"cmdCancel", {5565, 4080, 1215, 345}, &frmProperties::cmdCancel_Click, Cancel};

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
    Read<EditedDatabase> database_{Unreadable()}; ///< none when the settings file could not be read
    bool isNew_ = false;
    bool cancelled_ = true;
    bool SkipTabCheck_ = false;
    bool isLogonShown_ = false; ///< for the user name that is asked for
    bool NameValid_ = false;
};
