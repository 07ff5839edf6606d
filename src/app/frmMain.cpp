#include "app/frmMain.h"

#include "databases/Keys.h"
#include "i18n/Caption.h"
#include "i18n/MoreText.h"
#include "i18n/modLangues.h"
#include "opening/Module1.h"
#include "program/Program.h"
#include "program/SettingsNotice.h"
#include "stores/UserStore.h"
#include "support/Application.h"
#include "support/Busy.h"
#include "support/ErrorReport.h"
#include "support/MsgBox.h"
#include "support/Shell.h"
#include "support/Text.h"
#include "support/Vendor.h"

#include <algorithm>

namespace {

constexpr UINT kActIsClosing = WM_APP + 1;
constexpr RowFiles::Messages kFileMessages{WM_APP + 2, WM_APP + 3};
constexpr unsigned kRetryMilliseconds = 50;

// The design size, which is the minimum too, in twips.
constexpr int kDesignWidth = 8475;
constexpr int kDesignHeight = 5190;

} // namespace

frmMain::frmMain()
    : Form({L"frmMain", kDesignWidth, kDesignHeight, Border::Sizable}), MainMenu(this),
      table_(ListView1, find_, kFileMessages), startup_(*this, [this] { ActEvent1_OnActUserWantsToClose(); }) {}

void frmMain::Form_Load() { Furnish(true); }

void frmMain::Furnish(bool isStart) {
    using Step = void (*)(frmMain & main, bool isStart);
    constexpr Step kSteps[] = {[](frmMain& main, bool) { main.startup_.CreateSettingsFile(); },
                               [](frmMain& main, bool start) { main.RestoreSize(start); },
                               [](frmMain& main, bool) { main.SetCaptions(); },
                               [](frmMain& main, bool) { main.table_.RestoreColumns(); },
                               [](frmMain& main, bool) { main.startup_.CompleteFirstRun(); },
                               [](frmMain& main, bool) { main.startup_.RecordActDefaults(); },
                               [](frmMain& main, bool start) {
                                   if (start) main.table_.Reload();
                               }};
    bool isReported = false;
    for (const Step step : kSteps) try {
            step(*this, isStart);
        } catch (...) {
            // The window stays usable, so that for example the settings file's place can be mended. What fails
            // further on has the same cause and is not reported again.
            if (!isReported) ErrorReport("frmMain: Sub Form_Load");
            isReported = true;
        }
    if (!isStart) return;
    ShowFirstWindow();
    if (!table_.IsLoaded() && !isReported) SettingsNotice::CannotRead();
}

void frmMain::RestoreSize(bool isStart) {
    if (!find_.IsOpen()) find_.Close();
    const auto width = Text::Measure(UserStore::Get(Keys::Settings, Keys::Width));
    const auto height = Text::Measure(UserStore::Get(Keys::Settings, Keys::Height));
    const Twips design = OuterSize();
    const int widest = ToTwips(GetSystemMetrics(SM_CXMAXTRACK), Dpi());
    const int highest = ToTwips(GetSystemMetrics(SM_CYMAXTRACK), Dpi());
    const Twips wanted{0, 0, std::min<int>(width.value_or(design.Width), widest),
                       std::min<int>(height.value_or(design.Height), highest)};
    if (wanted != design) {
        OuterSize(wanted.Width, wanted.Height);
        if (isStart) Center(nullptr);
    }
    sizeLoaded_ = true;
    if (isStart) optView[0].Value(true);
}

void frmMain::ShowFirstWindow() {
    if (Program().ActIsClosing) return;
    if (Startup::OpensQuickSwitch())
        mnuQuickSwitch_Click();
    else
        Show();
    if (Visible()) Startup::TellOfUnseen();
}

void frmMain::ShowMain() {
    Show();
    table_.Files().LookLater();
}

bool frmMain::OnMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) {
    switch (message) {
    case kFileMessages.Look: LookForFiles(); return true;
    case kFileMessages.Answer: table_.Files().Take(wParam, static_cast<long>(lParam)); return true;
    case kActIsClosing:
        Program().ActIsClosing = true;
        SilenceMessages(true);
        EndMenu();
        tmrLeaveDialogs.Interval(kRetryMilliseconds);
        return true;
    case WM_QUERYENDSESSION: result = TRUE; return true;
    case WM_ENDSESSION:
        if (wParam) EndSession();
        return true;
    default: return false;
    }
}

void frmMain::Form_Resize() {
    if (!Handle()) return;
    RECT outer{};
    GetWindowRect(Handle(), &outer);
    // In pixels: the design size itself, rounded to pixels and back, can fall short of itself in twips.
    const LONG width = outer.right - outer.left;
    const LONG height = outer.bottom - outer.top;
    const bool isTooSmall = width < ToPixels(kDesignWidth, Dpi()) || height < ToPixels(kDesignHeight, Dpi());
    if (isTooSmall && !IsIconic(Handle())) {
        OuterSize(std::max(ToTwips(width, Dpi()), kDesignWidth), std::max(ToTwips(height, Dpi()), kDesignHeight));
        return; // the new size comes back here
    }
    const Twips layout = LayoutSize();
    const int growth = layout.Height - kDesignHeight;
    const int inner = InnerSize().Width;
    const int find = find_.IsOpen() ? FindBox::Height : 0;
    Line1.Move({0, 0, inner, 15});
    Line2.Move({0, 15, inner, 15});
    txtFind.Move({1080, 120, layout.Width - 2940, 315});
    ListView1.Move({120, 120 + find, layout.Width - 1980, layout.Height - 2775 - find});
    Frame1.Move({120, 2715 + growth, layout.Width - 1980, 1290});
    cmdOpen.Move({layout.Width - 1375, 120, 1135, 345});
    cmdCancel.Move({layout.Width - 1375, 570, 1135, 345});
    lblMore.Move({layout.Width - 2375, 4140 + growth, 600, 255});
    lblLink.Move({layout.Width - 1775, 4140 + growth, 1655, 255});
    InvalidateRect(Handle(), nullptr, TRUE);
}

