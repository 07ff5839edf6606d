// The properties dialog: validation, both stores, renaming.

#include "databases/DatabaseList.h"
#include "databases/Keys.h"
#include "dialogs/frmProperties.h"
#include "i18n/Caption.h"
#include "i18n/modLangues.h"
#include "stores/modEnCrypt.h"
#include "support/ActDesk.h"
#include "support/FakeMainWindow.h"

namespace {

/// What came of showing the dialog.
struct Outcome {
    bool IsCancelled;
    std::wstring Replaced;
    std::vector<DialogScript::Seen> Seen;
};

/// Shows the dialog for a database ("" for a new one), plays a step in it and presses OK; `boxes` is how many message
/// boxes are answered.
Outcome Play(const wchar_t* name, const std::function<void(frmProperties&, HWND)>& step, int boxes = 0,
             const wchar_t* button = L"cmdOK") {
    FakeMainWindow row;
    frmProperties dialog(&row);
    Program().FriendlyName = name;
    Program().DatabaseNames = DatabaseList::Read(*IniLib::ReadFile()).shown;
    dialog.IsNew(*name == L'\0');
    DialogScript script;
    script.Then([&](HWND window) {
        step(dialog, window);
        Click(FindControl(window, button));
    });
    for (int box = 0; box < boxes; ++box) script.Answer(IDOK);
    dialog.ShowModal();
    return {dialog.Cancelled(), row.Replaced, script.All()};
}

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

TEST_CASE("A new database gets its values and its place; no longer name can be typed than a log-on is stored under") {
    ActDesk desk;
    AddSales(desk);
    const Outcome outcome = Play(L"", [](frmProperties&, HWND dialog) {
        FillNew(dialog, L"");
        for (int count = 0; count < 300; ++count) SendMessageW(FindControl(dialog, L"txtName"), WM_CHAR, L'n', 0);
    });
    CHECK_FALSE(outcome.IsCancelled);
    const std::wstring name(255, L'n');
    CHECK(IniValue(L"General", L"Sort") == L"Sales;" + name);
    CHECK(IniValue(name, L"Path") == L"C:\\Data\\New.dbf");
    CHECK(UserValue(name, L"Username") == L"Chris");
    CHECK(UserValue(name, L"UsePassword") == L"0");
}

TEST_CASE("Input that is refused names the reason, shows its tab, and writes nothing") {
    struct Case {
        const wchar_t* box;
        const wchar_t* text;
        std::wstring message;
        int tab;
    };
    for (const Case& test : {Case{L"txtUsername", L"", L"Please enter a username for this database!", 2},
                             Case{L"txtName", L" ", LangText[Caption::UniqueNameNeeded], 0},
                             Case{L"txtName", L"Service", LangText[Caption::UniqueNameNeeded], 0},
                             Case{L"txtCL", L"", LangText[Caption::ContactLayoutNeeded], 0}}) {
        ActDesk desk;
        AddSales(desk);
        desk.AddDatabase(L"Service", {});
        const std::string before = desk.SettingsBytes();
        const auto confirm = [&](frmProperties& form, HWND dialog) {
            Type(dialog, L"txtPath", L"C:\\Changed.dbf");
            Type(dialog, test.box, test.text);
            Press(dialog, L"cmdOK");
            CHECK(form.mstOptions.Tab() == test.tab);
            CHECK(FocusIn(dialog) == FindControl(dialog, test.box));
            if (*test.text) CHECK(form.txtName.Text() == L"Sales");
        };
        const Outcome outcome = Play(L"Sales", confirm, 1, L"cmdCancel");
        CHECK(outcome.Seen.at(1).Text == test.message);
        CHECK(outcome.IsCancelled);
        CHECK(desk.SettingsBytes() == before);
        CHECK(UserValue(L"Sales", L"UsePassword") == L"(none)");
    }
}

TEST_CASE("Leaving the first tab checks the name; a missing path is reported but can be saved") {
    ActDesk desk;
    AddSales(desk);
    const auto leaveTab = [](frmProperties& form, HWND dialog) {
        Type(dialog, L"txtPath", L"");
        form.mstOptions.Tab(1);
        CHECK(form.mstOptions.Tab() == 0); // the report brought the first tab back
    };
    const Outcome outcome = Play(L"Sales", leaveTab, 2);
    for (const size_t box : {1U, 2U}) CHECK(outcome.Seen.at(box).Text == LangText[Caption::DatabaseNeeded]);
    CHECK(IniValue(L"Sales", L"Path") == L"(none)"); // an empty value reads as none
    CHECK(outcome.Replaced == L"Sales");
}

TEST_CASE("A password is enciphered whatever its bytes, comes back, and goes when it is not to be used") {
    ActDesk desk;
    AddSales(desk);
    // Chosen so that its cipher text holds NUL, CR and LF: the key's letters from the second on are E, L, M.
    const std::wstring password = modEnCrypt::DecryptText(std::wstring(L"\0\r\n", 3), L"Kelmorra") + L"\u00e9";
    Play(L"Sales", [&](frmProperties& form, HWND dialog) {
        CHECK_FALSE(IsWindowEnabled(form.txtPassword.Handle()));
        SendMessageW(form.chkPassword.Handle(), BM_CLICK, 0, 0);
        CHECK(IsWindowEnabled(form.txtPassword.Handle()));
        Type(dialog, L"txtPassword", password);
    });
    CHECK(UserValue(L"Sales", L"UsePassword") == L"1");
    CHECK(UserValue(L"Sales", L"Password").starts_with(std::wstring(L"\0\r\n", 3)));
    CHECK(modEnCrypt::DecryptText(UserValue(L"Sales", L"Password"), L"Kelmorra") == password);
    Play(L"Sales", [&](frmProperties& form, HWND) {
        CHECK(form.txtPassword.Text() == password);
        SendMessageW(form.chkPassword.Handle(), BM_CLICK, 0, 0);
        CHECK_FALSE(IsWindowEnabled(form.txtPassword.Handle()));
    });
    CHECK(UserValue(L"Sales", L"Password") == L"(none)");
    CHECK(UserValue(L"Sales", L"UsePassword") == L"0");
}

TEST_CASE("A rename replaces the text in the list, whole elements on the buttons, and takes everything along") {
    ActDesk desk;
    AddSales(desk, L"BigSales");
    AddSales(desk, L"Sales");
    desk.AddDatabase(L"Staff", {{L"UseLocationsFrom", L"Sales"}, {L"Path", L"x"}});
    for (const wchar_t* folder : Keys::Locations)
        IniLib::WriteKeyValue(L"Sales", folder, std::wstring(L"C:\\") + folder);
    IniLib::WriteKeyValue(L"General", L"QuickSwitch", L"Sales;Sales;BigSales;;;;;");
    UserStore::Set(L"Sales", L"NoPasswordAtACTStartup", L"1");
    const Outcome outcome = Play(L"Sales", [](frmProperties&, HWND dialog) { Type(dialog, L"txtName", L"Leads"); });
    CHECK(IniValue(L"General", L"Sort") == L"BigLeads;Leads;Staff");
    CHECK(IniValue(L"General", L"QuickSwitch") == L"Leads;Leads;BigSales;;;;;");
    CHECK(IniValue(L"Leads", L"Path") == L"C:\\Data\\Sales.dbf");
    for (const wchar_t* folder : Keys::Locations) CHECK(IniValue(L"Leads", folder) == std::wstring(L"C:\\") + folder);
    CHECK(IniValue(L"Sales", L"Path") == L"(none)");
    CHECK(IniValue(L"Staff", L"UseLocationsFrom") == L"Leads");
    CHECK(UserValue(L"Leads", L"Username") == L"Chris");
    CHECK(UserValue(L"Leads", L"NoPasswordAtACTStartup") == L"1");
    CHECK(UserValue(L"Sales", L"Username") == L"(none)");
    CHECK(outcome.Replaced == L"Leads");
}

TEST_CASE("Locations borrowed from another database replace the own ones") {
    ActDesk desk;
    AddSales(desk);
    desk.AddDatabase(L"Service", {});
    IniLib::WriteKeyValue(L"Sales", L"Query", L"C:\\Q");
    Play(L"Sales", [](frmProperties& form, HWND dialog) {
        CHECK(form.optLocations[1].Value());
        HWND list = FindControl(dialog, L"cboDB");
        CHECK(SendMessageW(list, CB_GETCOUNT, 0, 0) == 1); // not the database itself
        SendMessageW(list, CB_SETCURSEL, 0, 0);
        SendMessageW(dialog, WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(list), CBN_SELCHANGE), reinterpret_cast<LPARAM>(list));
        CHECK(form.optLocations[0].Value());
    });
    CHECK(IniValue(L"Sales", L"UseLocationsFrom") == L"Service");
    CHECK(IniValue(L"Sales", L"Query") == L"(none)");
}

TEST_CASE("Cancel writes nothing") {
    ActDesk desk;
    const std::string before = desk.SettingsBytes();
    const auto fill = [](frmProperties&, HWND dialog) { FillNew(dialog, L"Team"); };
    CHECK(Play(L"", fill, 0, L"cmdCancel").IsCancelled);
    CHECK(desk.SettingsBytes() == before);
    CHECK(UserValue(L"Team", L"Username") == L"(none)");
}
