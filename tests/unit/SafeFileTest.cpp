// Writing the settings file as one step, on files that are shared, protected, held open or damaged.

#include "stores/SafeFile.h"
#include "stores/Backup.h"
#include "support/SettingsDesk.h"
#include "win32/AnsiText.h"
#include "win32/Owner.h"

#include <algorithm>
#include <filesystem>

namespace fs = std::filesystem;

namespace {

constexpr char kBefore[] =
    "; office\r\n[General]\n  Sort = A;B\r\n\r\n[A]\r\nPath=C:\\a.dbf\r\nCLY=\r\n[B]\r\nPath=b\r\n";

/// A settings file, and its user's copies.
struct Desk : SettingsDesk {
    FileHandle Hold(const std::wstring& path, DWORD sharing) const {
        return FileHandle(CreateFileW(path.c_str(), GENERIC_READ, sharing, nullptr, OPEN_EXISTING, 0, nullptr));
    }
    bool IsAlone() const {
        return fs::exists(file.Path()) && ++fs::directory_iterator(file.Folder()) == fs::directory_iterator();
    }
    std::vector<fs::path> Backups() const {
        std::vector<fs::path> paths;
        for (const auto& entry : fs::directory_iterator(backups.Folder() + L"\\Kelmorra\\Backup"))
            paths.push_back(entry.path());
        std::ranges::sort(paths);
        return paths;
    }
};

bool Write(const wchar_t* value = L"new") { return IniLib::WriteKeyValue(L"A", L"Path", value); }

/// Steps of a change: without a value a key is deleted, without a key a section.
struct Step {
    const char* section;
    const char* key;
    const char* value;
};
constexpr Step kSteps[] = {
    {"General", "Sort", "A;B;C"}, {"B", nullptr, nullptr}, {"C", "Path", "c"},    {"A", "New", "1"},
    {"A", "CLY", nullptr},        {"C", "CLY", "d"},       {"A", "Path", "again"}};

void AddTo(IniLib::Change& change, const Step& step) {
    const std::wstring section = ToWide(step.section);
    if (!step.key)
        change.DeleteSection(section);
    else if (!step.value)
        change.DeleteKey(section, ToWide(step.key));
    else
        change.WriteKeyValue(section, ToWide(step.key), ToWide(step.value));
}

} // namespace

TEST_CASE_FIXTURE(Desk, "A change leaves the bytes of the platform's calls, and nothing beside the file") {
    for (const char* before : {kBefore, "", " \r\n", "[General]\nSort=A", "(none)"}) {
        CAPTURE(before);
        const TempFile plain(L"Kelmorra.ini"), own(L"Kelmorra.ini");
        if (*before != '(') {
            plain.Bytes(before);
            own.Bytes(before);
        }
        IniLib::SettingsFile(own.Path());
        IniLib::Change change;
        for (const Step& step : kSteps) {
            REQUIRE(WritePrivateProfileStringA(step.section, step.key, step.value, ToAnsi(plain.Path()).c_str()));
            AddTo(change, step);
        }
        CHECK(change.Commit());
        CHECK(own.Bytes() == plain.Bytes());
        CHECK(std::distance(fs::directory_iterator(own.Folder()), fs::directory_iterator()) == 1);
    }
}

TEST_CASE_FIXTURE(Desk, "A change is made as a whole or not at all, and not before it is committed") {
    file.Bytes(kBefore);
    IniLib::Change change;
    change.WriteKeyValue(L"A", L"Path", L"new");
    CHECK(IniLib::GetKeyValue(L"A", L"Path") == L"C:\\a.dbf");
    SUBCASE("an empty section") { change.DeleteKey(L"", L"Path"); }
    SUBCASE("a value too long") { change.WriteKeyValue(L"A", L"CLY", std::wstring(32764, L'x')); }
    SUBCASE("refused") { change.Refuse(); }
    SUBCASE("read-only") { SetFileAttributesW(file.Path().c_str(), FILE_ATTRIBUTE_READONLY); }
    CHECK_FALSE(change.Commit());
    CHECK(file.Bytes() == kBefore);
    CHECK(IsAlone());
    SetFileAttributesW(file.Path().c_str(), FILE_ATTRIBUTE_NORMAL);
}

