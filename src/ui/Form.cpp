#include "ui/Form.h"

#include "support/Error.h"
#include "ui/Timer.h"

#include <algorithm>
#include <utility>

namespace {

// Frame, caption and menu bar of the classic look at 96 DPI, in pixels: what the designs were measured with.
constexpr FrameSize kClassicSizable{8, 46};
constexpr FrameSize kClassicDialog{6, 25};

std::vector<Form*> loadedForms;

DWORD StyleOf(const FormDesign& design) {
    if (design.Frame == Border::Sizable) return WS_OVERLAPPEDWINDOW;
    if (design.Frame == Border::Palette) return WS_POPUP | WS_CLIPCHILDREN;
    if (design.Frame == Border::SizableDialog) return WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_THICKFRAME;
    return WS_POPUP | WS_CAPTION | (design.HasCloseBox ? WS_SYSMENU : 0);
}

bool HasPlainFrame(const FormDesign& design) {
    return design.Frame == Border::Sizable || design.Frame == Border::Palette;
}

void RegisterWindowClass(const wchar_t* name, WNDPROC procedure) {
    WNDCLASSEXW windowClass{};
    windowClass.cbSize = sizeof windowClass;
    windowClass.lpfnWndProc = procedure;
    windowClass.hInstance = GetModuleHandleW(nullptr);
    windowClass.hIcon = LoadIconW(windowClass.hInstance, MAKEINTRESOURCEW(1));
    windowClass.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    windowClass.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
    windowClass.lpszClassName = name;
    if (!RegisterClassExW(&windowClass) && GetLastError() != ERROR_CLASS_ALREADY_EXISTS)
        ThrowIfFailed(HRESULT_FROM_WIN32(GetLastError()));
}

} // namespace

Form::Form(const FormDesign& design) : design_(design) {}

Form::~Form() {
    Forget(this);
    if (!window_) return;
    // The controls, members of the derived class, are gone already: no message may reach them any more.
    SetWindowLongPtrW(window_, GWLP_USERDATA, 0);
    DestroyWindow(window_);
}

void Form::Forget(const Form* form) { std::erase(loadedForms, form); }

const std::vector<Form*>& Form::Loaded() { return loadedForms; }

Form* Form::FromWindow(HWND window) {
    const auto found = std::ranges::find(loadedForms, window, &Form::Handle);
    return window && found != loadedForms.end() ? *found : nullptr;
}

