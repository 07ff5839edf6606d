#include "app/frmMain.h"

#include "app/Module1.h"
#include "i18n/Caption.h"
#include "i18n/MoreText.h"
#include "i18n/modLangues.h"
#include "program/Program.h"
#include "quickswitch/frmQuickSwitch.h"
#include "stores/UserStore.h"
#include "support/Application.h"
#include "support/Busy.h"
#include "support/ErrorReport.h"
#include "support/MsgBox.h"
#include "support/Shell.h"
#include "support/Text.h"
#include "support/Vendor.h"

#include <algorithm>
#include <cwchar>

namespace {

constexpr UINT kActIsClosing = WM_APP + 1;
constexpr UINT kCheckFiles = WM_APP + 2;
constexpr UINT kFileLookedFor = WM_APP + 3;
constexpr unsigned kCloseRetryMilliseconds = 50;

// The design size, which is the minimum too, in twips.
constexpr int kDesignWidth = 8475;
constexpr int kDesignHeight = 5190;

bool IsMessageBox(HWND window) {
    wchar_t className[16]{};
    GetClassNameW(window, className, 16);
    return std::wcscmp(className, L"#32770") == 0;
}

/// What is to be closed before the main window.
struct Cancelling {
    const Form* MainWindow;
    HWND BoxAtClose; ///< of message boxes this one alone, unless ACT! is closing: later ones ask their user something
    bool Found;
};

/// Ends one dialog, message box or common dialog of this thread as by Cancel; false when `window` is none in use.
bool CancelDialog(HWND window, const Cancelling& cancel) {
    if (window == cancel.MainWindow->Handle() || !IsWindowVisible(window) || !IsWindowEnabled(window)) return false;
    if (Form* form = Form::FromWindow(window)) {
        form->CloseAsByUser();
        // One that cannot be cancelled; where a question is open the next tick looks again.
        if (!form->Unloaded() && IsWindowEnabled(window)) form->Unload();
        return true;
    }
    if (!IsMessageBox(window)) return false;
    if (!Program().ActIsClosing && window != cancel.BoxAtClose) return true;
    if (GetDlgItem(window, IDNO))
        PostMessageW(window, WM_COMMAND, IDNO, 0); // has no Cancel
    else
        PostMessageW(window, WM_CLOSE, 0, 0);
    return true;
}

BOOL CALLBACK CancelNext(HWND window, LPARAM state) {
    auto& cancel = *reinterpret_cast<Cancelling*>(state);
    cancel.Found = CancelDialog(window, cancel);
    return !cancel.Found;
}

} // namespace

frmMain::frmMain() : Form({L"frmMain", kDesignWidth, kDesignHeight, Border::Sizable}), pathCheck_(kFileLookedFor) {}

// A start that is refused, and one that only shows the palette, need none of the controls.
bool frmMain::Form_Initialize() try { return StartSteps(); } catch (...) {
    ErrorReport("frmMain: Sub Form_Load");
    return false;
}

void frmMain::Form_Load() try { FinishStart(); } catch (...) {
    ErrorReport("frmMain: Sub Form_Load");
    Unload();
}

void frmMain::ShowMain() {
    Show();
    CheckFilesLater();
}

void frmMain::CheckFilesLater() { PostMessageW(Handle(), kCheckFiles, 0, 0); }

