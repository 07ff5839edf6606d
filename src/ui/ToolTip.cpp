#include "ui/ToolTip.h"

void ToolTip::Set(HWND form, HWND control, const std::wstring& text) {
    std::wstring copy = text;
    Add(form, control, text.empty() ? nullptr : copy.data());
}

void ToolTip::SetAsked(HWND form, HWND control) { Add(form, control, LPSTR_TEXTCALLBACKW); }

void ToolTip::Add(HWND form, HWND control, wchar_t* text) {
    constexpr int kWidest = 600; // pixels: also lets a tip have several lines
    if (!window_) {
        window_ = CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_NOPREFIX | TTS_ALWAYSTIP, 0,
                                  0, 0, 0, form, nullptr, GetModuleHandleW(nullptr), nullptr);
        SendMessageW(window_, TTM_SETMAXTIPWIDTH, 0, kWidest);
    }
    TTTOOLINFOW tool{};
    tool.cbSize = TTTOOLINFOW_V2_SIZE; // also accepted by the common controls before version 6
    tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
    tool.hwnd = form;
    tool.uId = reinterpret_cast<UINT_PTR>(control);
    tool.lpszText = text;
    SendMessageW(window_, TTM_DELTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
    if (text) SendMessageW(window_, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
}
