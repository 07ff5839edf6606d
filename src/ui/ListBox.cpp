#include "ui/ListBox.h"

#include "ui/Form.h"

#include <algorithm>

ListBox::ListBox(Form* form, const wchar_t* name, const Placement& place)
    : Control(form, name, place,
              {L"ListBox", LBS_NOTIFY | LBS_NOINTEGRALHEIGHT | WS_VSCROLL | WS_TABSTOP | WS_GROUP, WS_EX_CLIENTEDGE}) {}

void ListBox::OnCreated() {
    if (drop_) MakeDragList(Handle());
}

void ListBox::InsertItem(const std::wstring& text, int index) {
    SendMessageW(Handle(), LB_INSERTSTRING, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(text.c_str()));
}

void ListBox::RemoveItem(int index) { SendMessageW(Handle(), LB_DELETESTRING, static_cast<WPARAM>(index), 0); }
void ListBox::Clear() { SendMessageW(Handle(), LB_RESETCONTENT, 0, 0); }
int ListBox::ListCount() const { return static_cast<int>(SendMessageW(Handle(), LB_GETCOUNT, 0, 0)); }

std::wstring ListBox::List(int index) const {
    const LRESULT length = SendMessageW(Handle(), LB_GETTEXTLEN, static_cast<WPARAM>(index), 0);
    if (length == LB_ERR) return {};
    std::wstring text(static_cast<size_t>(length) + 1, L'\0');
    SendMessageW(Handle(), LB_GETTEXT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(text.data()));
    text.pop_back();
    return text;
}

int ListBox::ListIndex() const { return static_cast<int>(SendMessageW(Handle(), LB_GETCURSEL, 0, 0)); }

void ListBox::ListIndex(int index) {
    SendMessageW(Handle(), LB_SETCURSEL, static_cast<WPARAM>(index), 0);
    Raise(L"Click", click_);
}

LONG_PTR ListBox::ItemData(int index) const {
    return SendMessageW(Handle(), LB_GETITEMDATA, static_cast<WPARAM>(index), 0);
}

void ListBox::ItemData(int index, LONG_PTR datum) {
    SendMessageW(Handle(), LB_SETITEMDATA, static_cast<WPARAM>(index), datum);
}

void ListBox::OnCommand(WORD notification) {
    if (notification == LBN_SELCHANGE) Raise(L"Click", click_);
}

void ListBox::OnContextMenu(POINT position) {
    if (!rightClick_) return;
    if (position.x == -1 && position.y == -1) {
        RECT line{};
        SendMessageW(Handle(), LB_GETITEMRECT, static_cast<WPARAM>(std::max(ListIndex(), 0)),
                     reinterpret_cast<LPARAM>(&line));
        position = {line.left + (line.bottom - line.top), line.bottom};
        ClientToScreen(Handle(), &position);
    } else if (const int line = LineAt(position, false); line >= 0) {
        ListIndex(line);
    }
    RaiseCall(L"RightClick", [this, position] { rightClick_(position); });
}

int ListBox::LineAt(POINT position, bool scrolls) const { return LBItemFromPt(Handle(), position, scrolls); }

LRESULT ListBox::OnDragList(const DRAGLISTINFO& drag) {
    HWND form = Owner().Handle();
    switch (drag.uNotification) {
    case DL_BEGINDRAG: dragged_ = LineAt(drag.ptCursor, false); return dragged_ >= 0;
    case DL_DRAGGING: {
        const int target = DropLine(drag.ptCursor);
        DrawInsert(form, Handle(), target);
        return target >= 0 ? DL_MOVECURSOR : DL_STOPCURSOR;
    }
    case DL_DROPPED: {
        const int target = DropLine(drag.ptCursor);
        ClearMark();
        if (target >= 0 && target != dragged_) RaiseCall(L"Drop", [this, target] { drop_(dragged_, target); });
        return 0;
    }
    default: ClearMark(); return 0;
    }
}

/// Below the lines it is the last one.
int ListBox::DropLine(POINT position) const {
    if (const int line = LineAt(position, true); line >= 0) return line;
    RECT last{}, box{};
    SendMessageW(Handle(), LB_GETITEMRECT, static_cast<WPARAM>(ListCount() - 1), reinterpret_cast<LPARAM>(&last));
    GetClientRect(Handle(), &box);
    ScreenToClient(Handle(), &position);
    return PtInRect(&box, position) && position.y >= last.bottom ? ListCount() - 1 : -1;
}

/// The mark is drawn on the form, which knows nothing of it.
void ListBox::ClearMark() const {
    DrawInsert(Owner().Handle(), Handle(), -1);
    InvalidateRect(Owner().Handle(), nullptr, TRUE);
}
