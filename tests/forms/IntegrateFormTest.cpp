// Kelmorra's command in ACT!'s toolbars and Tools menus.

#include "integration/frmIntegrateNew.h"
#include "support/ActDesk.h"

namespace {

constexpr int kToolsMenu = 6; // the first box of the Tools menus

bool IsChecked(HWND dialog, int box) {
    return SendMessageW(FindControl(dialog, L"chkScreen", box), BM_GETCHECK, 0, 0) == BST_CHECKED;
}

/// Clicks a box or the text beside it, and returns the calls that this has led to.
std::wstring Toggle(const ActDesk& desk, HWND dialog, const std::wstring& control, int index) {
    const size_t calls = desk.Act.Calls.size();
    if (control == L"lblScreen")
        Press(dialog, L"lblScreen", index);
    else
        SendMessageW(FindControl(dialog, L"chkScreen", index), BM_CLICK, 0, 0);
    return desk.Act.CallsSince(calls);
}

/// Shows the dialog and plays one step in it; `answer` is that to the box that comes then, 0 for none. What it said.
std::wstring Show(const std::function<void(HWND)>& step, int answer = 0) {
    DialogScript script;
    script.Then(step);
    if (answer) script.Answer(answer);
    frmIntegrateNew().ShowModal();
    return answer ? script.All().at(1).Text : L"";
}

std::wstring ViewCall(const wchar_t* member, int view) {
    return std::wstring(member) + L"(VT_I2 " + std::to_wstring(view) + L", VT_BSTR \"Kelmorra\")\n";
}

} // namespace

TEST_CASE("The boxes show what ACT! has, any answer but 0 counts, and loading changes nothing") {
    ActDesk desk;
    desk.Act.State[{L"Toolbar", L"2,Kelmorra"}] = L"1";
    desk.Act.State[{L"Results", L"AuxCommandExistsInToolsMenu"}] = L"-1";
    Show([](HWND dialog) {
        for (int box = 0; box < 2 * kToolsMenu; ++box) {
            CAPTURE(box);
            CHECK(IsChecked(dialog, box) == (box == 1 || box >= kToolsMenu));
        }
        Press(dialog, L"cmdOK"); // nothing changed, nothing asked
    });
    CHECK(desk.Act.Calls.size() == 12);
}

TEST_CASE("Each box adds the command to its view and takes it out; the first one defines it") {
    ActDesk desk;
    const std::wstring exists = L"AuxCommandExists(VT_BSTR \"Kelmorra\")\n";
    Show([&](HWND dialog) {
        const std::wstring first = Toggle(desk, dialog, L"chkScreen", 0);
        CHECK(first.starts_with(exists + L"AddAuxCommand(VT_BSTR \"Kelmorra\", VT_BSTR \""));
        for (const wchar_t* part : {L"\\form_tests.exe\"", L"VT_BSTR \"Kelmorra Click to launch\"",
                                    L"\\form_tests.ico\"", L"\\form_tests32.ico\", VT_I2 1)\n"})
            CHECK(first.find(part) != std::wstring::npos);
        CHECK(first.ends_with(ViewCall(L"AddAuxCommandToToolbar", 1)));
        for (int view = 2; view <= 6; ++view)
            CHECK(Toggle(desk, dialog, view % 2 == 0 ? L"chkScreen" : L"lblScreen", view - 1) ==
                  exists + ViewCall(L"AddAuxCommandToToolbar", view));
        for (int view = 1; view <= 6; ++view)
            CHECK(Toggle(desk, dialog, L"lblScreen", kToolsMenu + view - 1) ==
                  exists + ViewCall(L"AddAuxCommandToToolsMenu", view));
        CHECK(Toggle(desk, dialog, L"chkScreen", 4) == exists + ViewCall(L"RemoveAuxCommandFromToolbar", 5));
        CHECK(Toggle(desk, dialog, L"lblScreen", 10) == exists + ViewCall(L"RemoveAuxCommandFromToolsMenu", 5));
        Press(dialog, L"cmdCancel"); // leaves what the clicks have done and asks nothing
    });
}

TEST_CASE("Only the last change decides between the failure and the question; Yes alone restarts ACT!") {
    ActDesk desk;
    desk.Act.State[{L"Results", L"AddAuxCommandToToolbar"}] = L"7";
    const auto toggleAndConfirm = [&](int first, int second) {
        return [&desk, first, second](HWND dialog) {
            Toggle(desk, dialog, L"chkScreen", first);
            Toggle(desk, dialog, L"chkScreen", second);
            Click(FindControl(dialog, L"cmdOK"));
        };
    };
    for (const int answer : {IDNO, IDYES}) {
        CHECK(Show(toggleAndConfirm(0, kToolsMenu), answer) ==
              L"You need to re-start ACT! for the changes to take effect!\r\nDo you want to re-start it now?");
        CHECK(Program().RestartAct == (answer == IDYES));
    }
    CHECK(Show(toggleAndConfirm(kToolsMenu, 1), IDOK) ==
          L"Operation failed. You will have to add/remove the command manually.");
    Program().RestartAct = false;
}
