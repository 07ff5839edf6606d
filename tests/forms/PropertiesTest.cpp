// The properties dialog: validation, both stores, renaming.

#include "databases/DatabaseList.h"
#include "dialogs/frmProperties.h"
#include "i18n/modLangues.h"
#include "program/Program.h"
#include "stores/IniLib.h"
#include "stores/UserStore.h"
#include "stores/modEnCrypt.h"
#include "support/ActDesk.h"
#include "support/DialogScript.h"
#include "support/FakeMainWindow.h"
#include "support/Wide.h"

namespace {

/// Opens the dialog for a database ("" for a new one), types into its boxes, and presses OK. What then happens to
/// message boxes and to the dialog itself is up to the script.
struct Session {
    FakeMainWindow Row;
    frmProperties Dialog{&Row};
    DialogScript Script;

    void Open(const wchar_t* name, const std::function<void(HWND)>& step) {
        Program().FriendlyName = name;
        Program().DatabaseNames = DatabaseList::Read(*IniLib::ReadFile()).shown;
        Dialog.IsNew(*name == L'\0');
        Script.Then(step);
    }
    void Run() { Dialog.ShowModal(); }
};

constexpr const wchar_t* kFolders[] = {L"Attached Email",
                                       L"Database",
                                       L"Document",
                                       L"Document Template",
                                       L"Email Root Folder",
                                       L"Layout",
                                       L"Macro",
                                       L"NetLinks",
                                       L"Query",
                                       L"Synchronize",
                                       L"Report, Label, Envelope",
                                       L"Spelling Dictionary"};

void PressOK(HWND dialog) { Click(FindControl(dialog, L"cmdOK")); }

void FillNew(HWND dialog, const wchar_t* name) {
    Type(dialog, L"txtName", name);
    Type(dialog, L"txtPath", L"C:\\Data\\New.dbf");
    Type(dialog, L"txtCL", L"C:\\L\\New.cly");
    Type(dialog, L"txtUsername", L"Chris");
}

void AddSales(ActDesk& desk, const wchar_t* name = L"Sales") {
    desk.AddDatabase(name, {{L"Path", L"C:\\Data\\Sales.dbf"}, {L"CLY", L"C:\\L\\Sales.cly"}});
    UserStore::Set(name, L"Username", L"Chris");
}

} // namespace

TEST_CASE("A new database gets its section, its log-on values and its place at the end of the list") {
    ActDesk desk;
    AddSales(desk);
    Session session;
    session.Open(L"", [](HWND dialog) {
        CHECK(WindowText(dialog) == L"Properties");
        FillNew(dialog, L"  Team A\t");
        PressOK(dialog);
    });
    session.Run();
    CHECK_FALSE(session.Dialog.Cancelled());
    CHECK(IniValue(L"General", L"Sort") == L"Sales;Team A");
    CHECK(IniValue(L"Team A", L"Path") == L"C:\\Data\\New.dbf");
    CHECK(IniValue(L"Team A", L"UseLocationsFrom") == L"(none)");
    CHECK(UserValue(L"Team A", L"Username") == L"Chris");
    CHECK(UserValue(L"Team A", L"UsePassword") == L"0");
    CHECK(UserValue(L"Team A", L"Password") == L"(none)");
    CHECK(session.Row.Replaced.empty());
}

TEST_CASE("No longer name can be typed than the log-on can be stored under") {
    ActDesk desk;
    Session session;
    session.Open(L"", [](HWND dialog) {
        FillNew(dialog, L"");
        for (int count = 0; count < 300; ++count) SendMessageW(FindControl(dialog, L"txtName"), WM_CHAR, L'n', 0);
        PressOK(dialog);
    });
    session.Run();
    CHECK(IniValue(L"General", L"Sort") == std::wstring(255, L'n'));
    CHECK(UserValue(std::wstring(255, L'n'), L"Username") == L"Chris");
}

