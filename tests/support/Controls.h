#pragma once

#include "win32/Windows.h"

#include <array>
#include <string>

/// The control of that name (and index) on a form, found as a screen-automation tool finds it; null when there is none.
inline HWND FindControl(HWND form, const wchar_t* name, int index = 0) {
    HWND child = GetWindow(form, GW_CHILD);
    while (child && reinterpret_cast<INT_PTR>(GetPropW(child, name)) != index + 1)
        child = GetWindow(child, GW_HWNDNEXT);
    return child;
}

inline std::wstring ClassOf(HWND window) {
    std::array<wchar_t, 64> name{};
    GetClassNameW(window, name.data(), static_cast<int>(name.size()));
    return name.data();
}

/// The text of a window or control of any process; "" when it hangs.
inline std::wstring WindowText(HWND window) {
    constexpr UINT kMilliseconds = 5000;
    std::array<wchar_t, 2048> text{};
    SendMessageTimeoutW(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()), SMTO_ABORTIFHUNG,
                        kMilliseconds, nullptr);
    return text.data();
}

/// The text inside a message box; "" for another window.
inline std::wstring MessageText(HWND window) {
    constexpr int kMessageText = 0xFFFF; // the static control of a message box
    HWND text = GetDlgItem(window, kMessageText);
    return text ? WindowText(text) : std::wstring();
}

/// Clicks a button as a user does: the message is posted, so that a modal box does not hold the test up.
inline void Click(HWND button) { PostMessageW(button, BM_CLICK, 0, 0); }

/// Gives a message box its answer (IDOK, IDYES, ...).
inline void Answer(HWND box, int button) { PostMessageW(box, WM_COMMAND, static_cast<WPARAM>(button), 0); }
