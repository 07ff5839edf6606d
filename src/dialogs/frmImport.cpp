#include "dialogs/frmImport.h"

#include "i18n/Caption.h"
#include "i18n/MoreText.h"
#include "i18n/modLangues.h"
#include "program/SettingsNotice.h"
#include "stores/Backup.h"
#include "stores/IniLib.h"
#include "support/MsgBox.h"
#include "support/Text.h"
#include "ui/CommonDialogs.h"

#include <utility>

frmImport::frmImport(EditedList& list, EditedList::Names order)
    : Form({L"frmImport", 7200, 4770, Border::SizableDialog}), list_(list), order_(std::move(order)) {}

void frmImport::Form_Load() {
    constexpr int kColumns[] = {2000, 3000, 1600}; // twips
    Caption(Caption::Plain(Translated(MoreText::Import)));
    Label1.Text(LangText[Caption::SettingsFileLocation] + L":");
    Label2.Text(Translated(MoreText::ToImport));
    cmdBrowse.Text(L"...");
    cmdBrowse.AccessibleName(Caption::WithDots(LangText[Caption::SettingsFileLocation]));
    cmdOK.Text(LangText[Caption::OK]);
    cmdCancel.Text(LangText[Caption::Cancel]);
    lvwDatabases.CheckBoxes();
    lvwDatabases.AddColumn(LangText[Caption::DatabaseColumn], kColumns[0]);
    lvwDatabases.AddColumn(LangText[Caption::DatabasePath], kColumns[1]);
    lvwDatabases.AddColumn({}, kColumns[2]);
    lvwDatabases.EmptyText(Translated(MoreText::ChooseSettingsFile));
    files_ = Backup::All();
    for (const std::wstring& copy : files_)
        cboFile.AddItem(Text::Replace(Translated(MoreText::CopyOf), L"%1", Backup::TimeOf(copy)));
}

void frmImport::Form_Resize() {
    const Twips inner = InnerSize();
    const int bottom = inner.Height - 465;
    cboFile.Move({120, 345, inner.Width - 750, 315});
    cmdBrowse.Move({inner.Width - 540, 330, 420, 345});
    lvwDatabases.Move({120, 1005, inner.Width - 240, bottom - 1140});
    lblLeftOut.Move({120, bottom, inner.Width - 3000, 450});
    cmdOK.Move({inner.Width - 2700, bottom, 1215, 345});
    cmdCancel.Move({inner.Width - 1335, bottom, 1215, 345});
}

void frmImport::Open(const std::wstring& file) {
    auto other = OtherSettings::Load(file);
    if (!other) return MsgBox(Text::Replace(Translated(MoreText::NothingToImport), L"%1", file), MsgIcon::Exclamation);
    other_ = std::move(other);
    lvwDatabases.Clear();
    for (const auto& [name, path, isListed] : other_->Offered())
        lvwDatabases.Checked(
            lvwDatabases.Add({name, path, isListed ? Translated(MoreText::AlreadyListed) : std::wstring()}), !isListed);
    lvwDatabases.Filled();
    lvwDatabases.Select(0);
    lblLeftOut.Text(other_->LeftOut() == 0
                        ? std::wstring()
                        : Text::Replace(Translated(MoreText::NotOffered), L"%1", Text::FromNumber(other_->LeftOut())));
}

void frmImport::cboFile_Click() { Open(files_.at(static_cast<size_t>(cboFile.ListIndex()))); }

void frmImport::cmdBrowse_Click() {
    const auto file = PickFile(Handle(), L"ini Files (*.ini)|*.ini", Text::ExtractPath(IniLib::SettingsFile()));
    if (!file) return;
    files_.push_back(*file);
    cboFile.AddItem(*file);
    cboFile.ListIndex(static_cast<int>(files_.size()) - 1);
    Open(*file);
}

void frmImport::cmdOK_Click() {
    std::vector<size_t> chosen;
    for (int row = 0; row < lvwDatabases.RowCount(); ++row)
        if (lvwDatabases.Checked(row)) chosen.push_back(static_cast<size_t>(row));
    if (!chosen.empty() && !list_.Import(order_, *other_, chosen)) return SettingsNotice::NotSaved();
    hasImported_ = !chosen.empty();
    Unload();
}
