// The main window's keys and commands, its find box, its layout, and what it tells of the files behind its rows.

#include "support/ActDesk.h"
#include "support/Look.h"

namespace {

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
    Press(window.Handle(), L"lblView", 2);
    CHECK(window.optView[2].Value());
    CHECK_FALSE(window.optView[5].Value());
    CHECK(FocusIn(window.Handle()) == list);
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

TEST_CASE("Growing the window grows the list and keeps the distances to the right and lower edge") {
    ActDesk desk;
    Main window;
    window.Show();
    const RECT list = PlaceOf(window.ListView1.Handle());
    const RECT open = PlaceOf(window.cmdOpen.Handle());
    const RECT option = PlaceOf(window.optView[6].Handle());
    window.OuterSize(8475 + 1500, 5190 + 3000);
    const int right = ToPixels(1500, window.Dpi());
    const int down = ToPixels(3000, window.Dpi());
    CHECK(PlaceOf(window.ListView1.Handle()).right == list.right + right);
    CHECK(PlaceOf(window.ListView1.Handle()).bottom == list.bottom + down);
    CHECK(PlaceOf(window.cmdOpen.Handle()).left == open.left + right);
    CHECK(PlaceOf(window.optView[6].Handle()).top == option.top + down);
    window.OuterSize(3000, 3000); // less than there may be
    CHECK(PlaceOf(window.ListView1.Handle()).bottom == list.bottom);
}
