#include "dialogs/frmLanguage.h"

#include "databases/Keys.h"
#include "i18n/Caption.h"
#include "i18n/modLangues.h"
#include "stores/UserStore.h"
#include "support/Application.h"
#include "support/Text.h"

namespace {

// Both languages: none is chosen yet.
constexpr wchar_t kFirstRunPrompt[] = L"Pick your language/Choisissez une langue :";

} // namespace

bool frmLanguage::IsFirstRun() {
    return Text::WholeNumber(UserStore::Get(Keys::Settings, Keys::Installed)).value_or(0) == 0;
}

frmLanguage::frmLanguage()
    : Form({L"frmLanguage", 4200, 1680, Border::Dialog, !IsFirstRun()}), isFirstRun_(IsFirstRun()) {}

void frmLanguage::Form_Load() {
    if (isFirstRun_) {
        Caption(Application::Title);
        Label1.Text(kFirstRunPrompt);
        cmdOK.Text(L"&OK");
        cmdCancel.Text(L"&Cancel");
        cmdCancel.Enabled(false);
    } else {
        Caption(LangText[Caption::Languages]);
        Label1.Text(LangText[Caption::PickLanguage] + L":");
        cmdOK.Text(LangText[Caption::OK]);
        cmdCancel.Text(LangText[Caption::Cancel]);
    }
    for (const wchar_t* language : {L"English", L"Français", L"Deutsch"}) cmbLanguage.AddItem(language);
    cmbLanguage.ListIndex(CurrentLanguage);
}

void frmLanguage::cmdOK_Click() {
    UserStore::Set(L"Options", L"Language", Text::FromNumber(cmbLanguage.ListIndex()));
    Unload();
}

void frmLanguage::cmdCancel_Click() { Unload(); }