bool frmMain::OnMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) {
    switch (message) {
    case kCheckFiles: CheckFiles(); return true;
    case kFileLookedFor: NoteFile(wParam, static_cast<long>(lParam)); return true;
    case kActIsClosing:
        Program().ActIsClosing = true;
        SilenceMessages(true);
        EndMenu();
        tmrClose.Interval(kCloseRetryMilliseconds);
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
    LayOut(layout.Width, layout.Height);
}

void frmMain::LayOut(int width, int height) {
    const int growth = height - kDesignHeight;
    const int inner = InnerSize().Width;
    Line1.Move({0, 0, inner, 15});
    Line2.Move({0, 15, inner, 15});
    constexpr int kFindHeight = 405;
    const int find = isFinding_ ? kFindHeight : 0;
    txtFind.Move({1080, 120, width - 2940, 315});
    ListView1.Move({120, 120 + find, width - 1980, height - 2775 - find});
    Frame1.Move({120, 2715 + growth, width - 1980, 1290});
    cmdOpen.Move({width - 1375, 120, 1135, 345});
    cmdCancel.Move({width - 1375, 570, 1135, 345});
    lblMore.Move({width - 2375, 4140 + growth, 600, 255});
    lblLink.Move({width - 1775, 4140 + growth, 1655, 255});
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
    SetMenuCaptions();
    SetColumnTitles();
}

void frmMain::SetMenuCaptions() {
    mnuFile.Caption(LangText[Caption::File]);
    mnuFileOpen.Caption(LangText[Caption::Open]);
    mnuExit.Caption(LangText[Caption::Exit]);
    mnuEdit.Caption(LangText[Caption::Edit]);
    mnuEditProperties.Caption(Caption::WithDots(LangText[Caption::DatabaseProperties]));
    mnuManageList.Caption(Caption::WithDots(LangText[Caption::ManageList]));
    mnuOptions.Caption(LangText[Caption::Options]);
    mnuSettingsLocation.Caption(Caption::WithDots(LangText[Caption::SettingsFileLocation]));
    mnuLanguages.Caption(Caption::WithDots(LangText[Caption::LanguagesItem]));
    mnuIntegrate.Caption(Caption::WithDots(LangText[Caption::Integrate]));
    mnuQuickSwitch.Caption(L"QuickSwitch");
    mnuHelp.Caption(LangText[Caption::Help]);
    mnuManual.Caption(LangText[Caption::UsersManual]);
    mnuOnline.Caption(LangText[Caption::OnlineHelp]);
    mnuAbout.Caption(Caption::WithDots(LangText[Caption::AboutItem]));
    mnuOpen.Caption(LangText[Caption::Open]);
    mnuProperties.Caption(Caption::WithDots(LangText[Caption::DatabaseProperties]));
    DrawMenuBar(Handle());
}

void frmMain::SaveLayout() {
    if (listLoaded_) UserStore::Set(Keys::Display, Keys::Selected, Text::FromNumber(ListView1.Selected()));
    for (int column = 0; columnsLoaded_ && column < ListView1.ColumnCount(); ++column)
        UserStore::Set(Keys::Settings, Keys::Column + Text::FromNumber(column),
                       Text::FromNumber(ListView1.ColumnWidth(column)));
    if (!sizeLoaded_) return;
    const Twips size = OuterSize();
    UserStore::Set(Keys::Settings, Keys::Height, Text::FromNumber(size.Height));
    UserStore::Set(Keys::Settings, Keys::Width, Text::FromNumber(size.Width));
}

void frmMain::Form_Unload() {
    std::wstring database;
    try {
        SaveLayout();
        if (Program().RestartAct) database = CloseActForRestart();
    } catch (...) {
        Program().RestartAct = false;
        ErrorReport("frmMain: Sub Form_Unload");
    }
    Module1::Release_object();
    ActEvent1.Close();
    if (Program().RestartAct)
        WaitForRestart(database);
    else
        PostQuitMessage(0);
}

std::wstring frmMain::CloseActForRestart() const {
    constexpr short kCloseAct = 150; // ACT!'s own number
    std::wstring database = Program().Application.GetOpenDBName();
    try {
        Program().Application.Command(kCloseAct);
    } catch (const Error& error) {
        if (error.Number != BasicError::ServerUnavailable) throw; // gone is what it was to be
    }
    return database;
}

void frmMain::WaitForRestart(const std::wstring& database) {
    constexpr unsigned kTickMilliseconds = 1000;
    Hide();
    if (!database.empty()) OpenWithShell(database);
    ticks_ = 0;
    Timer1.Interval(kTickMilliseconds);
}

void frmMain::Timer1_Timer() {
    constexpr int kLastTick = 2;
    if (++ticks_ == kLastTick) PostQuitMessage(0);
}

void frmMain::ActEvent1_OnActUserWantsToClose() {
    // Only the answer belongs into the event: nothing may be released while the component is still in its call.
    try {
        ActEvent1.AnswerUserWantsToClose(true);
    } catch (const Error&) {
        // Whatever becomes of the answer, the program does not outlive its ACT!.
    }
    if (Program().RestartAct) return;
    PostMessageW(Handle(), kActIsClosing, 0, 0);
}

void frmMain::tmrClose_Timer() {
    if (Busy::Now()) return;
    Cancelling cancel{this, boxAtClose_, false};
    EnumThreadWindows(GetCurrentThreadId(), &CancelNext, reinterpret_cast<LPARAM>(&cancel));
    // A cancelled dialog returns to its caller first; the next tick looks again.
    if (cancel.Found || !IsWindowEnabled(Handle())) return;
    tmrClose.Interval(0);
    Unload();
}

void frmMain::Form_CloseBox() {
    const auto isOpen = [this](const Form* form) { return form != this && !form->Unloaded(); };
    if (IsWindowEnabled(Handle()) && std::ranges::none_of(Form::Loaded(), isOpen)) return Unload();
    // Something is open in front of it: that is left first, one after another.
    HWND front = GetLastActivePopup(Handle());
    boxAtClose_ = front && IsMessageBox(front) ? front : nullptr;
    tmrClose.Interval(kCloseRetryMilliseconds);
}

/// Windows waits for nothing behind this: all is saved before it returns, and nobody is asked.
void frmMain::EndSession() {
    SilenceMessages(true);
    EndMenu();
    Program().QuickSwitchHandled = true;                     // the palette brings no window back
    for (size_t index = Form::Loaded().size(); index-- > 0;) // the last one opened first
        if (Form* const form = Form::Loaded()[index]; form != this && !form->Unloaded()) {
            form->CloseAsByUser();
            form->Unload();
        }
    SaveLayout();
}

void frmMain::EndIfInvisible() {
    const bool isAnyVisible = std::ranges::any_of(Form::Loaded(), [](const Form* form) { return form->Visible(); });
    if (!isAnyVisible && !Program().ActIsClosing && !Program().StartActMode) Unload();
}

void frmMain::ShowQuickSwitch() {
    Hide();
    frmQuickSwitch(*this).ShowModal();
    if (Program().ExitRequested)
        Unload();
    else
        EndIfInvisible();
}
