#pragma once

#include "ui/Control.h"

#include <string>
#include <type_traits>
#include <vector>

/// Handlers of a list view; those not named stay empty.
template <class F>
struct ListViewEvents {
    void (F::*DblClick)() = nullptr;
    void (F::*ColumnClick)(int column) = nullptr;
    void (F::*RightClick)() = nullptr; ///< right button, Menu key or Shift+F10
};

/// A report-style list: rows of texts under clickable column headers, one row selected at a time. Rows keep the number
/// under which they were added, whatever the order they are shown in.
class ListView : public Control {
public:
    template <class F>
    ListView(F* form, const wchar_t* name, Twips place, std::type_identity_t<ListViewEvents<F>> events = {})
        : ListView(static_cast<Form*>(form), name, place) {
        dblClick_ = Bind(form, events.DblClick);
        columnClick_ = Bind(form, events.ColumnClick);
        rightClick_ = Bind(form, events.RightClick);
    }

    /// Adds a column at the right end; the width is in twips.
    void AddColumn(const std::wstring& title, int width);
    int ColumnCount() const;
    void ColumnTitle(int column, const std::wstring& title);
    int ColumnWidth(int column) const; ///< twips
    void ColumnWidth(int column, int width);
    /// The width that a column needs to show a title whole, in twips.
    int TitleWidth(const std::wstring& title) const;

    void Clear();
    /// Adds a row behind the others and returns its number, from 0.
    int Add(const std::wstring& text);
    int RowCount() const;
    /// The text of a cell; row is the number given by Add.
    std::wstring Cell(int row, int column) const;
    void Cell(int row, int column, const std::wstring& text);
    /// Draws all cells of a row in a colour, or in the system's when it is CLR_DEFAULT.
    void RowColor(int row, COLORREF color);
    COLORREF RowColor(int row) const;

    /// The number of the selected row, or -1.
    int Selected() const;
    /// Selects, focuses and scrolls to a row. A number that no row has changes nothing.
    void Select(int row);
    /// Shows the rows in the order of a column's texts.
    void Sort(int column, bool descending);
    /// Where a menu that belongs to the selected row comes up when the keyboard asked for it, in screen pixels.
    POINT MenuPosition() const { return menuPosition_; }

private:
    ListView(Form* form, const wchar_t* name, Twips place);
    void OnCreated() override;
    LRESULT OnNotify(NMHDR& header) override;
    void OnContextMenu(POINT position) override;
    LRESULT OnCustomDraw(NMLVCUSTOMDRAW& draw) const;
    int ItemOf(int row) const;
    int RowOf(int item) const;

    std::vector<COLORREF> rowColors_;
    Action dblClick_;
    IndexAction columnClick_;
    Action rightClick_;
    POINT menuPosition_{};
};