void Form::Load() {
    if (window_) return;
    CreateFrame(owner_);
    bool goesOn = false;
    Guarded(L"Load", [&] { goesOn = Form_Initialize(); });
    if (!goesOn) return Unload();
    CreateMenuBar();
    for (size_t index = 0; index < controls_.size(); ++index) controls_[index]->Create(static_cast<int>(index) + 100);
    // Pages lie on the tab control that was declared before them, and everything else on the pages.
    for (size_t index = controls_.size(); index-- > 0;)
        if (controls_[index]->LiesBehind())
            SetWindowPos(controls_[index]->Handle(), HWND_BOTTOM, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    ApplyFont();
    ApplyDesignSize();
    LoadAgain();
}

void Form::LoadAgain() {
    Guarded(L"Load", [this] { Form_Load(); });
}

void Form::CreateFrame(HWND owner) {
    RegisterWindowClass(design_.Name, &Form::WindowProcedure);
    const DWORD exStyle = HasPlainFrame(design_) ? 0 : WS_EX_DLGMODALFRAME;
    loadedForms.push_back(this);
    unloaded_ = false;
    HWND window = CreateWindowExW(exStyle, design_.Name, L"", StyleOf(design_), CW_USEDEFAULT, CW_USEDEFAULT, 0, 0,
                                  owner, nullptr, GetModuleHandleW(nullptr), this);
    if (!window) ThrowIfFailed(HRESULT_FROM_WIN32(GetLastError()));
    dpi_ = WindowDpi(window);
}

void Form::CreateMenuBar() {
    for (const MenuItem* item : items_)
        SetPropW(window_, item->Name(), reinterpret_cast<HANDLE>(static_cast<INT_PTR>(item->Identifier()))); // NOLINT
    if (std::ranges::none_of(menus_, &Menu::InBar)) return;
    MenuHandle bar(CreateMenu());
    for (Menu* menu : menus_)
        if (menu->InBar()) menu->AppendTo(bar.Get());
    if (SetMenu(window_, bar.Get())) bar.Release();
}

void Form::ApplyFont() {
    const LOGFONTW description = FormFont(dpi_);
    FontHandle font(CreateFontIndirectW(&description));
    for (Control* control : controls_) {
        if (!control->Handle()) continue;
        SendMessageW(control->Handle(), WM_SETFONT, reinterpret_cast<WPARAM>(font.Get()), Visible());
        control->OnFontChanged(description);
    }
    font_ = std::move(font);
}

void Form::ApplyDesignSize() {
    const Twips size = DesignSize();
    OuterSize(size.Width, size.Height);
    Center(owner_);
}

Twips Form::DesignSize() const {
    if (HasPlainFrame(design_)) return {0, 0, design_.Width, design_.Height};
    const FrameSize excess = ExcessFrame();
    return {0, 0, design_.Width + ToTwips(excess.Width, dpi_), design_.Height + ToTwips(excess.Height, dpi_)};
}

void Form::LimitSize(MINMAXINFO& limits) const {
    const Twips least = DesignSize();
    limits.ptMinTrackSize = {ToPixels(least.Width, dpi_), ToPixels(least.Height, dpi_)};
}

FrameSize Form::ExcessFrame() const {
    const FrameSize& classic = design_.Frame == Border::Sizable ? kClassicSizable : kClassicDialog;
    const FrameSize actual = NonClientSize(window_);
    return {std::max(0, actual.Width - MulDiv(classic.Width, dpi_, NormalDpi)),
            std::max(0, actual.Height - MulDiv(classic.Height, dpi_, NormalDpi))};
}

Twips Form::OuterSize() const {
    // The normal position is the window's own rectangle, or the restored one of a minimised or maximised window.
    WINDOWPLACEMENT placement{};
    placement.length = sizeof placement;
    GetWindowPlacement(window_, &placement);
    const RECT& normal = placement.rcNormalPosition;
    return {0, 0, ToTwips(normal.right - normal.left, dpi_), ToTwips(normal.bottom - normal.top, dpi_)};
}

void Form::OuterSize(int width, int height) {
    SetWindowPos(window_, nullptr, 0, 0, ToPixels(width, dpi_), ToPixels(height, dpi_),
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

Twips Form::Position() const {
    RECT outer{};
    GetWindowRect(window_, &outer);
    return {ToTwips(outer.left, dpi_), ToTwips(outer.top, dpi_), 0, 0};
}

void Form::Position(int left, int top) {
    SetWindowPos(window_, nullptr, ToPixels(left, dpi_), ToPixels(top, dpi_), 0, 0,
                 SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

Twips Form::LayoutSize() const {
    RECT outer{};
    GetWindowRect(window_, &outer);
    const FrameSize excess = ExcessFrame();
    return {0, 0, ToTwips(outer.right - outer.left - excess.Width, dpi_),
            ToTwips(outer.bottom - outer.top - excess.Height, dpi_)};
}

Twips Form::InnerSize() const {
    RECT client{};
    GetClientRect(window_, &client);
    return {0, 0, ToTwips(client.right, dpi_), ToTwips(client.bottom, dpi_)};
}

void Form::Center(HWND over) {
    MONITORINFO monitor{};
    monitor.cbSize = sizeof monitor;
    GetMonitorInfoW(MonitorFromWindow(over ? over : window_, MONITOR_DEFAULTTONEAREST), &monitor);
    const RECT& screen = monitor.rcWork;
    RECT around{};
    if (!over || !IsWindowVisible(over) || !GetWindowRect(over, &around)) around = screen;
    RECT own{};
    GetWindowRect(window_, &own);
    const LONG width = own.right - own.left;
    const LONG height = own.bottom - own.top;
    const LONG left = (around.left + around.right - width) / 2;
    const LONG top = (around.top + around.bottom - height) / 2;
    SetWindowPos(window_, nullptr, std::max(screen.left, std::min(left, screen.right - width)),
                 std::max(screen.top, std::min(top, screen.bottom - height)), 0, 0,
                 SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void Form::Caption(const std::wstring& caption) { SetWindowTextW(window_, caption.c_str()); }

void Form::Show() {
    Load();
    ShowWindow(window_, SW_SHOW);
    if (!lastFocus_) FocusFirst();
    SetForegroundWindow(window_);
}

void Form::Hide() { ShowWindow(window_, SW_HIDE); }

void Form::ToFront() {
    if (!Visible() || SetForegroundWindow(window_)) return;
    // Windows lets only the program in use give that up: so we share its input for a moment.
    const DWORD other = GetWindowThreadProcessId(GetForegroundWindow(), nullptr);
    if (!AttachThreadInput(GetCurrentThreadId(), other, TRUE)) return;
    SetForegroundWindow(window_);
    AttachThreadInput(GetCurrentThreadId(), other, FALSE);
}

void Form::FocusFirst() {
    if (GetFocus() == window_ || !IsChild(window_, GetFocus())) ::SetFocus(GetNextDlgTabItem(window_, nullptr, FALSE));
}

void Form::Unload() {
    if (unloaded_ || unloading_) return;
    unloading_ = true;
    Guarded(L"Unload", [this] { Form_Unload(); });
    unloading_ = false;
    unloaded_ = true;
    // A menu that is still open would go on with its command.
    GUITHREADINFO thread{};
    thread.cbSize = sizeof thread;
    if (GetGUIThreadInfo(GetCurrentThreadId(), &thread) && thread.hwndMenuOwner == window_) EndMenu();
    // The owner first: otherwise Windows activates some other program's window when this one goes.
    if (modal_ && owner_) EnableWindow(owner_, TRUE);
    Hide();
    PostMessageW(window_, WM_NULL, 0, 0);
}

void Form::CloseAsByUser() {
    if (HWND cancel = GetDlgItem(window_, IDCANCEL); cancel && IsWindowEnabled(cancel))
        SendMessageW(window_, WM_COMMAND, MAKEWPARAM(IDCANCEL, BN_CLICKED), reinterpret_cast<LPARAM>(cancel));
    else if (!cancel)
        Unload();
}

int Form::Register(MenuItem& item) {
    constexpr int kFirstMenuIdentifier = 1000;
    items_.push_back(&item);
    return kFirstMenuIdentifier + static_cast<int>(items_.size());
}

int Form::Register(Timer& timer) {
    timers_.push_back(&timer);
    return static_cast<int>(timers_.size());
}
