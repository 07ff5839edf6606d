// frmProperties' OK: validation of the user name, then both stores.

#include "dialogs/frmProperties.h"

#include "program/Program.h"
#include "stores/IniLib.h"
#include "stores/UserStore.h"
#include "stores/modEnCrypt.h"
#include "support/Application.h"
#include "support/ErrorReport.h"
#include "support/MsgBox.h"
#include "support/Text.h"

#include <array>

namespace {

using Folders = std::array<std::wstring, LocationNames.size()>;

Folders ReadFolders(const std::wstring& name) {
    Folders folders;
    for (size_t index = 0; index < folders.size(); ++index)
        folders[index] = IniLib::GetKeyValue(name, LocationNames[index]);
    return folders;
}

void WriteMissingFolders(IniLib::Change& change, const std::wstring& name, const Folders& folders) {
    for (size_t index = 0; index < folders.size(); ++index)
        if (!folders[index].empty() && IniLib::GetKeyValue(name, LocationNames[index]).empty())
            change.WriteKeyValue(name, LocationNames[index], folders[index]);
}

/// Databases that borrow their locations from the renamed one follow it.
void RenameLender(IniLib::Change& change, const std::wstring& oldName, const std::wstring& newName) {
    for (const std::wstring& name : DatabaseList::ReadSort())
        if (!Text::EqualNoCase(name, oldName) && IniLib::GetKeyValue(name, L"UseLocationsFrom") == oldName)
            change.WriteKeyValue(name, L"UseLocationsFrom", newName);
}

const wchar_t* Checked(const CheckBox& box) { return box.Value() ? L"1" : L"0"; }

} // namespace

void frmProperties::cmdOK_Click() try {
    if (txtUsername.Text().empty()) {
        MsgBox(L"Please enter a username for this database!", MsgIcon::Exclamation);
        constexpr int kLogonTab = 2;
        SkipTabCheck_ = true;
        ShowTab(kLogonTab);
        txtUsername.SetFocus();
        return;
    }
    if (!Check_Name()) return;
    Save();
    isNew_ = false;
    Unload();
} catch (...) {
    ErrorReport("frmProperties: Sub cmdOK_Click");
}

void frmProperties::Save() {
    const std::wstring name = txtName.Text();
    Program().FriendlyName = name;
    const bool isSaved = SaveToFile(name);
    // Names that differ in letter case only share their sections in both stores. A name that stays keeps its log-on.
    if (isSaved && !isNew_ && !Text::EqualNoCase(name, OldName_)) DatabaseList::DeleteUserRecord(OldName_);
    WriteLogon(name);
    if (!isNew_ && mainWindow_) mainWindow_->ReplaceRow(name);
}

bool frmProperties::SaveToFile(const std::wstring& name) {
    IniLib::Change change;
    if (isNew_) {
        DatabaseList::AddToSort(change, name);
        if (!model_.empty()) WriteMissingFolders(change, name, ReadFolders(model_));
    } else if (name != OldName_) {
        Rename(change, name);
    }
    WriteFiles(change, name);
    WriteLocations(change, name);
    return change.Commit();
}

void frmProperties::Rename(IniLib::Change& change, const std::wstring& name) const {
    const Folders folders = ReadFolders(OldName_);
    DatabaseList::RenameInSort(change, OldName_, name);
    if (!Text::EqualNoCase(name, OldName_)) {
        DatabaseList::DeleteFileRecord(change, OldName_);
        WriteMissingFolders(change, name, folders);
    }
    DatabaseList::ReplaceInQuickSwitch(change, OldName_, name);
    RenameLender(change, OldName_, name);
}

void frmProperties::WriteFiles(IniLib::Change& change, const std::wstring& name) {
    change.WriteKeyValue(name, L"Path", txtPath.Text());
    change.WriteKeyValue(name, L"CLY", txtCL.Text());
    change.WriteKeyValue(name, L"GLY", txtGL.Text());
    change.WriteKeyValue(name, L"StartupMacro", txtMacro.Text());
}

void frmProperties::WriteLogon(const std::wstring& name) {
    UserStore::Set(name, L"Username", txtUsername.Text());
    UserStore::Set(name, L"UsePassword", Checked(chkPassword));
    if (chkPassword.Value())
        UserStore::Set(name, L"Password", modEnCrypt::EncryptText(txtPassword.Text(), Application::Title));
    else if (!UserStore::Get(name, L"Password").empty())
        UserStore::Delete(name, L"Password");
    UserStore::Set(name, L"NoPasswordAtACTStartup", Checked(chkNotAtACTLaunch));
}

void frmProperties::WriteLocations(IniLib::Change& change, const std::wstring& name) {
    constexpr size_t kFromOther = 0;
    if (!optLocations[kFromOther].Value()) {
        change.DeleteKey(name, L"UseLocationsFrom");
        return;
    }
    change.WriteKeyValue(name, L"UseLocationsFrom", cboDB.SelectedText());
    for (const wchar_t* location : LocationNames) change.DeleteKey(name, location);
}