TEST_CASE_FIXTURE(Desk, "Attributes survive, and a leftover of a killed writer does not") {
    file.Bytes(kBefore);
    const DWORD wanted = FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_ARCHIVE;
    SetFileAttributesW(file.Path().c_str(), wanted);
    for (const wchar_t* leftover : {L".new", L".lock"}) {
        const std::wstring path = file.Path() + leftover;
        CloseHandle(CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, FILE_ATTRIBUTE_HIDDEN, nullptr));
    }
    CHECK(Write());
    CHECK(IniLib::GetKeyValue(L"A", L"Path") == L"new");
    CHECK(GetFileAttributesW(file.Path().c_str()) == wanted);
    CHECK(IsAlone());
}

TEST_CASE_FIXTURE(Desk, "Where the file cannot be replaced but can be written, it is written; else it stays whole") {
    struct Row {
        const wchar_t* obstacle; ///< a folder of that name beside the file, where no file can be made then
        DWORD sharing;           ///< of somebody who holds the file open; 0 for nobody
        bool isWritten;
    };
    constexpr Row rows[] = {
        {L".lock", 0, true},
        {L".new", 0, true},
        {nullptr, FILE_SHARE_READ | FILE_SHARE_WRITE, true},
        {nullptr, FILE_SHARE_READ, false},
    };
    for (const Row& row : rows) {
        CAPTURE(row.sharing);
        file.Bytes(kBefore);
        const fs::path obstacle = row.obstacle ? file.Path() + row.obstacle : L"";
        if (row.obstacle) fs::create_directory(obstacle);
        FileHandle held;
        if (row.sharing) held = Hold(file.Path(), row.sharing);
        CHECK(Write() == row.isWritten);
        held.Reset();
        CHECK(IniLib::GetKeyValue(L"A", L"Path") == (row.isWritten ? L"new" : L"C:\\a.dbf"));
        if (!row.isWritten) CHECK(file.Bytes() == kBefore);
        if (row.obstacle) fs::remove(obstacle);
        CHECK(IsAlone());
    }
}

TEST_CASE_FIXTURE(Desk, "A writer that does not finish keeps others out for less than half a second") {
    file.Bytes(kBefore);
    const std::wstring lock = file.Path() + L".lock";
    FileHandle other(CreateFileW(lock.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, 0, nullptr));
    const DWORD start = GetTickCount();
    CHECK_FALSE(Write());
    CHECK(GetTickCount() - start < 500);
    CHECK(file.Bytes() == kBefore);
    other.Reset();
    CHECK(Write());
}

TEST_CASE_FIXTURE(Desk, "A file that has become empty, unreadable or full of zeros since it was read is not written") {
    const std::string zeros(sizeof kBefore, '\0');
    for (const std::string& damaged : {std::string(), zeros, std::string("[General]\r\nSort=A;B\r\n\0\0", 24)}) {
        file.Bytes(kBefore);
        REQUIRE(IniLib::GetKeyValue(L"General", L"Sort") == L"A;B");
        file.Bytes(damaged);
        CHECK_FALSE(IniLib::WriteKeyValue(L"General", L"Sort", L"C"));
        CHECK(file.Bytes() == damaged);
    }
    // What this run has never read from may be begun anew.
    const TempFile other(L"Kelmorra.ini");
    other.Bytes("");
    IniLib::SettingsFile(other.Path());
    CHECK(Write());
}

TEST_CASE_FIXTURE(Desk, "A file that is held or has gone is unreadable, not empty, and not made anew") {
    file.Bytes(kBefore);
    {
        const FileHandle held = Hold(file.Path(), 0);
        CHECK_FALSE(IniLib::ReadFile());
        CHECK(IniLib::GetKeyValue(L"General", L"Sort", L"none") == L"none");
    }
    CHECK(IniLib::ReadFile());
    fs::rename(file.Path(), file.Path() + L"2");
    CHECK_FALSE(IniLib::ReadFile());
    CHECK_FALSE(Write());
    CHECK_FALSE(fs::exists(file.Path()));
    fs::rename(file.Path() + L"2", file.Path());
    CHECK(Write());
}

