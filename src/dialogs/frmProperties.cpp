#include "dialogs/frmProperties.h"

#include "databases/DatabaseList.h"
#include "dialogs/frmPrefLocations.h"
#include "i18n/Caption.h"
#include "i18n/modLangues.h"
#include "program/Program.h"
#include "program/SettingsNotice.h"
#include "stores/IniLib.h"
#include "stores/RegistrySubs.h"
#include "support/MsgBox.h"
#include "support/Text.h"
#include "ui/CommonDialogs.h"

#include <utility>

namespace {

enum Tab { General, Locations, Logon };
enum LocationChoice { FromOther, Specific };

/// One browse button: what it offers, where it starts, and the box that it fills.
struct BrowseTarget {
    const wchar_t* Filter;
    long StartKind;
    TextBox frmProperties::*Box;
    int LabelText;
};

constexpr BrowseTarget kBrowseTargets[] = {
    {L"Contact Layouts (*.cly)|*.cly", DefaultLocation::Layouts, &frmProperties::txtCL, Caption::DefaultContactLayout},
    {L"Group Layouts (*.gly)|*.gly", DefaultLocation::Layouts, &frmProperties::txtGL, Caption::DefaultGroupLayout},
    {L"Macros (*.mpr)|*.mpr|Programs (*.exe)|*.exe", DefaultLocation::Macros, &frmProperties::txtMacro,
     Caption::RunMacroOnOpening},
    {L"ACT! Database (*.dbf)|*.dbf", DefaultLocation::Databases, &frmProperties::txtPath, Caption::DatabasePath},
};

} // namespace

frmProperties::frmProperties(MainWindow* mainWindow) : Form({L"frmProperties", 6990, 4980}), mainWindow_(mainWindow) {}

std::wstring frmProperties::GetACTSetting(int index) {
    const std::wstring name = std::wstring(Keys::Locations.at(static_cast<size_t>(index))) + L" File Type";
    const auto value = RegistrySubs::GetRegistryValue(HKEY_CURRENT_USER, L"Software\\Symantec\\ACT!", name);
    const auto* folder = std::get_if<std::wstring>(&value);
    return folder ? *folder : std::wstring();
}

bool frmProperties::Form_Initialize() {
    ProgramState& program = Program();
    if (isNew_) program.FriendlyName.clear();
    OldName_ = program.FriendlyName;
    database_ = EditedDatabase::Load(OldName_, model_);
    if (!database_) SettingsNotice::CannotRead();
    return static_cast<bool>(database_);
}

void frmProperties::Form_Load() {
    cancelled_ = false;
    SetCaptions();
    ShowPage(Tab::General);
    ShowValues();
    ShowLenders();
}

void frmProperties::SetCaptions() {
    constexpr WPARAM kLongestName = 255; // a key of the registry, for the log-on, has no longer one
    SendMessageW(txtName.Handle(), EM_LIMITTEXT, kLongestName, 0);
    Caption(OldName_.empty() ? LangText[Caption::Properties] : LangText[Caption::Properties] + L": " + OldName_);
    Label1.Text(LangText[Caption::DefaultContactLayout] + L":");
    Label2.Text(LangText[Caption::DefaultGroupLayout] + L":");
    Label3.Text(LangText[Caption::RunMacroOnOpening] + L":");
    Label4.Text(LangText[Caption::FriendlyName] + L":");
    Label5.Text(LangText[Caption::DatabasePath] + L":");
    for (const Caption::Row row : {Caption::General, Caption::DefaultLocations, Caption::Logon})
        mstOptions.AddTab(LangText[row]);
    optLocations[FromOther].Text(LangText[Caption::UseLocationsFrom]);
    optLocations[Specific].Text(LangText[Caption::UseSpecificLocations]);
    cmdEditLocations.Text(Caption::WithDots(LangText[Caption::EditLocations]));
    lblUsername.Text(LangText[Caption::Username] + L":");
    chkPassword.Text(LangText[Caption::UsePassword] + L":");
    chkNotAtACTLaunch.Text(LangText[Caption::NoPasswordAtStartup]);
    cmdOK.Text(LangText[Caption::OK]);
    cmdCancel.Text(LangText[Caption::Cancel]);
    for (CommandButton* browse : {&cmdBrowse0, &cmdBrowse1, &cmdBrowse2, &cmdBrowse3}) {
        browse->Text(L"...");
        browse->AccessibleName(Caption::WithDots(LangText[kBrowseTargets[browse->Index()].LabelText]));
    }
    cboDB.AccessibleName(LangText[Caption::UseLocationsFrom]);
    txtPassword.AccessibleName(LangText[Caption::UsePassword]);
}

void frmProperties::ShowValues() {
    const DatabaseValues& values = suggestion_ ? *suggestion_ : database_->Values();
    txtName.Text(values.Name);
    txtPath.Text(values.Record.Path);
    txtCL.Text(values.Record.ContactLayout);
    txtGL.Text(values.Record.GroupLayout);
    txtMacro.Text(values.Record.OpeningMacro);
    txtUsername.Text(values.Logon.Username);
    txtPassword.Text(values.Logon.Password);
    chkPassword.Value(values.Logon.UsesPassword);
    chkNotAtACTLaunch.Value(values.Logon.IsWithoutPasswordAtStart);
    txtPassword.Enabled(chkPassword.Value());
    if (!model_.empty() || suggestion_) txtName.SelectAll();
}

