#include "server/StandInWindow.h"

#include "common/Automation.h"
#include "common/Protocol.h"
#include "common/State.h"
#include "server/ClassObjects.h"
#include "server/EmailAccount.h"
#include "server/FactsList.h"
#include "server/LogOn.h"
#include "server/Session.h"
#include "server/resource.h"
#include "support/Text.h"

#include <iterator>

namespace {

constexpr UINT kCloseNow = WM_APP + 1;
constexpr UINT_PTR kCloseTimer = 1;
constexpr UINT kClosePoll = 200; // milliseconds, as the next
constexpr UINT_PTR kRefreshTimer = 2;
constexpr UINT kRefreshDelay = 500;
constexpr int kFactsId = 101;
constexpr int kCallsId = 102;

StandInWindow* shown = nullptr;

struct Column {
    const wchar_t* title;
    int width;
};

constexpr Column kFactColumns[] = {{L"What", 190}, {L"Value", 600}};
constexpr Column kCallColumns[] = {{L"Time", 95},  {L"Object", 105},    {L"Member", 190},
                                   {L"Kind", 100}, {L"Arguments", 240}, {L"Result", 240}};

HWND MakeControl(HWND parent, const wchar_t* windowClass, const wchar_t* text, DWORD style, int id) {
    return CreateWindowExW(0, windowClass, text, WS_CHILD | WS_VISIBLE | style, 0, 0, 0, 0, parent,
                           reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), // NOLINT(performance-no-int-to-ptr)
                           GetModuleHandleW(nullptr), nullptr);
}

void AddColumns(HWND list, const Column* columns, int count, int dotsPerInch) {
    for (int index = 0; index < count; ++index) {
        LVCOLUMNW column{};
        column.mask = LVCF_TEXT | LVCF_WIDTH | LVCF_SUBITEM;
        column.pszText = const_cast<wchar_t*>(columns[index].title);
        column.cx = MulDiv(columns[index].width, dotsPerInch, 96);
        column.iSubItem = index;
        SendMessageW(list, LVM_INSERTCOLUMNW, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&column));
    }
}

int DotsPerInch() {
    const HDC screen = GetDC(nullptr);
    const int dots = GetDeviceCaps(screen, LOGPIXELSY);
    ReleaseDC(nullptr, screen);
    return dots;
}

void UseFont(HWND control, const FontHandle& font) {
    SendMessageW(control, WM_SETFONT, reinterpret_cast<WPARAM>(font.Get()), TRUE);
}

} // namespace

StandInWindow::StandInWindow() {
    shown = this;
    const HINSTANCE instance = GetModuleHandleW(nullptr);
    WNDCLASSEXW windowClass{};
    windowClass.cbSize = sizeof(windowClass);
    windowClass.lpfnWndProc = WindowProcedure;
    windowClass.hInstance = instance;
    windowClass.hIcon = LoadIconW(nullptr, IDI_APPLICATION);
    windowClass.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    windowClass.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
    windowClass.lpszMenuName = MAKEINTRESOURCEW(IDM_MAIN);
    windowClass.lpszClassName = Protocol::WindowClass;
    RegisterClassExW(&windowClass);
    window_ =
        CreateWindowExW(0, Protocol::WindowClass, L"ACT! stand-in", WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN,
                        CW_USEDEFAULT, CW_USEDEFAULT, Scaled(860), Scaled(680), nullptr, nullptr, instance, nullptr);
    MakeFonts();
    MakeControls();
    Journal::SetListener(Received);
    Session::SetCloseRequest(RequestClose);
    Refresh();
    ShowWindow(window_, SW_SHOWNORMAL);
    UpdateWindow(window_);
}

StandInWindow::~StandInWindow() {
    Journal::SetListener(nullptr);
    shown = nullptr;
}

void StandInWindow::Run() {
    MSG message{};
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        if (IsDialogMessageW(window_, &message)) continue;
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
}

void StandInWindow::HandOver(HWND running, const std::wstring& database) {
    constexpr UINT kPatience = 5000;
    const size_t size = (database.size() + 1) * sizeof(wchar_t);
    COPYDATASTRUCT data{};
    data.cbData = static_cast<DWORD>(size);
    data.lpData = const_cast<wchar_t*>(database.c_str());
    if (!database.empty())
        SendMessageTimeoutW(running, WM_COPYDATA, 0, reinterpret_cast<LPARAM>(&data), SMTO_ABORTIFHUNG, kPatience,
                            nullptr);
    if (IsIconic(running)) ShowWindowAsync(running, SW_RESTORE);
    SetForegroundWindow(running);
}

