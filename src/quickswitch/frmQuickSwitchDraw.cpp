// frmQuickSwitch's drawing, and what mouse and keys do on it.

#include "quickswitch/frmQuickSwitch.h"

#include "i18n/MoreText.h"
#include "quickswitch/Drawing.h"
#include "support/ErrorReport.h"
#include "ui/Contrast.h"
#include "win32/Owner.h"

namespace {

constexpr int kStrip = 12;      // pixels at 96 DPI
constexpr int kControlBox = 10; // side of the raised square

/// A canvas for WM_PAINT.
class PaintCanvas {
public:
    explicit PaintCanvas(HWND window) : window_(window), canvas_(BeginPaint(window, &paint_)) {}
    ~PaintCanvas() { EndPaint(window_, &paint_); }
    PaintCanvas(const PaintCanvas&) = delete;
    PaintCanvas& operator=(const PaintCanvas&) = delete;
    HDC Get() const { return canvas_; }

private:
    HWND window_;
    PAINTSTRUCT paint_{};
    HDC canvas_;
};

FontHandle CaptionFont(int dpi) {
    LOGFONTW font = FormFont(dpi);
    font.lfWeight = FW_BOLD;
    lstrcpynW(font.lfFaceName, L"Arial", LF_FACESIZE);
    return FontHandle(CreateFontIndirectW(&font));
}

} // namespace

int frmQuickSwitch::StripWidth() const { return MulDiv(kStrip, Dpi(), NormalDpi); }

PictureBox& frmQuickSwitch::Picture(int button) {
    PictureBox* const pictures[] = {&pic1, &pic2, &pic3, &pic4, &pic5, &pic6, &pic7, &pic8};
    return *pictures[button - 1];
}

void frmQuickSwitch::pic_Draw(int button, HDC canvas, const RECT& area, bool isFocused) {
    const bool isHighlighted = isHighlighted_.at(static_cast<size_t>(button) - 1);
    const int image = Artwork::ImageOfButton(button) + (isHighlighted ? Artwork::ShapeCount : 0);
    const Artwork::Rgb face = SystemColor(COLOR_BTNFACE);
    Artwork::Picture picture =
        Contrast::IsHigh()
            ? Artwork::PlainImage(image, area.right, area.bottom, face,
                                  isHighlighted ? SystemColor(COLOR_HIGHLIGHT) : face, SystemColor(COLOR_BTNTEXT))
            : Artwork::ButtonImage(Scheme_, image, area.right, area.bottom, face);
    if (isFocused) Artwork::AddFocus(picture, image, CaptionColor(button));
    PutPicture(canvas, {area.left, area.top}, picture);
    Write_Picture(button, canvas, area);
}

Artwork::Rgb frmQuickSwitch::CaptionColor(int button) const {
    const Artwork::Rgb color = Artwork::TextColor(Scheme_, button - 1);
    if (!Contrast::IsHigh()) return color;
    return SystemColor(isHighlighted_.at(static_cast<size_t>(button) - 1) ? COLOR_HIGHLIGHTTEXT : COLOR_BTNTEXT);
}

void frmQuickSwitch::Write_Picture(int button, HDC canvas, const RECT& area) const try {
    const std::wstring caption = CaptionOf(button);
    if (caption.empty()) return;
    const FontHandle font = CaptionFont(Dpi());
    const HGDIOBJ before = SelectObject(canvas, font.Get());
    SetTextColor(canvas, ToColorRef(CaptionColor(button)));
    SetBkMode(canvas, TRANSPARENT);
    SIZE extent{};
    GetTextExtentPoint32W(canvas, caption.c_str(), static_cast<int>(caption.size()), &extent);
    // A long name is clipped at both edges of the tile and never spills over.
    const int margin = MulDiv(4, Dpi(), NormalDpi);
    const RECT clip{area.left + margin, area.top, area.right - margin, area.bottom};
    ExtTextOutW(canvas, (area.right - extent.cx) / 2, (area.bottom - extent.cy) / 2, ETO_CLIPPED, &clip,
                caption.c_str(), static_cast<UINT>(caption.size()), nullptr);
    SelectObject(canvas, before);
} catch (...) {
    ErrorReport("frmQuickSwitch: Sub Write_Picture");
}

