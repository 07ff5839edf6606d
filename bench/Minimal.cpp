// What the least program with the main window's controls does: it makes them, fills the list with fixed texts, and
// shows the window. The argument is the number of rows.

#include "win32/Owner.h"

#include <cwchar>
#include <iterator>

namespace {

struct Control {
    const wchar_t* windowClass;
    const wchar_t* text;
    DWORD style;
    int left, top, width, height;
};

constexpr DWORD kOption = BS_AUTORADIOBUTTON | WS_TABSTOP;

// In pixels at 96 DPI, in the order of the main window.
constexpr Control kControls[] = {
    {L"STATIC", L"", SS_NOTIFY, 0, 0, 565, 1},
    {L"STATIC", L"", SS_NOTIFY, 0, 1, 565, 1},
    {WC_LISTVIEWW, L"", LVS_REPORT | LVS_SINGLESEL | LVS_SHOWSELALWAYS | WS_TABSTOP | WS_BORDER, 8, 8, 433, 161},
    {L"BUTTON", L"Open in", BS_GROUPBOX, 8, 181, 433, 86},
    {L"BUTTON", L"Contact View", kOption, 20, 198, 14, 14},
    {L"BUTTON", L"Contact List View", kOption, 20, 215, 14, 14},
    {L"BUTTON", L"Groups View", kOption, 20, 232, 14, 14},
    {L"BUTTON", L"Task List View", kOption, 20, 249, 14, 14},
    {L"BUTTON", L"Monthly Calendar View", kOption, 228, 198, 14, 14},
    {L"BUTTON", L"Weekly Calendar View", kOption, 228, 215, 14, 14},
    {L"BUTTON", L"Daily Calendar View", kOption, 228, 232, 14, 14},
    {L"STATIC", L"Contact View", SS_NOTIFY, 38, 198, 180, 15},
    {L"STATIC", L"Contact List View", SS_NOTIFY, 38, 215, 180, 15},
    {L"STATIC", L"Groups View", SS_NOTIFY, 38, 232, 180, 15},
    {L"STATIC", L"Task List View", SS_NOTIFY, 38, 249, 180, 15},
    {L"STATIC", L"Monthly Calendar View", SS_NOTIFY, 246, 198, 180, 15},
    {L"STATIC", L"Weekly Calendar View", SS_NOTIFY, 246, 215, 180, 15},
    {L"STATIC", L"Daily Calendar View", SS_NOTIFY, 246, 232, 180, 15},
    {L"BUTTON", L"Open", BS_DEFPUSHBUTTON | WS_TABSTOP, 473, 8, 76, 23},
    {L"BUTTON", L"Cancel", WS_TABSTOP, 473, 38, 76, 23},
    {L"STATIC", L"More at", SS_RIGHT, 407, 276, 37, 17},
    {L"STATIC", L"www.varnholtine.example", SS_NOTIFY, 447, 276, 109, 17},
};
constexpr const wchar_t* kMenus[][6] = {{L"&File", L"Open", L"Exit"},
                                        {L"&Edit", L"Properties...", L"Edit List..."},
                                        {L"&Options", L"Settings File...", L"Language...", L"Toolbar...", L"Palette"},
                                        {L"&Help", L"Manual", L"Online", L"About..."}};
constexpr const wchar_t* kColumns[] = {L"Name", L"Contact layout", L"Group layout", L"Macro", L"Path"};
constexpr int kColumnWidth = 80;

LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_DESTROY) PostQuitMessage(0);
    return DefWindowProcW(window, message, wParam, lParam);
}

HMENU MakeMenu() {
    HMENU bar = CreateMenu();
    for (const auto& texts : kMenus) {
        HMENU menu = CreatePopupMenu();
        for (UINT item = 1; item < std::size(texts) && texts[item]; ++item)
            AppendMenuW(menu, MF_STRING, item, texts[item]);
        AppendMenuW(bar, MF_POPUP, reinterpret_cast<UINT_PTR>(menu), texts[0]);
    }
    return bar;
}

void Fill(HWND list, int rows) {
    LVCOLUMNW column{};
    column.mask = LVCF_TEXT | LVCF_WIDTH | LVCF_SUBITEM;
    column.cx = kColumnWidth;
    for (int index = 0; index < static_cast<int>(std::size(kColumns)); ++index) {
        column.pszText = const_cast<wchar_t*>(kColumns[index]); // NOLINT: it is only read
        SendMessageW(list, LVM_INSERTCOLUMNW, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&column));
    }
    wchar_t text[] = L"C:\\Data\\Layouts\\Customers.cly";
    for (int row = 0; row < rows; ++row) {
        LVITEMW item{};
        item.mask = LVIF_TEXT;
        item.iItem = row;
        item.pszText = text;
        SendMessageW(list, LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
        for (item.iSubItem = 1; item.iSubItem < static_cast<int>(std::size(kColumns)); ++item.iSubItem)
            SendMessageW(list, LVM_SETITEMTEXTW, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
    }
}

void MakeControls(HWND window, HFONT font, int rows) {
    for (const Control& control : kControls) {
        HWND made = CreateWindowExW(0, control.windowClass, control.text, WS_CHILD | WS_VISIBLE | control.style,
                                    control.left, control.top, control.width, control.height, window, nullptr,
                                    GetModuleHandleW(nullptr), nullptr);
        SendMessageW(made, WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
        if (std::wcscmp(control.windowClass, WC_LISTVIEWW) == 0) Fill(made, rows);
    }
}

} // namespace

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, PWSTR arguments, int show) {
    constexpr INITCOMMONCONTROLSEX kClasses{sizeof kClasses, ICC_LISTVIEW_CLASSES | ICC_STANDARD_CLASSES};
    InitCommonControlsEx(&kClasses);
    WNDCLASSW windowClass{};
    windowClass.lpfnWndProc = &Procedure;
    windowClass.hInstance = instance;
    windowClass.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    windowClass.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
    windowClass.lpszClassName = L"BenchMinimal";
    RegisterClassW(&windowClass);
    const FontHandle font(
        CreateFontW(-11, 0, 0, 0, FW_NORMAL, 0, 0, 0, DEFAULT_CHARSET, 0, 0, 0, 0, L"MS Shell Dlg 2"));
    HWND window = CreateWindowExW(0, windowClass.lpszClassName, L"Minimal", WS_OVERLAPPEDWINDOW, 200, 200, 565, 346,
                                  nullptr, MakeMenu(), instance, nullptr);
    MakeControls(window, font.Get(), static_cast<int>(std::wcstol(arguments, nullptr, 10)));
    ShowWindow(window, show);
    for (MSG message{}; GetMessageW(&message, nullptr, 0, 0) > 0;) {
        if (IsDialogMessageW(window, &message)) continue;
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
    return 0;
}