void frmMain::SetCaptions() {
    Caption(Application::Title);
    cmdOpen.Text(LangText[Caption::Open]);
    cmdCancel.Text(LangText[Caption::Cancel]);
    lblMore.Text(LangText[Caption::MoreAt]);
    lblLink.Text(Vendor::SiteName);
    lblFind.Text(Translated(MoreText::Find));
    Frame1.Text(LangText[Caption::OpenIn]);
    for (std::size_t view = 0; view < ViewCount; ++view) {
        const std::wstring& caption = LangText[Caption::FirstView + static_cast<int>(view)];
        lblView[view].Text(caption);
        // Too narrow to be seen: for screen readers.
        optView[view].Text(caption);
    }
    MainMenu::SetCaptions();
    DrawMenuBar(Handle());
    table_.SetTitles();
}

bool frmMain::Form_KeyDown(const KeyPress& press) {
    if (press.Ctrl && !press.Alt && !press.Shift && press.Key >= '1' && press.Key < '1' + static_cast<int>(ViewCount)) {
        lblView_Click(press.Key - '1');
        return true;
    }
    if (press == KeyPress{.Key = VK_F2} || press == KeyPress{.Key = VK_RETURN, .Alt = true}) {
        mnuEditProperties_Click();
    } else if (press == KeyPress{.Key = VK_F1}) {
        mnuManual_Click();
    } else if (press == KeyPress{.Key = 'F', .Ctrl = true}) {
        find_.Open();
    } else if (find_.IsOpen() && press == KeyPress{.Key = VK_ESCAPE}) {
        find_.Close();
        ListView1.SetFocus();
    } else {
        return press == KeyPress{.Key = press.Key} && find_.TakesKey(press.Key);
    }
    return true;
}

void frmMain::LookForFiles() {
    if (!Visible()) return;
    RedrawWindow(Handle(), nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN); // before anything takes time
    const bool isEmpty = table_.IsLoaded() && ListView1.RowCount() == 0;
    const std::wstring hint = isEmpty ? L". " + ListView1.EmptyText() : std::wstring();
    ListView1.AccessibleName(LangText[Caption::DatabasesListed] + hint);
    ListView1.TellNotes();
    table_.Files().Look();
    PrepareShell();
}

void frmMain::SaveLayout() {
    table_.Save();
    if (!sizeLoaded_) return;
    const Twips size = OuterSize();
    UserStore::Set(Keys::Settings, Keys::Height, Text::FromNumber(size.Height));
    UserStore::Set(Keys::Settings, Keys::Width, Text::FromNumber(size.Width));
}

void frmMain::Form_Unload() {
    std::wstring database;
    try {
        SaveLayout();
        if (Program().RestartAct) database = Module1::CloseAct(Program());
    } catch (...) {
        Program().RestartAct = false;
        ErrorReport("frmMain: Sub Form_Unload");
    }
    Module1::Release_object(Program());
    startup_.ActEvent1.Close();
    if (!Program().RestartAct) return PostQuitMessage(0);
    constexpr unsigned kTickMilliseconds = 1000;
    Hide();
    if (!database.empty()) OpenWithShell(database);
    Timer1.Interval(kTickMilliseconds);
}

void frmMain::Timer1_Timer() {
    constexpr int kLastTick = 2;
    if (++ticks_ == kLastTick) PostQuitMessage(0);
}

void frmMain::ActEvent1_OnActUserWantsToClose() {
    // Only the answer belongs into the event: nothing may be released while the component is still in its call.
    try {
        startup_.ActEvent1.AnswerUserWantsToClose(true);
    } catch (const Error&) {
        // Whatever becomes of the answer, the program does not outlive its ACT!.
    }
    if (!Program().RestartAct) PostMessageW(Handle(), kActIsClosing, 0, 0);
}

void frmMain::Form_CloseBox() {
    if (IsWindowEnabled(Handle()) && !openDialogs_.Any()) return Unload();
    openDialogs_.Begin();
    tmrLeaveDialogs.Interval(kRetryMilliseconds);
}

void frmMain::tmrLeaveDialogs_Timer() {
    // A dialog that is left returns to its caller first; the next tick looks again.
    if (Busy::Now() || openDialogs_.LeaveNext() || !IsWindowEnabled(Handle())) return;
    tmrLeaveDialogs.Interval(0);
    Unload();
}

/// Windows waits for nothing behind this: all is saved before it returns, and nobody is asked.
void frmMain::EndSession() {
    SilenceMessages(true);
    EndMenu();
    Program().QuickSwitchHandled = true; // the palette brings no window back
    openDialogs_.LeaveAll();
    SaveLayout();
}

void frmMain::EndIfInvisible() {
    const bool isAnyVisible = std::ranges::any_of(Form::Loaded(), [](const Form* form) { return form->Visible(); });
    if (!isAnyVisible && !Program().ActIsClosing && !Program().StartActMode) Unload();
}

void frmMain::ShowDialog(Form& dialog) {
    dialog.ShowModal();
    EndIfInvisible();
}
