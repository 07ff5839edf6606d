#include "support/SettingsDesk.h"
#include "support/Wide.h"

#include <chrono>
#include <filesystem>

TEST_CASE_FIXTURE(SettingsDesk, "A missing file, section or key and an empty value all read as the default") {
    CHECK(IniLib::GetKeyValue(L"General", L"Sort", L"none") == L"none");
    CHECK(IniLib::Extract_Sections().empty());
    file.Bytes("[General]\r\nSort=\r\nBlank=   \r\n");
    for (const wchar_t* key : {L"Sort", L"Blank", L"Missing"})
        CHECK(IniLib::GetKeyValue(L"General", key, L"none") == L"none");
    CHECK(IniLib::GetKeyValue(L"Missing", L"Sort").empty());
}

TEST_CASE_FIXTURE(SettingsDesk, "The file is ANSI without a mark, and names match without letter case") {
    CHECK(IniLib::WriteKeyValue(L"Bücher", L"Path", L"C:\\Daten\\Bücher – 1 €.dbf"));
    CHECK(file.Bytes() == "[B\xFC"
                          "cher]\r\nPath=C:\\Daten\\B\xFC"
                          "cher \x96 1 \x80.dbf\r\n");
    CHECK(IniLib::GetKeyValue(L"bücher", L"PATH") == L"C:\\Daten\\Bücher – 1 €.dbf");
}

TEST_CASE_FIXTURE(SettingsDesk, "Reading cuts a value at 998 bytes; the whole value stays readable") {
    for (const size_t length : {998U, 999U, 32762U}) {
        const std::wstring value(length, L'x');
        IniLib::WriteKeyValue(L"General", L"Sort", value);
        CHECK(IniLib::GetKeyValue(L"General", L"Sort").size() == std::min<size_t>(length, 998));
        CHECK(Whole(L"General", L"Sort") == value);
    }
}

TEST_CASE_FIXTURE(SettingsDesk, "Outer blanks and quotes survive; other values keep their bytes") {
    struct Row {
        const wchar_t* value;
        const char* bytes;
    };
    constexpr Row rows[] = {
        {L"a \"b\" c", "K=a \"b\" c\r\n"},
        {L" Sales ", "K=\" Sales \"\r\n"},
        {L"\"Sales\"", "K=\"\"Sales\"\"\r\n"},
        {L"'Sales'", "K=\"'Sales'\"\r\n"},
    };
    for (const Row& row : rows) {
        CHECK(IniLib::WriteKeyValue(L"S", L"K", row.value));
        CHECK(IniLib::GetKeyValue(L"S", L"K") == row.value);
        CHECK(file.Bytes() == std::string("[S]\r\n") + row.bytes);
    }
}

TEST_CASE_FIXTURE(SettingsDesk, "An empty section name reaches neither the file nor its first lines") {
    file.Bytes("Stray=1\r\n[S]\r\nK=1\r\n");
    const std::string before = file.Bytes();
    CHECK_FALSE(IniLib::WriteKeyValue(L"", L"Path", L"x"));
    CHECK_FALSE(IniLib::DeleteKey(L"", L"Stray"));
    CHECK_FALSE(IniLib::DeleteSection(L""));
    CHECK(IniLib::GetKeyValue(L"", L"Stray", L"none") == L"none");
    CHECK(file.Bytes() == before);
}

TEST_CASE_FIXTURE(SettingsDesk, "Deleting takes one key or a section; a missing key leaves the file untouched") {
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
