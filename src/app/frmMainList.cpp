// frmMain's list of databases.

#include "app/frmMain.h"

#include "i18n/modLangues.h"
#include "program/Program.h"
#include "support/Text.h"

namespace {

constexpr int kColumnTitleRows[] = {42, 43, 44, 45, 91};
constexpr COLORREF kOpenInAct = RGB(255, 0, 0);

/// A file in ACT!'s own folder of its kind goes by its bare name.
std::wstring ShownName(const std::wstring& path, const std::wstring& actFolder) {
    return Text::ContainsFolder(path, actFolder) ? Text::AfterLast(path, L'\\') : path;
}

} // namespace

void frmMain::FillList() {
    ProgramState& program = Program();
    const ActPlaces places{program.Preferences.GetDefaultLocation(DefaultLocation::Layouts),
                           program.Preferences.GetDefaultLocation(DefaultLocation::Macros),
                           program.Application.GetOpenDBName()};
    program.DatabaseNames = DatabaseList::ReadSort();
    program.OpenDatabaseNames.clear();
    ListView1.Clear();
    for (const std::wstring& name : program.DatabaseNames) FillColumns(ListView1.Add(name), name, places);
    if (sortColumn_ >= 0) ListView1.Sort(sortColumn_, sortDescending_);
}

void frmMain::FillColumns(int row, const std::wstring& name, const ActPlaces& places) {
    const DatabaseRecord record = ExtractInfo(name);
    ListView1.Cell(row, 1, ShownName(record.ContactLayout, places.Layouts));
    ListView1.Cell(row, 2, ShownName(record.GroupLayout, places.Layouts));
    ListView1.Cell(row, 3, ShownName(record.OpeningMacro, places.Macros));
    ListView1.Cell(row, 4, record.Path);
    if (!Text::SamePath(record.Path, places.OpenDatabase)) return;
    ListView1.RowColor(row, kOpenInAct);
    Program().OpenDatabaseNames += L"|" + name + L"|";
}

void frmMain::SetColumnTitles() {
    for (int column = 0; column < ListView1.ColumnCount(); ++column) {
        std::wstring title = LangText[kColumnTitleRows[column]];
        if (column == sortColumn_) title.insert(0, sortDescending_ ? L"< " : L"> ");
        ListView1.ColumnTitle(column, title);
    }
}

std::wstring frmMain::SelectedName() const {
    const int row = ListView1.Selected();
    return row < 0 ? std::wstring() : Program().DatabaseNames.at(static_cast<size_t>(row));
}

void frmMain::ListView1_ColumnClick(int column) {
    sortDescending_ = column == sortColumn_ && !sortDescending_;
    sortColumn_ = column;
    SetColumnTitles();
    ListView1.Sort(column, sortDescending_);
}

void frmMain::ListView1_DblClick() { cmdOpen_Click(); }

void frmMain::ListView1_MouseDown() { mnuPopup.PopUp(ListView1.MenuPosition()); }
