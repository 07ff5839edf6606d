#include "dialogs/frmPrefLocations.h"

#include "i18n/Caption.h"
#include "i18n/MoreText.h"
#include "i18n/modLangues.h"
#include "program/SettingsNotice.h"
#include "support/MsgBox.h"
#include "ui/CommonDialogs.h"

#include <utility>

namespace {

constexpr int kTypeColumn = 2500; // twips

} // namespace

frmPrefLocations::frmPrefLocations(std::wstring currentName, std::wstring typedName)
    : Form({L"frmPrefLocations", 7200, 4500, Border::SizableDialog}), currentName_(std::move(currentName)),
      typedName_(std::move(typedName)) {}

bool frmPrefLocations::Form_Initialize() {
    locations_ = OwnLocations::Load(currentName_);
    if (!locations_) SettingsNotice::CannotRead();
    return static_cast<bool>(locations_);
}

void frmPrefLocations::Form_Load() {
    Caption(LangText[Caption::EditLocations]);
    lvwPref.AccessibleName(LangText[Caption::EditLocations]);
    cmdOK.Text(LangText[Caption::OK]);
    cmdCancel.Text(LangText[Caption::Cancel]);
    cmdEditlocation.Text(Translated(MoreText::EditFolder));
    cmdClear.Text(L"Clear");
    lvwPref.AddColumn(LangText[Caption::FileType], kTypeColumn);
    lvwPref.AddColumn(LangText[Caption::Location], lvwPref.Place().Width - kTypeColumn - 120);
    for (const std::wstring& folder : locations_->All())
        lvwPref.Add({LangText[Caption::FirstLocation + lvwPref.RowCount()], folder});
    lvwPref.Select(0);
}

void frmPrefLocations::Form_Resize() {
    const Twips inner = InnerSize();
    for (CommandButton* button : {&cmdOK, &cmdCancel, &cmdEditlocation, &cmdClear}) {
        const Twips place = button->Place();
        button->Move({inner.Width - 1450, place.Top, place.Width, place.Height});
    }
    const Twips list = lvwPref.Place();
    lvwPref.Move({list.Left, list.Top, inner.Width - 2000, inner.Height - 1000});
}

void frmPrefLocations::lvwPref_DblClick() { cmdEditlocation_Click(); }

void frmPrefLocations::cmdEditlocation_Click() {
    const int row = lvwPref.Selected();
    if (row < 0) return;
    if (const auto folder = PickFolder(Handle(), lvwPref.Cell(row, 1))) lvwPref.Cell(row, 1, *folder);
}

void frmPrefLocations::cmdClear_Click() {
    const int row = lvwPref.Selected();
    if (row < 0 || !AskYesNo(LangText[Caption::ClearLocation] + lvwPref.Cell(row, 0) + L"?")) return;
    if (locations_->Clear(static_cast<size_t>(row)))
        lvwPref.Cell(row, 1, {});
    else
        SettingsNotice::NotSaved();
}

void frmPrefLocations::cmdOK_Click() {
    Folders folders;
    for (size_t row = 0; row < folders.size(); ++row) folders[row] = lvwPref.Cell(static_cast<int>(row), 1);
    if (locations_->Save(typedName_, folders))
        Unload();
    else
        SettingsNotice::NotSaved();
}

void frmPrefLocations::cmdCancel_Click() { Unload(); }