void frmQuickSwitch::MouseAction(PictureBox& picture, int action, int button) try {
    if (NameOf(button).empty()) return;
    if (action != Tracker::Enter && action != Tracker::Leave) return;
    isHighlighted_.at(static_cast<size_t>(button) - 1) = action == Tracker::Enter;
    picture.Refresh();
} catch (...) {
    ErrorReport("frmQuickSwitch: Sub MouseAction");
}

void frmQuickSwitch::Form_Activate() {
    StripColor_ = COLOR_ACTIVECAPTION;
    InvalidateRect(Handle(), nullptr, TRUE);
}

void frmQuickSwitch::Form_Deactivate() {
    StripColor_ = COLOR_INACTIVECAPTION;
    // Nothing tells a box that the keyboard has taken its user elsewhere.
    for (int button = 1; button <= ButtonCount; ++button) Picture(button).EndHover();
    InvalidateRect(Handle(), nullptr, TRUE);
}

void frmQuickSwitch::Form_Resize() {
    RECT client{};
    GetClientRect(Handle(), &client);
    const int edge = MulDiv(1, Dpi(), NormalDpi);
    const int side = MulDiv(kControlBox, Dpi(), NormalDpi);
    ControlBoxRect_ = {client.right - edge - side, edge, client.right - edge, edge + side};
    if (Visible()) TipControlBox();
    InvalidateRect(Handle(), nullptr, TRUE);
}

void frmQuickSwitch::TipControlBox() { toolTip_.SetPart(Handle(), ControlBoxRect_, Translated(MoreText::PaletteMenu)); }

void frmQuickSwitch::Form_Paint() try {
    const PaintCanvas canvas(Handle());
    RECT strip{};
    GetClientRect(Handle(), &strip);
    strip.left = strip.right - StripWidth();
    FillRect(canvas.Get(), &strip, GetSysColorBrush(StripColor_));
    FillRect(canvas.Get(), &ControlBoxRect_, GetSysColorBrush(COLOR_BTNFACE));
    RECT square = ControlBoxRect_;
    DrawEdge(canvas.Get(), &square, EDGE_RAISED, BF_RECT);
} catch (...) {
    ErrorReport("frmQuickSwitch: Sub Form_Paint");
}

void frmQuickSwitch::Form_MouseDown(POINT position) try {
    RECT client{};
    GetClientRect(Handle(), &client);
    if (position.x <= client.right - StripWidth()) return;
    if (PtInRect(&ControlBoxRect_, position)) {
        ClientToScreen(Handle(), &position);
        ShowControlMenu(position);
        return;
    }
    ReleaseCapture();
    SendMessageW(Handle(), WM_NCLBUTTONDOWN, HTCAPTION, 0);
} catch (...) {
    ErrorReport("frmQuickSwitch: Sub Form_MouseDown");
}

void frmQuickSwitch::ShowControlMenu(POINT position) { mnuControl.PopUp(position, TPM_RIGHTBUTTON); }

bool frmQuickSwitch::OnMessage(UINT message, WPARAM, LPARAM lParam, LRESULT&) {
    switch (message) {
    case WM_PAINT: Form_Paint(); return true;
    case WM_LBUTTONDOWN: Form_MouseDown({GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)}); return true;
    case WM_CONTEXTMENU:
        // By key only: the right mouse button does nothing here.
        if (lParam == -1) {
            POINT corner{ControlBoxRect_.left, ControlBoxRect_.bottom};
            ClientToScreen(Handle(), &corner);
            ShowControlMenu(corner);
        }
        return true;
    default: return false;
    }
}

bool frmQuickSwitch::pic_KeyDown(int button, int key) {
    const int pressed = key >= VK_NUMPAD1 && key <= VK_NUMPAD8 ? key - VK_NUMPAD0 : key - '0';
    if (pressed >= 1 && pressed <= ButtonCount) {
        if (IsWindowVisible(Picture(pressed).Handle())) Picture(pressed).Press();
        return true;
    }
    int target = button;
    switch (key) {
    case VK_UP: target = (button - 1) % 2 == 1 ? button - 1 : button; break;
    case VK_DOWN: target = (button - 1) % 2 == 0 ? button + 1 : button; break;
    case VK_LEFT: target = button - 2; break;
    case VK_RIGHT: target = button + 2; break;
    default: return false;
    }
    if (target >= 1 && target <= ButtonCount && IsWindowVisible(Picture(target).Handle())) Picture(target).SetFocus();
    return true;
}
