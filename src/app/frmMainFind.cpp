// frmMain's keys, its find box, and what it knows about the files behind its rows.

#include "app/frmMain.h"

#include "databases/NameList.h"
#include "i18n/Caption.h"
#include "i18n/MoreText.h"
#include "i18n/modLangues.h"
#include "stores/IniLib.h"
#include "support/Shell.h"
#include "support/Text.h"

#include <utility>

bool frmMain::Form_KeyDown(const KeyPress& press) {
    if (press.Ctrl && !press.Alt && !press.Shift && press.Key >= '1' && press.Key < '1' + static_cast<int>(ViewCount)) {
        lblView_Click(press.Key - '1');
        return true;
    }
    if (press == KeyPress{.Key = VK_F2} || press == KeyPress{.Key = VK_RETURN, .Alt = true})
        mnuEditProperties_Click();
    else if (press == KeyPress{.Key = VK_F1})
        mnuManual_Click();
    else if (press == KeyPress{.Key = 'F', .Ctrl = true})
        ShowFind();
    else
        return isFinding_ && press == KeyPress{.Key = press.Key} && FindKey(press.Key);
    return true;
}

bool frmMain::FindKey(int key) {
    if (key == VK_ESCAPE) {
        HideFind();
        ListView1.SetFocus();
        return true;
    }
    // The rows are chosen without leaving the box.
    if (GetFocus() != txtFind.Handle() || (key != VK_UP && key != VK_DOWN)) return false;
    SendMessageW(ListView1.Handle(), WM_KEYDOWN, static_cast<WPARAM>(key), 0);
    return true;
}

void frmMain::ShowFind() {
    if (!isFinding_) {
        isFinding_ = true;
        Form_Resize();
        lblFind.Visible(true);
        txtFind.Visible(true);
    }
    txtFind.SetFocus();
    txtFind.SelectAll();
}

void frmMain::HideFind() {
    lblFind.Visible(false);
    txtFind.Visible(false);
    if (!isFinding_) return;
    isFinding_ = false;
    txtFind.Text({});
    ListView1.ShowOnly({});
    Form_Resize();
}

void frmMain::txtFind_Change() {
    const std::wstring wanted = txtFind.Text();
    ListView1.ShowOnly([&](int row) {
        for (int column = 0; column < ListView1.ColumnCount(); ++column)
            if (wanted.empty() || Text::ContainsNoCase(ListView1.Cell(row, column), wanted)) return true;
        return false;
    });
}

void frmMain::CheckFiles() {
    if (!Visible()) return;
    RedrawWindow(Handle(), nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN); // before anything takes time
    ListView1.AccessibleName(LangText[Caption::DatabasesListed]);
    ListView1.TellNotes();
    checkNumber_ = pathCheck_.Start(Handle(), paths_);
    checkAgain_ = checkNumber_ == 0;
    PrepareShell();
}

void frmMain::NoteFile(WPARAM answer, long number) {
    if (answer == PathCheck::Done) {
        if (std::exchange(checkAgain_, false)) CheckFilesLater();
        return;
    }
    const size_t row = PathCheck::Index(answer);
    if (number != checkNumber_ || row >= paths_.size() || paths_[row].empty()) return;
    const bool isMissing = PathCheck::IsMissing(answer);
    std::erase(missing_, paths_[row]);
    if (isMissing) missing_.push_back(paths_[row]);
    ListView1.Fade(static_cast<int>(row), isMissing);
}

std::wstring frmMain::ListView1_Tip(int row) {
    constexpr int kPathColumn = 4;
    const auto stored = IniLib::ReadFile(IniLib::SettingsFile(), 0); // nobody waits for a tip
    const DatabaseRecord record = stored ? ExtractInfo(*stored, ListView1.Cell(row, 0)) : DatabaseRecord();
    const bool isMissing = NameList::Has(missing_, record.Path);
    std::wstring tip = isMissing ? Translated(MoreText::FileMissing) + L"\r\n" + record.Path : std::wstring();
    const auto add = [&](int column, const std::wstring& whole) {
        if (whole.empty() || (whole == ListView1.Cell(row, column) && !ListView1.IsCut(row, column))) return;
        tip += (tip.empty() ? L"" : L"\r\n") + LangText[ColumnText(column)] + L": " + whole;
    };
    add(0, ListView1.Cell(row, 0));
    add(1, record.ContactLayout);
    add(2, record.GroupLayout);
    add(3, record.OpeningMacro);
    if (!isMissing) add(kPathColumn, record.Path);
    return tip;
}
