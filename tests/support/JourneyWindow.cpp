#include "support/JourneyWindow.h"

#include "support/JourneyProcess.h"
#include "win32/Owner.h"

#include <array>
#include <stdexcept>
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

/// A part of the screen as it looks at this moment.
class Picture {
public:
    Picture(POINT corner, int width, int height) : screen_(GetDC(nullptr)), memory_(CreateCompatibleDC(screen_)) {
        bitmap_.Reset(CreateCompatibleBitmap(screen_, width, height));
        old_ = SelectObject(memory_, bitmap_.Get());
        BitBlt(memory_, 0, 0, width, height, screen_, corner.x, corner.y, SRCCOPY);
    }
    ~Picture() {
        SelectObject(memory_, old_);
        DeleteDC(memory_);
        ReleaseDC(nullptr, screen_);
    }
    Picture(const Picture&) = delete;
    Picture& operator=(const Picture&) = delete;

    COLORREF At(int x, int y) const { return GetPixel(memory_, x, y); }

    /// Smoothed letters have a red heart and pale edges.
    bool IsRed(int x, int y) const {
        const COLORREF color = At(x, y);
        return GetRValue(color) > 200 && GetGValue(color) < 60 && GetBValue(color) < 60;
    }

private:
    HDC screen_;
    HDC memory_;
    Owner<owners::Gdi<HBITMAP>> bitmap_;
    HGDIOBJ old_ = nullptr;
};

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

void LeftButton(bool isDown) {
    INPUT input{};
    input.type = INPUT_MOUSE;
    input.mi.dx = PartOf(mousePlace.x, SM_CXSCREEN);
    input.mi.dy = PartOf(mousePlace.y, SM_CYSCREEN);
    input.mi.dwFlags = MOUSEEVENTF_ABSOLUTE | MOUSEEVENTF_MOVE | (isDown ? MOUSEEVENTF_LEFTDOWN : MOUSEEVENTF_LEFTUP);
    SendInput(1, &input, sizeof input);
}

bool LeftButtonIsDown() { return GetAsyncKeyState(VK_LBUTTON) < 0; }

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
    PROCESS_INFORMATION started{};
    CreateProcessW(L"Z:\\usr\\bin\\xdotool", command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                   &started);
    const KernelHandle process(started.hProcess);
    const KernelHandle thread(started.hThread);
}

POINT Middle(HWND window) {
    RECT client{};
    GetClientRect(window, &client);
    return {client.right / 2, client.bottom / 2};
}

void DoubleClick(HWND window, POINT place) {
    Settle(window);
    MoveMouse(window, place);
    for (const bool isDown : {true, false, true, false}) LeftButton(isDown);
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

std::vector<COLORREF> Pixels(HWND window) {
    RECT client{};
    GetClientRect(window, &client);
    POINT corner{};
    ClientToScreen(window, &corner);
    const Picture picture(corner, client.right, client.bottom);
    std::vector<COLORREF> pixels;
    for (int y = 0; y < client.bottom; ++y)
        for (int x = 0; x < client.right; ++x) pixels.push_back(picture.At(x, y));
    return pixels;
}

std::vector<COLORREF> StillPixels(HWND window) {
    return Unchanged([window] { return Pixels(window); });
}

int RedPixels(HWND window, const RECT& part) {
    POINT corner{part.left, part.top};
    ClientToScreen(window, &corner);
    const int width = part.right - part.left;
    const int height = part.bottom - part.top;
    const Picture picture(corner, width, height);
    int count = 0;
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            if (picture.IsRed(x, y)) ++count;
    return count;
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

void Dismiss(const Box& box) { PostMessageW(box.Window, WM_CLOSE, 0, 0); }

} // namespace JourneyWindow

namespace {

constexpr size_t kTextSize = 1024; // characters behind the structure in the foreign memory
constexpr size_t kTextOffset = 256;
constexpr size_t kMemorySize = kTextOffset + kTextSize * sizeof(wchar_t);

} // namespace

ForeignList::ForeignList(HWND list)
    : list_(list),
      process_(OpenProcess(PROCESS_VM_OPERATION | PROCESS_VM_READ | PROCESS_VM_WRITE, FALSE, ProcessOf(list))),
      memory_(VirtualAllocEx(process_, nullptr, kMemorySize, MEM_COMMIT, PAGE_READWRITE)) {
    if (!memory_) throw std::runtime_error("the list's process gives no memory");
}

ForeignList::~ForeignList() {
    VirtualFreeEx(process_, memory_, 0, MEM_RELEASE);
    const KernelHandle closed(process_);
}

bool ForeignList::Put(const void* data, size_t size) const {
    return WriteProcessMemory(process_, memory_, data, size, nullptr) != FALSE;
}

bool ForeignList::Take(void* data, size_t size, size_t offset) const {
    return ReadProcessMemory(process_, static_cast<char*>(memory_) + offset, data, size, nullptr) != FALSE;
}

int ForeignList::Rows() const { return static_cast<int>(Ask(list_, LVM_GETITEMCOUNT)); }

std::wstring ForeignList::Cell(int row, int column) const {
    LVITEMW query{};
    query.iSubItem = column;
    query.pszText = reinterpret_cast<wchar_t*>(static_cast<char*>(memory_) + kTextOffset);
    query.cchTextMax = kTextSize;
    std::array<wchar_t, kTextSize> text{};
    if (!Put(&query, sizeof query)) return {};
    Ask(list_, LVM_GETITEMTEXTW, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(memory_));
    Take(text.data(), sizeof text, kTextOffset);
    return text.data();
}

std::wstring ForeignList::ColumnTitle(int column) const {
    LVCOLUMNW query{};
    query.mask = LVCF_TEXT;
    query.pszText = reinterpret_cast<wchar_t*>(static_cast<char*>(memory_) + kTextOffset);
    query.cchTextMax = kTextSize;
    std::array<wchar_t, kTextSize> text{};
    if (!Put(&query, sizeof query)) return {};
    Ask(list_, LVM_GETCOLUMNW, static_cast<WPARAM>(column), reinterpret_cast<LPARAM>(memory_));
    Take(text.data(), sizeof text, kTextOffset);
    return text.data();
}

int ForeignList::ColumnWidth(int column) const {
    return static_cast<int>(Ask(list_, LVM_GETCOLUMNWIDTH, static_cast<WPARAM>(column)));
}

void ForeignList::ColumnWidth(int column, int pixels) const {
    Ask(list_, LVM_SETCOLUMNWIDTH, static_cast<WPARAM>(column), pixels);
}

int ForeignList::Selected() const {
    return static_cast<int>(Ask(list_, LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED));
}

void ForeignList::Select(int row) const {
    LVITEMW state{};
    state.stateMask = LVIS_SELECTED | LVIS_FOCUSED;
    state.state = state.stateMask;
    if (Put(&state, sizeof state))
        Ask(list_, LVM_SETITEMSTATE, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(memory_));
}

RECT ForeignList::CellPlace(int row, int column) const {
    RECT place{};
    place.top = column;
    place.left = column == 0 ? LVIR_LABEL : LVIR_BOUNDS;
    if (!Put(&place, sizeof place)) return {};
    const UINT message = column == 0 ? LVM_GETITEMRECT : LVM_GETSUBITEMRECT;
    Ask(list_, message, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(memory_));
    Take(&place, sizeof place);
    return place;
}
