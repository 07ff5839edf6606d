#include "server/CommandBar.h"

#include "common/Journal.h"

#include <array>

namespace {

constexpr int kFirstInMenu = 2000;
constexpr int kFirstInToolbar = 3000;
constexpr std::array kViews{L"Contacts", L"Contact List", L"Groups", L"Task List", L"Calendars", L"E-mail"};

std::wstring Caption(const AuxCommands::Placed& command) {
    return kViews.at(static_cast<size_t>(command.View) - 1) + (L": " + command.Name);
}

} // namespace

void CommandBar::Show(HWND window) {
    inMenu_ = AuxCommands::In(L"ToolsMenu");
    inToolbar_ = AuxCommands::In(L"Toolbar");
    if (!inMenu_.empty()) ShowMenu(window);
    if (!inToolbar_.empty()) ShowToolbar(window);
}

void CommandBar::ShowMenu(HWND window) {
    MenuHandle menu(CreatePopupMenu());
    UINT_PTR identifier = kFirstInMenu;
    for (const AuxCommands::Placed& command : inMenu_)
        AppendMenuW(menu.Get(), MF_STRING, identifier++, Caption(command).c_str());
    if (AppendMenuW(GetMenu(window), MF_POPUP, reinterpret_cast<UINT_PTR>(menu.Get()), L"&Tools")) menu.Release();
    DrawMenuBar(window);
}

void CommandBar::ShowToolbar(HWND window) {
    toolbar_ = CreateWindowExW(0, TOOLBARCLASSNAMEW, L"", WS_CHILD | WS_VISIBLE | TBSTYLE_LIST | TBSTYLE_FLAT, 0, 0, 0,
                               0, window, nullptr, GetModuleHandleW(nullptr), nullptr);
    SendMessageW(toolbar_, TB_BUTTONSTRUCTSIZE, sizeof(TBBUTTON), 0);
    const int side = GetSystemMetrics(SM_CXSMICON);
    icons_.Reset(ImageList_Create(side, side, ILC_COLOR32 | ILC_MASK, static_cast<int>(inToolbar_.size()), 1));
    SendMessageW(toolbar_, TB_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(icons_.Get()));
    int identifier = kFirstInToolbar;
    for (const AuxCommands::Placed& command : inToolbar_) {
        const IconHandle icon(static_cast<HICON>(
            LoadImageW(nullptr, command.SmallIcon.c_str(), IMAGE_ICON, side, side, LR_LOADFROMFILE)));
        const std::wstring caption = Caption(command);
        TBBUTTON button{};
        button.iBitmap = icon ? ImageList_AddIcon(icons_.Get(), icon.Get()) : I_IMAGENONE;
        button.idCommand = identifier++;
        button.fsState = TBSTATE_ENABLED;
        button.fsStyle = BTNS_BUTTON | BTNS_AUTOSIZE | BTNS_SHOWTEXT;
        button.iString = reinterpret_cast<INT_PTR>(caption.c_str());
        SendMessageW(toolbar_, TB_ADDBUTTONSW, 1, reinterpret_cast<LPARAM>(&button));
    }
}

int CommandBar::Arrange() const {
    if (!toolbar_) return 0;
    SendMessageW(toolbar_, TB_AUTOSIZE, 0, 0);
    RECT place{};
    GetWindowRect(toolbar_, &place);
    return static_cast<int>(place.bottom - place.top);
}

void CommandBar::Launch(int identifier) const {
    const bool isInToolbar = identifier >= kFirstInToolbar;
    const auto& commands = isInToolbar ? inToolbar_ : inMenu_;
    const auto index = static_cast<size_t>(identifier - (isInToolbar ? kFirstInToolbar : kFirstInMenu));
    if (index >= commands.size()) return;
    const AuxCommands::Placed& command = commands[index];
    Journal::Note(L"LaunchCommand", command.Program);
    ShellExecuteW(nullptr, L"open", command.Program.c_str(), nullptr, command.Folder.c_str(), SW_SHOWNORMAL);
}
