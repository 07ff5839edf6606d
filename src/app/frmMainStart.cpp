// frmMain's start-up: a list of named steps.

#include "app/frmMain.h"

#include "app/LinkMenuItem.h"
#include "app/Module1.h"
#include "app/modStartACT.h"
#include "databases/modUpgrade32.h"
#include "i18n/MoreText.h"
#include "i18n/frmLanguage.h"
#include "i18n/modLangues.h"
#include "program/Program.h"
#include "stores/Backup.h"
#include "stores/FileHealth.h"
#include "stores/IniLib.h"
#include "stores/UserStore.h"
#include "support/Application.h"
#include "support/ErrorReport.h"
#include "support/MsgBox.h"
#include "support/Text.h"
#include "support/modFolderFileExists.h"
#include "win32/Owner.h"

#include <algorithm>
#include <array>

namespace {

constexpr wchar_t kAlreadyRunning[] = L"An instance of this program is already running!";
constexpr int kColumnCount = 5;
constexpr int kDesignColumn = 1125;    // twips; wider where a title needs it
constexpr long kWidestColumn = 100000; // twips; more is garbage

short StoredLanguage() {
    const auto language = Text::WholeNumber(UserStore::Get(L"Options", L"Language"));
    return language && *language >= 0 && *language <= 2 ? static_cast<short>(*language) : short{0};
}

bool IsFirstRun() { return Text::WholeNumber(UserStore::Get(L"Settings", L"Installed")).value_or(0) == 0; }

/// The day of a file's last change, as the user writes dates.
std::wstring DateOf(const std::wstring& path) {
    WIN32_FILE_ATTRIBUTE_DATA data{};
    FILETIME local{};
    SYSTEMTIME time{};
    std::array<wchar_t, 80> text{};
    if (GetFileAttributesExW(path.c_str(), GetFileExInfoStandard, &data) &&
        FileTimeToLocalFileTime(&data.ftLastWriteTime, &local) && FileTimeToSystemTime(&local, &time))
        GetDateFormatW(LOCALE_USER_DEFAULT, DATE_SHORTDATE, &time, nullptr, text.data(), text.size());
    return text.data();
}

/// In twips; none when it was never stored or is garbage.
std::optional<int> StoredColumnWidth(int column) {
    const auto width = Text::Measure(UserStore::Get(L"Settings", L"Column" + Text::FromNumber(column)));
    if (!width || *width < 0 || *width > kWidestColumn) return std::nullopt;
    return static_cast<int>(*width);
}

bool OpensQuickSwitchAtStart() {
    const auto wanted = Text::WholeNumber(IniLib::GetKeyValue(L"General", L"QuickSwitchStartup", L"0"));
    return wanted.value_or(0) == 1 && !IniLib::GetKeyValue(L"General", L"Quickswitch").empty();
}

} // namespace

bool frmMain::StartSteps() {
    if (!ClaimInstance() || !LoadLanguage() || !FindSettingsFile()) return false;
    if (!reload_)
        if (!OfferBackup() || !CheckActRuns() || !UpgradeSettings() || !Module1::Create_object() || !FirstRunLanguage())
            return false;
    return CheckUserLoggedOn();
}

bool frmMain::ClaimInstance() {
    if (instance_.Claim()) return true;
    short language = StoredLanguage();
    modLangues::Init_Language(language);
    MsgBox(language == 0 ? kAlreadyRunning : LangText[7]);
    return false;
}

bool frmMain::LoadLanguage() {
    short language = StoredLanguage();
    modLangues::Init_Language(language);
    return true;
}

bool frmMain::FindSettingsFile() {
    std::wstring path = UserStore::Get(L"Settings", L"IniLocation");
    IniLib::SettingsFile(path.empty() ? Application::FileInFolder(L"Kelmorra.ini") : path);
    return true;
}

bool frmMain::OfferBackup() {
    const std::wstring& path = IniLib::SettingsFile();
    const auto backup = FileHealth::IsDamaged(path) ? Backup::LastGood(path) : std::nullopt;
    if (!backup) return true;
    const std::wstring question = Text::Replace(Translated(MoreText::RestoreBackup), L"%2", DateOf(*backup));
    if (AskYesNo(Text::Replace(question, L"%1", path)) && !Backup::Restore(path))
        MsgBox(Text::Replace(Translated(MoreText::RestoreFailed), L"%1", *backup), MsgIcon::Exclamation);
    return true;
}

bool frmMain::CheckActRuns() {
    ActEvent1.Create([this] { ActEvent1_OnActUserWantsToClose(); });
    if (ActEvent1.InstanceCount() >= 1) return true;
    if (ActEvent1.RegistrationFailed())
        MsgBox(LangText[10] + L"\r\n" + LangText[11]);
    else if (OpensQuickSwitchAtStart())
        modStartACT::StartACT_mode(*this, toolbarIcon_);
    else
        MsgBox(LangText[9] + Application::Title);
    return false;
}

