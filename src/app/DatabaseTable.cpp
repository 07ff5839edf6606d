#include "app/DatabaseTable.h"

#include "databases/DatabaseList.h"
#include "databases/Keys.h"
#include "i18n/Caption.h"
#include "i18n/MoreText.h"
#include "i18n/modLangues.h"
#include "program/Program.h"
#include "stores/IniLib.h"
#include "stores/UserStore.h"
#include "support/Text.h"

#include <algorithm>
#include <array>

namespace {

constexpr std::array kTitles{Caption::DatabaseColumn, Caption::ContactLayoutColumn, Caption::GroupLayoutColumn,
                             Caption::OpeningMacroColumn, Caption::DatabasePath};
constexpr int kDesignColumn = 1125;    // twips; wider where a title needs it
constexpr long kWidestColumn = 100000; // twips; more is garbage
constexpr COLORREF kOpenInAct = RGB(255, 0, 0);
constexpr WORD kOpenMark = 2; // the icon of that number

/// A file in ACT!'s own folder of its kind goes by its bare name.
std::wstring ShownName(const std::wstring& path, const std::wstring& actFolder) {
    return Text::ContainsFolder(path, actFolder) ? Text::AfterLast(path, L'\\') : path;
}

/// In twips; none when it was never stored or is garbage.
std::optional<int> StoredWidth(int column) {
    const auto width = Text::Measure(UserStore::Get(Keys::Settings, Keys::Column + Text::FromNumber(column)));
    if (!width || *width < 0 || *width > kWidestColumn) return std::nullopt;
    return static_cast<int>(*width);
}

} // namespace

void DatabaseTable::RestoreColumns() {
    if (!hasColumns_) list_.Icon(1);
    for (int column = 0; column < static_cast<int>(kTitles.size()); ++column) {
        const auto width = StoredWidth(column);
        const std::wstring title = Title(column);
        if (column >= list_.ColumnCount())
            list_.AddColumn(title, width.value_or(std::max(list_.TitleWidth(title), kDesignColumn)));
        else if (width)
            list_.ColumnWidth(column, *width);
    }
    hasColumns_ = true;
}

void DatabaseTable::Save() const {
    if (isLoaded_) UserStore::Set(Keys::Display, Keys::Selected, Text::FromNumber(list_.Selected()));
    for (int column = 0; hasColumns_ && column < list_.ColumnCount(); ++column)
        UserStore::Set(Keys::Settings, Keys::Column + Text::FromNumber(column),
                       Text::FromNumber(list_.ColumnWidth(column)));
}

