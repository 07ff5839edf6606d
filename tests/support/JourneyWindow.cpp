#include "support/JourneyWindow.h"

#include "support/JourneyProcess.h"

#include <array>

namespace {

constexpr UINT kAnswerMilliseconds = 5000;

DWORD ProcessOf(HWND window) {
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    return process;
}

bool HasClass(HWND window, const wchar_t* className) {
    std::array<wchar_t, 64> name{};
    GetClassNameW(window, name.data(), static_cast<int>(name.size()));
    return name.data() == std::wstring(className);
}

BOOL CALLBACK Collect(HWND window, LPARAM windows) {
    reinterpret_cast<std::vector<HWND>*>(windows)->push_back(window);
    return TRUE;
}

std::vector<HWND> TopLevel(DWORD process) {
    std::vector<HWND> windows;
    EnumWindows(&Collect, reinterpret_cast<LPARAM>(&windows));
    std::erase_if(windows, [process](HWND window) { return ProcessOf(window) != process; });
    return windows;
}

/// A message that must be answered: a window that hangs gives 0 after a while.
LRESULT Ask(HWND window, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
    DWORD_PTR answer = 0;
    SendMessageTimeoutW(window, message, wParam, lParam, SMTO_ABORTIFHUNG, kAnswerMilliseconds, &answer);
    return static_cast<LRESULT>(answer);
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

namespace JourneyWindow {

std::vector<HWND> Visible(DWORD process) {
    std::vector<HWND> windows = TopLevel(process);
    std::erase_if(windows, [](HWND window) { return !IsWindowVisible(window); });
    return windows;
}

HWND Find(DWORD process, const wchar_t* className) {
    for (HWND window : TopLevel(process))
        if (HasClass(window, className)) return window;
    return nullptr;
}

HWND Control(HWND form, const wchar_t* name, int index) {
    std::vector<HWND> controls;
    EnumChildWindows(form, &Collect, reinterpret_cast<LPARAM>(&controls));
    for (HWND control : controls)
        if (reinterpret_cast<INT_PTR>(GetPropW(control, name)) == index + 1) return control;
    return nullptr;
}

std::wstring Text(HWND window) {
    std::array<wchar_t, 2048> text{};
    Ask(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()));
    return text.data();
}

void Click(HWND form, const wchar_t* control, int index) {
    PostMessageW(Control(form, control, index), BM_CLICK, 0, 0);
}

void ClickMenu(HWND form, const wchar_t* item) {
    PostMessageW(form, WM_COMMAND, reinterpret_cast<WPARAM>(GetPropW(form, item)), 0);
}

bool Checked(HWND option) { return Ask(option, BM_GETCHECK) == BST_CHECKED; }

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

void Settle(HWND window) {
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
    Settle(window);
    ClientToScreen(window, &place);
    WorkMouse(MoveTo(place) + L" sleep 0.1 click --repeat " + std::to_wstring(times) + L" --delay 50 1");
}

void Drag(HWND window, POINT place, SIZE distance) {
    ClientToScreen(window, &place);
    std::wstring actions = MoveTo(place) + L" mousedown 1";
    constexpr int kSteps = 5;
    for (int step = 1; step <= kSteps; ++step)
        actions +=
            L" sleep 0.1" + MoveTo({place.x + distance.cx * step / kSteps, place.y + distance.cy * step / kSteps});
    WorkMouse(actions + L" sleep 0.1 mouseup 1");
}

POINT Middle(HWND window) {
    RECT client{};
    GetClientRect(window, &client);
    return {client.right / 2, client.bottom / 2};
}

void Press(WORD key) {
    for (const DWORD flags : {DWORD{0}, DWORD{KEYEVENTF_KEYUP}}) {
        INPUT input{};
        input.type = INPUT_KEYBOARD;
        input.ki.wVk = key;
        input.ki.dwFlags = flags;
        SendInput(1, &input, sizeof input);
    }
}

std::optional<Box> MessageBoxOf(DWORD process) {
    constexpr int kTextId = 0xFFFF;
    for (HWND window : Visible(process)) {
        HWND text = HasClass(window, L"#32770") ? GetDlgItem(window, kTextId) : nullptr;
        if (text) return Box{window, Text(text)};
    }
    return std::nullopt;
}

void Answer(const Box& box, int button) { PostMessageW(box.Window, WM_COMMAND, static_cast<WPARAM>(button), 0); }

} // namespace JourneyWindow
