#include "app/Startup.h"

#include "app/modStartACT.h"
#include "databases/DatabaseList.h"
#include "databases/Palette.h"
#include "databases/modUpgrade32.h"
#include "dialogs/frmLanguage.h"
#include "i18n/Caption.h"
#include "i18n/MoreText.h"
#include "i18n/modLangues.h"
#include "opening/ActDefaults.h"
#include "opening/LinkMenuItem.h"
#include "opening/Module1.h"
#include "opening/clsToolbarIcon.h"
#include "program/Program.h"
#include "stores/Backup.h"
#include "stores/FileHealth.h"
#include "stores/IniLib.h"
#include "stores/PlatformIni.h"
#include "stores/UserStore.h"
#include "support/Application.h"
#include "support/MsgBox.h"
#include "support/Text.h"
#include "support/modFolderFileExists.h"
#include "win32/Owner.h"

#include <array>

namespace {

constexpr wchar_t kAlreadyRunning[] = L"An instance of this program is already running!";

short StoredLanguage() {
    const auto language = Text::WholeNumber(UserStore::Get(Keys::Options, Keys::Language));
    return language && *language >= 0 && *language <= 2 ? static_cast<short>(*language) : short{0};
}

void LoadLanguage() { modLangues::Init_Language(StoredLanguage()); }

void FindSettingsFile() {
    const std::wstring path = UserStore::Get(Keys::Settings, Keys::IniLocation);
    IniLib::SettingsFile(path.empty() ? Application::FileInFolder(L"Kelmorra.ini") : path);
}

void OfferBackup() {
    const std::wstring& path = IniLib::SettingsFile();
    // One that is missing may have been moved, or its share may not be there yet.
    const bool isMissing = FileHealth::Inspect(path) == FileHealth::State::Missing;
    const auto backup = isMissing || FileHealth::IsDamaged(path) ? Backup::LastGood(path) : std::nullopt;
    if (!backup) return;
    const std::wstring question = Text::Replace(Translated(MoreText::RestoreBackup), L"%2", Backup::TimeOf(*backup));
    if (!AskYesNo(Text::Replace(question, L"%1", path))) return;
    const Backup::Restored restored = Backup::Restore(path);
    if (restored == Backup::Restored::NotNeeded)
        MsgBox(Text::Replace(Translated(MoreText::RestoreNotNeeded), L"%1", path), MsgIcon::Information);
    else if (restored == Backup::Restored::Failed)
        MsgBox(Text::Replace(Translated(MoreText::RestoreFailed), L"%1", *backup), MsgIcon::Exclamation);
}

void UpgradeSettings() {
    const std::wstring version = UserStore::Get(Keys::Settings, Keys::Version);
    if (version == L"200") {
        const std::wstring location = UserStore::Get(Keys::Settings, Keys::IniLocation);
        UserStore::DeleteAll();
        if (!location.empty()) UserStore::Set(Keys::Settings, Keys::IniLocation, location);
    }
    if (version != L"32" && version != L"3") modUpgrade32::Upgrade_to_32();
    UserStore::Set(Keys::Settings, Keys::Version, Application::VersionDigits());
}

bool CheckUserLoggedOn() {
    if (!Program().Application.GetCurrentUserName().empty()) return true;
    MsgBox(LangText[Caption::OpenDatabaseNeeded]);
    return false;
}

void LinkToVendor() {
    Create_LinkMenuItem(clsToolbarIcon().GetACTLocation(), Caption::Plain(LangText[Caption::VendorAddOns]));
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

} // namespace

bool Startup::Connect() {
    if (!ClaimInstance()) return false;
    LoadLanguage();
    FindSettingsFile();
    OfferBackup();
    if (!CheckActRuns()) return false;
    UpgradeSettings();
    return Module1::Create_object(Program()) && FirstRunLanguage() && CheckUserLoggedOn();
}

bool Startup::Reconnect() {
    LoadLanguage();
    FindSettingsFile();
    return CheckUserLoggedOn();
}

bool Startup::ClaimInstance() {
    if (instance_.Claim()) return true;
    LoadLanguage();
    MsgBox(CurrentLanguage == 0 ? kAlreadyRunning : LangText[Caption::AlreadyRunning]);
    SingleInstance::ShowOther();
    return false;
}

bool Startup::CheckActRuns() {
    ActEvent1.Create(onActUserWantsToClose_);
    if (ActEvent1.InstanceCount() >= 1) return true;
    if (ActEvent1.RegistrationFailed())
        MsgBox(LangText[Caption::EventProblem] + L"\r\n" + LangText[Caption::RunActReg]);
    else if (OpensQuickSwitch())
        modStartACT::StartACT_mode(window_);
    else
        MsgBox(LangText[Caption::RunActFirst] + Application::Title);
    return false;
}

bool Startup::FirstRunLanguage() {
    if (!frmLanguage::IsFirstRun()) return true;
    frmLanguage().ShowModal();
    if (Program().ActIsClosing) return false;
    LoadLanguage();
    LinkToVendor();
    return true;
}

void Startup::CreateSettingsFile() {
    const std::wstring& path = IniLib::SettingsFile();
    const bool isMissing = !modFolderFileExists::FileExists(path);
    // One that has been read in this run has only gone away.
    if (isMissing && FileHealth::IsOutage(path, FileHealth::State::Missing)) return;
    DWORD error = PlatformIni::AnsiName(path) ? ERROR_SUCCESS : ERROR_ACCESS_DENIED;
    if (isMissing && error == ERROR_SUCCESS) error = CreateEmptyList(path);
    if (error == ERROR_ACCESS_DENIED) {
        const std::wstring hint = Text::Replace(Translated(MoreText::FolderNotWritable), L"%1", path);
        const std::wstring command =
            Caption::Plain(LangText[Caption::Options]) + L" > " + LangText[Caption::SettingsFileLocation];
        MsgBox(Text::Replace(hint, L"%2", command), MsgIcon::Exclamation);
    } else if (error != ERROR_SUCCESS && error != ERROR_FILE_EXISTS) {
        throw Error(BasicError::FileNotAccessible, SystemDescription(HRESULT_FROM_WIN32(error)) + L" " + path);
    }
}

void Startup::CompleteFirstRun() {
    if (!frmLanguage::IsFirstRun()) return;
    LinkToVendor();
    UserStore::Set(Keys::Settings, Keys::Installed, L"1");
}

void Startup::RecordActDefaults() {
    ProgramState& program = Program();
    ActDefaults::Record(program.Preferences);
    program.DefaultDatabaseLocation = program.Preferences.GetDefaultLocation(DefaultLocation::Databases);
}

bool Startup::OpensQuickSwitch() {
    const auto stored = IniLib::ReadFile();
    return stored && Palette::OpensAtStart(*stored);
}

void Startup::TellOfUnseen() {
    if (const auto stored = IniLib::ReadFile(); stored && !DatabaseList::Read(*stored).unseen.empty())
        MsgBox(Translated(MoreText::ListTooLong), MsgIcon::Information);
}
