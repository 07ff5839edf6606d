// frmMain's list of databases.

#include "app/frmMain.h"

#include "databases/DatabaseList.h"
#include "i18n/Caption.h"
#include "i18n/MoreText.h"
#include "i18n/modLangues.h"
#include "program/Program.h"
#include "stores/IniLib.h"
#include "stores/UserStore.h"
#include "support/Text.h"

namespace {

constexpr int kColumnTitleRows[] = {Caption::DatabaseColumn, Caption::ContactLayoutColumn, Caption::GroupLayoutColumn,
                                    Caption::OpeningMacroColumn, Caption::DatabasePath};
constexpr COLORREF kOpenInAct = RGB(255, 0, 0);

/// A file in ACT!'s own folder of its kind goes by its bare name.
std::wstring ShownName(const std::wstring& path, const std::wstring& actFolder) {
    return Text::ContainsFolder(path, actFolder) ? Text::AfterLast(path, L'\\') : path;
}

} // namespace

frmMain::ActPlaces frmMain::AskPlaces() {
    const ProgramState& program = Program();
    ActPlaces places;
    constexpr long kOpenDatabase = -1;
    const std::pair<long, std::wstring*> questions[] = {{DefaultLocation::Layouts, &places.Layouts},
                                                        {DefaultLocation::Macros, &places.Macros},
                                                        {kOpenDatabase, &places.OpenDatabase}};
    for (const auto& [kind, answer] : questions) try {
            *answer = kind == kOpenDatabase ? program.Application.GetOpenDBName()
                                            : program.Preferences.GetDefaultLocation(kind);
        } catch (const Error& error) {
            if (!places.Failure) places.Failure = error;
        }
    return places;
}

bool frmMain::FillList(const ActPlaces& places) {
    const auto stored = IniLib::ReadFile();
    if (!stored) return false;
    Program().DatabaseNames = DatabaseList::Read(*stored).shown;
    ListView1.Clear();
    for (const std::wstring& name : Program().DatabaseNames) {
        const DatabaseRecord record = ExtractInfo(*stored, name);
        MarkRow(ListView1.Add(CellsOf(name, record, places)), record.Path, places);
    }
    CollectOpenNames();
    if (sortColumn_ >= 0) ListView1.Sort(sortColumn_, sortDescending_);
    ListView1.Filled();
    if (isFinding_) txtFind_Change();
    CheckFilesLater();
    return true;
}

std::vector<std::wstring> frmMain::CellsOf(const std::wstring& name, const DatabaseRecord& record,
                                           const ActPlaces& places) {
    return {name, ShownName(record.ContactLayout, places.Layouts), ShownName(record.GroupLayout, places.Layouts),
            ShownName(record.OpeningMacro, places.Macros), record.Path};
}

void frmMain::MarkRow(int row, const std::wstring& path, const ActPlaces& places) {
    paths_.resize(static_cast<size_t>(ListView1.RowCount()));
    paths_[static_cast<size_t>(row)] = path;
    checkNumber_ = 0; // what is being looked for now may belong to another row
    ListView1.Fade(row, NameList::Has(missing_, path));
    const bool isOpen = Text::SamePath(path, places.OpenDatabase);
    ListView1.RowColor(row, isOpen ? kOpenInAct : CLR_DEFAULT);
    ListView1.Note(row, isOpen ? Translated(MoreText::OpenInAct) : std::wstring());
}

void frmMain::CollectOpenNames() const {
    std::wstring& names = Program().OpenDatabaseNames;
    names.clear();
    for (int row = 0; row < ListView1.RowCount(); ++row)
        if (ListView1.RowColor(row) == kOpenInAct) names += L"|" + ListView1.Cell(row, 0) + L"|";
}

bool frmMain::ReloadList() {
    const ActPlaces places = AskPlaces();
    if (!FillList(places)) return false;
    listLoaded_ = true;
    const auto selected = Text::WholeNumber(UserStore::Get(Keys::Display, Keys::Selected));
    ListView1.Select(static_cast<int>(selected.value_or(-1)));
    if (places.Failure) throw Error(*places.Failure);
    return true;
}

void frmMain::SelectedIndex(int index) { UserStore::Set(Keys::Display, Keys::Selected, Text::FromNumber(index)); }

void frmMain::ReplaceRow(const std::wstring& name, const DatabaseRecord& record) {
    const int row = ListView1.Selected();
    if (row < 0) return;
    const ActPlaces places = AskPlaces();
    std::vector<std::wstring> cells = CellsOf(name, record, places);
    cells.back() = name;
    for (size_t column = 0; column < cells.size(); ++column)
        ListView1.Cell(row, static_cast<int>(column), cells[column]);
    MarkRow(row, record.Path, places);
    CollectOpenNames();
    if (const auto stored = IniLib::ReadFile()) Program().DatabaseNames = DatabaseList::Read(*stored).shown;
    ListView1.Select(row);
    CheckFilesLater();
    if (places.Failure) throw Error(*places.Failure);
}

int frmMain::ColumnText(int column) { return kColumnTitleRows[column]; }

std::wstring frmMain::ColumnTitle(int column) const {
    const std::wstring& title = LangText[ColumnText(column)];
    if (column != sortColumn_) return title;
    return (sortDescending_ ? L"< " : L"> ") + title;
}

void frmMain::SetColumnTitles() {
    for (int column = 0; column < ListView1.ColumnCount(); ++column) ListView1.ColumnTitle(column, ColumnTitle(column));
}

std::wstring frmMain::SelectedName() const {
    const int row = ListView1.Selected();
    return row < 0 ? std::wstring() : ListView1.Cell(row, 0);
}

void frmMain::ListView1_ColumnClick(int column) {
    sortDescending_ = column == sortColumn_ && !sortDescending_;
    sortColumn_ = column;
    SetColumnTitles();
    ListView1.Sort(column, sortDescending_);
}

void frmMain::ListView1_DblClick() { cmdOpen_Click(); }

void frmMain::ListView1_MouseDown() { mnuPopup.PopUp(ListView1.MenuPosition()); }
