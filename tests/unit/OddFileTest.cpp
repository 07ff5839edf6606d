// Settings files and names as no careful program writes them: what is read stays readable, and nothing is lost by a
// write.

#include "databases/DatabaseList.h"
#include "databases/OtherSettings.h"
#include "databases/Record.h"
#include "stores/Backup.h"
#include "stores/SafeFile.h"
#include "stores/UserStore.h"
#include "support/SettingsDesk.h"
#include "win32/AnsiText.h"

#include <filesystem>

namespace {

using Section = std::vector<std::pair<std::wstring, std::wstring>>;
using Contents = std::vector<std::pair<std::wstring, Section>>;

Contents ReadAll() {
    Contents all;
    constexpr size_t kMost = 6; // of each file: all would take long
    for (const std::wstring& section : IniLib::Extract_Sections())
        if (all.size() < kMost) all.emplace_back(section, IniLib::ReadFile()->Section(section));
    return all;
}

std::vector<std::wstring> List() { return DatabaseList::ReadAll(*IniLib::ReadFile()); }
std::wstring PathOf(const std::wstring& name) { return ExtractInfo(*IniLib::ReadFile(), name).Path; }

bool HasNew() { return IniLib::GetKeyValue(L"New", L"Key") == L"value"; }

std::string Utf16(const std::string& text) {
    std::string bytes = "\xFF\xFE";
    for (const char byte : text) bytes += {byte, '\0'};
    return bytes;
}

} // namespace

TEST_CASE_FIXTURE(SettingsDesk, "Marks, line ends, rubbish and size keep no value from being read and kept") {
    const std::string plain = "[General]\r\nSort=A;B\r\n[A]\r\nPath=C:\\A.dbf\r\n";
    const std::string longLine(100'000, 'x');
    std::string lf = plain;
    std::erase(lf, '\r');
    std::string sections = plain;
    for (int number = 0; number < 20'000; ++number) sections += '[' + std::to_string(number) + "]\r\n";
    const std::pair<const char*, std::string> files[] = {
        {"UTF-8 with a mark", "\xEF\xBB\xBF" + plain},
        {"UTF-16", Utf16(plain)},
        {"LF", lf},
        {"no line end at the end", plain.substr(0, plain.size() - 2)},
        {"rubbish", "rubbish\r\n[\r\n=\r\n[]\r\n]\r\n" + plain + "[A\r\n=x\r\n;[A]\r\n[A]]\r\nPath=other\r\n"},
        {"a long line", plain + "Long=" + longLine + "\r\n[B]\r\nPath=C:\\B.dbf\r\n"},
        {"20,000 sections", sections}};
    for (const auto& [name, bytes] : files) {
        CAPTURE(name);
        file.Bytes(bytes);
        const Contents before = ReadAll();
        CHECK(List() == std::vector<std::wstring>{L"A", L"B"});
        CHECK(PathOf(L"A") == L"C:\\A.dbf");
        CHECK(OtherSettings::Load(file.Path())->Offered().at(0).Path == L"C:\\A.dbf");
        CHECK(IniLib::WriteKeyValue(L"New", L"Key", L"value"));
        CHECK(HasNew());
        CHECK(List() == std::vector<std::wstring>{L"A", L"B"});
        Contents after = ReadAll();
        if (after.size() > before.size()) after.resize(before.size());
        CHECK(after == before);
    }
}

TEST_CASE_FIXTURE(SettingsDesk, "What a file with zero bytes holds is kept before a write, which cuts its lines") {
    const std::string damaged("[General]\r\nSort=A;B\0;C;D\r\n", 26);
    file.Bytes(damaged);
    CHECK(IniLib::WriteKeyValue(L"New", L"Key", L"value"));
    bool isKept = false;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(backups.Folder()))
        isKept = isKept || SafeFile::Read(entry.path().wstring()).Bytes == damaged;
    CHECK(isKept);
    CHECK_FALSE(Backup::LastGood(file.Path())); // not offered: it is no sound file
}

TEST_CASE_FIXTURE(SettingsDesk, "A database may have any name: it keeps its own values and touches nobody else's") {
    std::vector<std::wstring> names{
        L"CON",        L"NUL.txt",        L"C:",         L"A\\B", L"\\", L"Display\\A", L"[A]",
        L"A]B",        L"\"A\"",          L"'",          L"=",    L";A", L"General",    L"Settings",
        L"Options",    L"Display",        L"Logon",      L"A\tB", L"%s", L"GENERAL",    L"SETTINGS",
        L"Settings\\", L"\\Settings\\\\", L"LogonDialog"};
    for (int code = 0x21; code < 249; code += 8) {
        std::string bytes;
        for (int next = code; next < code + 8; ++next) bytes += static_cast<char>(next);
        names.push_back(ToWide(bytes));
    }
    for (const size_t length : {2U, 253U, 255U, 256U, 998U}) names.emplace_back(length, L'n');
    const std::pair<const wchar_t*, const wchar_t*> others[] = {
        {L"Settings", L"IniLocation"}, {L"Options", L"Language"},  {L"Display", L"Selected"},
        {L"Logon", L"Other"},          {L"LogonDialog", L"Title"}, {L"Other", L"Username"}};
    for (const std::wstring& name : names) {
        CAPTURE(name);
        file.Bytes("[General]\r\nSort=Other\r\nQuickSwitch=;;\r\n[Other]\r\nPath=C:\\Other.dbf\r\n");
        for (const auto& [section, key] : others) UserStore::Set(section, key, L"kept");
        const std::string before = file.Bytes();
        CHECK(IniLib::WriteKeyValue(name, L"Path", L"C:\\Own.dbf"));
        CHECK(PathOf(name) == L"C:\\Own.dbf");
        CHECK(IniLib::WriteKeyValue(name, L"NetLinks", L"C:\\Links"));
        // The registry knows no longer names of keys.
        const bool isStored = UserStore::Set(name, L"Username", L"Chris");
        if (name.size() <= 255) CHECK(isStored);
        CHECK(UserStore::Get(name, L"Username") == (isStored ? L"Chris" : L""));
        UserStore::Set(name, L"Password", L"secret");
        if (name.find(L';') == std::wstring::npos) {
            CHECK(IniLib::WriteKeyValue(L"General", L"Sort", name + L";Other"));
            CHECK(List() == std::vector<std::wstring>{name, L"Other"});
        }
        IniLib::Change change;
        DatabaseList::DeleteFileRecord(*IniLib::ReadFile(), change, name);
        change.WriteKeyValue(L"General", L"Sort", L"Other");
        CHECK(change.Commit());
        DatabaseList::DeleteUserRecord(name, {L"Other"});
        CHECK(file.Bytes() == before);
        for (const wchar_t* key : {L"Username", L"Password"}) CHECK(UserStore::Get(name, key).empty());
        for (const auto& [section, key] : others) CHECK(UserStore::Get(section, key) == L"kept");
    }
}
