// List maintenance, preference locations and the settings file's place.

#include "dialogs/frmListMaintenance.h"
#include "dialogs/frmPrefLocations.h"
#include "support/ActDesk.h"
#include "support/FakeMainWindow.h"

#include <algorithm>

namespace {

std::wstring Sort() { return IniLib::GetKeyValue(L"General", L"Sort"); }

bool IsEnabled(HWND dialog, const wchar_t* name) { return IsWindowEnabled(FindControl(dialog, name)) != FALSE; }

LRESULT Selected(HWND dialog) { return SendMessageW(FindControl(dialog, L"lstDB"), LB_GETCURSEL, 0, 0); }

/// Drags a line to the place of another, or below the lines, as the common controls tell of it.
void Drag(HWND dialog, int from, int to) {
    HWND list = FindControl(dialog, L"lstDB");
    const UINT message = RegisterWindowMessageW(DRAGLISTMSGSTRING);
    const auto notify = [&](UINT notification, int line) {
        RECT place{};
        const int last = static_cast<int>(SendMessageW(list, LB_GETCOUNT, 0, 0)) - 1;
        SendMessageW(list, LB_GETITEMRECT, static_cast<WPARAM>(std::min(line, last)), reinterpret_cast<LPARAM>(&place));
        if (line > last) OffsetRect(&place, 0, 3 * (place.bottom - place.top));
        DRAGLISTINFO drag{notification, list, {place.left + 5, (place.top + place.bottom) / 2}};
        ClientToScreen(list, &drag.ptCursor);
        return SendMessageW(dialog, message, static_cast<WPARAM>(GetDlgCtrlID(list)), reinterpret_cast<LPARAM>(&drag));
    };
    CHECK(notify(DL_BEGINDRAG, from) == TRUE);
    CHECK(notify(DL_DRAGGING, to) == DL_MOVECURSOR);
    notify(DL_DROPPED, to);
}

/// Shows the list dialog over a list of A, B and C and plays a step in it, and one in each window that it leads to.
/// Returns what the main window selects.
int Maintain(ActDesk& desk, int selected, const std::function<void(HWND)>& step,
             const std::vector<std::function<void(HWND)>>& inner = {}) {
    for (const wchar_t* name : {L"A", L"B", L"C"}) {
        desk.AddDatabase(name, {{L"Path", L"x"}});
        UserStore::Set(name, L"Username", L"Chris");
    }
    FakeMainWindow row(selected);
    DialogScript script;
    script.Then(step);
    for (const auto& further : inner) script.Then(further);
    frmListMaintenance(row).ShowModal();
    return row.Row;
}

} // namespace

TEST_CASE("Moves by button, key and mouse are written when the dialog closes, in any way; the line stays selected") {
    ActDesk desk;
    const int selected = Maintain(desk, 2, [](HWND dialog) {
        HWND list = FindControl(dialog, L"lstDB");
        CHECK(WindowText(dialog) == L"Manage List");
        CHECK(IsEnabled(dialog, L"cmdUp"));
        CHECK_FALSE(IsEnabled(dialog, L"cmdDown"));
        Press(dialog, L"cmdUp");
        TranslateKey(list, VK_UP, VK_MENU);
        CHECK_FALSE(IsEnabled(dialog, L"cmdUp"));
        TranslateKey(list, VK_DOWN, VK_MENU);
        CHECK(Selected(dialog) == 1);
        Drag(dialog, 1, 0);
        Drag(dialog, 0, 99);
        CHECK(Selected(dialog) == 2);
        Drag(dialog, 0, 1);
        CHECK(Sort() == L"A;B;C");
        PostMessageW(dialog, WM_CLOSE, 0, 0);
    });
    CHECK(Sort() == L"B;A;C");
    CHECK(selected == 1);
}

TEST_CASE("Removing clears both stores and the buttons at once; undone, one after another, all is as it was") {
    ActDesk desk;
    IniLib::WriteKeyValue(L"General", L"QuickSwitch", L"A;B;C;;;;;");
    IniLib::WriteKeyValue(L"B", L"Somebody's own", L"x");
    const int selected = Maintain(desk, 1, [](HWND dialog) {
        HWND list = FindControl(dialog, L"lstDB");
        UserStore::Set(L"B", L"Password", std::wstring(L"\0p", 2));
        Press(dialog, L"cmdRemove");
        CHECK(Sort() == L"A;C");
        CHECK(IniLib::GetKeyValue(L"B", L"Path").empty());
        CHECK(UserStore::Get(L"B", L"Username").empty());
        CHECK(IniLib::GetKeyValue(L"General", L"QuickSwitch") == L"A;C;;;;;");
        CHECK(Selected(dialog) == 1);
        TranslateKey(list, VK_DELETE);
        CHECK(Selected(dialog) == 0);
        CHECK_FALSE(IsEnabled(dialog, L"cmdUp"));
        CHECK_FALSE(IsEnabled(dialog, L"cmdDown"));
        Press(dialog, L"cmdRemove");
        CHECK_FALSE(IsEnabled(dialog, L"cmdRemove"));
        CHECK(Whole(L"General", L"QuickSwitch") == L";;;;");
        for (const wchar_t* names : {L"A", L"A;C", L"A;B;C", L"A;B;C"}) { // at last there is nothing to be undone
            TranslateKey(list, 'Z', VK_CONTROL);
            CHECK(Sort() == names);
        }
        Press(dialog, L"cmdClose");
    });
    CHECK(selected == 1);
    CHECK(IniLib::GetKeyValue(L"General", L"QuickSwitch") == L"A;B;C;;;;;");
    CHECK(IniLib::GetKeyValue(L"B", L"Somebody's own") == L"x");
    CHECK(UserStore::Get(L"A", L"Username") == L"Chris");
    CHECK(UserStore::Get(L"B", L"Password") == std::wstring(L"\0p", 2));
}

