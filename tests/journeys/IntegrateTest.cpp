// Kelmorra's command in ACT!'s toolbars and Tools menus, and the restart of ACT! that shows it.

#include "support/JourneyDialogs.h"

namespace {

using JourneyDialogs::Leave;
using JourneyDialogs::OpenByMenu;

constexpr wchar_t kReport[] = L"in frmIntegrateNew: Sub ";
constexpr int kToolsMenu = 6; // the first box of the Tools menus

HWND OpenDialog(Journey& journey) {
    journey.StartAct(journey.ListRealDatabase(L"Customers"));
    journey.StartToMainWindow();
    return OpenByMenu(journey, L"mnuIntegrate", L"frmIntegrateNew");
}

bool IsChecked(HWND dialog, int box) {
    return JourneyWindow::Checked(JourneyWindow::Control(dialog, L"chkScreen", box));
}

/// Clicks a box or the text beside it and returns the calls that this has led to. Sent, not posted: the click has been
/// dealt with when it returns.
std::wstring Toggle(const Journey& journey, HWND dialog, const wchar_t* control, int index) {
    const size_t calls = journey.CallCount();
    const bool before = IsChecked(dialog, index);
    HWND clicked = JourneyWindow::Control(dialog, control, index);
    if (control == std::wstring(L"chkScreen"))
        SendMessageW(clicked, BM_CLICK, 0, 0);
    else
        SendMessageW(dialog, WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(clicked), STN_CLICKED),
                     reinterpret_cast<LPARAM>(clicked));
    REQUIRE(IsChecked(dialog, index) != before);
    return journey.Calls(calls);
}

std::wstring Bstr(const std::wstring& text) { return L"VT_BSTR \"" + text + L'"'; }

std::wstring ViewCall(const wchar_t* member, int view) {
    return std::wstring(L"AUXCMDS ") + member + L" METHOD|GET VT_I2 " + std::to_wstring(view) + L", " +
           Bstr(L"Kelmorra") + L'\n';
}

} // namespace

TEST_CASE_FIXTURE(Journey, "the boxes show what ACT! has, any answer but 0 counts, and loading changes nothing") {
    Act(L"AuxCommands", L"Kelmorra", L"defined");
    Act(L"Toolbar", L"2,Kelmorra", L"1");
    Act(L"Results", L"AuxCommandExistsInToolsMenu", L"-1");
    HWND dialog = OpenDialog(*this);
    for (int box = 0; box < 2 * kToolsMenu; ++box) {
        CAPTURE(box);
        CHECK(IsChecked(dialog, box) == (box == 1 || box >= kToolsMenu));
    }
    Leave(dialog, L"cmdCancel");
    CHECK(Count(L"AUXCMDS", L"AuxCommandExistsInToolbar") == 6);
    CHECK(Count(L"AUXCMDS", L"AuxCommandExistsInToolsMenu") == 6);
    CHECK(Act(L"Toolbar", L"2,Kelmorra") == L"1");
    for (const Call& call : Log())
        CHECK(!(call.Object == L"AUXCMDS" && call.Member.find(L"Exists") == std::wstring::npos));
}

TEST_CASE_FIXTURE(Journey, "each box adds the command to its view and takes it out; the first one defines it") {
    HWND dialog = OpenDialog(*this);
    const std::wstring exists = L"AUXCMDS AuxCommandExists METHOD|GET " + Bstr(L"Kelmorra") + L'\n';
    const std::wstring program = ProgramFile(L"Kelmorra");
    CHECK(Toggle(*this, dialog, L"chkScreen", 0) ==
          exists + L"AUXCMDS AddAuxCommand METHOD|GET " + Bstr(L"Kelmorra") + L", " + Bstr(program + L".exe") + L", " +
              Bstr(File(L"Kelmorra")) + L", " + Bstr(L"Kelmorra") + L", " + Bstr(L"Kelmorra Click to launch") + L", " +
              Bstr(program + L".ico") + L", " + Bstr(program + L"32.ico") + L", VT_I2 1\n" +
              ViewCall(L"AddAuxCommandToToolbar", 1));
    for (int view = 2; view <= 6; ++view) {
        const wchar_t* const control = view % 2 == 0 ? L"chkScreen" : L"lblScreen";
        CHECK(Toggle(*this, dialog, control, view - 1) == exists + ViewCall(L"AddAuxCommandToToolbar", view));
    }
    for (int view = 1; view <= 6; ++view)
        CHECK(Toggle(*this, dialog, L"lblScreen", kToolsMenu + view - 1) ==
              exists + ViewCall(L"AddAuxCommandToToolsMenu", view));
    CHECK(Toggle(*this, dialog, L"chkScreen", 4) == exists + ViewCall(L"RemoveAuxCommandFromToolbar", 5));
    CHECK(Toggle(*this, dialog, L"lblScreen", 10) == exists + ViewCall(L"RemoveAuxCommandFromToolsMenu", 5));
    CHECK(Act(L"Toolbar", L"6,Kelmorra") == L"1");
    CHECK(Act(L"Toolbar", L"5,Kelmorra").empty());
    // Cancel leaves what the clicks have done and asks nothing.
    Leave(dialog, L"cmdCancel");
    CHECK(Act(L"ToolsMenu", L"1,Kelmorra") == L"1");
    CHECK(!JourneyWindow::MessageBoxOf(Program().Id()));
}