void frmProperties::ShowLenders() {
    std::vector<std::wstring> names = Program().DatabaseNames;
    const auto& lender = database_->Values().Lender;
    // One that the list is too long to show is not lost for that.
    if (lender && NameList::Has(database_->All(), *lender) && !NameList::Has(names, *lender)) names.push_back(*lender);
    for (const std::wstring& name : names)
        if (name != OldName_) cboDB.AddItem(name);
    optLocations[lender ? FromOther : Specific].Value(true);
    if (lender) cboDB.Select(*lender);
}

void frmProperties::Form_Activate() {
    if (const int page = std::exchange(firstPage_, Tab::General); page != Tab::General) {
        SkipTabCheck_ = true;
        ShowTab(page);
    }
    if (asksForUsername_) txtUsername.SetFocus();
}

void frmProperties::ShowTab(int tab) {
    if (tab == mstOptions.Tab()) SkipTabCheck_ = false;
    mstOptions.Tab(tab);
}

void frmProperties::ShowPage(int tab) {
    Frame* const pages[] = {&fraGeneral, &fraLocations, &fraLogon};
    for (int page = 0; page < 3; ++page) pages[page]->Visible(page == tab);
}

void frmProperties::mstOptions_Click(int previousTab) {
    ShowPage(mstOptions.Tab());
    if (previousTab == Tab::General && !SkipTabCheck_) NameValid_ = Check_Name();
    SkipTabCheck_ = false;
}

bool frmProperties::Check_Name() {
    txtName.Text(Text::Trim(txtName.Text()));
    const std::wstring name = txtName.Text();
    bool isTaken = false;
    // A list that cannot be read now is asked again when everything is saved.
    if (const auto stored = name == OldName_ ? Unreadable() : IniLib::ReadFile()) {
        Program().DatabaseNames = DatabaseList::Read(*stored).shown;
        isTaken = NameList::Has(DatabaseList::ReadAll(*stored), name);
    }
    if (name.empty() || isTaken) return RefuseName();
    if (txtPath.Text().empty()) {
        // Reported, but not refused.
        MsgBox(LangText[Caption::DatabaseNeeded]);
        ShowTab(Tab::General);
        txtPath.SetFocus();
    }
    if (!txtCL.Text().empty()) return true;
    MsgBox(LangText[Caption::ContactLayoutNeeded]);
    ShowTab(Tab::General);
    txtCL.SetFocus();
    return false;
}

bool frmProperties::RefuseName() {
    txtName.Text(OldName_);
    MsgBox(LangText[Caption::UniqueNameNeeded], MsgIcon::Exclamation);
    SkipTabCheck_ = true;
    ShowTab(Tab::General);
    txtName.SetFocus();
    txtName.SelectAll();
    return false;
}

void frmProperties::cboDB_Click() {
    optLocations[FromOther].Value(true);
    optLocations[Specific].Value(false);
}

void frmProperties::chkPassword_Click() { txtPassword.Enabled(chkPassword.Value()); }

void frmProperties::cmdBrowse_Click(int index) {
    const BrowseTarget& target = kBrowseTargets[index];
    TextBox& box = this->*target.Box;
    const std::wstring folder =
        mainWindow_ ? Program().Preferences.GetDefaultLocation(target.StartKind) : Text::ExtractPath(box.Text());
    if (const auto file = PickFile(Handle(), target.Filter, folder)) box.Text(*file);
}

void frmProperties::cmdEditLocations_Click() {
    frmPrefLocations(Program().FriendlyName, Text::Trim(txtName.Text())).ShowModal();
}

void frmProperties::cmdCancel_Click() {
    cancelled_ = true;
    Unload();
}

DatabaseValues frmProperties::Values() const {
    DatabaseValues values;
    values.Name = txtName.Text();
    values.Record = {txtPath.Text(), txtCL.Text(), txtGL.Text(), txtMacro.Text()};
    if (optLocations[FromOther].Value()) values.Lender = cboDB.SelectedText();
    values.Logon = {txtUsername.Text(), txtPassword.Text(), chkPassword.Value(), chkNotAtACTLaunch.Value()};
    return values;
}

void frmProperties::cmdOK_Click() {
    if (txtUsername.Text().empty()) {
        MsgBox(L"Please enter a username for this database!", MsgIcon::Exclamation);
        SkipTabCheck_ = true;
        ShowTab(Tab::Logon);
        txtUsername.SetFocus();
        return;
    }
    if (Check_Name()) Save();
}

void frmProperties::Save() {
    const DatabaseValues values = Values();
    switch (database_->Save(values)) {
    case EditedDatabase::Outcome::NameTaken: RefuseName(); return;
    case EditedDatabase::Outcome::NotSaved: SettingsNotice::NotSaved(); return;
    case EditedDatabase::Outcome::Saved: break;
    }
    Program().FriendlyName = values.Name;
    if (!isNew_ && mainWindow_) mainWindow_->ReplaceRow(OldName_, values.Name, values.Record);
    isNew_ = false;
    Unload();
}
