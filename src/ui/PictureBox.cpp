#include "ui/PictureBox.h"

#include "support/ErrorReport.h"
#include "support/Text.h"
#include "ui/Form.h"

#include <utility>

PictureBox::PictureBox(Form* form, const wchar_t* name, const Twips& place, const ControlKind& kind, Frame* container,
                       int number, const Drawing& draw)
    : Control(form, name, place, kind, container, number), number_(number), draw_(draw) {}

void PictureBox::Refresh() {
    InvalidateRect(Handle(), nullptr, FALSE);
    UpdateWindow(Handle());
}

void PictureBox::Tell(const wchar_t* event, void (Listener::*told)()) const {
    if (listener_) RaiseCall(event, [this, told] { (listener_->*told)(); });
}

void PictureBox::OnCreated() {
    if (!keyDown_) return;
    original_ = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrW(Handle(), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&PictureBox::Procedure)));
}

void PictureBox::OnDraw(const DRAWITEMSTRUCT& draw) {
    draw_(number_, draw.hDC, draw.rcItem, (draw.itemState & ODS_FOCUS) != 0 && (draw.itemState & ODS_NOFOCUSRECT) == 0);
}

void PictureBox::OnCommand(WORD notification) {
    // The second click of a double click is not another one.
    if (notification != BN_CLICKED) return;
    if (click_)
        RaiseCall(L"Click", [this] { click_(number_); });
    else
        Press();
}

LRESULT CALLBACK PictureBox::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    auto* box = reinterpret_cast<PictureBox*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    try {
        return box->Dispatch(message, wParam, lParam);
    } catch (...) {
        ErrorReport(Text::Concat({box->Owner().Name(), L": Sub ", box->Name(), L"_Message"}));
        return 0;
    }
}

LRESULT PictureBox::Dispatch(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_MOUSEMOVE: OnMouseMove(); break;
    case WM_CAPTURECHANGED:
    case WM_MOUSELEAVE: EndHover(); break;
    case WM_GETDLGCODE: {
        const LRESULT code = CallWindowProcW(original_, Handle(), message, wParam, lParam);
        const auto* key = reinterpret_cast<const MSG*>(lParam);
        const bool isEnter = key && key->message == WM_KEYDOWN && key->wParam == VK_RETURN;
        return code | DLGC_WANTARROWS | DLGC_WANTCHARS | (isEnter ? DLGC_WANTMESSAGE : 0);
    }
    case WM_KEYDOWN:
        if (wParam == VK_RETURN) {
            Press();
            return 0;
        }
        if (keyDown_(number_, static_cast<int>(wParam))) return 0;
        break;
    default: break;
    }
    return CallWindowProcW(original_, Handle(), message, wParam, lParam);
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
        Tell(L"Mouse", &Listener::Entered);
    } else if (!isInside) {
        EndHover();
    }
}

void PictureBox::EndHover() {
    if (std::exchange(isHot_, false)) Tell(L"Mouse", &Listener::Left);
}
