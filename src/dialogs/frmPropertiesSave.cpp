// frmProperties' OK: validation of the user name, then both stores.

#include "dialogs/frmProperties.h"

#include "program/Program.h"
#include "settings/IniLib.h"
#include "settings/UserStore.h"
#include "settings/modEnCrypt.h"
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

void WriteMissingFolders(const std::wstring& name, const Folders& folders) {
    for (size_t index = 0; index < folders.size(); ++index)
        if (!folders[index].empty() && IniLib::GetKeyValue(name, LocationNames[index]).empty())
            IniLib::WriteKeyValue(name, LocationNames[index], folders[index]);
}

/// Exact text replacement in the whole stored list, also in what is too long to be shown.
void RenameInSort(const std::wstring& oldName, const std::wstring& newName) {
    std::wstring sort = IniLib::GetWholeValue(L"General", L"Sort") + L";";
    sort = Text::Replace(sort, oldName + L";", newName + L";");
    sort.pop_back();
    IniLib::WriteKeyValue(L"General", L"Sort", sort);
}

/// Databases that borrow their locations from the renamed one follow it.
void RenameLender(const std::wstring& oldName, const std::wstring& newName) {
    for (const std::wstring& name : DatabaseList::ReadSort())
        if (IniLib::GetKeyValue(name, L"UseLocationsFrom") == oldName)
            IniLib::WriteKeyValue(name, L"UseLocationsFrom", newName);
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
    ErrorReport(L"frmProperties: Sub cmdOK_Click");
}

void frmProperties::Save() {
    const std::wstring name = txtName.Text();
    Program().FriendlyName = name;
    if (isNew_) {
        std::vector<std::wstring> names = DatabaseList::ReadSort();
        names.push_back(name);
        DatabaseList::WriteSort(names);
    } else if (name != OldName_) {
        Rename(name);
    }
    WriteFiles(name);
    WriteLogon(name);
    WriteLocations(name);
    if (!isNew_ && mainWindow_) mainWindow_->ReplaceRow(name);
}

void frmProperties::Rename(const std::wstring& name) const {
    const Folders folders = ReadFolders(OldName_);
    RenameInSort(OldName_, name);
    // Names that differ in letter case only share their sections in both stores.
    if (!Text::EqualNoCase(name, OldName_)) {
        DatabaseList::DeleteDatabase(OldName_);
        WriteMissingFolders(name, folders);
    }
    DatabaseList::ReplaceInQuickSwitch(OldName_, name);
    RenameLender(OldName_, name);
}

void frmProperties::WriteFiles(const std::wstring& name) {
    IniLib::WriteKeyValue(name, L"Path", txtPath.Text());
    IniLib::WriteKeyValue(name, L"CLY", txtCL.Text());
    IniLib::WriteKeyValue(name, L"GLY", txtGL.Text());
    IniLib::WriteKeyValue(name, L"StartupMacro", txtMacro.Text());
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

void frmProperties::WriteLocations(const std::wstring& name) {
    constexpr size_t kFromOther = 0;
    if (!optLocations[kFromOther].Value()) {
        IniLib::DeleteKey(name, L"UseLocationsFrom");
        return;
    }
    IniLib::WriteKeyValue(name, L"UseLocationsFrom", cboDB.SelectedText());
    for (const wchar_t* location : LocationNames) IniLib::DeleteKey(name, location);
}
