#pragma once

#include "app/FindBox.h"
#include "app/RowFiles.h"
#include "databases/Record.h"
#include "support/Error.h"
#include "ui/ListView.h"

#include <optional>
#include <string>
#include <vector>

/// The databases as rows of a list view: what is read of the settings file and asked of ACT!, marks, order, columns and
/// tips.
class DatabaseTable {
public:
    DatabaseTable(ListView& list, FindBox& find, const RowFiles::Messages& messages)
        : files_(list, messages), list_(list), find_(find) {}

    /// Makes the columns, or gives them their titles and stored widths anew.
    void RestoreColumns();
    /// Stores the column widths and the selected row, each of them only when it was loaded in this run.
    void Save() const;

    /// Fills the list and selects the stored row. False, with the rows as they were, when the list cannot be read.
    /// A failure of ACT!'s answers is thrown once the rows are there.
    bool Reload();
    bool IsLoaded() const { return isLoaded_; }
    /// Shows the row of a database anew and selects it, with another name and record.
    void Replace(const std::wstring& oldName, const std::wstring& name, const DatabaseRecord& record);

    /// In the language in use, with the mark of the sorted column.
    void SetTitles();
    /// Sorts by a column (from 0), downwards when it was sorted upwards by it.
    void SortBy(int column);
    /// "" when no row is selected.
    std::wstring SelectedName() const;
    /// What the cells of a row do not show whole.
    std::wstring Tip(int row) const;

    RowFiles& Files() { return files_; }

private:
    /// What ACT! answers about itself, asked once for all rows.
    struct ActPlaces {
        std::wstring Layouts;
        std::wstring Macros;
        std::wstring OpenDatabase;
        std::optional<Error> Failure; ///< the first of these, whose answers are empty
    };

    static ActPlaces AskPlaces();
    static std::vector<std::wstring> CellsOf(const std::wstring& name, const DatabaseRecord& record,
                                             const ActPlaces& places);
    bool Fill(const ActPlaces& places);
    void Mark(int row, const std::wstring& path, const ActPlaces& places);
    void CollectOpenNames() const;
    void SetHint();
    std::wstring Title(int column) const;

    RowFiles files_;
    ListView& list_;
    FindBox& find_;
    int sortColumn_ = -1;
    bool sortsDown_ = false;
    bool hasColumns_ = false;
    bool isLoaded_ = false;
};
