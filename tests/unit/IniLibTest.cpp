#include "stores/IniLib.h"

#include "support/ScratchRegistry.h"
#include "support/TempFile.h"
#include "support/Whole.h"
#include "support/Wide.h"
#include "win32/Owner.h"

#include <chrono>
#include <filesystem>

namespace {

/// The current settings file is a temporary one.
struct SettingsFileFixture : ScratchRegistry {
    SettingsFileFixture() {
        LocalData(file.Folder());
        IniLib::SettingsFile(file.Path());
    }
    ~SettingsFileFixture() { IniLib::SettingsFile({}); }

    TempFile file{L"Kelmorra.ini"};
};

} // namespace

TEST_CASE_FIXTURE(SettingsFileFixture, "A missing file, section or key and an empty value all read as the default") {
    CHECK(IniLib::GetKeyValue(L"General", L"Sort", L"none") == L"none");
    CHECK(IniLib::Extract_Sections().empty());
    file.Bytes("[General]\r\nSort=\r\nBlank=   \r\n");
    for (const wchar_t* key : {L"Sort", L"Blank", L"Missing"})
        CHECK(IniLib::GetKeyValue(L"General", key, L"none") == L"none");
    CHECK(IniLib::GetKeyValue(L"Missing", L"Sort").empty());
}

TEST_CASE_FIXTURE(SettingsFileFixture, "The file is ANSI without a mark, and names match without letter case") {
    CHECK(IniLib::WriteKeyValue(L"Bücher", L"Path", L"C:\\Daten\\Bücher – 1 €.dbf"));
    CHECK(file.Bytes() == "[B\xFC"
                          "cher]\r\nPath=C:\\Daten\\B\xFC"
                          "cher \x96 1 \x80.dbf\r\n");
    CHECK(IniLib::GetKeyValue(L"bücher", L"PATH") == L"C:\\Daten\\Bücher – 1 €.dbf");
}

TEST_CASE_FIXTURE(SettingsFileFixture, "Reading cuts a value at 998 bytes; the whole value stays readable") {
    for (const size_t length : {997U, 998U, 999U, 1000U, 2500U, 32762U}) {
        const std::wstring value(length, L'x');
        IniLib::WriteKeyValue(L"General", L"Sort", value);
        CHECK(IniLib::GetKeyValue(L"General", L"Sort").size() == std::min<size_t>(length, 998));
        CHECK(Whole(L"General", L"Sort") == value);
    }
}

TEST_CASE_FIXTURE(SettingsFileFixture, "Numeric and Boolean values that are no numbers are replaced") {
    struct Row {
        const char* stored;
        const wchar_t* kind;
        const wchar_t* replacement;
        const wchar_t* expected;
    };
    constexpr Row rows[] = {
        {"12a", L"Numeric", L"0", L"0"},  {"12a", L"Numeric", L"", L"12a"}, {"-12", L"Numeric", L"0", L"-12"},
        {"True", L"Boolean", L"0", L"0"}, {"1", L"Boolean", L"0", L"1"},    {"12a", L"numeric", L"0", L"12a"},
        {"12a", L"", L"0", L"12a"},       {"", L"Numeric", L"0", L"0"},     {"1e3", L"Numeric", L"0", L"1e3"},
    };
    for (const Row& row : rows) {
        CAPTURE(row.stored);
        file.Bytes(std::string("[S]\r\nK=") + row.stored + "\r\n");
        std::wstring fileName;
        CHECK(IniLib::GetKeyValue(L"S", L"K", L"default", row.kind, row.replacement, fileName) == row.expected);
    }
}

TEST_CASE_FIXTURE(SettingsFileFixture, "An empty file name is filled in and a given one is used") {
    std::wstring names[5];
    IniLib::GetKeyValue(L"S", L"K", L"", L"", L"", names[0]);
    IniLib::WriteKeyValue(L"S", L"K", L"here", names[1]);
    IniLib::DeleteKey(L"S", L"Missing", names[2]);
    IniLib::DeleteSection(L"Missing", names[3]);
    IniLib::Extract_Sections(names[4]);
    for (const std::wstring& name : names) CHECK(name == file.Path());

    const TempFile other(L"Other.ini");
    std::wstring otherName = other.Path();
    IniLib::WriteKeyValue(L"S", L"K", L"there", otherName);
    CHECK(otherName == other.Path());
    CHECK(IniLib::GetKeyValue(L"S", L"K", L"", L"", L"", otherName) == L"there");
    CHECK(IniLib::GetKeyValue(L"S", L"K") == L"here");
}

