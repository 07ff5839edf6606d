#include "dialogs/frmAbout.h"

#include "i18n/Caption.h"
#include "i18n/MoreText.h"
#include "i18n/modLangues.h"
#include "support/Application.h"
#include "support/Text.h"
#include "support/Vendor.h"
#include "win32/AnsiText.h"
#include "win32/Owner.h"

frmAbout::frmAbout() : Form({L"frmAbout", 6030, 3960}) {}

void frmAbout::Form_Load() {
    Caption(LangText[Caption::About]);
    constexpr short kGerman = 2;
    const bool isGerman = CurrentLanguage == kGerman;
    txtAbout.Text(Text::Concat(
        {Application::Title, L" ", Application::Version(), L"\r\n", Caption::Plain(LangText[Caption::VendorAddOns]),
         L"\r\n\r\n", Translated(MoreText::WhatThisIs), L"\r\n\r\n", LangText[Caption::Freeware], L"\r\n\r\n",
         LangText[Caption::EmailUs], L"\r\n", FromUtf8(isGerman ? Vendor::GermanSupportEmail : Vendor::SupportEmail)}));
    txtAbout.AccessibleName(LangText[Caption::About]);
    cmdOK.Text(LangText[Caption::OK]);
}

void frmAbout::DrawIcon(int, HDC canvas, const RECT& area, bool) {
    FillRect(canvas, &area, GetSysColorBrush(COLOR_BTNFACE));
    const IconHandle icon(static_cast<HICON>(
        LoadImageW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(1), IMAGE_ICON, area.right, area.bottom, 0)));
    DrawIconEx(canvas, 0, 0, icon.Get(), area.right, area.bottom, 0, nullptr, DI_NORMAL);
}
