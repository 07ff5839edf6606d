#include "ui/Clipboard.h"

#include <cstring>

void CopyToClipboard(HWND owner, const std::wstring& text) {
    if (!OpenClipboard(owner)) return;
    const size_t size = (text.size() + 1) * sizeof(wchar_t);
    const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, size);
    if (void* const place = memory ? GlobalLock(memory) : nullptr) {
        std::memcpy(place, text.c_str(), size);
        GlobalUnlock(memory);
        EmptyClipboard();
        SetClipboardData(CF_UNICODETEXT, memory); // the system's from now on
    }
    CloseClipboard();
}