int StandInWindow::Scaled(int pixels) const {
    static const int dotsPerInch = DotsPerInch();
    return MulDiv(pixels, dotsPerInch, 96);
}

void StandInWindow::MakeFonts() {
    NONCLIENTMETRICSW metrics{};
    metrics.cbSize = sizeof(metrics);
    SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, metrics.cbSize, &metrics, 0);
    font_.Reset(CreateFontIndirectW(&metrics.lfMessageFont));
    metrics.lfMessageFont.lfWeight = FW_BOLD;
    boldFont_.Reset(CreateFontIndirectW(&metrics.lfMessageFont));
}

HWND StandInWindow::MakeList(int id) {
    const HWND list =
        MakeControl(window_, WC_LISTVIEWW, L"",
                    WS_TABSTOP | WS_BORDER | LVS_REPORT | LVS_SINGLESEL | LVS_SHOWSELALWAYS | LVS_NOSORTHEADER, id);
    ListView_SetExtendedListViewStyle(list, LVS_EX_FULLROWSELECT | LVS_EX_DOUBLEBUFFER | LVS_EX_INFOTIP);
    return list;
}

void StandInWindow::MakeControls() {
    factsTitle_ = MakeControl(window_, L"STATIC", L"ACT! shows", 0, 0);
    facts_ = MakeList(kFactsId);
    callsTitle_ = MakeControl(window_, L"STATIC", L"Calls received", 0, 0);
    calls_ = MakeList(kCallsId);
    status_ = MakeControl(window_, STATUSCLASSNAMEW, L"", SBARS_SIZEGRIP, 0);
    for (const HWND control : {facts_, calls_, status_}) UseFont(control, font_);
    for (const HWND control : {factsTitle_, callsTitle_}) UseFont(control, boldFont_);
    commands_.Show(window_);
    AddColumns(facts_, kFactColumns, std::size(kFactColumns), Scaled(96));
    AddColumns(calls_, kCallColumns, std::size(kCallColumns), Scaled(96));
    Arrange();
}

void StandInWindow::Arrange() {
    RECT client{}, bar{};
    SendMessageW(status_, WM_SIZE, 0, 0);
    GetClientRect(window_, &client);
    GetWindowRect(status_, &bar);
    const int margin = Scaled(10), title = Scaled(20), width = client.right - 2 * margin;
    const int bars = commands_.Arrange();
    const int lists = client.bottom - bars - (bar.bottom - bar.top) - 2 * title - 3 * margin;
    const int upper = lists / 2;
    int top = bars + margin;
    const auto place = [&](HWND control, int height) {
        MoveWindow(control, margin, top, width > 0 ? width : 0, height > 0 ? height : 0, TRUE);
        top += height;
    };
    place(factsTitle_, title);
    place(facts_, upper);
    top += margin;
    place(callsTitle_, title);
    place(calls_, lists - upper);
}

void StandInWindow::Refresh() {
    KillTimer(window_, kRefreshTimer);
    SendMessageW(calls_, WM_SETREDRAW, FALSE, 0);
    for (const Journal::Entry& entry : unseen_) AddCall(entry);
    unseen_.clear();
    SendMessageW(calls_, WM_SETREDRAW, TRUE, 0);
    ListView_EnsureVisible(calls_, ListView_GetItemCount(calls_) - 1, FALSE);
    SendMessageW(facts_, WM_SETREDRAW, FALSE, 0);
    FillFacts(facts_);
    SendMessageW(facts_, WM_SETREDRAW, TRUE, 0);
    const std::wstring& database = Session::Current().Database;
    const std::wstring title =
        L"ACT! stand-in - " + (database.empty() ? L"no database" : Text::AfterLast(database, L'\\'));
    SetWindowTextW(window_, title.c_str());
    const std::wstring status = notice_.IsOpen() ? std::wstring(L"Waiting for the answer to the close notice\u2026")
                                                 : std::to_wstring(ListView_GetItemCount(calls_)) +
                                                       L" lines, event components attached: " +
                                                       std::to_wstring(CloseNotice::AttachedComponents());
    SetWindowTextW(status_, status.c_str());
}