TEST_CASE_FIXTURE(SettingsFileFixture, "Outer blanks and quotes survive; other values keep their bytes") {
    struct Row {
        const wchar_t* value;
        const char* bytes;
    };
    constexpr Row rows[] = {
        {L"plain", "K=plain\r\n"},         {L"a \"b\" c", "K=a \"b\" c\r\n"},
        {L"\"half", "K=\"half\r\n"},       {L" Sales ", "K=\" Sales \"\r\n"},
        {L"Sales\t", "K=\"Sales\t\"\r\n"}, {L"\"Sales\"", "K=\"\"Sales\"\"\r\n"},
        {L"'Sales'", "K=\"'Sales'\"\r\n"}, {L"\"", "K=\"\r\n"},
        {L"A=B;C", "K=A=B;C\r\n"},
    };
    for (const Row& row : rows) {
        CHECK(IniLib::WriteKeyValue(L"S", L"K", row.value));
        CHECK(IniLib::GetKeyValue(L"S", L"K") == row.value);
        CHECK(file.Bytes() == std::string("[S]\r\n") + row.bytes);
    }
}

TEST_CASE_FIXTURE(SettingsFileFixture, "An empty section name reaches neither the file nor its first lines") {
    file.Bytes("Stray=1\r\n[S]\r\nK=1\r\n");
    const std::string before = file.Bytes();
    CHECK_FALSE(IniLib::WriteKeyValue(L"", L"Path", L"x"));
    CHECK_FALSE(IniLib::DeleteKey(L"", L"Stray"));
    CHECK_FALSE(IniLib::DeleteSection(L""));
    CHECK(IniLib::GetKeyValue(L"", L"Stray", L"none") == L"none");
    CHECK(file.Bytes() == before);
}

TEST_CASE_FIXTURE(SettingsFileFixture, "Deleting takes one key or a section; a missing key leaves the file untouched") {
    CHECK(IniLib::DeleteKey(L"S", L"K"));
    CHECK_FALSE(std::filesystem::exists(file.Path()));

    file.Bytes("; a comment\r\n[S]\r\n  K = 1\r\nEmpty=\r\n[T]\r\nK=2\r\n");
    const std::string before = file.Bytes();
    const auto longAgo = std::filesystem::last_write_time(file.Path()) - std::chrono::hours(24);
    std::filesystem::last_write_time(file.Path(), longAgo);
    CHECK(IniLib::DeleteKey(L"S", L"Missing"));
    CHECK(IniLib::DeleteKey(L"Missing", L"K"));
    CHECK(file.Bytes() == before);
    CHECK(std::filesystem::last_write_time(file.Path()) == longAgo);

    CHECK(IniLib::DeleteKey(L"S", L"Empty"));
    CHECK(file.Bytes().find("Empty") == std::string::npos);
    CHECK(IniLib::DeleteKey(L"S", L"K"));
    CHECK(IniLib::GetKeyValue(L"S", L"K").empty());
    CHECK(IniLib::DeleteSection(L"T"));
    CHECK(IniLib::Extract_Sections() == std::vector<std::wstring>{L"S"});
}

TEST_CASE_FIXTURE(SettingsFileFixture, "Sections are listed in order as far as 998 bytes go, the last one cut there") {
    std::string bytes;
    for (int index = 100; index < 350; ++index) bytes += "[Section " + std::to_string(index) + "]\r\nK=1\r\n";
    file.Bytes(bytes);
    const std::vector<std::wstring> names = IniLib::Extract_Sections();
    REQUIRE(names.size() == 998 / 12 + 1);
    CHECK(names.front() == L"Section 100");
    CHECK(names[names.size() - 2] == L"Section " + std::to_wstring(98 + names.size()));
    CHECK(names.back() == L"S");
}

TEST_CASE_FIXTURE(SettingsFileFixture, "A write that cannot be made is false and leaves the file as it was") {
    CHECK_FALSE(IniLib::WriteKeyValue(L"S", L"K", std::wstring(32767, L'x')));
    CHECK_FALSE(IniLib::WriteKeyValue(L"S", L"K", std::wstring(32764, L'x') + L' '));
    IniLib::SettingsFile(file.Folder() + L"\\missing\\Kelmorra.ini");
    CHECK_FALSE(IniLib::WriteKeyValue(L"S", L"K", L"1"));
    IniLib::SettingsFile(file.Path());
    file.Bytes("[S]\r\nK=1\r\n");
    {
        const FileHandle held(
            CreateFileW(file.Path().c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr));
        CHECK_FALSE(IniLib::WriteKeyValue(L"S", L"K", L"2"));
        CHECK_FALSE(IniLib::DeleteKey(L"S", L"K"));
    }
    CHECK(file.Bytes() == "[S]\r\nK=1\r\n");
}
