#include "ui/ToolTip.h"

TTTOOLINFOW ToolTip::ToolOf(HWND form, HWND control, wchar_t* text) {
    TTTOOLINFOW tool{};
    tool.cbSize = TTTOOLINFOW_V2_SIZE; // also accepted by the common controls before version 6
    tool.uFlags = TTF_SUBCLASS | (control ? TTF_IDISHWND : 0);
    tool.hwnd = form;
    tool.uId = reinterpret_cast<UINT_PTR>(control);
    tool.lpszText = text;
    return tool;
}

void ToolTip::Set(HWND form, HWND control, const std::wstring& text) {
    std::wstring copy = text;
    Add(ToolOf(form, control, text.empty() ? nullptr : copy.data()));
}

void ToolTip::SetPart(HWND form, const RECT& part, const std::wstring& text) {
    std::wstring copy = text;
    TTTOOLINFOW tool = ToolOf(form, nullptr, copy.data());
    tool.rect = part;
    Add(tool);
}

void ToolTip::SetAsked(HWND form, HWND control) { Add(ToolOf(form, control, LPSTR_TEXTCALLBACKW)); }

void ToolTip::Add(TTTOOLINFOW tool) {
    constexpr int kWidest = 600; // pixels: also lets a tip have several lines
    if (!window_) {
        window_ = CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_NOPREFIX | TTS_ALWAYSTIP, 0,
                                  0, 0, 0, tool.hwnd, nullptr, GetModuleHandleW(nullptr), nullptr);
        SendMessageW(window_, TTM_SETMAXTIPWIDTH, 0, kWidest);
    }
    SendMessageW(window_, TTM_DELTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
    if (tool.lpszText) SendMessageW(window_, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
}
