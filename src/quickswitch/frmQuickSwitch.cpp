#include "quickswitch/frmQuickSwitch.h"

#include "databases/Keys.h"
#include "databases/Palette.h"
#include "i18n/Caption.h"
#include "i18n/modLangues.h"
#include "program/Program.h"
#include "quickswitch/PalettePlace.h"
#include "quickswitch/frmAssign.h"
#include "stores/IniLib.h"
#include "stores/UserStore.h"
#include "support/ErrorReport.h"
#include "support/Text.h"

#include <algorithm>

namespace {

constexpr int kHeight = 2400;
constexpr int kWidths[] = {1440, 2580, 3725, 4865}; // for one to four columns, in twips

} // namespace

frmQuickSwitch::frmQuickSwitch(MainWindow& mainWindow)
    : Form({L"frmQuickSwitch", kWidths[0], kHeight, Border::Palette}), mainWindow_(mainWindow) {}

Twips frmQuickSwitch::ButtonPlace(int button) {
    constexpr int kSide = 1080;
    constexpr int kMargin = 90;
    constexpr int kColumn = 1140;
    const int column = (button - 1) / 2;
    const int row = (button - 1) % 2;
    return {kMargin + column * kColumn, kMargin + row * kColumn, kSide, kSide};
}

void frmQuickSwitch::Form_Load() {
    ProgramState& program = Program();
    program.QuickSwitchHandled = false;
    // Hidden, and in the corner: size, place and showing follow.
    SetWindowPos(Handle(), HWND_TOPMOST, 0, 0, 0, 0, SWP_HIDEWINDOW);
    cmdCancel.Visible(false); // there for Esc alone
    Refresh_Screen();
    RestorePosition();
    mnuControlClose.Caption(Caption::WithDots(LangText[Caption::CloseAndLaunch]));
    mnuControlClose.Enabled(!program.ACTStartedByProgram);
    mnuAssign.Caption(Caption::WithDots(LangText[Caption::QuickSwitchSettings]));
    mnuExit.Caption(LangText[Caption::Exit]);
    Caption(L"QuickSwitch");
}

void frmQuickSwitch::Refresh_Screen() try {
    const auto stored = IniLib::ReadFile();
    if (!stored && !QuickSwitchNames_.empty()) return; // its buttons are better than none
    for (Tracker& tracker : trackers_) tracker.Detach();
    isHighlighted_.fill(false);
    QuickSwitchNames_ = stored ? Palette::Buttons(*stored) : std::vector<std::wstring>(ButtonCount);
    ShowColumns();
    for (int button = 1; button <= ButtonCount; ++button) {
        // "&" is a letter of a name, not the mark of an access key.
        Picture(button).Text(Text::Replace(CaptionOf(button), L"&", L"&&"));
        toolTip_.Set(Handle(), Picture(button).Handle(), NameOf(button));
    }
    TipControlBox();
    AttachTrackers();
    Scheme_ = 0; // also what is shown after an error
    if (stored) Scheme_ = Palette::Scheme(*stored);
    RedrawWindow(Handle(), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
} catch (...) {
    RedrawWindow(Handle(), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
    ErrorReport("frmQuickSwitch: Sub Refresh_Screen");
}

void frmQuickSwitch::ShowColumns() {
    int columns = 4;
    while (columns > 1 && NameOf(columns * 2).empty() && NameOf(columns * 2 - 1).empty()) --columns;
    OuterSize(kWidths[columns - 1], kHeight);
    for (int button = 3; button <= ButtonCount; ++button) Picture(button).Visible(button <= columns * 2);
}

void frmQuickSwitch::AttachTrackers() {
    for (int button = 1; button <= ButtonCount; ++button)
        if (!NameOf(button).empty() && !IsOpenInAct(NameOf(button)))
            TrackerOf(button).Attach(Picture(button), Tracker::Enter | Tracker::Leave);
}

void frmQuickSwitch::RestorePosition() {
    const auto top = Text::Measure(UserStore::Get(Keys::Settings, Keys::QuickTop));
    const auto left = Text::Measure(UserStore::Get(Keys::Settings, Keys::QuickLeft));
    RECT place{};
    GetWindowRect(Handle(), &place);
    OffsetRect(&place, left ? ToPixels(static_cast<int>(*left), WindowDpi(nullptr)) - place.left : 0,
               top ? ToPixels(static_cast<int>(*top), WindowDpi(nullptr)) - place.top : 0);
    place = PalettePlace::WithinReach(place, StripWidth(), PalettePlace::Screens());
    SetWindowPos(Handle(), nullptr, place.left, place.top, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void frmQuickSwitch::Save_Position() const try {
    // At the system's resolution, whatever monitor it is on: the stored place has to mean one pixel again.
    RECT place{};
    GetWindowRect(Handle(), &place);
    UserStore::Set(Keys::Settings, Keys::QuickLeft, Text::FromNumber(ToTwips(place.left, WindowDpi(nullptr))));
    UserStore::Set(Keys::Settings, Keys::QuickTop, Text::FromNumber(ToTwips(place.top, WindowDpi(nullptr))));
} catch (...) {
    ErrorReport("frmQuickSwitch: Sub Save_Position");
}

void frmQuickSwitch::Form_Unload() {
    Save_Position();
    // While ACT! is being started there is no main window to come back.
    if (Program().QuickSwitchHandled || Program().StartActMode) return;
    Hide();
    mainWindow_.ShowMain();
}

void frmQuickSwitch::pic_Hover(int button, bool isOver) {
    if (isOver)
        TrackerOf(button).Entered();
    else
        TrackerOf(button).Left();
}

void frmQuickSwitch::TrackerN_Mouse(int button, int action) { MouseAction(Picture(button), action, button); }

void frmQuickSwitch::TrackerN_Click(int button) try {
    const std::wstring name = NameOf(button);
    if (name.empty()) return;
    Hide();
    Save_Position();
    constexpr short kContactView = 0;
    // Before the open: a failed one brings the main window back by itself.
    Program().QuickSwitchHandled = true;
    mainWindow_.Open_DB(name, kContactView, true);
    Unload();
} catch (...) {
    ErrorReport(L"frmQuickSwitch: Sub Tracker" + Text::FromNumber(button) + L"_Click");
}

void frmQuickSwitch::mnuAssign_Click() {
    frmAssign().ShowModal();
    Refresh_Screen();
}

void frmQuickSwitch::mnuControlClose_Click() { Unload(); }

void frmQuickSwitch::mnuExit_Click() {
    exitRequested_ = true;
    Program().QuickSwitchHandled = true;
    Unload();
}

void frmQuickSwitch::cmdCancel_Click() {
    Program().QuickSwitchHandled = true;
    Unload();
}

const std::wstring& frmQuickSwitch::NameOf(int button) const {
    return QuickSwitchNames_.at(static_cast<size_t>(button) - 1);
}

bool frmQuickSwitch::IsOpenInAct(const std::wstring& name) const {
    return Program().OpenDatabaseNames.find(L"|" + name + L"|") != std::wstring::npos;
}

std::wstring frmQuickSwitch::CaptionOf(int button) const {
    const std::wstring& name = NameOf(button);
    return !name.empty() && IsOpenInAct(name) ? L"(" + name + L")" : name;
}
