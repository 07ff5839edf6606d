#pragma once

#include "ui/Control.h"
#include "ui/ToolTip.h"
#include "win32/Owner.h"

#include <functional>
#include <string>
#include <type_traits>
#include <vector>

/// Handlers of a list view; those not named stay empty.
template <class F>
struct ListViewEvents {
    void (F::*DblClick)() = nullptr; ///< on a row or beside the rows
    void (F::*ColumnClick)(int column) = nullptr;
    void (F::*RightClick)() = nullptr;         ///< right button, Menu key or Shift+F10
    std::wstring (F::*Tip)(int row) = nullptr; ///< what to show while the pointer rests on a row, "" for nothing
};

/// A report-style list: rows of texts under clickable column headers, one row selected at a time. Rows keep the number
/// under which they were added, whatever the order they are shown in.
class ListView : public Control {
public:
    template <class F>
    ListView(F* form, const wchar_t* name, const Placement& place, std::type_identity_t<ListViewEvents<F>> events = {})
        : ListView(static_cast<Form*>(form), name, place) {
        dblClick_ = {form, static_cast<Action::Plain>(events.DblClick)};
        columnClick_ = {form, events.ColumnClick};
        rightClick_ = {form, static_cast<Action::Plain>(events.RightClick)};
        tip_ = {form, events.Tip};
    }

    /// Adds a column at the right end; the width is in twips.
    void AddColumn(const std::wstring& title, int width);
    int ColumnCount() const;
    void ColumnTitle(int column, const std::wstring& title);
    int ColumnWidth(int column) const; ///< twips
    void ColumnWidth(int column, int width);
    /// The width that a column needs to show a title whole, in twips.
    int TitleWidth(const std::wstring& title) const;

    /// Takes all rows out. Nothing is drawn until it is told to be filled: many rows are added many times faster so.
    void Clear();
    void Filled();
    /// Adds a row behind the others and returns its number, from 0. Cells that are not given stay empty.
    int Add(std::vector<std::wstring> cells);
    int RowCount() const { return static_cast<int>(rows_.size()); }
    /// Shows only the rows for which `isShown` holds; empty shows all again. The others keep number and contents. When
    /// the selected row is hidden the first one shown is selected.
    void ShowOnly(const std::function<bool(int row)>& isShown);
    /// Gives every row an icon (a resource of the program), 16 pixels at 96 DPI.
    void Icon(WORD resource);
    /// Gives every row a box to check.
    void CheckBoxes();
    bool Checked(int row) const;
    void Checked(int row, bool isChecked);
    /// Draws an icon (a resource of the program) over the row's own, or takes it away.
    void Overlay(int row, WORD resource);
    /// What stands in grey where the rows would be while there are none.
    void EmptyText(const std::wstring& text);
    const std::wstring& EmptyText() const { return emptyText_; }
    /// Draws a row's icon faded, or not.
    void Fade(int row, bool isFaded);
    /// A text that a screen reader says behind the row's first cell, "" for none. Told when TellNotes runs, which
    /// costs some time, and from then on whenever the rows change places.
    void Note(int row, const std::wstring& text);
    const std::wstring& Note(int row) const { return rows_.at(static_cast<size_t>(row)).Note; }
    void TellNotes();
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
    /// The row at a place on the screen, or -1.
    int RowAt(POINT position) const;
    /// True when a cell's text does not fit its column.
    bool IsCut(int row, int column) const;
    /// Where a menu that belongs to the selected row comes up when the keyboard asked for it, in screen pixels.
    POINT MenuPosition() const { return menuPosition_; }

private:
    ListView(Form* form, const wchar_t* name, const Placement& place);
    void OnCreated() override;
    LRESULT OnNotify(NMHDR& header) override;
    void OnContextMenu(POINT position) override;
    bool OnSetCursor() override;
    void OnMove() override;
    /// Draws from now on into a bitmap of the list's size first, as what is sized, filtered or dragged would flicker.
    /// Held only once it is needed.
    void DrawSmoothly();
    void OnDpiChanged(int dpi) override;
    void OnTip(NMTTDISPINFOW& tip);
    LRESULT OnCustomDraw(NMLVCUSTOMDRAW& draw) const;
    void DrawEmptyText(HDC canvas) const;
    void DrawOverlay(HDC canvas, int item) const;
    void LoadIcon(WORD resource, HIMAGELIST icons) const;
    void SetState(int row, UINT mask, UINT state);
    HWND Header() const;
    int ItemOf(int row) const;
    int RowOf(int item) const;
    void Empty();
    void Insert(int row);
    void SortItems();

    struct Row {
        std::vector<std::wstring> Cells;
        std::wstring Note;
        COLORREF Color = CLR_DEFAULT;
        bool IsFaded = false;
        bool IsOverlaid = false;
    };
    struct Order {
        const std::vector<Row>* Rows;
        int Column;
        bool IsDescending;
    };
    static int CALLBACK Compare(LPARAM left, LPARAM right, LPARAM order);

    std::vector<Row> rows_;
    int sortColumn_ = -1;
    bool isDescending_ = false;
    WORD iconResource_ = 0;
    WORD overlayResource_ = 0;
    std::wstring emptyText_;
    ImageListHandle icons_;
    std::vector<int> toldItems_;
    Action dblClick_;
    Handler<void, int> columnClick_;
    Action rightClick_;
    Handler<std::wstring, int> tip_;
    ToolTip toolTip_;
    bool hasTip_ = false;
    bool isSmooth_ = false;
    DWORD pointer_ = 0; ///< where it was last, as a message tells it
    std::wstring shownTip_;
    int hotRow_ = -1;
    POINT menuPosition_{};
};