DatabaseTable::ActPlaces DatabaseTable::AskPlaces() {
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

bool DatabaseTable::Fill(const ActPlaces& places) {
    const auto stored = IniLib::ReadFile();
    if (!stored) return false;
    Program().DatabaseNames = DatabaseList::Read(*stored).shown;
    list_.Clear();
    for (const std::wstring& name : Program().DatabaseNames) {
        const DatabaseRecord record = ExtractInfo(*stored, name);
        Mark(list_.Add(CellsOf(name, record, places)), record.Path, places);
    }
    CollectOpenNames();
    if (sortColumn_ >= 0) list_.Sort(sortColumn_, sortsDown_);
    list_.Filled();
    find_.Narrow();
    files_.LookLater();
    return true;
}

bool DatabaseTable::Reload() {
    const ActPlaces places = AskPlaces();
    if (!Fill(places)) return false;
    isLoaded_ = true;
    SetHint(); // not before: a list that could not be read is not empty
    const auto selected = Text::WholeNumber(UserStore::Get(Keys::Display, Keys::Selected));
    list_.Select(static_cast<int>(selected.value_or(-1)));
    if (places.Failure) throw Error(*places.Failure);
    return true;
}

std::vector<std::wstring> DatabaseTable::CellsOf(const std::wstring& name, const DatabaseRecord& record,
                                                 const ActPlaces& places) {
    return {name, ShownName(record.ContactLayout, places.Layouts), ShownName(record.GroupLayout, places.Layouts),
            ShownName(record.OpeningMacro, places.Macros), record.Path};
}

void DatabaseTable::Mark(int row, const std::wstring& path, const ActPlaces& places) {
    files_.Set(row, path);
    const bool isOpen = Text::SamePath(path, places.OpenDatabase);
    list_.RowColor(row, isOpen ? kOpenInAct : CLR_DEFAULT);
    list_.Overlay(row, isOpen ? kOpenMark : 0);
    list_.Note(row, isOpen ? Translated(MoreText::OpenInAct) : std::wstring());
}

void DatabaseTable::CollectOpenNames() const {
    std::wstring& names = Program().OpenDatabaseNames;
    names.clear();
    for (int row = 0; row < list_.RowCount(); ++row)
        if (list_.RowColor(row) == kOpenInAct) names += L"|" + list_.Cell(row, 0) + L"|";
}

void DatabaseTable::Replace(const std::wstring& oldName, const std::wstring& name, const DatabaseRecord& record) {
    int row = 0;
    while (row < list_.RowCount() && list_.Cell(row, 0) != oldName) ++row;
    if (row == list_.RowCount()) return;
    const ActPlaces places = AskPlaces();
    std::vector<std::wstring> cells = CellsOf(name, record, places);
    cells.back() = name;
    for (size_t column = 0; column < cells.size(); ++column) list_.Cell(row, static_cast<int>(column), cells[column]);
    Mark(row, record.Path, places);
    CollectOpenNames();
    if (const auto stored = IniLib::ReadFile()) Program().DatabaseNames = DatabaseList::Read(*stored).shown;
    list_.Select(row);
    files_.LookLater();
    if (places.Failure) throw Error(*places.Failure);
}

std::wstring DatabaseTable::Title(int column) const {
    const std::wstring& title = LangText[kTitles.at(static_cast<size_t>(column))];
    if (column != sortColumn_) return title;
    return (sortsDown_ ? L"< " : L"> ") + title;
}

void DatabaseTable::SetTitles() {
    for (int column = 0; column < list_.ColumnCount(); ++column) list_.ColumnTitle(column, Title(column));
    if (isLoaded_) SetHint();
}

void DatabaseTable::SetHint() {
    const std::wstring hint =
        Text::Replace(Translated(MoreText::EmptyList), L"%1", Caption::Plain(LangText[Caption::Edit]));
    list_.EmptyText(Text::Replace(hint, L"%2", Caption::Plain(LangText[Caption::ManageList])));
}

void DatabaseTable::SortBy(int column) {
    sortsDown_ = column == sortColumn_ && !sortsDown_;
    sortColumn_ = column;
    SetTitles();
    list_.Sort(column, sortsDown_);
}

std::wstring DatabaseTable::SelectedName() const {
    const int row = list_.Selected();
    return row < 0 ? std::wstring() : list_.Cell(row, 0);
}

std::wstring DatabaseTable::Tip(int row) const {
    constexpr int kPathColumn = 4;
    const auto stored = IniLib::ReadFile(IniLib::SettingsFile(), 0); // nobody waits for a tip
    const DatabaseRecord record = stored ? ExtractInfo(*stored, list_.Cell(row, 0)) : DatabaseRecord();
    const bool isMissing = files_.IsMissing(record.Path);
    std::wstring tip = isMissing ? Translated(MoreText::FileMissing) + L"\r\n" + record.Path : std::wstring();
    const auto add = [&](int column, const std::wstring& whole) {
        if (whole.empty() || (whole == list_.Cell(row, column) && !list_.IsCut(row, column))) return;
        tip += (tip.empty() ? L"" : L"\r\n") + LangText[kTitles.at(static_cast<size_t>(column))] + L": " + whole;
    };
    add(0, list_.Cell(row, 0));
    add(1, record.ContactLayout);
    add(2, record.GroupLayout);
    add(3, record.OpeningMacro);
    if (!isMissing) add(kPathColumn, record.Path);
    return tip;
}
