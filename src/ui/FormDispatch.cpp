// How messages of a form reach its controls, menus, timers and handlers.

#include "ui/Form.h"

#include "support/Busy.h"
#include "ui/Timer.h"

#include <algorithm>
#include <utility>

namespace {

// Introduced with Windows 8.1; older systems never send it.
constexpr UINT kDpiChanged = 0x02E0;

} // namespace

LRESULT CALLBACK Form::WindowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    auto* form = reinterpret_cast<Form*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (message == WM_NCCREATE) {
        form = static_cast<Form*>(reinterpret_cast<const CREATESTRUCTW*>(lParam)->lpCreateParams);
        form->window_ = window;
        SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(form));
    }
    if (!form) return DefWindowProcW(window, message, wParam, lParam);
    LRESULT result = 0;
    form->Guarded(L"Message", [&] { result = form->Dispatch(message, wParam, lParam); });
    return result;
}

Control* Form::ControlOf(HWND window) {
    // Not GetParent: of an owned dialog that is the owner, and the dialog would be taken for a control of it.
    if (!window || !FromWindow(GetAncestor(window, GA_PARENT))) return nullptr;
    return reinterpret_cast<Control*>(GetWindowLongPtrW(window, GWLP_USERDATA));
}

LRESULT Form::Dispatch(UINT message, WPARAM wParam, LPARAM lParam) {
    LRESULT result = 0;
    if (OnMessage(message, wParam, lParam, result)) return result;
    static const UINT dragList = RegisterWindowMessageW(DRAGLISTMSGSTRING);
    if (message == dragList) {
        const auto& drag = *reinterpret_cast<const DRAGLISTINFO*>(lParam);
        Control* control = ControlOf(drag.hWnd);
        return control ? control->OnDragList(drag) : 0;
    }
    switch (message) {
    case WM_COMMAND: return DispatchCommand(wParam, lParam);
    case WM_NOTIFY: {
        // Key notifications are packed, so they may lie at odd places. Nobody listens to them.
        if (static_cast<ULONG_PTR>(lParam) % alignof(NMHDR) != 0) return 0;
        auto& header = *reinterpret_cast<NMHDR*>(lParam);
        // A tool tip asks in its control's name.
        const bool isTip = header.code == TTN_GETDISPINFOW;
        HWND sender = isTip ? reinterpret_cast<HWND>(header.idFrom) : header.hwndFrom; // NOLINT
        if (Control* control = ControlOf(sender)) return control->OnNotify(header);
        break;
    }
    case WM_DRAWITEM: {
        const auto& draw = *reinterpret_cast<const DRAWITEMSTRUCT*>(lParam);
        if (Control* control = ControlOf(draw.hwndItem)) control->OnDraw(draw);
        return TRUE;
    }
    case WM_CTLCOLORSTATIC:
        if (Control* control = ControlOf(reinterpret_cast<HWND>(lParam)))
            if (HBRUSH brush = control->OnColor(reinterpret_cast<HDC>(wParam))) return reinterpret_cast<LRESULT>(brush);
        break;
    case WM_SETCURSOR:
        if (Control* control = ControlOf(reinterpret_cast<HWND>(wParam)); control && control->OnSetCursor())
            return TRUE;
        break;
    case WM_CONTEXTMENU:
        OnContextMenu(reinterpret_cast<HWND>(wParam), {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)});
        return 0;
    case WM_TIMER:
        for (Timer* timer : timers_)
            if (timer->Identifier() == static_cast<int>(wParam)) timer->Tick();
        return 0;
    case WM_SIZE:
        if (wParam != SIZE_MINIMIZED) Form_Resize();
        return 0;
    case WM_ACTIVATE: OnActivate(wParam); return 0;
    case WM_SETFOCUS:
        if (lastFocus_) ::SetFocus(lastFocus_);
        return 0;
    case WM_CLOSE:
        if (!Busy::Now() && !unloaded_) Form_CloseBox();
        return 0;
    case kDpiChanged: OnDpiChanged(LOWORD(wParam), *reinterpret_cast<const RECT*>(lParam)); return 0;
    case WM_GETMINMAXINFO:
        if (design_.Frame == Border::Dialog || design_.Frame == Border::Palette) break;
        LimitSize(*reinterpret_cast<MINMAXINFO*>(lParam));
        return 0;
    case DM_GETDEFID: return DefaultIdentifier();
    case WM_NCDESTROY:
        Forget(this);
        SetWindowLongPtrW(window_, GWLP_USERDATA, 0);
        window_ = nullptr;
        lastFocus_ = nullptr;
        return 0;
    default: break;
    }
    return DefWindowProcW(window_, message, wParam, lParam);
}

LRESULT Form::DispatchCommand(WPARAM wParam, LPARAM lParam) {
    if (unloaded_) return 0;
    auto* window = reinterpret_cast<HWND>(lParam);
    if (Control* control = ControlOf(window)) {
        control->OnCommand(HIWORD(wParam));
        return 0;
    }
    if (window) return 0;
    const int identifier = LOWORD(wParam);
    const auto found = std::ranges::find(items_, identifier, &MenuItem::Identifier);
    if (found != items_.end()) {
        (*found)->Click();
    } else if (identifier == IDCANCEL || identifier == IDOK) {
        // IsDialogMessage sends these two for Esc and Enter when the form has no such button.
        if (Control* control = ControlOf(GetDlgItem(window_, identifier))) control->OnCommand(BN_CLICKED);
    }
    return 0;
}

void Form::OnActivate(WPARAM wParam) {
    if (LOWORD(wParam) == WA_INACTIVE) {
        if (IsChild(window_, GetFocus())) lastFocus_ = GetFocus();
        Guarded(L"Deactivate", [this] { Form_Deactivate(); });
        return;
    }
    if (HIWORD(wParam) != 0) return;
    if (lastFocus_ && IsWindowEnabled(lastFocus_))
        ::SetFocus(lastFocus_);
    else
        FocusFirst();
    Guarded(L"Activate", [this] { Form_Activate(); });
}

void Form::OnDpiChanged(int dpi, const RECT& suggested) {
    const int before = std::exchange(dpi_, dpi);
    ApplyFont();
    SetWindowPos(window_, nullptr, suggested.left, suggested.top, suggested.right - suggested.left,
                 suggested.bottom - suggested.top, SWP_NOZORDER | SWP_NOACTIVATE);
    for (Control* control : controls_) {
        control->PlaceWindow();
        control->OnDpiChanged(before);
    }
    Form_Resize();
}

void Form::OnContextMenu(HWND window, POINT position) {
    if (Control* control = ControlOf(window)) control->OnContextMenu(position);
}

LRESULT Form::DefaultIdentifier() const {
    // Enter presses the button that has the focus, else the form's default button.
    HWND focused = GetFocus();
    const bool isButton = focused && GetParent(focused) == window_ &&
                          (SendMessageW(focused, WM_GETDLGCODE, 0, 0) & (DLGC_UNDEFPUSHBUTTON | DLGC_DEFPUSHBUTTON));
    const int identifier = isButton ? GetDlgCtrlID(focused) : IDOK;
    return MAKELONG(identifier, DC_HASDEFID);
}
