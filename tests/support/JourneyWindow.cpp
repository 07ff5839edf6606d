#include "support/JourneyWindow.h"

#include "support/JourneyProcess.h"

#include <array>
#include <utility>

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

/// What a question gives once the answer has not changed for a while.
template <typename Question>
auto Unchanged(const Question& question) {
    constexpr DWORD kMilliseconds = 300;
    DWORD since = GetTickCount();
    auto last = question();
    Within([&] {
        auto now = question();
        if (now != last) since = GetTickCount();
        last = std::move(now);
        return GetTickCount() - since >= kMilliseconds;
    });
    return last;
}

/// Where the mouse was moved last. A button goes down and up there, whatever the display reports late about the way.
POINT mousePlace{};

/// A coordinate in the parts of the screen that SendInput takes: 65,536 of them, whatever its pixels.
LONG PartOf(LONG pixel, int metric) {
    constexpr LONG kParts = 65'536;
    const LONG pixels = GetSystemMetrics(metric);
    return (pixel * kParts + pixels - 1) / pixels;
}

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
    Unchanged([window] {
        POINT corner{};
        ClientToScreen(window, &corner);
        return std::pair(corner.x, corner.y);
    });
}

void MoveMouse(HWND window, POINT place) {
    ClientToScreen(window, &place);
    mousePlace = place;
    SetCursorPos(place.x, place.y);
    Unchanged([] {
        POINT cursor{};
        GetCursorPos(&cursor);
        return cursor.x == mousePlace.x && cursor.y == mousePlace.y;
    });
}

void Drag(HWND window, POINT place, SIZE distance) {
    ClientToScreen(window, &place);
    std::wstring command =
        L"xdotool mousemove " + std::to_wstring(place.x) + L' ' + std::to_wstring(place.y) + L" mousedown 1";
    constexpr int kSteps = 5;
    for (int step = 1; step <= kSteps; ++step)
        command += L" sleep 0.1 mousemove " + std::to_wstring(place.x + distance.cx * step / kSteps) + L' ' +
                   std::to_wstring(place.y + distance.cy * step / kSteps);
    command += L" sleep 0.1 mouseup 1";
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    // A program of the host has no handles here: what stands in for them may be those of something else.
    PROCESS_INFORMATION unused{};
    CreateProcessW(L"Z:\\usr\\bin\\xdotool", command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                   &unused);
}

POINT Middle(HWND window) {
    RECT client{};
    GetClientRect(window, &client);
    return {client.right / 2, client.bottom / 2};
}

void ClickMouse(HWND window, POINT place, int times) {
    Settle(window);
    MoveMouse(window, place);
    for (; times > 0; --times)
        for (const DWORD action : {MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP}) {
            INPUT input{};
            input.type = INPUT_MOUSE;
            input.mi.dx = PartOf(mousePlace.x, SM_CXSCREEN);
            input.mi.dy = PartOf(mousePlace.y, SM_CYSCREEN);
            input.mi.dwFlags = MOUSEEVENTF_ABSOLUTE | MOUSEEVENTF_MOVE | action;
            SendInput(1, &input, sizeof input);
        }
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
        if (text) return Box{window, Text(window), Text(text)};
    }
    return std::nullopt;
}

void Answer(const Box& box, int button) { PostMessageW(box.Window, WM_COMMAND, static_cast<WPARAM>(button), 0); }

} // namespace JourneyWindow
