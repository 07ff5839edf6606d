// The palette, its settings dialog, and the start of ACT! from it.

#include "quickswitch/frmAssign.h"
#include "quickswitch/frmQuickSwitch.h"
#include "support/ActDesk.h"
#include "support/FakeMainWindow.h"
#include "support/Look.h"

namespace {

void Assign(const wchar_t* buttons) { IniLib::WriteKeyValue(L"General", L"QuickSwitch", buttons); }

/// Shows the palette and plays one step in it. What it let the main window open, and how often it brought it back.
std::pair<std::wstring, int> Show(const std::function<void(frmQuickSwitch&, HWND)>& step) {
    FakeMainWindow main;
    frmQuickSwitch palette(main);
    DialogScript script;
    script.Then([&](HWND window) { step(palette, window); });
    palette.ShowModal();
    return {main.Opened, main.Shown};
}

} // namespace

TEST_CASE("The palette is as wide as its highest assigned pair of buttons needs") {
    struct Case {
        const wchar_t* buttons;
        int width;
        bool isThirdShown;
    };
    for (const auto& [buttons, width, isThirdShown] :
         {Case{L"A;B", 1440, false}, Case{L";;C", 2580, true}, Case{L";;;;;F", 3725, true},
          Case{L";;;;;;;H", 4865, true}, Case{L";;;;;;;;tenth;I", 1440, false}}) {
        ActDesk desk;
        Assign(buttons);
        Show([&](frmQuickSwitch& palette, HWND window) {
            CHECK(ToPixels(palette.OuterSize().Width, palette.Dpi()) == ToPixels(width, palette.Dpi()));
            CHECK(palette.OuterSize().Height == 2400);
            CHECK((IsWindowVisible(FindControl(window, L"pic3")) != FALSE) == isThirdShown);
            CHECK((GetWindowLongPtrW(window, GWL_EXSTYLE) & WS_EX_TOPMOST) != 0);
            palette.mnuExit.Click();
        });
    }
}

TEST_CASE("A button opens its database once; that of the open database is in parentheses and dead") {
    ActDesk desk;
    Assign(L"Sales;Service");
    Program().OpenDatabaseNames = L"|Service||Sal|";
    const auto [opened, shown] = Show([](frmQuickSwitch&, HWND window) {
        CHECK(WindowText(FindControl(window, L"pic1")) == L"Sales");
        CHECK(WindowText(FindControl(window, L"pic2")) == L"(Service)");
        Press(window, L"pic2");
        Press(window, L"pic3");
        Press(window, L"pic1");
        Press(window, L"pic1");
    });
    CHECK(opened == L"Sales/0/hidden;");
    CHECK(shown == 0);
}

TEST_CASE("Only closing the palette brings the main window back; Exit, Esc and a button do not") {
    struct Case {
        void (*leave)(frmQuickSwitch&, HWND);
        int shown;
    };
    for (const Case& test :
         {Case{[](frmQuickSwitch&palette, HWND) { palette.mnuControlClose.Click(); }, 1},
          Case{[](frmQuickSwitch&, HWND window) { PostMessageW(window, WM_CLOSE, 0, 0); }, 1},
          Case{[](frmQuickSwitch&palette, HWND) { palette.mnuExit.Click(); }, 0},
          Case{[](frmQuickSwitch&, HWND window) { PostMessageW(FocusIn(window), WM_KEYDOWN, VK_ESCAPE, 1); }, 0}}) {
        ActDesk desk;
        CHECK(Show(test.leave).second == test.shown);
    }
}

TEST_CASE("Keys move the focus and press buttons") {
    ActDesk desk;
    Assign(L"A;B;C;D");
    const auto [opened, shown] = Show([](frmQuickSwitch&, HWND window) {
        CHECK(FocusIn(window) == FindControl(window, L"pic1"));
        SendMessageW(FocusIn(window), WM_KEYDOWN, VK_RIGHT, 1);
        CHECK(FocusIn(window) == FindControl(window, L"pic3"));
        SendMessageW(FocusIn(window), WM_KEYDOWN, VK_DOWN, 1);
        CHECK(FocusIn(window) == FindControl(window, L"pic4"));
        SendMessageW(FocusIn(window), WM_KEYDOWN, VK_RIGHT, 1); // no further column
        CHECK(FocusIn(window) == FindControl(window, L"pic4"));
        SendMessageW(FocusIn(window), WM_KEYDOWN, VK_NUMPAD2, 1);
    });
    CHECK(opened == L"B/0/hidden;");
}

