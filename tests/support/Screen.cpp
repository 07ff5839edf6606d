#include "support/Screen.h"

#include "support/JourneyProcess.h"

namespace {

DWORD ProcessOf(HWND window) {
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    return process;
}

BOOL CALLBACK CollectVisible(HWND window, LPARAM windows) {
    if (IsWindowVisible(window)) reinterpret_cast<std::vector<HWND>*>(windows)->push_back(window);
    return TRUE;
}

/// Works the display's own mouse. A program of the host has no handles here: what stands in for them may be those of
/// something else.
void WorkMouse(const std::wstring& actions) {
    std::wstring command = L"xdotool " + actions;
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION unused{};
    CreateProcessW(L"Z:\\usr\\bin\\xdotool", command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                   &unused);
}

std::wstring MoveTo(POINT place) { return L" mousemove " + std::to_wstring(place.x) + L' ' + std::to_wstring(place.y); }

} // namespace

std::vector<HWND> Visible(DWORD process) {
    std::vector<HWND> windows;
    EnumWindows(&CollectVisible, reinterpret_cast<LPARAM>(&windows));
    std::erase_if(windows, [process](HWND window) { return ProcessOf(window) != process; });
    return windows;
}

HWND FindWindowOf(DWORD process, const wchar_t* className) {
    HWND window = FindWindowW(className, nullptr);
    while (window && ProcessOf(window) != process) window = FindWindowExW(nullptr, window, className, nullptr);
    return window;
}

HWND MessageBoxOf(DWORD process) {
    for (HWND window : Visible(process))
        if (!MessageText(window).empty()) return window;
    return nullptr;
}

void ClickMenu(HWND form, const wchar_t* item) {
    PostMessageW(form, WM_COMMAND, reinterpret_cast<WPARAM>(GetPropW(form, item)), 0);
}

bool HasFocus(HWND control) {
    GUITHREADINFO info{};
    info.cbSize = sizeof info;
    if (!GetGUIThreadInfo(GetWindowThreadProcessId(control, nullptr), &info)) return false;
    if (!info.hwndActive) SetForegroundWindow(GetAncestor(control, GA_ROOT));
    return info.hwndFocus == control;
}

bool InFront(HWND control) {
    return Within([control] { return HasFocus(control) && GetForegroundWindow() == GetAncestor(control, GA_ROOT); });
}

RECT SettledPlace(HWND window) {
    constexpr DWORD kMilliseconds = 300;
    RECT last{};
    DWORD since = GetTickCount();
    Within([&] {
        RECT now{};
        GetWindowRect(window, &now);
        if (!EqualRect(&now, &last)) since = GetTickCount();
        last = now;
        return GetTickCount() - since >= kMilliseconds;
    });
    return last;
}

void MoveMouse(HWND window, POINT place) {
    ClientToScreen(window, &place);
    WorkMouse(MoveTo(place));
    Within([place] {
        POINT cursor{};
        return GetCursorPos(&cursor) && cursor.x == place.x && cursor.y == place.y;
    });
}

void ClickMouse(HWND window, POINT place, int times) {
    SettledPlace(window);
    ClientToScreen(window, &place);
    WorkMouse(MoveTo(place) + L" sleep 0.1 click --repeat " + std::to_wstring(times) + L" --delay 50 1");
}

void Drag(HWND window, POINT place, SIZE distance) {
    ClientToScreen(window, &place);
    const std::wstring half = MoveTo({place.x + distance.cx / 2, place.y + distance.cy / 2});
    const std::wstring whole = MoveTo({place.x + distance.cx, place.y + distance.cy});
    WorkMouse(MoveTo(place) + L" mousedown 1 sleep 0.2" + half + L" sleep 0.2" + whole + L" sleep 0.2 mouseup 1");
}

void PressKey(int key) {
    for (const DWORD flags : {DWORD{0}, DWORD{KEYEVENTF_KEYUP}}) {
        INPUT input{};
        input.type = INPUT_KEYBOARD;
        input.ki.wVk = static_cast<WORD>(key);
        input.ki.dwFlags = flags;
        SendInput(1, &input, sizeof input);
    }
}