TEST_CASE("Input that is refused names the reason, shows its tab, and writes nothing") {
    struct Case {
        const wchar_t* box;
        const wchar_t* text;
        int messageRow; ///< 0: the fixed text about the user name
        int tab;
    };
    for (const Case& test : {Case{L"txtUsername", L"", 0, 2}, Case{L"txtName", L" ", 121, 0},
                             Case{L"txtName", L"Service", 121, 0}, Case{L"txtCL", L"", 93, 0}}) {
        ActDesk desk;
        AddSales(desk);
        desk.AddDatabase(L"Service", {});
        const std::string before = desk.SettingsBytes();
        Session session;
        session.Open(L"Sales", [&](HWND dialog) {
            Type(dialog, L"txtPath", L"C:\\Changed.dbf");
            Type(dialog, test.box, test.text);
            PressOK(dialog);
        });
        session.Script.Answer(IDOK);
        HWND dialog = nullptr;
        const std::wstring expected =
            test.messageRow ? LangText[test.messageRow] : L"Please enter a username for this database!";
        session.Dialog.Load();
        dialog = session.Dialog.Handle();
        session.Dialog.Show();
        PumpUntil([&] { return session.Script.All().size() == 2 && IsWindowEnabled(dialog); });
        REQUIRE(session.Script.All().size() == 2);
        CHECK(session.Script.All()[1].Title == L"Kelmorra");
        CHECK(session.Script.All()[1].Text == expected);
        CHECK(session.Dialog.mstOptions.Tab() == test.tab);
        CHECK(FocusIn(dialog) == FindControl(dialog, test.box));
        CHECK_FALSE(session.Dialog.Unloaded());
        CHECK(desk.SettingsBytes() == before);
        CHECK(UserValue(L"Sales", L"UsePassword") == L"(none)");
        if (test.messageRow == 121) CHECK(WindowText(FindControl(dialog, L"txtName")) == L"Sales");
    }
}

TEST_CASE("Leaving the first tab checks the name; a missing path is reported but can be saved") {
    ActDesk desk;
    AddSales(desk);
    Session session;
    session.Open(L"Sales", [&](HWND dialog) {
        Type(dialog, L"txtPath", L"");
        session.Dialog.mstOptions.Tab(1);
        CHECK(session.Dialog.mstOptions.Tab() == 0); // the report brought the first tab back
        PressOK(dialog);
    });
    session.Script.Answer(IDOK).Answer(IDOK);
    session.Run();
    REQUIRE(session.Script.All().size() == 3);
    CHECK(session.Script.All()[1].Text == LangText[123]);
    CHECK(session.Script.All()[2].Text == LangText[123]);
    CHECK(IniValue(L"Sales", L"Path") == L"(none)"); // an empty value reads as none
    CHECK(session.Row.Replaced == L"Sales");
}

TEST_CASE("A password is enciphered whatever its bytes, comes back, and goes when it is not to be used") {
    ActDesk desk;
    AddSales(desk);
    // Chosen so that its cipher text holds NUL, CR and LF: the key's letters from the second on are E, L, M.
    const std::wstring password = modEnCrypt::DecryptText(std::wstring(L"\0\r\n", 3), L"Kelmorra") + L"\u00e9";
    {
        Session session;
        session.Open(L"Sales", [&](HWND dialog) {
            CHECK_FALSE(IsWindowEnabled(FindControl(dialog, L"txtPassword")));
            Click(FindControl(dialog, L"chkPassword"));
            PumpUntil([&] { return IsWindowEnabled(FindControl(dialog, L"txtPassword")) != FALSE; });
            Type(dialog, L"txtPassword", password.c_str());
            PressOK(dialog);
        });
        session.Run();
    }
    CHECK(UserValue(L"Sales", L"UsePassword") == L"1");
    CHECK(UserValue(L"Sales", L"Password").starts_with(std::wstring(L"\0\r\n", 3)));
    CHECK(modEnCrypt::DecryptText(UserValue(L"Sales", L"Password"), L"Kelmorra") == password);
    {
        Session session;
        session.Open(L"Sales", [&](HWND dialog) {
            CHECK(WindowText(FindControl(dialog, L"txtPassword")) == password);
            Click(FindControl(dialog, L"chkPassword"));
            PumpUntil([&] { return !IsWindowEnabled(FindControl(dialog, L"txtPassword")); });
            PressOK(dialog);
        });
        session.Run();
    }
    CHECK(UserValue(L"Sales", L"Password") == L"(none)");
    CHECK(UserValue(L"Sales", L"UsePassword") == L"0");
}