TEST_CASE("The settings offer every database, drop a vanished name, and write all three keys") {
    ActDesk desk;
    desk.AddDatabase(L"Sales", {});
    desk.AddDatabase(L"Service", {});
    Assign(L"Gone;Service");
    frmAssign dialog;
    DialogScript script;
    script.Then([&](HWND window) {
        CHECK(SendMessageW(FindControl(window, L"cboDB", 0), CB_GETCOUNT, 0, 0) == 3);
        CHECK(dialog.cboDB[0].SelectedText().empty());
        CHECK(dialog.cboDB[1].SelectedText() == L"Service");
        dialog.cboDB[7].Select(L"Sales");
        Press(window, L"picSample", 3);
        dialog.chkStartup.Value(true);
        Click(FindControl(window, L"cmdOK"));
    });
    dialog.ShowModal();
    CHECK(IniLib::GetKeyValue(L"General", L"QuickSwitch") == L";Service;;;;;;Sales");
    CHECK(IniLib::GetKeyValue(L"General", L"QuickSwitchScheme") == L"3");
    CHECK(IniLib::GetKeyValue(L"General", L"QuickSwitchStartup") == L"1");
}

TEST_CASE("Without a running ACT! the palette's choice goes into ACT!'s own settings; without one nothing is written") {
    for (const bool isChosen : {false, true}) {
        ActDesk desk;
        MakeActKeys();
        desk.Act.InstanceCount = 0;
        desk.AddDatabase(L"Sales",
                         {{L"Path", L"C:\\Data\\Sales.dbf"}, {L"CLY", L"C:\\L\\S.cly"}, {L"Query", L"C:\\Q"}});
        UserStore::Set(L"Logon", L"Username", L"before");
        Assign(L"Sales");
        IniLib::WriteKeyValue(L"General", L"QuickSwitchStartup", L"1");
        DialogScript script;
        script.Then([&](HWND window) { Press(window, isChosen ? L"pic1" : L"cmdCancel"); });
        if (isChosen) {
            script.Answer(IDOK).Then([](HWND properties) {
                Type(properties, L"txtUsername", L"Pat Doe");
                Click(FindControl(properties, L"cmdOK"));
            });
            script.Answer(IDOK); // no program is associated with ".dbf" in this prefix
        }
        Main window;
        RunToEnd(window);
        CHECK(ActValue(L"\\Database", L"Last DB Name") == (isChosen ? L"C:\\Data\\Sales.dbf" : L"(none)"));
        CHECK(ActValue(L"\\Database", L"Contact Layout") == (isChosen ? L"C:\\L\\S.cly" : L"(none)"));
        CHECK(ActValue(L"\\Database", L"Group Layout") == L"(none)"); // empty: ACT! keeps its own
        CHECK(ActValue(L"\\Database", L"Use Last DB") == (isChosen ? L"1" : L"(none)"));
        CHECK(ActValue(L"\\General", L"Macro Name") == (isChosen ? L"" : L"(none)"));
        CHECK(ActValue(L"", L"Query File Type") == (isChosen ? L"C:\\Q" : L"(none)"));
        CHECK(UserValue(L"Logon", L"Username") == L"before");
        CHECK(UserValue(L"Sales", L"Username") == (isChosen ? L"Pat Doe" : L"(none)"));
        if (isChosen) CHECK(script.All().back().Text == L"Please run ACT! before running Kelmorra");
        CHECK(desk.Act.CallsSince(0) == L"InstanceCount()\nRegistrationFailed()\nClose()\n");
    }
}

TEST_CASE("A button is lit while the pointer is on it, and no longer when the palette is left by key") {
    ActDesk desk;
    Assign(L"A;B;C");
    Show([](frmQuickSwitch& palette, HWND window) {
        HWND box = FindControl(window, L"pic2");
        const COLORREF dark = ColorAtEdge(box, true);
        HoverOver(box);
        CHECK(ColorAtEdge(box, true) != dark);
        SendMessageW(box, WM_MOUSELEAVE, 0, 0);
        HoverOver(FindControl(window, L"pic1"));
        CHECK(ColorAtEdge(box, true) == dark);
        HoverOver(box);
        SendMessageW(window, WM_ACTIVATE, WA_INACTIVE, 0);
        CHECK(ColorAtEdge(box, true) == dark);
        palette.mnuExit.Click();
    });
}
