#include "support/Resources.h"

#include "win32/Owner.h"

namespace {

using BitmapHandle = Owner<owners::Gdi<HBITMAP>>;

template <class Handle>
Handle Value(UINT_PTR number) {
    return reinterpret_cast<Handle>(number); // NOLINT(performance-no-int-to-ptr)
}

int CountHandles() {
    DWORD count = 0;
    if (GetProcessHandleCount(GetCurrentProcess(), &count) && count > 0) return static_cast<int>(count);
    constexpr UINT_PTR kLast = 0x8000;
    int found = 0;
    for (UINT_PTR number = 4; number < kLast; number += 4) {
        DWORD flags = 0;
        if (GetHandleInformation(Value<HANDLE>(number), &flags)) ++found;
    }
    return found;
}

int CountGdi() {
    if (const DWORD count = GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS)) return static_cast<int>(count);
    int found = 0;
    for (UINT_PTR number = 1; number <= 0xFFFF; ++number)
        if (GetObjectType(Value<HGDIOBJ>(number))) ++found;
    return found;
}

bool IsIcon(HICON icon) {
    ICONINFO info{};
    if (!GetIconInfo(icon, &info)) return false;
    const BitmapHandle mask(info.hbmMask), color(info.hbmColor);
    return true;
}

BOOL CALLBACK CountChild(HWND, LPARAM count) {
    ++*reinterpret_cast<int*>(count);
    return TRUE;
}

BOOL CALLBACK CountWindow(HWND window, LPARAM count) {
    EnumChildWindows(window, &CountChild, count);
    return CountChild(window, count);
}

int CountUser() {
    if (const DWORD count = GetGuiResources(GetCurrentProcess(), GR_USEROBJECTS)) return static_cast<int>(count);
    int found = 0;
    EnumThreadWindows(GetCurrentThreadId(), &CountWindow, reinterpret_cast<LPARAM>(&found));
    for (UINT_PTR number = 0x20; number <= 0xFFFF; number += 2)
        if (IsMenu(Value<HMENU>(number)) || IsIcon(Value<HICON>(number))) ++found;
    return found;
}

} // namespace

Resources Resources::Now() { return {CountHandles(), CountGdi(), CountUser()}; }
