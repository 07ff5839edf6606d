#include "ui/Control.h"

#include "support/Busy.h"
#include "support/Error.h"
#include "ui/Accessible.h"
#include "ui/Form.h"
#include "ui/Frame.h"

Control::Control(Form* form, const wchar_t* name, const Placement& place, const ControlKind& kind, int index)
    : form_(form), name_(name), place_(place.Place), container_(place.Container), kind_(kind), index_(index) {
    form->Register(*this);
    if (container_) container_->Contain(*this);
}

std::wstring Control::Text() const {
    std::wstring text(static_cast<size_t>(GetWindowTextLengthW(window_)) + 1, L'\0');
    text.resize(static_cast<size_t>(GetWindowTextW(window_, text.data(), static_cast<int>(text.size()))));
    return text;
}

void Control::Text(std::wstring_view text) { SetWindowTextW(window_, std::wstring(text).c_str()); }
void Control::AccessibleName(const std::wstring& name) {
    accessibleName_ = name;
    Accessible::Name(window_, name);
}
bool Control::Enabled() const { return IsWindowEnabled(window_) != FALSE; }
void Control::Enabled(bool enabled) { EnableWindow(window_, enabled); }
void Control::Visible(bool visible) { ShowWindow(window_, visible ? SW_SHOWNA : SW_HIDE); }
void Control::SetFocus() { ::SetFocus(window_); }

void Control::Move(const Twips& place) {
    if (place == place_) return;
    OnMove();
    place_ = place;
    PlaceWindow();
}

bool Control::TakesEvents() const { return !Busy::Now() && !form_->Unloaded(); }

const wchar_t* Control::OwnerName() const { return form_->Name(); }

Twips Control::WindowPlace() const {
    Twips place = place_;
    if (container_) {
        place.Left += container_->Place().Left;
        place.Top += container_->Place().Top;
    }
    return place;
}

void Control::Create(int ordinal) {
    const DWORD style = WS_CHILD | WS_VISIBLE | kind_.Style;
    const auto identifier = reinterpret_cast<HMENU>(static_cast<INT_PTR>(Identifier(ordinal))); // NOLINT
    const PixelPlace place = WindowPixels();
    window_ = CreateWindowExW(kind_.ExStyle, kind_.ClassName, L"", style, place.Left, place.Top, place.Width,
                              place.Height, form_->Handle(), identifier, GetModuleHandleW(nullptr), nullptr);
    if (!window_) ThrowIfFailed(HRESULT_FROM_WIN32(GetLastError()));
    SetWindowLongPtrW(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    // Tests and screen-automation tools find the control by this name; the value is its index, counted from 1.
    SetPropW(window_, name_, reinterpret_cast<HANDLE>(static_cast<INT_PTR>(index_) + 1)); // NOLINT
    OnCreated();
}

Control::PixelPlace Control::WindowPixels() const {
    const int dpi = form_->Dpi();
    const Twips place = WindowPlace();
    const int left = ToPixels(place.Left, dpi);
    const int top = ToPixels(place.Top, dpi);
    return {left, top, ToPixels(place.Left + place.Width, dpi) - left, ToPixels(place.Top + place.Height, dpi) - top};
}

void Control::PlaceWindow() const {
    if (!window_) return;
    const PixelPlace place = WindowPixels();
    SetWindowPos(window_, nullptr, place.Left, place.Top, place.Width, place.Height, SWP_NOZORDER | SWP_NOACTIVATE);
}
