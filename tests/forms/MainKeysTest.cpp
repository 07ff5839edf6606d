// The main window's keys and commands, its find box, its layout, and what it tells of the files behind its rows.

#include "i18n/modLangues.h"
#include "support/ActDesk.h"
#include "support/Application.h"
#include "support/Detour.h"
#include "support/Look.h"

#include <shellapi.h>

#include <algorithm>

extern decltype(&ShellExecuteExW) importedShellExecute __asm__("__imp__ShellExecuteExW@4");

namespace {

std::wstring startedFile;

BOOL WINAPI NoteStart(SHELLEXECUTEINFOW* execute) {
    startedFile = execute->lpFile;
    return TRUE;
}

void AddThree(ActDesk& desk) {
    desk.Act.OpenDatabase = desk.SettingsFile(); // a file that is there
    desk.AddDatabase(L"Sales", {{L"Path", desk.SettingsFile()}, {L"CLY", L"C:\\Act\\Layout\\Sales.cly"}});
    desk.AddDatabase(L"Service", {{L"Path", L"C:\\Gone\\Service.dbf"}, {L"CLY", L"x"}});
    desk.AddDatabase(L"Staff", {{L"Path", L"C:\\Gone\\Staff.dbf"}, {L"CLY", L"x"}});
    UserStore::Set(L"Display", L"Selected", L"0");
}

LRESULT Shown(const frmMain& window) { return SendMessageW(window.ListView1.Handle(), LVM_GETITEMCOUNT, 0, 0); }

std::wstring SelectedName(const frmMain& window) { return window.ListView1.Cell(window.ListView1.Selected(), 0); }

std::wstring TipAt(const frmMain& window, int item) {
    RECT place{};
    place.left = LVIR_LABEL;
    SendMessageW(window.ListView1.Handle(), LVM_GETITEMRECT, static_cast<WPARAM>(item),
                 reinterpret_cast<LPARAM>(&place));
    POINT pointer{place.left + 5, (place.top + place.bottom) / 2};
    ClientToScreen(window.ListView1.Handle(), &pointer);
    SetCursorPos(pointer.x, pointer.y);
    NMTTDISPINFOW tip{};
    tip.hdr.code = TTN_GETDISPINFOW;
    tip.hdr.idFrom = reinterpret_cast<UINT_PTR>(window.ListView1.Handle());
    SendMessageW(window.Handle(), WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&tip));
    return tip.lpszText;
}

bool IsFaded(const frmMain& window, int item) {
    return SendMessageW(window.ListView1.Handle(), LVM_GETITEMSTATE, static_cast<WPARAM>(item), LVIS_CUT) != 0;
}

} // namespace

TEST_CASE("The find box narrows the rows; properties, opening and the end act on the row that is seen") {
    ActDesk desk;
    AddThree(desk);
    Main window;
    HWND list = window.ListView1.Handle();
    const Twips place = window.ListView1.Place();
    CHECK_FALSE(IsWindowVisible(window.txtFind.Handle()));
    window.ListView1.Sort(0, true); // Staff, Service, Sales
    TranslateKey(list, 'F', VK_CONTROL);
    CHECK(FocusIn(window.Handle()) == window.txtFind.Handle());
    CHECK(window.ListView1.Place().Top > place.Top);
    window.txtFind.Text(L"S");
    CHECK(Shown(window) == 3);
    CHECK(SelectedName(window) == L"Sales");
    window.txtFind.Text(L"gONE");
    CHECK(Shown(window) == 2);
    CHECK(SelectedName(window) == L"Staff");
    TranslateKey(window.txtFind.Handle(), VK_DOWN);
    CHECK(SelectedName(window) == L"Service");
    DialogScript script;
    script.Then([](HWND properties) {
        CHECK(WindowText(FindControl(properties, L"txtName")) == L"Service");
        Click(FindControl(properties, L"cmdCancel"));
    });
    TranslateKey(window.txtFind.Handle(), VK_F2);
    window.txtFind.Text(L"nowhere");
    CHECK(window.ListView1.Selected() == -1);
    TranslateKey(window.txtFind.Handle(), VK_ESCAPE);
    CHECK(Shown(window) == 3);
    CHECK(window.ListView1.Place().Top == place.Top);
    CHECK(window.ListView1.Place().Height == place.Height);
    CHECK(FocusIn(window.Handle()) == list);
    TranslateKey(list, '6', VK_CONTROL);
    CHECK(window.optView[5].Value());
}

TEST_CASE("Typed letters find a name, and the open database is told of in words too") {
    ActDesk desk;
    AddThree(desk);
    Main window;
    for (const wchar_t letter : {L'S', L't'}) SendMessageW(window.ListView1.Handle(), WM_CHAR, letter, 1);
    CHECK(SelectedName(window) == L"Staff");
    CHECK(window.ListView1.Note(0) == L"open in ACT!");
    CHECK(window.ListView1.Note(1).empty());
}

