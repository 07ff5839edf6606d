#include "ui/PictureBox.h"

#include "ui/Form.h"

#include <utility>

namespace {

ControlKind KindOf(const PictureBoxEvents<Form>& events) {
    if (events.KeyDown) return {L"Button", BS_OWNERDRAW | WS_TABSTOP};
    return {L"Static", SS_OWNERDRAW | (events.Click ? SS_NOTIFY : 0UL)};
}

} // namespace

PictureBox::PictureBox(Form* form, const wchar_t* name, const Placement& place, const PictureBoxEvents<Form>& events)
    : Control(form, name, place, KindOf(events), events.Index),
      number_(events.Number != 0 ? events.Number : events.Index), draw_(form, events.Draw),
      click_(form, events.Click, number_), hover_(form, events.Hover), keyDown_(form, events.KeyDown) {}

void PictureBox::Refresh() {
    InvalidateRect(Handle(), nullptr, FALSE);
    UpdateWindow(Handle());
}

void PictureBox::OnCreated() {
    if (keyDown_) subclass_.Attach(Handle(), *this);
}

void PictureBox::OnDraw(const DRAWITEMSTRUCT& draw) {
    draw_(number_, draw.hDC, draw.rcItem, (draw.itemState & ODS_FOCUS) != 0 && (draw.itemState & ODS_NOFOCUSRECT) == 0);
}

void PictureBox::OnCommand(WORD notification) {
    // The second click of a double click is not another one.
    if (notification == BN_CLICKED) Press();
}

LRESULT PictureBox::OnWindowMessage(UINT message, WPARAM wParam, LPARAM lParam) noexcept {
    switch (message) {
    case WM_MOUSEMOVE: OnMouseMove(); break;
    case WM_CAPTURECHANGED:
    case WM_MOUSELEAVE: EndHover(); break;
    case WM_GETDLGCODE: {
        const LRESULT code = subclass_.Default(message, wParam, lParam);
        const auto* key = reinterpret_cast<const MSG*>(lParam);
        const bool isEnter = key && key->message == WM_KEYDOWN && key->wParam == VK_RETURN;
        return code | DLGC_WANTARROWS | DLGC_WANTCHARS | (isEnter ? DLGC_WANTMESSAGE : 0);
    }
    case WM_KEYDOWN:
        if (TakesKey(static_cast<int>(wParam))) return 0;
        break;
    default: break;
    }
    return subclass_.Default(message, wParam, lParam);
}

bool PictureBox::TakesKey(int key) {
    if (key == VK_RETURN) {
        Press();
        return true;
    }
    bool isUsed = false;
    RaiseCall(L"KeyDown", [&] { isUsed = keyDown_(number_, key); });
    return isUsed;
}

void PictureBox::OnMouseMove() {
    POINT pointer{};
    RECT box{};
    GetCursorPos(&pointer);
    GetWindowRect(Handle(), &box);
    // While a button is held the box keeps the mouse, also beyond its edge.
    const bool isInside = PtInRect(&box, pointer) != FALSE;
    if (isInside && !isHot_) {
        TRACKMOUSEEVENT track{sizeof track, TME_LEAVE, Handle(), 0};
        TrackMouseEvent(&track);
        isHot_ = true;
        Hover(true);
    } else if (!isInside) {
        EndHover();
    }
}

void PictureBox::EndHover() {
    if (std::exchange(isHot_, false)) Hover(false);
}

void PictureBox::Hover(bool isOver) {
    if (hover_) RaiseCall(L"Mouse", [this, isOver] { hover_(number_, isOver); });
}