TEST_CASE_FIXTURE(Journey, "a click while ACT! is still at the last one leaves the box as it is") {
    HWND dialog = OpenDialog(*this);
    Act(L"Faults", L"AddAuxCommandToToolbar", L"hang 700 first 1");
    JourneyWindow::Click(dialog, L"chkScreen", 0);
    REQUIRE(Within([&] { return Count(L"AUXCMDS", L"AddAuxCommand") == 1; }));
    SendMessageW(JourneyWindow::Control(dialog, L"chkScreen", 0), BM_CLICK, 0, 0);
    CHECK(Count(L"AUXCMDS", L"AddAuxCommandToToolbar") == 0); // still at it
    CHECK(IsChecked(dialog, 0));
    REQUIRE(Within([&] { return Count(L"AUXCMDS", L"AddAuxCommandToToolbar") == 1; }));
    Leave(dialog, L"cmdCancel");
    CHECK(Count(L"AUXCMDS", L"RemoveAuxCommandFromToolbar") == 0);
}

TEST_CASE_FIXTURE(Journey, "only the last change decides between the failure and the question, and No goes on") {
    HWND dialog = OpenDialog(*this);
    Act(L"Results", L"AddAuxCommandToToolbar", L"7");
    Toggle(*this, dialog, L"chkScreen", 0);
    Toggle(*this, dialog, L"chkScreen", kToolsMenu);
    JourneyWindow::Click(dialog, L"cmdOK");
    JourneyWindow::Box box = Box(Program());
    CHECK(box.Text == L"You need to re-start ACT! for the changes to take effect!\r\nDo you want to re-start it now?");
    const size_t calls = CallCount();
    JourneyWindow::Answer(box, IDNO);
    REQUIRE(Within([&] { return !IsWindow(dialog); }));
    CHECK(CallCount() == calls + 12); // the boxes are read again
    CHECK(IsWindowVisible(MainWindow(Program())));

    dialog = OpenByMenu(*this, L"mnuIntegrate", L"frmIntegrateNew");
    Toggle(*this, dialog, L"chkScreen", kToolsMenu);
    Toggle(*this, dialog, L"chkScreen", 1);
    JourneyWindow::Click(dialog, L"cmdOK");
    CHECK(AnswerBox().Text == L"Operation failed. You will have to add/remove the command manually.");
    REQUIRE(Within([&] { return !IsWindow(dialog); }));
    dialog = OpenByMenu(*this, L"mnuIntegrate", L"frmIntegrateNew");
    Leave(dialog, L"cmdOK"); // nothing changed, nothing asked
    CHECK(Count(L"APPOBJECT", L"Command") == 0);
}