TEST_CASE("A row whose file is missing is faded and says so; a tip holds the whole of what a cell cuts") {
    ActDesk desk;
    AddThree(desk);
    Main window;
    PumpUntil([&] { return IsFaded(window, 1) && IsFaded(window, 2); });
    CHECK_FALSE(IsFaded(window, 0));
    CHECK(TipAt(window, 1).starts_with(L"The database file cannot be found:\r\nC:\\Gone\\Service.dbf"));
    CHECK(TipAt(window, 0).find(L"Contact Layout: C:\\Act\\Layout\\Sales.cly") != std::wstring::npos);
    // The marks stay when the list is narrowed or filled again, and a file that comes back is noticed then.
    window.ListView1.Fade(0, true);
    window.ListView1.ShowOnly([](int row) { return row == 1; });
    CHECK(IsFaded(window, 0)); // the only one shown
    DialogScript script;
    script.Then([](HWND dialog) { PostMessageW(dialog, WM_CLOSE, 0, 0); });
    window.mnuManageList.Click();
    CHECK(IsFaded(window, 1));
    PumpUntil([&] { return IsFaded(window, 1) && !IsFaded(window, 0); });
}

TEST_CASE("The manual of the language is opened, and where it is not installed the English one") {
    const std::pair<short, const wchar_t*> rows[] = {
        {0, L"Kelmorra_manual.pdf"}, {1, L"Kelmorra_manual.pdf"}, {2, L"Kelmorra_manual_de.pdf"}};
    const std::wstring installed = Application::FileInFolder(L"Kelmorra_manual_de.pdf");
    CloseHandle(CreateFileW(installed.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr));
    for (const auto& [language, manual] : rows) {
        ActDesk desk;
        UserStore::Set(L"Options", L"Language", std::to_wstring(language));
        Main window;
        const Detour start(importedShellExecute, NoteStart);
        window.mnuManual.Click();
        CHECK(startedFile == Application::FileInFolder(manual));
    }
    DeleteFileW(installed.c_str());
    modLangues::Init_Language(short{0});
}

TEST_CASE("Growing the window grows the list and keeps the distances to the right and lower edge") {
    ActDesk desk;
    Main window;
    window.Show();
    const RECT list = PlaceOf(window.ListView1.Handle());
    const RECT open = PlaceOf(window.cmdOpen.Handle());
    const RECT more = PlaceOf(window.lblMore.Handle());
    const RECT option = PlaceOf(window.optView[6].Handle());
    window.OuterSize(8475 + 1500, 5190 + 3000); // 100 and 200 pixels at 96 DPI
    const int right = ToPixels(1500, window.Dpi());
    const int down = ToPixels(3000, window.Dpi());
    const LRESULT styles = SendMessageW(window.ListView1.Handle(), LVM_GETEXTENDEDLISTVIEWSTYLE, 0, 0);
    CHECK((styles & LVS_EX_DOUBLEBUFFER) != 0); // or it would flicker
    CHECK(PlaceOf(window.ListView1.Handle()).right == list.right + right);
    CHECK(PlaceOf(window.ListView1.Handle()).bottom == list.bottom + down);
    CHECK(PlaceOf(window.cmdOpen.Handle()).left == open.left + right);
    CHECK(PlaceOf(window.cmdOpen.Handle()).top == open.top);
    CHECK(PlaceOf(window.lblMore.Handle()).top == more.top + down);
    CHECK(PlaceOf(window.optView[6].Handle()).top == option.top + down);
    CHECK(PlaceOf(window.optView[6].Handle()).left == option.left);
    window.OuterSize(3000, 3000);
    CHECK(ToPixels(window.OuterSize().Width, window.Dpi()) == ToPixels(8475, window.Dpi()));
    CHECK(ToPixels(window.OuterSize().Height, window.Dpi()) == ToPixels(5190, window.Dpi()));
    CHECK(PlaceOf(window.ListView1.Handle()).bottom == list.bottom);
}

TEST_CASE("The label of a view checks its option, only that one, and the list gets the focus back") {
    ActDesk desk;
    desk.AddDatabase(L"Sales", {});
    Main window;
    window.Show();
    CHECK(window.optView[0].Value());
    Press(window.Handle(), L"lblView", 5);
    CHECK(window.optView[5].Value());
    CHECK(std::ranges::count_if(window.optView, [](const OptionButton& option) { return option.Value(); }) == 1);
    CHECK(FocusIn(window.Handle()) == window.ListView1.Handle());
}
