#include "ui/ListView.h"

#include "ui/Form.h"

#include <algorithm>
#include <utility>

ListView::ListView(Form* form, const wchar_t* name, const Placement& place)
    : Control(
          form, name, place,
          {WC_LISTVIEWW, LVS_REPORT | LVS_SINGLESEL | LVS_SHOWSELALWAYS | WS_TABSTOP | WS_GROUP, WS_EX_CLIENTEDGE}) {}

void ListView::OnCreated() {
    SendMessageW(Handle(), LVM_SETEXTENDEDLISTVIEWSTYLE, LVS_EX_FULLROWSELECT, LVS_EX_FULLROWSELECT);
}

void ListView::Empty() {
    SendMessageW(Handle(), WM_SETREDRAW, FALSE, 0);
    SendMessageW(Handle(), LVM_DELETEALLITEMS, 0, 0);
}

void ListView::Clear() {
    Empty();
    rows_.clear();
}

void ListView::Filled() { SendMessageW(Handle(), WM_SETREDRAW, TRUE, 0); }

int ListView::Add(std::vector<std::wstring> cells) {
    rows_.push_back({std::move(cells), {}});
    Insert(RowCount() - 1);
    return RowCount() - 1;
}

void ListView::Insert(int row) {
    Row& added = rows_.at(static_cast<size_t>(row));
    added.Cells.resize(static_cast<size_t>(std::max(1, ColumnCount())));
    LVITEMW item{};
    item.mask = LVIF_TEXT | LVIF_PARAM | LVIF_STATE;
    item.iItem = RowCount();
    item.lParam = row;
    item.pszText = added.Cells[0].data();
    item.stateMask = LVIS_CUT | LVIS_OVERLAYMASK;
    item.state = (added.IsFaded ? LVIS_CUT : 0U) | (added.IsOverlaid ? INDEXTOOVERLAYMASK(1) : 0U);
    item.iItem = static_cast<int>(SendMessageW(Handle(), LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item)));
    for (size_t column = 1; column < added.Cells.size(); ++column) {
        item.iSubItem = static_cast<int>(column);
        item.pszText = added.Cells[column].data();
        SendMessageW(Handle(), LVM_SETITEMTEXTW, static_cast<WPARAM>(item.iItem), reinterpret_cast<LPARAM>(&item));
    }
}

void ListView::ShowOnly(const std::function<bool(int row)>& isShown) {
    const int selected = Selected();
    Empty();
    for (int row = 0; row < RowCount(); ++row)
        if (!isShown || isShown(row)) Insert(row);
    SortItems();
    Select(ItemOf(selected) >= 0 ? selected : RowOf(0));
    Filled();
    if (!toldItems_.empty()) TellNotes();
}

void ListView::OnDpiChanged(int dpi) {
    for (int column = 0; column < ColumnCount(); ++column)
        SendMessageW(Handle(), LVM_SETCOLUMNWIDTH, static_cast<WPARAM>(column),
                     MulDiv(ToPixels(ColumnWidth(column), Owner().Dpi()), Owner().Dpi(), dpi));
    if (iconResource_) Icon(iconResource_);
}

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

std::wstring ListView::Cell(int row, int column) const {
    if (row < 0 || row >= RowCount()) return {};
    const std::vector<std::wstring>& cells = rows_[static_cast<size_t>(row)].Cells;
    return static_cast<size_t>(column) < cells.size() ? cells[static_cast<size_t>(column)] : std::wstring();
}

void ListView::Cell(int row, int column, const std::wstring& text) {
    std::wstring& cell = rows_.at(static_cast<size_t>(row)).Cells.at(static_cast<size_t>(column));
    cell = text;
    LVITEMW item{};
    item.iSubItem = column;
    item.pszText = cell.data();
    if (const int shown = ItemOf(row); shown >= 0)
        SendMessageW(Handle(), LVM_SETITEMTEXTW, static_cast<WPARAM>(shown), reinterpret_cast<LPARAM>(&item));
}

int ListView::Selected() const {
    return RowOf(static_cast<int>(SendMessageW(Handle(), LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED)));
}

