// The main window's list of databases.

#include "support/ActDesk.h"

namespace {

std::wstring ColumnTitle(const frmMain& window, int column) {
    std::wstring text(100, L'\0');
    LVCOLUMNW query{};
    query.mask = LVCF_TEXT;
    query.pszText = text.data();
    query.cchTextMax = 100;
    SendMessageW(window.ListView1.Handle(), LVM_GETCOLUMNW, static_cast<WPARAM>(column),
                 reinterpret_cast<LPARAM>(&query));
    return text.c_str();
}

void ClickColumn(const frmMain& window, int column) {
    NMLISTVIEW click{};
    click.hdr = {window.ListView1.Handle(), 0, LVN_COLUMNCLICK};
    click.iSubItem = column;
    SendMessageW(window.Handle(), WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&click));
}

/// The colour in which the row is drawn.
COLORREF DrawnColor(const frmMain& window, int row) {
    NMLVCUSTOMDRAW draw{};
    draw.nmcd.hdr = {window.ListView1.Handle(), 0, NM_CUSTOMDRAW};
    draw.nmcd.dwDrawStage = CDDS_ITEMPREPAINT;
    draw.nmcd.lItemlParam = row;
    draw.clrText = CLR_DEFAULT;
    SendMessageW(window.Handle(), WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&draw));
    return draw.clrText;
}

std::wstring FirstShown(const frmMain& window) {
    std::wstring text(100, L'\0');
    LVITEMW query{};
    query.pszText = text.data();
    query.cchTextMax = 100;
    SendMessageW(window.ListView1.Handle(), LVM_GETITEMTEXTW, 0, reinterpret_cast<LPARAM>(&query));
    return text.c_str();
}

} // namespace

TEST_CASE("Rows show bare names for files in ACT!'s own folders and mark the open database in red") {
    ActDesk desk;
    desk.Act.OpenDatabase = L"c:\\data\\SALES.dbf";
    desk.AddDatabase(L"Sales", {{L"Path", L"C:\\Data\\Sales.dbf"},
                                {L"CLY", L"c:\\act\\layout\\Sales.cly"},
                                {L"GLY", L"D:\\Other\\Sales.gly"},
                                {L"StartupMacro", L"C:\\Act\\Macro\\Hello.mpr"}});
    desk.AddDatabase(L"Service", {{L"Path", L"C:\\Data\\Service.dbf"}, {L"CLY", L"C:\\Act\\Layouts\\x.cly"}});
    desk.AddDatabase(L"Nothing", {});
    Main window;
    const ListView& list = window.ListView1;
    REQUIRE(list.RowCount() == 3);
    CHECK(list.Cell(0, 1) == L"Sales.cly");
    CHECK(list.Cell(0, 2) == L"D:\\Other\\Sales.gly");
    CHECK(list.Cell(0, 3) == L"Hello.mpr");
    CHECK(list.Cell(0, 4) == L"C:\\Data\\Sales.dbf");
    CHECK(list.Cell(1, 1) == L"C:\\Act\\Layouts\\x.cly");
    CHECK(DrawnColor(window, 0) == RGB(255, 0, 0));
    CHECK(DrawnColor(window, 1) == CLR_DEFAULT);
    CHECK(Program().OpenDatabaseNames == L"|Sales|");
}

TEST_CASE("A click on a column sorts, a second one reverses; the selection counts in list order all the same") {
    ActDesk desk;
    for (const wchar_t* name : {L"Mike", L"Zulu", L"alpha"}) desk.AddDatabase(name, {});
    UserStore::Set(L"Display", L"Selected", L"1");
    Main window;
    CHECK(FirstShown(window) == L"Mike");
    CHECK(ColumnTitle(window, 0) == L"Database");
    ClickColumn(window, 0);
    CHECK(FirstShown(window) == L"alpha");
    CHECK(ColumnTitle(window, 0) == L"> Database");
    ClickColumn(window, 0);
    CHECK(FirstShown(window) == L"Zulu");
    CHECK(ColumnTitle(window, 0) == L"< Database");
    CHECK(window.ListView1.Selected() == 1);
    CHECK(window.ListView1.Cell(1, 0) == L"Zulu");
    End(window);
    CHECK(UserStore::Get(L"Display", L"Selected") == L"1");
}

TEST_CASE("A change of language keeps rows, size and the sort marker, and does not connect to ACT! again") {
    ActDesk desk;
    desk.AddDatabase(L"Sales", {});
    desk.AddDatabase(L"Service", {});
    Main window;
    window.OuterSize(9990, 6000);
    ClickColumn(window, 4);
    desk.Act.Calls.clear();
    {
        DialogScript script;
        script.Then([](HWND dialog) {
            SendMessageW(FindControl(dialog, L"cmbLanguage"), CB_SETCURSEL, 2, 0);
            Click(FindControl(dialog, L"cmdOK"));
        });
        window.mnuLanguages.Click();
    }
    CHECK(window.ListView1.RowCount() == 2);
    CHECK(IsWindowEnabled(window.Handle()));
    CHECK(GetActiveWindow() == window.Handle());
    CHECK(ColumnTitle(window, 4).starts_with(L"> "));
    CHECK(WindowText(window.cmdCancel.Handle()) == L"&Abbrechen");
    CHECK(window.OuterSize().Width == 9990);
    CHECK(desk.Act.CallsSince(0).find(L"OpenFile") == std::wstring::npos);
}
