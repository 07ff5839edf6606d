#include "ui/ListView.h"

#include "ui/Form.h"

namespace {

// Texts of cells are paths and names; longer ones are cut in what the list shows.
constexpr int kLongestCell = 1024;

std::wstring ItemText(HWND list, int item, int column) {
    std::wstring text(kLongestCell, L'\0');
    LVITEMW query{};
    query.iSubItem = column;
    query.pszText = text.data();
    query.cchTextMax = kLongestCell;
    text.resize(static_cast<size_t>(
        SendMessageW(list, LVM_GETITEMTEXTW, static_cast<WPARAM>(item), reinterpret_cast<LPARAM>(&query))));
    return text;
}

struct SortOrder {
    HWND list;
    int column;
    bool descending;
};

int CALLBACK CompareItems(LPARAM left, LPARAM right, LPARAM order) {
    const auto& sort = *reinterpret_cast<const SortOrder*>(order);
    const std::wstring leftText = ItemText(sort.list, static_cast<int>(left), sort.column);
    const std::wstring rightText = ItemText(sort.list, static_cast<int>(right), sort.column);
    const int compared = lstrcmpiW(leftText.c_str(), rightText.c_str());
    return sort.descending ? -compared : compared;
}

} // namespace

ListView::ListView(Form* form, const wchar_t* name, Twips place)
    : Control(
          form, name, place,
          {WC_LISTVIEWW, LVS_REPORT | LVS_SINGLESEL | LVS_SHOWSELALWAYS | WS_TABSTOP | WS_GROUP, WS_EX_CLIENTEDGE}) {}

void ListView::OnCreated() {
    constexpr DWORD kStyles = LVS_EX_FULLROWSELECT | LVS_EX_DOUBLEBUFFER | LVS_EX_LABELTIP;
    SendMessageW(Handle(), LVM_SETEXTENDEDLISTVIEWSTYLE, kStyles, kStyles);
}

void ListView::AddColumn(const std::wstring& title, int width) {
    std::wstring text = title;
    LVCOLUMNW column{};
    column.mask = LVCF_TEXT | LVCF_WIDTH | LVCF_SUBITEM;
    column.cx = ToPixels(width, Owner().Dpi());
    column.pszText = text.data();
    column.iSubItem = ColumnCount();
    SendMessageW(Handle(), LVM_INSERTCOLUMNW, static_cast<WPARAM>(column.iSubItem), reinterpret_cast<LPARAM>(&column));
}

int ListView::ColumnCount() const {
    auto* header = reinterpret_cast<HWND>(SendMessageW(Handle(), LVM_GETHEADER, 0, 0));
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

void ListView::Clear() {
    SendMessageW(Handle(), LVM_DELETEALLITEMS, 0, 0);
    rowColors_.clear();
}

int ListView::Add(const std::wstring& text) {
    const int row = RowCount();
    std::wstring label = text;
    LVITEMW item{};
    item.mask = LVIF_TEXT | LVIF_PARAM;
    item.iItem = row;
    item.lParam = row;
    item.pszText = label.data();
    rowColors_.push_back(CLR_DEFAULT);
    SendMessageW(Handle(), LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
    return row;
}

int ListView::RowCount() const { return static_cast<int>(SendMessageW(Handle(), LVM_GETITEMCOUNT, 0, 0)); }

int ListView::ItemOf(int row) const {
    LVFINDINFOW find{};
    find.flags = LVFI_PARAM;
    find.lParam = row;
    return static_cast<int>(
        SendMessageW(Handle(), LVM_FINDITEMW, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(&find)));
}

int ListView::RowOf(int item) const {
    LVITEMW query{};
    query.mask = LVIF_PARAM;
    query.iItem = item;
    const bool found = item >= 0 && SendMessageW(Handle(), LVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&query));
    return found ? static_cast<int>(query.lParam) : -1;
}

std::wstring ListView::Cell(int row, int column) const { return ItemText(Handle(), ItemOf(row), column); }

void ListView::Cell(int row, int column, const std::wstring& text) {
    std::wstring copy = text;
    LVITEMW item{};
    item.iSubItem = column;
    item.pszText = copy.data();
    SendMessageW(Handle(), LVM_SETITEMTEXTW, static_cast<WPARAM>(ItemOf(row)), reinterpret_cast<LPARAM>(&item));
}

void ListView::RowColor(int row, COLORREF color) {
    rowColors_.at(static_cast<size_t>(row)) = color;
    SendMessageW(Handle(), LVM_REDRAWITEMS, static_cast<WPARAM>(ItemOf(row)), ItemOf(row));
}

COLORREF ListView::RowColor(int row) const { return rowColors_.at(static_cast<size_t>(row)); }

int ListView::Selected() const {
    return RowOf(static_cast<int>(SendMessageW(Handle(), LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED)));
}

void ListView::Select(int row) {
    const int item = ItemOf(row);
    if (row < 0 || item < 0) return;
    LVITEMW state{};
    state.stateMask = LVIS_SELECTED | LVIS_FOCUSED;
    state.state = state.stateMask;
    SendMessageW(Handle(), LVM_SETITEMSTATE, static_cast<WPARAM>(item), reinterpret_cast<LPARAM>(&state));
    SendMessageW(Handle(), LVM_ENSUREVISIBLE, static_cast<WPARAM>(item), FALSE);
}

void ListView::Sort(int column, bool descending) {
    SortOrder order{Handle(), column, descending};
    SendMessageW(Handle(), LVM_SORTITEMSEX, reinterpret_cast<WPARAM>(&order), reinterpret_cast<LPARAM>(&CompareItems));
}

LRESULT ListView::OnNotify(NMHDR& header) {
    switch (header.code) {
    case NM_DBLCLK:
        if (reinterpret_cast<const NMITEMACTIVATE&>(header).iItem >= 0) Raise(L"DblClick", dblClick_);
        return 0;
    case LVN_COLUMNCLICK: {
        const int column = reinterpret_cast<const NMLISTVIEW&>(header).iSubItem;
        if (columnClick_) Raise(L"ColumnClick", [this, column] { columnClick_(column); });
        return 0;
    }
    case NM_CUSTOMDRAW: return OnCustomDraw(reinterpret_cast<NMLVCUSTOMDRAW&>(header));
    default: return 0;
    }
}

LRESULT ListView::OnCustomDraw(NMLVCUSTOMDRAW& draw) const {
    if (draw.nmcd.dwDrawStage == CDDS_PREPAINT) return CDRF_NOTIFYITEMDRAW;
    if (draw.nmcd.dwDrawStage != CDDS_ITEMPREPAINT) return CDRF_DODEFAULT;
    const auto row = static_cast<size_t>(draw.nmcd.lItemlParam);
    if (row < rowColors_.size() && rowColors_[row] != CLR_DEFAULT) draw.clrText = rowColors_[row];
    return CDRF_NEWFONT;
}

void ListView::OnContextMenu(POINT position) {
    if (position.x == -1 && position.y == -1) {
        RECT item{};
        item.left = LVIR_LABEL;
        const int selected = ItemOf(Selected());
        if (selected >= 0)
            SendMessageW(Handle(), LVM_GETITEMRECT, static_cast<WPARAM>(selected), reinterpret_cast<LPARAM>(&item));
        position = {item.left, item.bottom};
        ClientToScreen(Handle(), &position);
    }
    menuPosition_ = position;
    Raise(L"MouseDown", rightClick_);
}