TEST_CASE_FIXTURE(Journey, "Yes closes ACT!, opens its database again, and the program ends on the second tick") {
    HWND dialog = OpenDialog(*this);
    HWND window = MainWindow(Program());
    Toggle(*this, dialog, L"chkScreen", 0);
    JourneyWindow::Click(dialog, L"cmdOK");
    const JourneyWindow::Box box = Box(Program());
    const size_t calls = CallCount();
    JourneyWindow::Answer(box, IDYES);
    REQUIRE(Within([&] { return !IsWindowVisible(window) && Count(L"APPOBJECT", L"Command") == 1; }));
    const DWORD hidden = GetTickCount();
    CHECK(ActHasEnded());
    REQUIRE(AdoptAct());
    CHECK(Program().ExitCode() == 0u);
    CHECK(GetTickCount() - hidden > 1000);
    const std::wstring after = Calls(calls);
    CHECK(after.find(L"APPOBJECT GetOpenDBName METHOD|GET\nAPPOBJECT Command METHOD VT_I2 150\n") !=
          std::wstring::npos);
    CHECK(Count(L"EVENT", L"Close") == 1);
    CHECK(Within([&] { return Count(L"STANDIN", L"OpenDatabase") == 2; }));

    // ACT! shows the command now, and starts the program with it.
    HWND act = FindWindowW(L"ActStandIn", nullptr);
    PostMessageW(act, WM_COMMAND, 3000, 0);
    REQUIRE(Within([&] { return FindWindowW(L"frmMain", nullptr) != nullptr; }));
    HWND launched = FindWindowW(L"frmMain", nullptr);
    REQUIRE(Within([&] { return IsWindowVisible(launched); }));
    JourneyWindow::Click(launched, L"cmdCancel");
    CHECK(Within([&] { return !IsWindow(launched); }));
}

TEST_CASE_FIXTURE(Journey, "a restart goes on when ACT! dies in the call that closes it, or tells of its end then") {
    bool dies = false;
    SUBCASE("dies") { dies = true; }
    SUBCASE("tells") {}
    HWND dialog = OpenDialog(*this);
    Toggle(*this, dialog, L"chkScreen", 0);
    if (dies)
        Act(L"Faults", L"Command", L"die");
    else
        Act(L"Presets", L"CommandAsks", L"1");
    JourneyWindow::Click(dialog, L"cmdOK");
    JourneyWindow::Answer(Box(Program()), IDYES);
    CHECK(ActHasEnded());
    REQUIRE(AdoptAct());
    CHECK(Program().ExitCode() == 0u); // and no report was in its way
    CHECK(Count(L"APPOBJECT", L"Command") == 1);
    CHECK(Count(L"EVENT", L"AnswerUserWantsToClose") == (dies ? 0 : 1));
    CHECK(Within([&] { return Count(L"STANDIN", L"OpenDatabase") == 2; }));
}

TEST_CASE_FIXTURE(Journey, "a call that fails is reported with its handler, and dialog and program live on") {
    HWND dialog = OpenDialog(*this);
    Act(L"Faults", L"AddAuxCommandToToolbar", L"wCode 5 first 1");
    JourneyWindow::Click(dialog, L"chkScreen", 3);
    CHECK(AnswerBox().Text.find(kReport + std::wstring(L"chkScreen_Click - Line # ")) != std::wstring::npos);
    Toggle(*this, dialog, L"chkScreen", 4);
    Leave(dialog, L"cmdCancel");

    const HiddenClass missing(L"ACTOLE.AUXCMDS\\CLSID");
    JourneyWindow::ClickMenu(MainWindow(Program()), L"mnuIntegrate");
    const JourneyWindow::Box box = AnswerBox();
    CHECK(box.Text.starts_with(L"Error 429: "));
    CHECK(box.Text.find(kReport + std::wstring(L"Form_Load - Line # ")) != std::wstring::npos);
    Leave(Window(Program(), L"frmIntegrateNew"), L"cmdOK");
}

TEST_CASE_FIXTURE(Journey, "the about box tells name and version, and its text can be copied") {
    StartAct(ListRealDatabase(L"Customers"));
    StartToMainWindow();
    HWND about = OpenByMenu(*this, L"mnuAbout", L"frmAbout");
    HWND text = JourneyWindow::Control(about, L"txtAbout");
    CHECK(JourneyWindow::Text(text).starts_with(L"Kelmorra 3.2.0\r\n"));
    CHECK(JourneyWindow::Text(text).ends_with(
        L"E-mail us with any problem or suggestion :\r\nsupport@varnholtine.example"));
    CHECK((GetWindowLongPtrW(text, GWL_STYLE) & ES_READONLY) != 0);
    Leave(about, L"cmdOK");
}