void ListView::Select(int row) {
    const int item = ItemOf(row);
    if (row < 0 || item < 0) return;
    SetState(row, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
    SendMessageW(Handle(), LVM_ENSUREVISIBLE, static_cast<WPARAM>(item), FALSE);
}

void ListView::Sort(int column, bool descending) {
    sortColumn_ = column;
    isDescending_ = descending;
    SortItems();
    if (!toldItems_.empty()) TellNotes();
}

void ListView::SortItems() {
    if (sortColumn_ < 0) return;
    Order order{&rows_, sortColumn_, isDescending_};
    SendMessageW(Handle(), LVM_SORTITEMS, reinterpret_cast<WPARAM>(&order), reinterpret_cast<LPARAM>(&Compare));
}

int CALLBACK ListView::Compare(LPARAM left, LPARAM right, LPARAM order) {
    const auto& [rows, column, isDescending] = *reinterpret_cast<const Order*>(order);
    const auto text = [&, cells = rows, index = static_cast<size_t>(column)](LPARAM row) {
        return (*cells)[static_cast<size_t>(row)].Cells[index].c_str();
    };
    const int compared = lstrcmpiW(text(left), text(right));
    return isDescending ? -compared : compared;
}

int ListView::RowAt(POINT position) const {
    LVHITTESTINFO hit{};
    ScreenToClient(Handle(), &position);
    hit.pt = position;
    return RowOf(static_cast<int>(SendMessageW(Handle(), LVM_SUBITEMHITTEST, 0, reinterpret_cast<LPARAM>(&hit))));
}

LRESULT ListView::OnNotify(NMHDR& header) {
    switch (header.code) {
    case NM_DBLCLK: Raise(L"DblClick", dblClick_); return 0;
    case LVN_COLUMNCLICK: {
        const int column = reinterpret_cast<const NMLISTVIEW&>(header).iSubItem;
        if (columnClick_) RaiseCall(L"ColumnClick", [this, column] { columnClick_(column); });
        return 0;
    }
    case TTN_GETDISPINFOW: OnTip(reinterpret_cast<NMTTDISPINFOW&>(header)); return 0;
    case NM_CUSTOMDRAW: return OnCustomDraw(reinterpret_cast<NMLVCUSTOMDRAW&>(header));
    default: return 0;
    }
}

void ListView::OnMove() {
    if (IsWindowVisible(Handle())) DrawSmoothly();
}

void ListView::DrawSmoothly() {
    if (std::exchange(isSmooth_, true)) return;
    SendMessageW(Handle(), LVM_SETEXTENDEDLISTVIEWSTYLE, LVS_EX_DOUBLEBUFFER, LVS_EX_DOUBLEBUFFER);
}

bool ListView::OnSetCursor() {
    const DWORD before = std::exchange(pointer_, GetMessagePos());
    const bool isMoving = before != 0 && before != pointer_;
    if (isMoving) DrawSmoothly();
    if (!tip_) return false;
    // Not before the pointer moves here: the tip listens to every message of the list, and filling it takes hundreds.
    if (isMoving && !std::exchange(hasTip_, true)) toolTip_.SetAsked(Owner().Handle(), Handle());
    // A tip belongs to one row: on another one it begins anew.
    const POINT position{GET_X_LPARAM(pointer_), GET_Y_LPARAM(pointer_)};
    if (std::exchange(hotRow_, RowAt(position)) != hotRow_) toolTip_.Pop();
    return false;
}

void ListView::OnTip(NMTTDISPINFOW& tip) {
    POINT pointer{};
    GetCursorPos(&pointer);
    const int row = RowAt(pointer);
    shownTip_ = row < 0 || !tip_ ? std::wstring() : tip_(row);
    tip.lpszText = shownTip_.data();
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
    } else if (RECT titles{}; GetWindowRect(Header(), &titles) && PtInRect(&titles, position)) {
        return; // that is no click on a row
    }
    menuPosition_ = position;
    Raise(L"MouseDown", rightClick_);
}
