// The choice of the language: on the first run, and later.

#include "i18n/LangText.h"
#include "support/Journey.h"
#include "support/Text.h"
#include "win32/AnsiText.h"

#include <filesystem>

namespace {

using JourneyStores::User;
using Language = const char* LangTextRow::*;

std::wstring Row(size_t index, Language language) { return FromUtf8(LangTextTable.at(index - 1).*language); }

HWND LanguageList(HWND dialog) { return JourneyWindow::Control(dialog, L"cmbLanguage"); }

void Choose(HWND dialog, int language, const wchar_t* button) {
    SendMessageW(LanguageList(dialog), CB_SETCURSEL, static_cast<WPARAM>(language), 0);
    JourneyWindow::Click(dialog, button);
}

void CheckCaptions(HWND window, Language language) {
    CHECK(Within([&] { return JourneyWindow::Text(JourneyWindow::Control(window, L"cmdOpen")) == Row(62, language); }));
    CHECK(JourneyWindow::Text(JourneyWindow::Control(window, L"cmdCancel")) == Row(2, language));
    CHECK(JourneyWindow::Text(JourneyWindow::Control(window, L"Frame1")) == Row(46, language));
    CHECK(JourneyWindow::Text(JourneyWindow::Control(window, L"lblView", 6)) == Row(53, language));
    const ForeignList list(JourneyWindow::Control(window, L"ListView1"));
    CHECK(list.ColumnTitle(0) == Row(42, language));
    CHECK(list.ColumnTitle(4) == Row(91, language));
}

std::vector<std::wstring> FilesIn(const std::wstring& folder) {
    std::vector<std::wstring> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) names.push_back(entry.path().filename());
    return names;
}

} // namespace

TEST_CASE_FIXTURE(Journey, "on the first run a language must be chosen, and it is in force at once") {
    JourneyStores::DeleteTree(JourneyStores::UserRoot);
    StartAct(ListRealDatabase(L"Customers"));
    HWND dialog = Window(Start(), L"frmLanguage");
    CHECK(JourneyWindow::Text(dialog) == L"Kelmorra");
    CHECK(JourneyWindow::Text(JourneyWindow::Control(dialog, L"Label1")) ==
          L"Pick your language/Choisissez une langue :");
    CHECK_FALSE(IsWindowEnabled(JourneyWindow::Control(dialog, L"cmdCancel")));
    CHECK((GetWindowLongW(dialog, GWL_STYLE) & WS_SYSMENU) == 0);

    PostMessageW(dialog, WM_CLOSE, 0, 0);
    PostMessageW(LanguageList(dialog), WM_KEYDOWN, VK_ESCAPE, 0);
    PostMessageW(LanguageList(dialog), CB_SETCURSEL, 2, 0); // arrives behind the two
    REQUIRE(Within([&] { return SendMessageW(LanguageList(dialog), CB_GETCURSEL, 0, 0) == 2; }));
    CHECK(IsWindowVisible(dialog));
    CHECK_FALSE(User(L"Options", L"Language"));

    JourneyWindow::Click(dialog, L"cmdOK");
    CheckCaptions(MainWindow(Program()), &LangTextRow::German);
    CHECK(User(L"Options", L"Language") == L"2");
    CHECK(User(L"Settings", L"Installed") == L"1");
    CHECK(User(L"Settings", L"Version") == L"320");
}

TEST_CASE_FIXTURE(Journey, "the web link is put into ACT!'s folder of links, when ACT! has one") {
    const std::wstring links = ActFile(L"NetLinks");
    const std::wstring link = links + L"\\1010it_Varnholtine.web";
    const std::vector<std::wstring> actFiles = FilesIn(ActFile(L"."));
    StartAct(ListRealDatabase(L"Customers"));
    for (const bool hasLinks : {false, true}) {
        CAPTURE(hasLinks);
        JourneyStores::DeleteTree(JourneyStores::UserRoot);
        if (hasLinks) std::filesystem::create_directory(links);
        Choose(Window(Start(), L"frmLanguage"), 1, L"cmdOK");
        MainWindow(Program());
        if (!hasLinks) CHECK(FilesIn(ActFile(L".")) == actFiles);
        if (hasLinks)
            CHECK(JourneyStores::FileBytes(link) ==
                  "]https://www.varnholtine.example/ " +
                      ToAnsi(Text::Replace(Row(12, &LangTextRow::French), L"&", L"")) + "\r\n");
        CHECK(FilesIn(File(L"Kelmorra")).size() == 2); // the program and its settings file
        Close();
    }
    std::filesystem::remove_all(links);
}

TEST_CASE_FIXTURE(Journey, "a language chosen from the menu changes the captions and nothing else") {
    const std::wstring open = ListRealDatabase(L"Customers");
    ListRealDatabase(L"Suppliers");
    StartAct(open);
    HWND window = StartToMainWindow();
    SetWindowPos(window, nullptr, 0, 0, 720, 480, SWP_NOMOVE | SWP_NOZORDER);
    RECT before{}, after{};
    GetWindowRect(window, &before);
    CheckCaptions(window, &LangTextRow::English);

    JourneyWindow::ClickMenu(window, L"mnuLanguages");
    HWND dialog = Window(Program(), L"frmLanguage");
    CHECK(JourneyWindow::Text(dialog) == L"Languages");
    CHECK(JourneyWindow::Text(JourneyWindow::Control(dialog, L"Label1")) == L"Pick your language:");
    CHECK_FALSE(IsWindowEnabled(window));
    Choose(dialog, 1, L"cmdOK");
    CheckCaptions(window, &LangTextRow::French);
    CHECK(User(L"Options", L"Language") == L"1");
    CHECK(ForeignList(JourneyWindow::Control(window, L"ListView1")).Rows() == 2);
    GetWindowRect(window, &after);
    CHECK(EqualRect(&before, &after));
    CHECK(Count(L"APPOBJECT", L"OpenFile") == 1);
    CHECK(Count(L"EVENT", L"Advise") == 1);

    JourneyWindow::ClickMenu(window, L"mnuLanguages");
    dialog = Window(Program(), L"frmLanguage");
    CHECK(JourneyWindow::Text(dialog) == Row(65, &LangTextRow::French));
    Choose(dialog, 2, L"cmdCancel");
    REQUIRE(Within([&] { return !IsWindow(dialog) && IsWindowEnabled(window); }));
    CheckCaptions(window, &LangTextRow::French);
    CHECK(User(L"Options", L"Language") == L"1");
    Close();
    CheckCaptions(StartToMainWindow(), &LangTextRow::French);
}
