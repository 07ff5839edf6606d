#include "ui/Label.h"

#include <cstdlib>
#include <utility>

namespace {

ControlKind KindOf(bool isClicked) { return {L"Static", isClicked ? DWORD{SS_LEFT | SS_NOTIFY} : DWORD{SS_LEFT}}; }

} // namespace

Label::Label(Form* form, const wchar_t* name, const Placement& place, Action::Plain click)
    : Control(form, name, place, KindOf(click != nullptr)), click_(form, click) {}

Label::Label(Form* form, const wchar_t* name, const Placement& place, Action::Indexed click, int index)
    : Control(form, name, place, KindOf(click != nullptr), index), click_(form, click, index) {}

void Label::OnCommand(WORD notification) {
    // The second click of a double click is one too: two quick clicks on a label are two clicks.
    if (notification == STN_CLICKED || notification == STN_DBLCLK) Raise(L"Click", click_);
}

namespace {

int Brightness(COLORREF color) { return GetRValue(color) * 3 + GetGValue(color) * 6 + GetBValue(color); }

/// The system's colour for links, unless a theme has made it unreadable on a form.
COLORREF LinkColor() {
    constexpr COLORREF kBlue = RGB(0, 0x66, 0xCC);
    constexpr int kReadable = 1000; // of the 2550 between black and white
    const COLORREF system = GetSysColor(COLOR_HOTLIGHT);
    const int distance = Brightness(system) - Brightness(GetSysColor(COLOR_BTNFACE));
    return std::abs(distance) >= kReadable ? system : kBlue;
}

} // namespace

HBRUSH LinkLabel::OnColor(HDC canvas) {
    SetTextColor(canvas, LinkColor());
    SetBkMode(canvas, TRANSPARENT);
    return GetSysColorBrush(COLOR_BTNFACE);
}

bool LinkLabel::OnSetCursor() {
    SetCursor(LoadCursorW(nullptr, IDC_HAND));
    return true;
}

void LinkLabel::OnFontChanged(const LOGFONTW& font) {
    LOGFONTW underlined = font;
    underlined.lfUnderline = TRUE;
    FontHandle made(CreateFontIndirectW(&underlined));
    SendMessageW(Handle(), WM_SETFONT, reinterpret_cast<WPARAM>(made.Get()), TRUE);
    underlined_ = std::move(made);
}