TEST_CASE("A rename replaces the text in the list, whole elements on the buttons, and takes everything along") {
    ActDesk desk;
    AddSales(desk, L"BigSales");
    AddSales(desk, L"Sales");
    desk.AddDatabase(L"Staff", {{L"UseLocationsFrom", L"Sales"}, {L"Path", L"x"}});
    for (const wchar_t* folder : kFolders) IniLib::WriteKeyValue(L"Sales", folder, std::wstring(L"C:\\") + folder);
    IniLib::WriteKeyValue(L"General", L"QuickSwitch", L"Sales;Sales;BigSales;;;;;");
    UserStore::Set(L"Sales", L"NoPasswordAtACTStartup", L"1");
    Session session;
    session.Open(L"Sales", [](HWND dialog) {
        Type(dialog, L"txtName", L"Leads");
        PressOK(dialog);
    });
    session.Run();
    CHECK(IniValue(L"General", L"Sort") == L"BigLeads;Leads;Staff");
    CHECK(IniValue(L"General", L"QuickSwitch") == L"Leads;Leads;BigSales;;;;;");
    CHECK(IniValue(L"Leads", L"Path") == L"C:\\Data\\Sales.dbf");
    for (const wchar_t* folder : kFolders) CHECK(IniValue(L"Leads", folder) == std::wstring(L"C:\\") + folder);
    CHECK(IniValue(L"Sales", L"Path") == L"(none)");
    CHECK(IniValue(L"Staff", L"UseLocationsFrom") == L"Leads");
    CHECK(UserValue(L"Leads", L"Username") == L"Chris");
    CHECK(UserValue(L"Leads", L"NoPasswordAtACTStartup") == L"1");
    CHECK(UserValue(L"Sales", L"Username") == L"(none)");
    CHECK(session.Row.Replaced == L"Leads");
}

TEST_CASE("Locations borrowed from another database replace the own ones, and back") {
    ActDesk desk;
    AddSales(desk);
    desk.AddDatabase(L"Service", {});
    IniLib::WriteKeyValue(L"Sales", L"Query", L"C:\\Q");
    {
        Session session;
        session.Open(L"Sales", [&](HWND dialog) {
            CHECK(session.Dialog.optLocations[1].Value());
            HWND list = FindControl(dialog, L"cboDB");
            CHECK(SendMessageW(list, CB_GETCOUNT, 0, 0) == 1); // not the database itself
            SendMessageW(list, CB_SETCURSEL, 0, 0);
            SendMessageW(dialog, WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(list), CBN_SELCHANGE),
                         reinterpret_cast<LPARAM>(list));
            CHECK(session.Dialog.optLocations[0].Value());
            PressOK(dialog);
        });
        session.Run();
    }
    CHECK(IniValue(L"Sales", L"UseLocationsFrom") == L"Service");
    CHECK(IniValue(L"Sales", L"Query") == L"(none)");
    {
        Session session;
        session.Open(L"Sales", [&](HWND dialog) {
            CHECK(session.Dialog.cboDB.SelectedText() == L"Service");
            session.Dialog.optLocations[0].Value(false);
            session.Dialog.optLocations[1].Value(true);
            PressOK(dialog);
        });
        session.Run();
    }
    CHECK(IniValue(L"Sales", L"UseLocationsFrom") == L"(none)");
}

TEST_CASE("Cancel, Esc and the close box write nothing") {
    for (const bool byCloseBox : {false, true}) {
        ActDesk desk;
        const std::string before = desk.SettingsBytes();
        Session session;
        session.Open(L"", [&](HWND dialog) {
            FillNew(dialog, L"Team");
            SendMessageW(dialog, WM_SETCURSOR, reinterpret_cast<WPARAM>(dialog), MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
            CHECK(IsWindowVisible(dialog)); // the mouse over its bare parts does nothing
            if (byCloseBox)
                PostMessageW(dialog, WM_CLOSE, 0, 0);
            else
                Click(FindControl(dialog, L"cmdCancel"));
        });
        session.Run();
        CHECK(session.Dialog.Cancelled());
        CHECK(desk.SettingsBytes() == before);
        CHECK(UserValue(L"Team", L"Username") == L"(none)");
    }
}
