#include "support/Look.h"

#include "support/DialogScript.h"
#include "ui/Control.h"
#include "win32/Owner.h"

#include <array>
#include <cstdlib>
#include <vector>

namespace {

/// Width in pixels of a control's caption in its own font, access key marker not counted.
int CaptionWidth(HWND window) {
    HDC canvas = GetDC(window);
    const HGDIOBJ before = SelectObject(canvas, reinterpret_cast<HGDIOBJ>(SendMessageW(window, WM_GETFONT, 0, 0)));
    const std::wstring text = WindowText(window);
    RECT extent{};
    DrawTextW(canvas, text.c_str(), -1, &extent, DT_CALCRECT | DT_SINGLELINE);
    SelectObject(canvas, before);
    ReleaseDC(window, canvas);
    return extent.right;
}

/// What a control needs beside its caption: a button its edges, a box or option its mark. -1: it shows no caption.
int CaptionMargin(HWND control) {
    constexpr int kEdges = 8;
    constexpr int kMark = 20;
    std::array<wchar_t, 32> className{};
    GetClassNameW(control, className.data(), 32);
    const std::wstring_view kind = className.data();
    if (kind == L"Static") return 0;
    if (kind != L"Button") return -1;
    const auto type = GetWindowLongPtrW(control, GWL_STYLE) & BS_TYPEMASK;
    const RECT place = PlaceOf(control);
    const bool isBareMark = (type == BS_AUTORADIOBUTTON || type == BS_AUTOCHECKBOX) &&
                            place.right - place.left <= kMark * 2; // has a label beside it
    if (isBareMark) return -1;
    return type == BS_AUTORADIOBUTTON || type == BS_AUTOCHECKBOX ? kMark : kEdges;
}

/// What a text needs with room to spare, for other fonts. Wine 10's are as wide as Windows' own, older ones narrower.
int Spaced(int needed) {
    using Version = const char*(CDECL*)();
    HMODULE system = GetModuleHandleW(L"ntdll");
    static const auto version = reinterpret_cast<Version>(GetProcAddress(system, "wine_get_version"));
    static const int percent = version && std::atoi(version()) < 10 ? 115 : 110;
    return (needed * percent + 99) / 100;
}

/// Height in pixels of a notice's lines, broken as in its own width.
int NoticeHeight(HWND notice) {
    HDC canvas = GetDC(notice);
    const HGDIOBJ before = SelectObject(canvas, reinterpret_cast<HGDIOBJ>(SendMessageW(notice, WM_GETFONT, 0, 0)));
    TEXTMETRICW metrics{};
    GetTextMetricsW(canvas, &metrics);
    SelectObject(canvas, before);
    ReleaseDC(notice, canvas);
    return static_cast<int>(SendMessageW(notice, EM_GETLINECOUNT, 0, 0)) * static_cast<int>(metrics.tmHeight);
}

BOOL CALLBACK CheckCaption(HWND control, LPARAM parameter) {
    const int margin = CaptionMargin(control);
    const RECT place = PlaceOf(control);
    const int room = place.right - place.left;
    // Their places are given: the one's room ends where the other begins, and that one's at the window's edge.
    const bool isGiven = GetPropW(control, L"lblMore") != nullptr || GetPropW(control, L"lblLink") != nullptr;
    const int needed = (isGiven ? CaptionWidth(control) : Spaced(CaptionWidth(control))) + margin;
    if (margin >= 0 && needed > room)
        *reinterpret_cast<std::wstring*>(parameter) +=
            WindowText(control) + L": " + std::to_wstring(needed) + L" in " + std::to_wstring(room) + L"; ";
    const bool isNotice = (GetWindowLongPtrW(control, GWL_STYLE) & ES_READONLY) != 0 && margin < 0 &&
                          FindWindowExW(GetParent(control), nullptr, L"Edit", nullptr) == control;
    if (isNotice && Spaced(NoticeHeight(control)) > place.bottom - place.top)
        *reinterpret_cast<std::wstring*>(parameter) += L"notice too long; ";
    return TRUE;
}

BOOL CALLBACK CheckEdges(HWND control, LPARAM parameter) {
    RECT client{};
    GetClientRect(GetParent(control), &client);
    const RECT place = PlaceOf(control);
    if (place.right > client.right || place.bottom > client.bottom || place.left < 0 || place.top < 0)
        *reinterpret_cast<std::wstring*>(parameter) += WindowText(control) + L"; ";
    return TRUE;
}

void WriteBitmap(const std::wstring& path, const BITMAPINFOHEADER& info, const std::vector<BYTE>& pixels) {
    BITMAPFILEHEADER header{};
    header.bfType = 0x4D42; // "BM"
    header.bfOffBits = sizeof header + sizeof info;
    header.bfSize = header.bfOffBits + static_cast<DWORD>(pixels.size());
    const FileHandle file(CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr));
    DWORD written = 0;
    WriteFile(file.Get(), &header, sizeof header, &written, nullptr);
    WriteFile(file.Get(), &info, sizeof info, &written, nullptr);
    WriteFile(file.Get(), pixels.data(), static_cast<DWORD>(pixels.size()), &written, nullptr);
}

std::wstring ClassOf(HWND window) {
    std::array<wchar_t, 32> name{};
    GetClassNameW(window, name.data(), static_cast<int>(name.size()));
    return name.data();
}