bool frmMain::UpgradeSettings() {
    const std::wstring version = UserStore::Get(L"Settings", L"Version");
    if (version == L"200") {
        const std::wstring location = UserStore::Get(L"Settings", L"IniLocation");
        UserStore::DeleteAll();
        if (!location.empty()) UserStore::Set(L"Settings", L"IniLocation", location);
    }
    if (version != L"32" && version != L"3") modUpgrade32::Upgrade_to_32();
    UserStore::Set(L"Settings", L"Version", Application::VersionDigits());
    return true;
}

bool frmMain::FirstRunLanguage() {
    if (!IsFirstRun()) return true;
    frmLanguage().ShowModal();
    if (Program().ActIsClosing) return false;
    LoadLanguage();
    Create_LinkMenuItem(toolbarIcon_.GetACTLocation());
    return true;
}

bool frmMain::CheckUserLoggedOn() {
    if (!Program().Application.GetCurrentUserName().empty()) return true;
    MsgBox(LangText[126]);
    return false;
}

void frmMain::FinishStart() {
    using Step = void (frmMain::*)();
    constexpr Step kSteps[] = {&frmMain::CreateSettingsFile, &frmMain::RestoreWindow,     &frmMain::RestoreColumns,
                               &frmMain::CompleteFirstRun,   &frmMain::RecordActDefaults, &frmMain::FillAndSelect};
    bool isReported = false;
    for (const Step step : kSteps) {
        try {
            (this->*step)();
        } catch (...) {
            // The window stays usable, so that for example the settings file's place can be mended. What fails
            // further on has the same cause and is not reported again.
            if (!isReported) ErrorReport("frmMain: Sub Form_Load");
            isReported = true;
        }
    }
    if (!reload_) ShowFirstWindow();
}

void frmMain::CreateSettingsFile() {
    const std::wstring& path = IniLib::SettingsFile();
    if (modFolderFileExists::FileExists(path)) return;
    const FileHandle file(
        CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr));
    constexpr char kBlankLine[] = " \r\n";
    if (!file && GetLastError() == ERROR_ACCESS_DENIED) {
        const std::wstring hint = Text::Replace(Translated(MoreText::FolderNotWritable), L"%1", path);
        MsgBox(Text::Replace(hint, L"%2", Text::Replace(LangText[59], L"&", L"") + L" > " + LangText[122]),
               MsgIcon::Exclamation);
        return;
    }
    DWORD written = 0;
    if (!file || !WriteFile(file.Get(), kBlankLine, sizeof kBlankLine - 1, &written, nullptr))
        throw Error(BasicError::FileNotAccessible, SystemDescription(HRESULT_FROM_WIN32(GetLastError())) + L" " + path);
}

void frmMain::RestoreWindow() {
    if (!isFinding_) HideFind();
    const auto width = Text::Measure(UserStore::Get(L"Settings", L"Width"));
    const auto height = Text::Measure(UserStore::Get(L"Settings", L"Height"));
    const Twips design = OuterSize();
    const int widest = ToTwips(GetSystemMetrics(SM_CXMAXTRACK), Dpi());
    const int highest = ToTwips(GetSystemMetrics(SM_CYMAXTRACK), Dpi());
    const Twips wanted{0, 0, std::min<int>(width.value_or(design.Width), widest),
                       std::min<int>(height.value_or(design.Height), highest)};
    if (wanted != design) {
        OuterSize(wanted.Width, wanted.Height);
        if (!reload_) Center(nullptr);
    }
    sizeLoaded_ = true;
    if (!reload_) optView[0].Value(true);
    SetCaptions();
}

void frmMain::RestoreColumns() {
    if (!columnsLoaded_) ListView1.Icon(1);
    for (int column = 0; column < kColumnCount; ++column) {
        const auto width = StoredColumnWidth(column);
        const std::wstring title = ColumnTitle(column);
        if (column >= ListView1.ColumnCount())
            ListView1.AddColumn(title, width.value_or(std::max(ListView1.TitleWidth(title), kDesignColumn)));
        else if (width)
            ListView1.ColumnWidth(column, *width);
    }
    columnsLoaded_ = true;
}

void frmMain::CompleteFirstRun() {
    if (!IsFirstRun()) return;
    Create_LinkMenuItem(toolbarIcon_.GetACTLocation());
    UserStore::Set(L"Settings", L"Installed", L"1");
}

void frmMain::RecordActDefaults() {
    ProgramState& program = Program();
    UserStore::Set(L"Settings", L"OriginalCL", program.Preferences.DefaultContactLayout());
    UserStore::Set(L"Settings", L"OriginalGL", program.Preferences.DefaultGroupLayout());
    UserStore::Set(L"Settings", L"OriginalMacro", program.Preferences.StartupMacro());
    program.DefaultDatabaseLocation = program.Preferences.GetDefaultLocation(DefaultLocation::Databases);
}

void frmMain::FillAndSelect() {
    if (reload_) return;
    ReloadList();
    listLoaded_ = true;
}

void frmMain::ShowFirstWindow() {
    if (Program().ActIsClosing) return;
    if (OpensQuickSwitchAtStart())
        ShowQuickSwitch();
    else
        Show();
    if (Visible() && DatabaseList::IsLongerThanShown()) MsgBox(Translated(MoreText::ListTooLong), MsgIcon::Information);
}