TEST_CASE_FIXTURE(Desk, "A try that fails on the way is made again from the original, not from what it had changed") {
    file.Bytes(kBefore);
    int tries = 0;
    CHECK(SafeFile::Change(file.Path(), [&](const std::wstring& copy, bool) -> DWORD {
        CHECK(SafeFile::Read(copy).Bytes == kBefore);
        CHECK_FALSE(
            Hold(file.Path() + L".lock", FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE)); // by nobody else
        REQUIRE(WritePrivateProfileStringA("General", "Sort", "A;B;New", ToAnsi(copy).c_str()));
        return ++tries < 3 ? ERROR_SHARING_VIOLATION : ERROR_SUCCESS;
    }));
    CHECK(IniLib::GetKeyValue(L"General", L"Sort") == L"A;B;New");
}

TEST_CASE_FIXTURE(Desk, "A file in a folder whose name the code page lacks is written and read") {
    const std::wstring folder = file.Folder() + L"\\\u0416\u0101\u4e2d";
    fs::create_directory(folder);
    const std::wstring path = folder + L"\\Kelmorra.ini";
    IniLib::SettingsFile(path);
    CHECK(Write());
    CHECK(Write(L"again"));
    CHECK(SafeFile::Read(path).Bytes == "[A]\r\nPath=again\r\n");
}

TEST_CASE_FIXTURE(Desk, "The first change of a run keeps a copy, and the newest five are kept") {
    Backup::KeepOnce(L"another file");
    file.Bytes(kBefore);
    CHECK_FALSE(Backup::LastGood(file.Path()));
    Write(L"first");
    Write(L"second");
    REQUIRE(Backups().size() == 1);
    CHECK(SafeFile::Read(Backups()[0].wstring()).Bytes == kBefore);
    CHECK(Backup::LastGood(file.Path()) == Backups()[0].wstring());

    // Earlier ones, made years ago
    const std::wstring name = Backups()[0].filename().wstring();
    const std::wstring prefix = name.substr(0, name.size() - std::wstring(L"20261121-101112.ini").size());
    for (const wchar_t* year : {L"1999", L"2001", L"2002", L"2003", L"2004"})
        fs::copy_file(file.Path(), Backups().back().parent_path() / (prefix + year + L"1121-101112.ini"));
    Backup::KeepOnce(L"another file");
    file.Bytes(std::string(kBefore) + "[New]\r\nK=1\r\n");
    Backup::KeepOnce(file.Path());
    CHECK(Backups().size() == 5);
    CHECK(Backups().back().filename() >= name);
    CHECK(Backups()[0].filename().wstring().find(L"-1999") == std::wstring::npos);
    const fs::path oldest = Backups()[0];
    for (const std::string& worthless : {std::string(" \r\n"), file.Bytes()}) { // that of the newest copy, too
        Backup::KeepOnce(L"another file");
        file.Bytes(worthless);
        Backup::KeepOnce(file.Path());
        CHECK(Backups()[0] == oldest);
    }
}

TEST_CASE_FIXTURE(Desk, "A damaged file is restored from the newest copy that is not damaged itself") {
    Backup::KeepOnce(L"another file");
    file.Bytes(kBefore);
    Write();
    const fs::path good = Backups()[0];
    fs::path newer = good;
    newer.replace_filename(good.filename().wstring().substr(0, 18) + L"29991121-101112.ini");
    fs::copy_file(good, newer);
    fs::resize_file(newer, 0);
    for (const std::string& damaged : {std::string(), std::string(40, '\0')}) {
        file.Bytes(damaged);
        CHECK(Backup::Restore(file.Path()) == Backup::Restored::Done);
        CHECK(file.Bytes() == kBefore);
        const auto isKept = [&](const fs::path& copy) { return SafeFile::Read(copy.wstring()).Bytes == damaged; };
        if (!damaged.empty()) CHECK(std::ranges::any_of(Backups(), isKept));
        CHECK(IsAlone());
    }
    file.Bytes("[General]\r\nSort=mended\r\n");
    CHECK(Backup::Restore(file.Path()) == Backup::Restored::NotNeeded);
    CHECK(file.Bytes() == "[General]\r\nSort=mended\r\n");
}
