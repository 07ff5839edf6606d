// The check of the whole list, adding what ACT! has open, and the list without a database.

#include "dialogs/frmCheck.h"
#include "dialogs/frmListMaintenance.h"
#include "dialogs/frmProperties.h"
#include "i18n/Caption.h"
#include "i18n/modLangues.h"
#include "support/ActDesk.h"
#include "support/FakeMainWindow.h"

namespace {

/// Set, it lets go of who waits for a share that does not answer.
KernelHandle answers;

bool Ask(const std::wstring& path) {
    if (path.starts_with(L"\\\\dead\\")) WaitForSingleObject(answers.Get(), INFINITE);
    return path.find(L"gone") == std::wstring::npos;
}

std::wstring Rows(const frmCheck& check) {
    std::wstring rows;
    for (int row = 0; row < check.lvwMissing.RowCount(); ++row) {
        for (int column = 0; column < 4; ++column) rows += check.lvwMissing.Cell(row, column) + L'|';
        rows += L'\n';
    }
    return rows;
}

std::wstring Clipboard() {
    OpenClipboard(nullptr);
    const HANDLE memory = GetClipboardData(CF_UNICODETEXT);
    const auto* const text = static_cast<const wchar_t*>(GlobalLock(memory));
    std::wstring copy = text ? text : L"";
    GlobalUnlock(memory);
    CloseClipboard();
    return copy;
}

} // namespace

TEST_CASE("The check tells of all that is missing, waits for no dead share, and leads to where each is mended") {
    ActDesk desk;
    answers.Reset(CreateEventW(nullptr, TRUE, FALSE, nullptr));
    desk.AddDatabase(L"Sales", {{L"Path", L"E:\\Sales.dbf"},
                                {L"CLY", L"E:\\gone.cly"},
                                {L"GLY", L"bare.gly"},
                                {L"StartupMacro", L"\\\\dead\\macros\\m.mpr"},
                                {L"Query", L"F:\\gone\\Query"}});
    desk.AddDatabase(L"Staff", {{L"Path", L"\\\\alive\\gone.dbf"}, {L"CLY", L"x"}, {L"UseLocationsFrom", L"Nobody"}});
    IniLib::WriteKeyValue(L"General", L"Sort", L"Sales;Staff;Ghost");
    UserStore::Set(L"Sales", L"Username", L"Nora Alder");
    FakeMainWindow main;
    DialogScript script;
    frmCheck check(main, &Ask);
    script.Then([&](HWND window) {
        PumpUntil([&] { return SendMessageW(check.barProgress.Handle(), PBM_GETPOS, 0, 0) == 4; });
        CHECK(check.cmdClose.Text() == LangText[Caption::Cancel]);
        Press(window, L"cmdClose"); // stops the looking and keeps the dialog
        CHECK(Rows(check) == L"Sales|Contact Layout|E:\\gone.cly|missing|\n"
                             L"Sales|Opening Macro|\\\\dead\\macros\\m.mpr|no answer|\n"
                             L"Sales|Query|F:\\gone\\Query|missing|\n"
                             L"Staff|Database Path|\\\\alive\\gone.dbf|missing|\n"
                             L"Staff|Use locations from|Nobody|missing|\n"
                             L"Staff|Username||missing|\n"
                             L"Ghost|Properties|" +
                                 IniLib::SettingsFile() + L"|missing|\n");
        TranslateKey(check.lvwMissing.Handle(), 'C', VK_CONTROL);
        CHECK(Clipboard().starts_with(L"Sales\tContact Layout\tE:\\gone.cly\tmissing\r\nSales\t"));
        check.lvwMissing.Select(5);
        script.Then([](HWND properties) {
            CHECK(SendMessageW(FindControl(properties, L"mstOptions"), TCM_GETCURSEL, 0, 0) == 2);
            Type(properties, L"txtUsername", L"Nora Alder");
            Press(properties, L"cmdOK");
        });
        SetEvent(answers.Get());
        Press(window, L"cmdProperties");
        // Looked at once more, and the share answers by now.
        PumpUntil([&] { return check.cmdClose.Text() == LangText[Caption::Close]; });
        CHECK(check.HasChanged());
        CHECK(check.lvwMissing.RowCount() == 4);
        CHECK(check.lvwMissing.Selected() == 3);
        Press(window, L"cmdClose");
    });
    check.ShowModal();
    CHECK(main.Replaced == L"Staff");
}

TEST_CASE("What ACT! has open is added with its path, layouts and user, and a list that is empty says what to do") {
    ActDesk desk;
    desk.Act.OpenDatabase.clear();
    desk.Act.State[{L"Preferences", L"DefaultContactLayout"}] = L"E:\\Contacts.cly";
    desk.Act.State[{L"Preferences", L"DefaultGroupLayout"}] = L"E:\\Groups.gly";
    Main window;
    CHECK(window.ListView1.EmptyText() == L"No databases yet: Edit > Manage List");
    PumpUntil([&] { return window.ListView1.AccessibleName().ends_with(window.ListView1.EmptyText()); });
    DialogScript script;
    script.Then([&](HWND list) {
        script.Answer(IDOK);
        TranslateKey(FindControl(list, L"lstDB"), 'O', VK_CONTROL);
        CHECK(script.All().back().Text == L"ACT! has no database open.");
        desk.Act.OpenDatabase = L"E:\\databases\\Sales.dbf";
        script.Then([](HWND properties) { Press(properties, L"cmdOK"); });
        TranslateKey(FindControl(list, L"lstDB"), 'O', VK_CONTROL);
        Press(list, L"cmdClose");
    });
    window.mnuManageList.Click();
    CHECK(desk.SettingsBytes().ends_with("[Sales]\r\nPath=E:\\databases\\Sales.dbf\r\nCLY=E:\\Contacts.cly\r\n"
                                         "GLY=E:\\Groups.gly\r\nStartupMacro=\r\n"));
    CHECK(UserStore::Get(L"Sales", L"Username") == L"Chris Huffman");
    HWND list = window.ListView1.Handle();
    CHECK(SendMessageW(list, LVM_GETITEMSTATE, 0, LVIS_OVERLAYMASK) == INDEXTOOVERLAYMASK(1));
}
