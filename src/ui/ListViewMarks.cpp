// ListView's icons, colours and other marks, and what stands in an empty list.

#include "ui/Accessible.h"
#include "ui/Contrast.h"
#include "ui/Form.h"
#include "ui/ListView.h"

#include <utility>

namespace {

constexpr int kSide = 16;  // of an icon, in pixels at 96 DPI
constexpr int kMargin = 8; // of the text of an empty list, likewise
constexpr UINT kOverlay = INDEXTOOVERLAYMASK(1);
constexpr UINT kUnchecked = INDEXTOSTATEIMAGEMASK(1);
constexpr UINT kChecked = INDEXTOSTATEIMAGEMASK(2);

} // namespace

void ListView::Icon(WORD resource) {
    const int side = MulDiv(kSide, Owner().Dpi(), NormalDpi);
    iconResource_ = resource;
    ImageListHandle icons(ImageList_Create(side, side, ILC_COLOR32 | ILC_MASK, 1, 1));
    LoadIcon(resource, icons.Get());
    if (overlayResource_) {
        LoadIcon(overlayResource_, icons.Get());
        ImageList_SetOverlayImage(icons.Get(), 1, 1);
    }
    SendMessageW(Handle(), LVM_SETIMAGELIST, LVSIL_SMALL, reinterpret_cast<LPARAM>(icons.Get()));
    icons_ = std::move(icons);
}

void ListView::LoadIcon(WORD resource, HIMAGELIST icons) const {
    int side = 0;
    ImageList_GetIconSize(icons, &side, &side);
    const IconHandle icon(static_cast<HICON>(
        LoadImageW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(resource), IMAGE_ICON, side, side, 0)));
    ImageList_AddIcon(icons, icon.Get());
}

void ListView::SetState(int row, UINT mask, UINT state) {
    LVITEMW item{};
    item.stateMask = mask;
    item.state = state;
    if (const int shown = ItemOf(row); shown >= 0)
        SendMessageW(Handle(), LVM_SETITEMSTATE, static_cast<WPARAM>(shown), reinterpret_cast<LPARAM>(&item));
}

void ListView::Fade(int row, bool isFaded) {
    if (std::exchange(rows_.at(static_cast<size_t>(row)).IsFaded, isFaded) == isFaded) return;
    SetState(row, LVIS_CUT, isFaded ? LVIS_CUT : 0);
}

void ListView::Overlay(int row, WORD resource) {
    const bool isOverlaid = resource != 0;
    if (std::exchange(rows_.at(static_cast<size_t>(row)).IsOverlaid, isOverlaid) == isOverlaid) return;
    // Most lists never need it, so its image is loaded with the first one.
    if (isOverlaid && std::exchange(overlayResource_, resource) != resource) Icon(iconResource_);
    SetState(row, LVIS_OVERLAYMASK, isOverlaid ? kOverlay : 0);
}

void ListView::CheckBoxes() {
    SendMessageW(Handle(), LVM_SETEXTENDEDLISTVIEWSTYLE, LVS_EX_CHECKBOXES, LVS_EX_CHECKBOXES);
}

bool ListView::Checked(int row) const {
    return SendMessageW(Handle(), LVM_GETITEMSTATE, static_cast<WPARAM>(ItemOf(row)), LVIS_STATEIMAGEMASK) == kChecked;
}

void ListView::Checked(int row, bool isChecked) {
    SetState(row, LVIS_STATEIMAGEMASK, isChecked ? kChecked : kUnchecked);
}

void ListView::EmptyText(const std::wstring& text) {
    emptyText_ = text;
    InvalidateRect(Handle(), nullptr, TRUE);
}

void ListView::Note(int row, const std::wstring& text) { rows_.at(static_cast<size_t>(row)).Note = text; }

void ListView::TellNotes() {
    for (const int item : toldItems_) Accessible::ItemName(Handle(), item + 1, {});
    toldItems_.clear();
    for (int row = 0; row < RowCount(); ++row) {
        const int item = ItemOf(row);
        if (item < 0 || Note(row).empty()) continue;
        Accessible::ItemName(Handle(), item + 1, Cell(row, 0) + L", " + Note(row));
        toldItems_.push_back(item);
    }
}

void ListView::RowColor(int row, COLORREF color) {
    if (std::exchange(rows_.at(static_cast<size_t>(row)).Color, color) == color) return;
    const int item = ItemOf(row);
    SendMessageW(Handle(), LVM_REDRAWITEMS, static_cast<WPARAM>(item), item);
}

COLORREF ListView::RowColor(int row) const { return rows_.at(static_cast<size_t>(row)).Color; }

void ListView::DrawEmptyText(HDC canvas) const {
    RECT place{}, titles{};
    GetClientRect(Handle(), &place);
    GetClientRect(Header(), &titles);
    const int margin = MulDiv(kMargin, Owner().Dpi(), NormalDpi);
    place.top += titles.bottom;
    InflateRect(&place, -margin, -margin);
    SetBkMode(canvas, TRANSPARENT);
    SetTextColor(canvas, GetSysColor(COLOR_GRAYTEXT));
    DrawTextW(canvas, emptyText_.c_str(), -1, &place, DT_CENTER | DT_WORDBREAK | DT_NOPREFIX);
}

LRESULT ListView::OnCustomDraw(NMLVCUSTOMDRAW& draw) const {
    if (draw.nmcd.dwDrawStage == CDDS_PREPAINT)
        return CDRF_NOTIFYITEMDRAW | (rows_.empty() && !emptyText_.empty() ? CDRF_NOTIFYPOSTPAINT : 0);
    if (draw.nmcd.dwDrawStage == CDDS_POSTPAINT) DrawEmptyText(draw.nmcd.hdc);
    const auto row = static_cast<size_t>(draw.nmcd.lItemlParam);
    if (draw.nmcd.dwDrawStage == CDDS_ITEMPOSTPAINT) DrawOverlay(draw.nmcd.hdc, static_cast<int>(draw.nmcd.dwItemSpec));
    if (draw.nmcd.dwDrawStage != CDDS_ITEMPREPAINT || row >= rows_.size()) return CDRF_DODEFAULT;
    if (rows_[row].Color != CLR_DEFAULT)
        draw.clrText = Contrast::IsHigh() ? GetSysColor(COLOR_HOTLIGHT) : rows_[row].Color;
    return CDRF_NEWFONT | (rows_[row].IsOverlaid ? CDRF_NOTIFYPOSTPAINT : 0);
}

void ListView::DrawOverlay(HDC canvas, int item) const {
    RECT icon{};
    icon.left = LVIR_ICON;
    // Wine leaves the overlay of an icon out that has half transparent edges. Where it has been drawn, nothing changes.
    if (SendMessageW(Handle(), LVM_GETITEMRECT, static_cast<WPARAM>(item), reinterpret_cast<LPARAM>(&icon)))
        ImageList_Draw(icons_.Get(), 1, canvas, icon.left, icon.top, ILD_TRANSPARENT);
}
