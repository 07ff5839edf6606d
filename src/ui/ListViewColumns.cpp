// ListView's columns.

#include "ui/Form.h"
#include "ui/ListView.h"

void ListView::AddColumn(const std::wstring& title, int width) {
    std::wstring text = title;
    LVCOLUMNW column{};
    column.mask = LVCF_TEXT | LVCF_WIDTH | LVCF_SUBITEM;
    column.cx = ToPixels(width, Owner().Dpi());
    column.pszText = text.data();
    column.iSubItem = ColumnCount();
    SendMessageW(Handle(), LVM_INSERTCOLUMNW, static_cast<WPARAM>(column.iSubItem), reinterpret_cast<LPARAM>(&column));
}

HWND ListView::Header() const { return reinterpret_cast<HWND>(SendMessageW(Handle(), LVM_GETHEADER, 0, 0)); }

int ListView::ColumnCount() const {
    HWND header = Header();
    return header ? static_cast<int>(SendMessageW(header, HDM_GETITEMCOUNT, 0, 0)) : 0;
}

void ListView::ColumnTitle(int column, const std::wstring& title) {
    std::wstring text = title;
    LVCOLUMNW change{};
    change.mask = LVCF_TEXT;
    change.pszText = text.data();
    SendMessageW(Handle(), LVM_SETCOLUMNW, static_cast<WPARAM>(column), reinterpret_cast<LPARAM>(&change));
}

int ListView::ColumnWidth(int column) const {
    const LRESULT pixels = SendMessageW(Handle(), LVM_GETCOLUMNWIDTH, static_cast<WPARAM>(column), 0);
    return ToTwips(static_cast<int>(pixels), Owner().Dpi());
}

void ListView::ColumnWidth(int column, int width) {
    SendMessageW(Handle(), LVM_SETCOLUMNWIDTH, static_cast<WPARAM>(column), ToPixels(width, Owner().Dpi()));
}

int ListView::TitleWidth(const std::wstring& title) const {
    constexpr int kPadding = 240; // twips: what the header leaves free beside a title, and a hair
    const LRESULT text = SendMessageW(Handle(), LVM_GETSTRINGWIDTHW, 0, reinterpret_cast<LPARAM>(title.c_str()));
    return ToTwips(static_cast<int>(text), Owner().Dpi()) + kPadding;
}

bool ListView::IsCut(int row, int column) const {
    constexpr int kPadding = 12; // pixels at 96 DPI that the control leaves free
    const std::wstring text = Cell(row, column);
    const auto needed = SendMessageW(Handle(), LVM_GETSTRINGWIDTHW, 0, reinterpret_cast<LPARAM>(text.c_str())) +
                        MulDiv(kPadding, Owner().Dpi(), NormalDpi);
    return needed > SendMessageW(Handle(), LVM_GETCOLUMNWIDTH, static_cast<WPARAM>(column), 0);
}
