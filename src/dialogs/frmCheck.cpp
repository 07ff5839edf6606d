#include "dialogs/frmCheck.h"

#include "dialogs/frmProperties.h"
#include "i18n/Caption.h"
#include "i18n/MoreText.h"
#include "i18n/modLangues.h"
#include "program/Program.h"
#include "program/SettingsNotice.h"
#include "support/Text.h"
#include "ui/Clipboard.h"

#include <algorithm>
#include <utility>

namespace {

using ListCheck::Answer;
using ListCheck::Part;

constexpr UINT kAnswer = WM_APP + 1;

std::wstring NameOf(const Part& part) {
    constexpr int kNames[] = {Caption::Properties,        Caption::DatabasePath,       Caption::ContactLayoutColumn,
                              Caption::GroupLayoutColumn, Caption::OpeningMacroColumn, Caption::UseLocationsFrom,
                              Caption::Username,          Caption::FirstLocation};
    return LangText[kNames[static_cast<size_t>(part.What)] + static_cast<int>(part.Folder)];
}

/// The page of the properties on which each kind can be mended.
constexpr int kPages[] = {0, 0, 0, 0, 0, 1, 2, 1};

} // namespace

frmCheck::frmCheck(MainWindow& mainWindow, PathCheck::Ask ask)
    : Form({L"frmCheck", 8520, 4770, Border::SizableDialog}), mainWindow_(mainWindow), ask_(ask) {}

bool frmCheck::ReadParts() {
    auto parts = ListCheck::Parts();
    if (parts)
        parts_ = std::move(*parts);
    else
        SettingsNotice::CannotRead();
    return static_cast<bool>(parts);
}

void frmCheck::Form_Load() {
    const std::pair<std::wstring, int> columns[] = {{LangText[Caption::DatabaseColumn], 1800},
                                                    {Translated(MoreText::WhatIsMissing), 1700},
                                                    {LangText[Caption::Location], 3300},
                                                    {Translated(MoreText::State), 1200}}; // twips
    for (const auto& [title, width] : columns) lvwMissing.AddColumn(title, width);
    Caption(Caption::Plain(Translated(MoreText::CheckList)));
    lvwMissing.AccessibleName(Translated(MoreText::SomeMissing));
    barProgress.AccessibleName(Translated(MoreText::Checking));
    cmdProperties.Text(Caption::WithDots(LangText[Caption::Properties]));
    cmdCopy.Text(Translated(MoreText::Copy));
    Begin();
}

void frmCheck::Form_Resize() {
    const Twips inner = InnerSize();
    const int bottom = inner.Height - 465;
    for (Control* wide : {static_cast<Control*>(&lblState), static_cast<Control*>(&barProgress)})
        wide->Move({120, wide->Place().Top, inner.Width - 240, wide->Place().Height});
    lvwMissing.Move({120, 660, inner.Width - 240, bottom - 780});
    cmdProperties.Move({120, bottom, 1815, 345});
    cmdCopy.Move({2070, bottom, 1215, 345});
    cmdClose.Move({inner.Width - 1335, bottom, 1215, 345});
}

bool frmCheck::Form_KeyDown(const KeyPress& press) {
    const bool copies = press == KeyPress{.Key = 'C', .Ctrl = true};
    if (copies) cmdCopy_Click();
    return copies;
}

bool frmCheck::OnMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT&) {
    if (message != kAnswer) return false;
    if (number_ != 0 && lParam == number_) Take(wParam);
    return true;
}

void frmCheck::Begin() {
    constexpr unsigned kPatience = 10'000; // milliseconds, for all shares side by side
    std::vector<std::wstring> paths;
    asked_.clear();
    for (size_t index = 0; index < parts_.size(); ++index)
        if (parts_[index].State == Answer::None) {
            asked_.push_back(index);
            paths.push_back(parts_[index].Where);
        }
    answered_ = 0;
    shown_.clear();
    lvwMissing.Clear();
    lvwMissing.Filled();
    lblState.Text(Translated(MoreText::Checking));
    barProgress.Visible(true);
    barProgress.Show(0, paths.size());
    cmdClose.Text(LangText[Caption::Cancel]);
    tmrPatience.Interval(kPatience);
    check_.emplace(kAnswer, ask_); // one whose threads still wait would keep this waiting, too
    number_ = check_->Start(Handle(), paths);
}

void frmCheck::Take(WPARAM answer) {
    if (answer == PathCheck::Done) return Finish();
    parts_.at(asked_.at(PathCheck::Index(answer))).State =
        PathCheck::IsMissing(answer) ? Answer::Missing : Answer::There;
    barProgress.Show(++answered_, asked_.size());
}

void frmCheck::Finish() {
    number_ = 0;
    tmrPatience.Interval(0);
    check_.reset();
    barProgress.Visible(false);
    cmdClose.Text(LangText[Caption::Close]);
    for (size_t index = 0; index < parts_.size(); ++index) {
        const Part& part = parts_[index];
        if (part.State == Answer::There) continue;
        shown_.push_back(index);
        lvwMissing.Add({part.Database, NameOf(part), part.Where,
                        Translated(part.State == Answer::Missing ? MoreText::Missing : MoreText::NoAnswer)});
    }
    lvwMissing.Filled();
    lvwMissing.Select(std::min(lastRow_, lvwMissing.RowCount() - 1));
    lblState.Text(Translated(shown_.empty() ? MoreText::NothingMissing : MoreText::SomeMissing));
}

void frmCheck::cmdProperties_Click() {
    const int row = lvwMissing.Selected();
    if (row < 0) return;
    lastRow_ = row;
    const Part& part = parts_[shown_[static_cast<size_t>(row)]];
    Program().FriendlyName = part.Database;
    frmProperties properties(&mainWindow_);
    properties.IsNew(false);
    properties.FirstPage(kPages[static_cast<size_t>(part.What)]);
    properties.ShowModal();
    if (properties.Cancelled() || Unloaded()) return;
    hasChanged_ = true;
    if (ReadParts()) Begin();
}

void frmCheck::cmdCopy_Click() {
    std::wstring text;
    for (int row = 0; row < lvwMissing.RowCount(); ++row) {
        for (int column = 0; column < lvwMissing.ColumnCount(); ++column)
            text += (column == 0 ? L"" : L"\t") + lvwMissing.Cell(row, column);
        text += L"\r\n";
    }
    if (!text.empty()) CopyToClipboard(Handle(), text);
}

void frmCheck::cmdClose_Click() { number_ != 0 ? Finish() : Unload(); }
