// frmMain's start-up: a list of named steps.

#include "app/frmMain.h"

#include "app/LinkMenuItem.h"
#include "app/Module1.h"
#include "app/modStartACT.h"
#include "databases/DatabaseList.h"
#include "databases/Palette.h"
#include "databases/modUpgrade32.h"
#include "dialogs/frmLanguage.h"
#include "i18n/Caption.h"
#include "i18n/MoreText.h"
#include "i18n/modLangues.h"
#include "program/Program.h"
#include "program/SettingsNotice.h"
#include "stores/Backup.h"
#include "stores/FileHealth.h"
#include "stores/IniLib.h"
#include "stores/PlatformIni.h"
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
    const auto language = Text::WholeNumber(UserStore::Get(Keys::Options, Keys::Language));
    return language && *language >= 0 && *language <= 2 ? static_cast<short>(*language) : short{0};
}

bool IsFirstRun() { return Text::WholeNumber(UserStore::Get(Keys::Settings, Keys::Installed)).value_or(0) == 0; }

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
    const auto width = Text::Measure(UserStore::Get(Keys::Settings, Keys::Column + Text::FromNumber(column)));
    if (!width || *width < 0 || *width > kWidestColumn) return std::nullopt;
    return static_cast<int>(*width);
}

/// Makes an almost empty file where there is none; an error code.
DWORD CreateEmptyList(const std::wstring& path) {
    constexpr char kBlankLine[] = " \r\n";
    const FileHandle file(
        CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr));
    DWORD written = 0;
    const bool isMade = file && WriteFile(file.Get(), kBlankLine, sizeof kBlankLine - 1, &written, nullptr);
    return isMade ? ERROR_SUCCESS : GetLastError();
}

bool OpensQuickSwitchAtStart() {
    const auto stored = IniLib::ReadFile();
    return stored && Palette::OpensAtStart(*stored);
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
    MsgBox(language == 0 ? kAlreadyRunning : LangText[Caption::AlreadyRunning]);
    SingleInstance::ShowOther();
    return false;
}

bool frmMain::LoadLanguage() {
    short language = StoredLanguage();
    modLangues::Init_Language(language);
    return true;
}

bool frmMain::FindSettingsFile() {
    std::wstring path = UserStore::Get(Keys::Settings, Keys::IniLocation);
    IniLib::SettingsFile(path.empty() ? Application::FileInFolder(L"Kelmorra.ini") : path);
    return true;
}

bool frmMain::OfferBackup() {
    const std::wstring& path = IniLib::SettingsFile();
    // One that is missing may have been moved, or its share may not be there yet.
    const bool isMissing = FileHealth::Inspect(path) == FileHealth::State::Missing;
    const auto backup = isMissing || FileHealth::IsDamaged(path) ? Backup::LastGood(path) : std::nullopt;
    if (!backup) return true;
    const std::wstring question = Text::Replace(Translated(MoreText::RestoreBackup), L"%2", DateOf(*backup));
    if (!AskYesNo(Text::Replace(question, L"%1", path))) return true;
    const Backup::Restored restored = Backup::Restore(path);
    if (restored == Backup::Restored::NotNeeded)
        MsgBox(Text::Replace(Translated(MoreText::RestoreNotNeeded), L"%1", path), MsgIcon::Information);
    else if (restored == Backup::Restored::Failed)
        MsgBox(Text::Replace(Translated(MoreText::RestoreFailed), L"%1", *backup), MsgIcon::Exclamation);
    return true;
}

bool frmMain::CheckActRuns() {
    ActEvent1.Create([this] { ActEvent1_OnActUserWantsToClose(); });
    if (ActEvent1.InstanceCount() >= 1) return true;
    if (ActEvent1.RegistrationFailed())
        MsgBox(LangText[Caption::EventProblem] + L"\r\n" + LangText[Caption::RunActReg]);
    else if (OpensQuickSwitchAtStart())
        modStartACT::StartACT_mode(*this, toolbarIcon_);
    else
        MsgBox(LangText[Caption::RunActFirst] + Application::Title);
    return false;
}

bool frmMain::UpgradeSettings() {
    const std::wstring version = UserStore::Get(Keys::Settings, Keys::Version);
    if (version == L"200") {
        const std::wstring location = UserStore::Get(Keys::Settings, Keys::IniLocation);
        UserStore::DeleteAll();
        if (!location.empty()) UserStore::Set(Keys::Settings, Keys::IniLocation, location);
    }
    if (version != L"32" && version != L"3") modUpgrade32::Upgrade_to_32();
    UserStore::Set(Keys::Settings, Keys::Version, Application::VersionDigits());
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
    MsgBox(LangText[Caption::OpenDatabaseNeeded]);
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
    if (!reload_ && !listLoaded_ && !isReported) SettingsNotice::CannotRead();
}

void frmMain::CreateSettingsFile() {
    const std::wstring& path = IniLib::SettingsFile();
    const bool isMissing = !modFolderFileExists::FileExists(path);
    // One that has been read in this run has only gone away.
    if (isMissing && FileHealth::IsOutage(path, FileHealth::State::Missing)) return;
    DWORD error = PlatformIni::AnsiName(path) ? ERROR_SUCCESS : ERROR_ACCESS_DENIED;
    if (isMissing && error == ERROR_SUCCESS) error = CreateEmptyList(path);
    if (error == ERROR_ACCESS_DENIED) {
        const std::wstring hint = Text::Replace(Translated(MoreText::FolderNotWritable), L"%1", path);
        MsgBox(Text::Replace(hint, L"%2",
                             Caption::Plain(LangText[Caption::Options]) + L" > " +
                                 LangText[Caption::SettingsFileLocation]),
               MsgIcon::Exclamation);
    } else if (error != ERROR_SUCCESS && error != ERROR_FILE_EXISTS) {
        throw Error(BasicError::FileNotAccessible, SystemDescription(HRESULT_FROM_WIN32(error)) + L" " + path);
    }
}

void frmMain::RestoreWindow() {
    if (!isFinding_) HideFind();
    const auto width = Text::Measure(UserStore::Get(Keys::Settings, Keys::Width));
    const auto height = Text::Measure(UserStore::Get(Keys::Settings, Keys::Height));
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
    UserStore::Set(Keys::Settings, Keys::Installed, L"1");
}

void frmMain::RecordActDefaults() {
    ProgramState& program = Program();
    UserStore::Set(Keys::Settings, Keys::OriginalCL, program.Preferences.DefaultContactLayout());
    UserStore::Set(Keys::Settings, Keys::OriginalGL, program.Preferences.DefaultGroupLayout());
    UserStore::Set(Keys::Settings, Keys::OriginalMacro, program.Preferences.StartupMacro());
    program.DefaultDatabaseLocation = program.Preferences.GetDefaultLocation(DefaultLocation::Databases);
}

void frmMain::FillAndSelect() {
    if (!reload_) ReloadList();
}

void frmMain::ShowFirstWindow() {
    if (Program().ActIsClosing) return;
    if (OpensQuickSwitchAtStart())
        ShowQuickSwitch();
    else
        Show();
    if (!Visible()) return;
    if (const auto stored = IniLib::ReadFile(); stored && !DatabaseList::Read(*stored).unseen.empty())
        MsgBox(Translated(MoreText::ListTooLong), MsgIcon::Information);
}