void StandInWindow::AddCall(const Journal::Entry& entry) {
    const int row = ListView_GetItemCount(calls_);
    const std::wstring time = Text::AfterLast(entry.Time, L' ');
    const std::wstring result = entry.Result.starts_with(L"-> ") ? entry.Result.substr(3) : entry.Result;
    const wchar_t* const texts[] = {time.c_str(),        entry.Object.c_str(),    entry.Member.c_str(),
                                    entry.Flags.c_str(), entry.Arguments.c_str(), result.c_str()};
    SetRow(calls_, row, texts, std::size(texts));
}

void StandInWindow::Received(const Journal::Entry& entry) {
    if (!shown) return;
    shown->unseen_.push_back(entry);
    // When no more calls come: reading state and drawing lists takes as long as a call, and the caller would wait for
    // it.
    SetTimer(shown->window_, kRefreshTimer, kRefreshDelay, nullptr);
}

void StandInWindow::RequestClose() {
    if (!shown) return;
    if (!State::Flag(L"Presets", L"CommandAsks")) {
        PostMessageW(shown->window_, kCloseNow, 0, 0);
        return;
    }
    // Inside the call: its client listens no longer than that.
    shown->UserCloses(CloseNotice::Urgency::InCalls);
    MSG message{};
    while (shown->notice_.IsOpen() && GetMessageW(&message, nullptr, 0, 0) > 0) DispatchMessageW(&message);
}

void StandInWindow::UserCloses(CloseNotice::Urgency urgency) {
    if (notice_.IsOpen()) return;
    LogOn::Cancel();
    EmailAccount::Cancel();
    Follow(notice_.Ask(window_, urgency));
}

void StandInWindow::Follow(CloseNotice::Outcome outcome) {
    if (outcome == CloseNotice::Outcome::Waiting && notice_.IsOpen())
        SetTimer(window_, kCloseTimer, kClosePoll, nullptr);
    else
        KillTimer(window_, kCloseTimer);
    if (outcome == CloseNotice::Outcome::MayClose)
        DestroyWindow(window_);
    else
        Refresh();
}

void StandInWindow::OpenHandedOver(const COPYDATASTRUCT& data) {
    const std::wstring path(static_cast<const wchar_t*>(data.lpData), data.cbData / sizeof(wchar_t) - 1);
    ReplyMessage(TRUE); // the log-on may take its time
    try {
        Session::OpenDatabase(path);
        Journal::Note(L"OpenDatabase", path);
    } catch (const Failure& failure) {
        Journal::Note(L"OpenDatabase", path, failure.Description);
    }
}

LRESULT StandInWindow::HandleCommand(int command) {
    switch (command) {
    case IDM_EXIT: UserCloses(CloseNotice::Urgency::WhenIdle); break;
    case IDM_REFRESH: Refresh(); break;
    case IDM_CLEAR:
        unseen_.clear();
        ListView_DeleteAllItems(calls_);
        Refresh();
        break;
    default: commands_.Launch(command); break;
    }
    return 0;
}

LRESULT StandInWindow::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == Protocol::Answer()) {
        const HWND component = reinterpret_cast<HWND>(wParam); // NOLINT(performance-no-int-to-ptr): a window
        Follow(notice_.Take(component, lParam != 0));
        return 0;
    }
    switch (message) {
    case WM_SIZE: Arrange(); return 0;
    case WM_COMMAND: return HandleCommand(LOWORD(wParam));
    case WM_CLOSE: UserCloses(CloseNotice::Urgency::WhenIdle); return 0;
    case WM_TIMER:
        if (wParam == kRefreshTimer)
            Refresh();
        else
            Follow(notice_.Check());
        return 0;
    case kCloseNow: DestroyWindow(window_); return 0;
    case WM_COPYDATA: OpenHandedOver(*reinterpret_cast<const COPYDATASTRUCT*>(lParam)); return TRUE; // NOLINT
    case WM_ENDSESSION:
        if (wParam) ClassObjects::Revoke();
        return 0;
    case WM_DESTROY:
        Journal::SetListener(nullptr);
        ClassObjects::Revoke();
        PostQuitMessage(0);
        return 0;
    default: return DefWindowProcW(window_, message, wParam, lParam);
    }
}

LRESULT CALLBACK StandInWindow::WindowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    // Nothing is handled before the constructor has all parts together.
    if (!shown || shown->window_ != window || !shown->status_) return DefWindowProcW(window, message, wParam, lParam);
    try {
        return shown->Handle(message, wParam, lParam);
    } catch (...) {
        return 0;
    }
}