TEST_CASE("What somebody else adds and removes meanwhile is kept, and the user is told once") {
    ActDesk desk;
    const auto move = [](HWND dialog) {
        Press(dialog, L"cmdDown");
        IniLib::WriteKeyValue(L"General", L"Sort", L"A;C;Theirs");
        Press(dialog, L"cmdUp");
        Press(dialog, L"cmdDown");
        PostMessageW(dialog, WM_CLOSE, 0, 0);
    };
    const auto read = [](HWND notice) {
        CHECK(MessageText(notice).starts_with(L"Somebody else has changed the list"));
        Leave(notice);
    };
    Maintain(desk, 0, move, {read});
    CHECK(Sort() == L"A;C;Theirs");
}

TEST_CASE("An addition keeps the moves before it and is selected; a duplicate has its model's values and a free name") {
    ActDesk desk;
    desk.AddDatabase(L"New (2)", {});
    const auto addTwo = [](HWND dialog) {
        Press(dialog, L"cmdDown");
        Press(dialog, L"cmdAdd"); // returns when the properties dialog has ended
        CHECK(Selected(dialog) == 4);
        IniLib::WriteKeyValue(L"New", L"Query", L"q");
        TranslateKey(FindControl(dialog, L"lstDB"), 'D', VK_CONTROL);
        Click(FindControl(dialog, L"cmdClose"));
    };
    const auto add = [](HWND properties) {
        for (const wchar_t* box : {L"txtName", L"txtPath", L"txtCL", L"txtUsername"}) Type(properties, box, L"New");
        Click(FindControl(properties, L"cmdOK"));
    };
    const auto confirm = [](HWND properties) {
        CHECK(WindowText(FindControl(properties, L"txtName")) == L"New (3)");
        Click(FindControl(properties, L"cmdOK"));
    };
    Maintain(desk, 1, addTwo, {add, confirm});
    CHECK(Sort() == L"New (2);B;A;C;New;New (3)");
    CHECK(IniLib::GetKeyValue(L"New (3)", L"CLY") == L"New");
    CHECK(IniLib::GetKeyValue(L"New (3)", L"Query") == L"q");
    CHECK(UserStore::Get(L"New (3)", L"Username") == L"New");
}

TEST_CASE("Locations load and clear under the opened name and are written under the typed one") {
    ActDesk desk;
    desk.AddDatabase(L"Sales", {{L"Attached Email", L"C:\\Mail"}, {L"Spelling Dictionary", L"C:\\Words"}});
    DialogScript script;
    script.Then([](HWND dialog) {
        Press(dialog, L"cmdClear"); // the first row is selected
        Click(FindControl(dialog, L"cmdOK"));
    });
    script.Answer(IDYES);
    frmPrefLocations(L"Sales", L"Leads").ShowModal();
    CHECK(script.All()[1].Text == L"Are you sure you want to clear the location: Attached E-mail?");
    CHECK(IniLib::GetKeyValue(L"Sales", L"Attached Email").empty());
    CHECK(IniLib::GetKeyValue(L"Sales", L"Spelling Dictionary") == L"C:\\Words");
    CHECK(IniLib::GetKeyValue(L"Leads", L"Spelling Dictionary") == L"C:\\Words");
    CHECK(desk.SettingsBytes().find("Attached Email=\r\n") != std::string::npos); // written, though empty
}

TEST_CASE("Another settings file is taken over from the next start on, but only when it exists") {
    ActDesk desk;
    const std::wstring current = desk.SettingsFile();
    const std::pair<std::wstring, const wchar_t*> rows[] = {
        {current, nullptr},
        {L"C:\\No such.ini", L"Invalid file specified!"},
        {desk.file.Folder(), L"Please close and restart Kelmorra for the changes to take effect."}};
    Main window;
    for (const auto& [typed, notice] : rows) {
        const bool isTaken = typed == desk.file.Folder();
        DialogScript script;
        script.Then([&](HWND dialog) {
            Type(dialog, L"txtPath", typed);
            Press(dialog, L"cmdOK");
            if (notice && !isTaken) Click(FindControl(dialog, L"cmdCancel"));
        });
        if (notice) script.Answer(IDOK);
        window.mnuSettingsLocation.Click();
        if (notice) CHECK(script.All()[1].Text == notice);
        CHECK(UserStore::Get(L"Settings", L"IniLocation") == (isTaken ? typed : current));
        CHECK(IniLib::SettingsFile() == (isTaken ? typed : current));
    }
}
