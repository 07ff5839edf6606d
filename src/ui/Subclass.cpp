#include "ui/Subclass.h"

namespace {

constexpr wchar_t kProperty[] = L"Subclass";

} // namespace

void Subclass::Attach(HWND window, Target& target) {
    Detach();
    window_ = window;
    target_ = &target;
    SetPropW(window, kProperty, this);
    original_ = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&Subclass::Procedure)));
}

void Subclass::Detach() {
    if (!window_) return;
    SetWindowLongPtrW(window_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(original_));
    RemovePropW(window_, kProperty);
    window_ = nullptr;
}

LRESULT Subclass::Default(UINT message, WPARAM wParam, LPARAM lParam) const {
    return CallWindowProcW(original_, window_, message, wParam, lParam);
}

LRESULT CALLBACK Subclass::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    auto* subclass = static_cast<Subclass*>(GetPropW(window, kProperty));
    if (!subclass) return DefWindowProcW(window, message, wParam, lParam);
    if (message != WM_NCDESTROY) return subclass->target_->OnWindowMessage(message, wParam, lParam);
    const WNDPROC original = subclass->original_;
    subclass->Detach();
    return CallWindowProcW(original, window, message, wParam, lParam);
}
