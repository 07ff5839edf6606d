#include "support/Look.h"

#include "support/DialogScript.h"
#include "ui/Control.h"

#include <array>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <vector>

namespace {

std::vector<HWND> ControlsOf(HWND form) {
    std::vector<HWND> controls;
    for (HWND child = GetWindow(form, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT))
        controls.push_back(child);
    return controls;
}

/// Size in pixels of a control's text as one line in its own font, access key marker not counted.
SIZE TextExtent(HWND window) {
    HDC canvas = GetDC(window);
    const HGDIOBJ before = SelectObject(canvas, reinterpret_cast<HGDIOBJ>(SendMessageW(window, WM_GETFONT, 0, 0)));
    RECT extent{};
    DrawTextW(canvas, WindowText(window).c_str(), -1, &extent, DT_CALCRECT | DT_SINGLELINE);
    SelectObject(canvas, before);
    ReleaseDC(window, canvas);
    return {extent.right, extent.bottom};
}

/// What a control needs beside its caption: a button its edges, a box or option its mark. -1: it shows no caption.
int CaptionMargin(HWND control, int width) {
    constexpr int kEdges = 8;
    constexpr int kMark = 20;
    const std::wstring kind = ClassOf(control);
    if (kind != L"Button") return kind == L"Static" ? 0 : -1;
    const auto type = GetWindowLongPtrW(control, GWL_STYLE) & BS_TYPEMASK;
    if (type != BS_AUTORADIOBUTTON && type != BS_AUTOCHECKBOX) return kEdges;
    return width <= kMark * 2 ? -1 : kMark; // a bare mark has a label beside it
}

/// What a text needs with room to spare, for other fonts. Wine 10's are as wide as Windows' own, older ones narrower.
int Spaced(int needed) {
    using Version = const char*(CDECL*)();
    HMODULE system = GetModuleHandleW(L"ntdll");
    static const auto version = reinterpret_cast<Version>(GetProcAddress(system, "wine_get_version"));
    static const int percent = version && std::atoi(version()) < 10 ? 115 : 110;
    return (needed * percent + 99) / 100;
}

/// A read-only box above all others; its lines are broken as in its own width.
bool IsCutNotice(HWND control, const RECT& place) {
    const bool isNotice = (GetWindowLongPtrW(control, GWL_STYLE) & ES_READONLY) != 0 &&
                          FindWindowExW(GetParent(control), nullptr, L"Edit", nullptr) == control;
    const auto lines = static_cast<int>(SendMessageW(control, EM_GETLINECOUNT, 0, 0));
    return isNotice && Spaced(lines * TextExtent(control).cy) > place.bottom - place.top;
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
    for (HWND control : ControlsOf(form)) {
        const RECT place = PlaceOf(control);
        const int room = place.right - place.left;
        const int margin = CaptionMargin(control, room);
        // Their places are given: the one's room ends where the other begins, and that one's at the window's edge.
        const bool isGiven = GetPropW(control, L"lblMore") != nullptr || GetPropW(control, L"lblLink") != nullptr;
        const int width = TextExtent(control).cx;
        const int needed = (isGiven ? width : Spaced(width)) + margin;
        if (margin >= 0 && needed > room)
            found += WindowText(control) + L": " + std::to_wstring(needed) + L" in " + std::to_wstring(room) + L"; ";
        if (margin < 0 && IsCutNotice(control, place)) found += L"notice too long; ";
    }
    return found;
}

std::wstring ControlsOutside(HWND form) {
    RECT client{};
    GetClientRect(form, &client);
    std::wstring found;
    for (HWND control : ControlsOf(form)) {
        const RECT place = PlaceOf(control);
        if (place.right > client.right || place.bottom > client.bottom || place.left < 0 || place.top < 0)
            found += WindowText(control) + L"; ";
    }
    return found;
}

std::wstring Nameless(HWND form) {
    std::wstring found;
    for (HWND control : ControlsOf(form)) {
        const std::wstring kind = ClassOf(control);
        if (!IsWindowVisible(control) || kind == L"Static" || kind == WC_TABCONTROLW) continue;
        const auto* ours = reinterpret_cast<const Control*>(GetWindowLongPtrW(control, GWLP_USERDATA));
        const std::wstring name = ours->AccessibleName().empty() ? PlainName(control) : ours->AccessibleName();
        if (name.empty() || name == L"...") found += ours->Name() + std::wstring(L"; ");
    }
    return found;
}

std::wstring ClashingKeys(HWND form) {
    std::vector<std::wstring> captions = CaptionsOf(GetMenu(form));
    for (HWND control : ControlsOf(form))
        if (IsWindowVisible(control) && ClassOf(control) != L"Edit" && GetDlgCtrlID(control) != IDCANCEL)
            captions.push_back(WindowText(control));
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
    BITMAPINFOHEADER info{
        sizeof info, place.right - place.left, place.bottom - place.top, 1, 24, BI_RGB, 0, 0, 0, 0, 0};
    const LONG size = (info.biWidth * 3 + 3) / 4 * 4 * info.biHeight;
    constexpr DWORD kHeaders = sizeof(BITMAPFILEHEADER) + sizeof info;
    const BITMAPFILEHEADER header{0x4D42, kHeaders + static_cast<DWORD>(size), 0, 0, kHeaders}; // "BM"
    void* pixels = nullptr;
    HDC screen = GetDC(nullptr);
    HDC memory = CreateCompatibleDC(screen);
    HBITMAP bitmap =
        CreateDIBSection(screen, reinterpret_cast<BITMAPINFO*>(&info), DIB_RGB_COLORS, &pixels, nullptr, 0);
    const HGDIOBJ before = SelectObject(memory, bitmap);
    BitBlt(memory, 0, 0, info.biWidth, info.biHeight, screen, place.left, place.top, SRCCOPY);
    ShowCaret(nullptr);
    std::ofstream file(std::filesystem::path(folder.data()) / (name + L".bmp"), std::ios::binary);
    file.write(reinterpret_cast<const char*>(&header), sizeof header);
    file.write(reinterpret_cast<const char*>(&info), sizeof info);
    file.write(static_cast<const char*>(pixels), size);
    DeleteObject(SelectObject(memory, before));
    DeleteDC(memory);
    ReleaseDC(nullptr, screen);
}

COLORREF ColorAtEdge(HWND window, bool isLeft) {
    RECT client{};
    GetClientRect(window, &client);
    UpdateWindow(window);
    HDC canvas = GetDC(window);
    const COLORREF color = GetPixel(canvas, isLeft ? 3 : client.right - 3, client.bottom / 2);
    ReleaseDC(window, canvas);
    return color;
}

void HoverOver(HWND control) {
    constexpr int kInside = 20;
    POINT pointer{kInside, kInside};
    ClientToScreen(control, &pointer);
    SetCursorPos(pointer.x, pointer.y);
    SendMessageW(control, WM_MOUSEMOVE, 0, MAKELPARAM(kInside, kInside));
}
