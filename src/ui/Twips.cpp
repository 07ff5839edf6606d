#include "ui/Twips.h"

namespace {

constexpr int kTwipsPerInch = 1440;

template <class Function>
Function Find(const wchar_t* library, const char* name) {
    return reinterpret_cast<Function>(GetProcAddress(GetModuleHandleW(library), name));
}

int SystemDpi() {
    HDC screen = GetDC(nullptr);
    const int dpi = GetDeviceCaps(screen, LOGPIXELSY);
    ReleaseDC(nullptr, screen);
    return dpi;
}

} // namespace

int WindowDpi(HWND window) {
    using GetDpiForWindowFunction = UINT(WINAPI*)(HWND);
    static const auto getDpiForWindow = Find<GetDpiForWindowFunction>(L"user32.dll", "GetDpiForWindow");
    const UINT dpi = window && getDpiForWindow ? getDpiForWindow(window) : 0;
    return dpi ? static_cast<int>(dpi) : SystemDpi();
}

int ToPixels(int twips, int dpi) { return MulDiv(twips, dpi, kTwipsPerInch); }
int ToTwips(int pixels, int dpi) { return MulDiv(pixels, kTwipsPerInch, dpi); }

LOGFONTW FormFont(int dpi) {
    constexpr int kPoints = 8;
    constexpr int kPointsPerInch = 72;
    LOGFONTW font{};
    font.lfHeight = -MulDiv(kPoints, dpi, kPointsPerInch);
    font.lfWeight = FW_NORMAL;
    font.lfCharSet = DEFAULT_CHARSET;
    font.lfQuality = DEFAULT_QUALITY;
    lstrcpynW(font.lfFaceName, L"MS Shell Dlg 2", LF_FACESIZE);
    return font;
}

FrameSize NonClientSize(HWND window) {
    RECT frame{};
    using AdjustForDpiFunction = BOOL(WINAPI*)(RECT*, DWORD, BOOL, DWORD, UINT);
    static const auto adjustForDpi = Find<AdjustForDpiFunction>(L"user32.dll", "AdjustWindowRectExForDpi");
    const auto style = static_cast<DWORD>(GetWindowLongPtrW(window, GWL_STYLE));
    const auto exStyle = static_cast<DWORD>(GetWindowLongPtrW(window, GWL_EXSTYLE));
    const BOOL hasMenu = GetMenu(window) != nullptr;
    if (adjustForDpi)
        adjustForDpi(&frame, style, hasMenu, exStyle, static_cast<UINT>(WindowDpi(window)));
    else
        AdjustWindowRectEx(&frame, style, hasMenu, exStyle);
    return {frame.right - frame.left, frame.bottom - frame.top};
}
