#include "dialogs/frmLanguage.h"
#include "i18n/modLangues.h"
#include "stores/UserStore.h"
#include "support/DialogScript.h"
#include "support/ScratchRegistry.h"
#include "support/Wide.h"

TEST_CASE("On the first run the language dialog is bilingual and cannot be left without a choice; later it can") {
    const ScratchRegistry registry;
    modLangues::Init_Language(short{0});
    DialogScript script;
    script.Then([](HWND window) {
        CHECK(WindowText(FindControl(window, L"Label1")) == L"Pick your language/Choisissez une langue :");
        CHECK_FALSE(IsWindowEnabled(FindControl(window, L"cmdCancel")));
        SendMessageW(window, WM_CLOSE, 0, 0);
        SendMessageW(window, WM_COMMAND, IDCANCEL, 0);
        CHECK(IsWindowVisible(window));
        SendMessageW(FindControl(window, L"cmbLanguage"), CB_SETCURSEL, 1, 0);
        Click(FindControl(window, L"cmdOK"));
    });
    frmLanguage().ShowModal();
    CHECK(UserStore::Get(L"Options", L"Language") == L"1");

    UserStore::Set(L"Settings", L"Installed", L"1");
    modLangues::Init_Language(short{1});
    script.Then([](HWND window) {
        HWND list = FindControl(window, L"cmbLanguage");
        CHECK(SendMessageW(list, CB_GETCURSEL, 0, 0) == 1);
        SendMessageW(list, CB_SETCURSEL, 2, 0);
        Click(FindControl(window, L"cmdCancel"));
    });
    frmLanguage().ShowModal();
    CHECK(UserStore::Get(L"Options", L"Language") == L"1");
    modLangues::Init_Language(short{0});
}