std::vector<HWND> VisibleControls(HWND form) {
    std::vector<HWND> controls;
    for (HWND child = GetWindow(form, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT))
        if (IsWindowVisible(child)) controls.push_back(child);
    return controls;
}

/// A control's name as the rules have it: a button's text without its access key, else the label before it.
std::wstring PlainName(HWND control) {
    HWND before = GetWindow(control, GW_HWNDPREV);
    const bool isButton = ClassOf(control) == L"Button";
    std::wstring name = isButton ? WindowText(control) : ClassOf(before) == L"Static" ? WindowText(before) : L"";
    std::erase(name, L'&');
    return name;
}

std::vector<std::wstring> CaptionsOf(HMENU menu) {
    std::vector<std::wstring> captions;
    for (int position = 0; position < GetMenuItemCount(menu); ++position) {
        std::array<wchar_t, 128> caption{};
        GetMenuStringW(menu, static_cast<UINT>(position), caption.data(), static_cast<int>(caption.size()),
                       MF_BYPOSITION);
        captions.emplace_back(caption.data());
    }
    return captions;
}

std::wstring ClashingKeys(const std::vector<std::wstring>& captions) {
    std::wstring keys, found;
    for (const std::wstring& text : captions) {
        const size_t mark = text.find(L'&');
        if (mark == std::wstring::npos || mark + 1 == text.size()) continue;
        const wchar_t key = static_cast<wchar_t>(towlower(text[mark + 1]));
        if (keys.find(key) != std::wstring::npos) found += text + L"; ";
        keys += key;
    }
    return found;
}

} // namespace

RECT PlaceOf(HWND control) {
    RECT place{};
    GetWindowRect(control, &place);
    MapWindowPoints(nullptr, GetParent(control), reinterpret_cast<POINT*>(&place), 2);
    return place;
}

std::wstring CutCaptions(HWND form) {
    std::wstring found;
    EnumChildWindows(form, &CheckCaption, reinterpret_cast<LPARAM>(&found));
    return found;
}

std::wstring ControlsOutside(HWND form) {
    std::wstring found;
    for (HWND child = GetWindow(form, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT))
        CheckEdges(child, reinterpret_cast<LPARAM>(&found));
    return found;
}

std::wstring Nameless(HWND form) {
    std::wstring found;
    for (HWND control : VisibleControls(form)) {
        const std::wstring kind = ClassOf(control);
        if (kind == L"Static" || kind == WC_TABCONTROLW) continue;
        const auto* ours = reinterpret_cast<const Control*>(GetWindowLongPtrW(control, GWLP_USERDATA));
        const std::wstring name = ours->AccessibleName().empty() ? PlainName(control) : ours->AccessibleName();
        if (name.empty() || name == L"...") found += ours->Name() + std::wstring(L"; ");
    }
    return found;
}

std::wstring ClashingKeys(HWND form) {
    std::vector<std::wstring> captions = CaptionsOf(GetMenu(form));
    for (HWND control : VisibleControls(form))
        if (ClassOf(control) != L"Edit" && GetDlgCtrlID(control) != IDCANCEL) captions.push_back(WindowText(control));
    return ClashingKeys(captions);
}

std::wstring ClashingKeys(HMENU menu) {
    std::wstring found = ClashingKeys(CaptionsOf(menu));
    for (int position = 0; position < GetMenuItemCount(menu); ++position)
        if (HMENU below = GetSubMenu(menu, position)) found += ClashingKeys(below);
    return found;
}

void TakePicture(HWND window, const std::wstring& name) {
    std::array<wchar_t, MAX_PATH> folder{};
    if (!GetEnvironmentVariableW(L"KELMORRA_PICTURES", folder.data(), MAX_PATH)) return;
    HideCaret(nullptr); // it would stand on a letter
    UpdateWindow(window);
    const DWORD start = GetTickCount();
    PumpUntil([start] { return GetTickCount() - start > 250; }); // the window manager draws its frame
    RECT place{};
    GetWindowRect(window, &place);
    BITMAPINFOHEADER info{};
    info.biSize = sizeof info;
    info.biWidth = place.right - place.left;
    info.biHeight = place.bottom - place.top;
    info.biPlanes = 1;
    info.biBitCount = 24;
    HDC screen = GetDC(nullptr);
    HDC memory = CreateCompatibleDC(screen);
    HBITMAP bitmap = CreateCompatibleBitmap(screen, info.biWidth, info.biHeight);
    const HGDIOBJ before = SelectObject(memory, bitmap);
    BitBlt(memory, 0, 0, info.biWidth, info.biHeight, screen, place.left, place.top, SRCCOPY);
    ShowCaret(nullptr);
    SelectObject(memory, before);
    const auto bytesPerLine = (static_cast<size_t>(info.biWidth) * 3 + 3) / 4 * 4;
    std::vector<BYTE> pixels(bytesPerLine * static_cast<size_t>(info.biHeight));
    GetDIBits(memory, bitmap, 0, static_cast<UINT>(info.biHeight), pixels.data(), reinterpret_cast<BITMAPINFO*>(&info),
              DIB_RGB_COLORS);
    DeleteObject(bitmap);
    DeleteDC(memory);
    ReleaseDC(nullptr, screen);
    WriteBitmap(std::wstring(folder.data()) + L"\\" + name + L".bmp", info, pixels);
}
