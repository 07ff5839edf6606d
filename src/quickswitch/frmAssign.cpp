#include "quickswitch/frmAssign.h"

#include "i18n/Caption.h"
#include "i18n/modLangues.h"
#include "program/SettingsNotice.h"
#include "support/Text.h"

#include <algorithm>
#include <string>
#include <vector>

namespace {

constexpr int kRow = 420; // twips from one list to the next

} // namespace

frmAssign::frmAssign() : Form({L"frmAssign", 7830, 5880}) {}

std::array<Twips, frmAssign::ButtonCount> frmAssign::LabelPlaces() {
    return Grid<ButtonCount>({150, 375, 1320, 225}, ButtonCount, 0, kRow);
}

std::array<Twips, frmAssign::ButtonCount> frmAssign::ListPlaces() {
    return Grid<ButtonCount>({1500, 330, 2820, 315}, ButtonCount, 0, kRow);
}

// Three in a line, each with its option at its left.
std::array<Twips, Artwork::SchemeCount> frmAssign::SamplePlaces() {
    std::array<Twips, Artwork::SchemeCount> places;
    for (int scheme = 0; scheme < Artwork::SchemeCount; ++scheme)
        places[static_cast<size_t>(scheme)] = {540 + scheme % 3 * 2400, 480 + scheme / 3 * 1500, 1080, 1080};
    return places;
}

std::array<Twips, Artwork::SchemeCount> frmAssign::OptionPlaces() {
    std::array<Twips, Artwork::SchemeCount> places = SamplePlaces();
    for (Twips& place : places) place = {place.Left - 330, place.Top + 435, 210, 210};
    return places;
}

void frmAssign::DrawSample(int scheme, HDC canvas, const RECT& area, bool) {
    PutPicture(canvas, {area.left, area.top},
               Artwork::SchemeSample(scheme, area.right, area.bottom, SystemColor(COLOR_BTNFACE)));
}

void frmAssign::DrawPosition(int, HDC canvas, const RECT& area, bool) {
    constexpr int kColumns = 4;
    FillRect(canvas, &area, GetSysColorBrush(COLOR_BTNFACE));
    SetBkMode(canvas, TRANSPARENT);
    const int strip = area.right / 20;
    const RECT title{area.right - strip, area.top, area.right, area.bottom};
    FillRect(canvas, &title, GetSysColorBrush(COLOR_ACTIVECAPTION));
    const int side = std::min((area.right - strip) / kColumns, area.bottom / 2);
    for (int button = 1; button <= static_cast<int>(ButtonCount); ++button) {
        const int left = (button - 1) / 2 * side;
        const int top = (button - 1) % 2 * side;
        const int tile = side - side / 12;
        PutPicture(canvas, {left, top},
                   Artwork::ButtonImage(1, Artwork::ImageOfButton(button), tile, tile, SystemColor(COLOR_BTNFACE)));
        SetTextColor(canvas, ToColorRef(Artwork::TextColor(1, button - 1)));
        RECT number{left, top, left + tile, top + tile};
        DrawTextW(canvas, Text::FromNumber(button).c_str(), 1, &number, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
    }
}

bool frmAssign::Form_Initialize() {
    settings_ = Palette::Edited::Load();
    if (!settings_) SettingsNotice::CannotRead();
    return static_cast<bool>(settings_);
}

void frmAssign::Form_Load() {
    SetCaptions();
    ShowPage(0);
    FillLists();
    chkStartup.Value(settings_->IsShownAtStart());
    optColor[0].Value(true); // what is shown also after an error
    const auto scheme = static_cast<size_t>(settings_->Scheme());
    optColor[0].Value(false);
    optColor[scheme].Value(true);
}

void frmAssign::SetCaptions() {
    Caption(LangText[Caption::QuickSwitchSettings]);
    mstAssign.AddTab(LangText[Caption::Buttons]);
    mstAssign.AddTab(LangText[Caption::ColorScheme]);
    fraButtons.Text(LangText[Caption::AssignDatabase] + L":");
    for (size_t index = 0; index < ButtonCount; ++index) SetButtonCaption(index);
    chkStartup.Text(LangText[Caption::DisplayAtStartup]);
    lblLayout.Text(LangText[Caption::Buttons] + L":");
    fraColors.Text(LangText[Caption::ChooseColorScheme] + L":");
    for (size_t scheme = 0; scheme < Artwork::SchemeCount; ++scheme)
        optColor[scheme].Text(LangText[Caption::ColorScheme] + L" " +
                              Text::FromNumber(scheme + 1)); // for screen readers
    cmdOK.Text(LangText[Caption::OK]);
    cmdCancel.Text(LangText[Caption::Cancel]);
}

void frmAssign::SetButtonCaption(size_t index) {
    const std::wstring button = LangText[Caption::Button] + L" " + Text::FromNumber(index + 1);
    lblDB[index].Text(button + L":");
    cboDB[index].AccessibleName(button);
}

void frmAssign::FillLists() {
    for (size_t index = 0; index < ButtonCount; ++index) {
        cboDB[index].AddItem({});
        for (const std::wstring& name : settings_->Choices(index)) cboDB[index].AddItem(name);
        if (!settings_->Button(index).empty()) cboDB[index].Select(settings_->Button(index));
    }
}

void frmAssign::ShowPage(int tab) {
    fraButtons.Visible(tab == 0);
    fraColors.Visible(tab == 1);
}

void frmAssign::mstAssign_Click(int) { ShowPage(mstAssign.Tab()); }

void frmAssign::picSample_Click(int scheme) {
    for (OptionButton& option : optColor) option.Value(option.Index() == scheme);
}

void frmAssign::cmdOK_Click() {
    std::vector<std::wstring> names;
    for (const ComboBox& list : cboDB) names.push_back(list.SelectedText());
    size_t scheme = 0;
    while (scheme + 1 < Artwork::SchemeCount && !optColor[scheme].Value()) ++scheme;
    if (settings_->Save(names, static_cast<int>(scheme), chkStartup.Value()))
        Unload();
    else
        SettingsNotice::NotSaved();
}

void frmAssign::cmdCancel_Click() { Unload(); }
