#include "support/SettingsDesk.h"

#include <chrono>
#include <filesystem>

TEST_CASE_FIXTURE(SettingsDesk, "The file is ANSI without a mark, and names match without letter case") {
    CHECK(IniLib::WriteKeyValue(L"Bücher", L"Path", L"C:\\Daten\\Bücher – 1 €.dbf"));
    CHECK(file.Bytes() == "[B\xFC"
                          "cher]\r\nPath=C:\\Daten\\B\xFC"
                          "cher \x96 1 \x80.dbf\r\n");
    CHECK(IniLib::GetKeyValue(L"bücher", L"PATH") == L"C:\\Daten\\Bücher – 1 €.dbf");
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

TEST_CASE_FIXTURE(SettingsDesk, "Deleting what is not there makes no file, and leaves one that is there untouched") {
    CHECK(IniLib::DeleteKey(L"S", L"K"));
    CHECK_FALSE(std::filesystem::exists(file.Path()));
    file.Bytes("; a comment\r\n[S]\r\n  K = 1\r\nEmpty=\r\n");
    const std::string before = file.Bytes();
    const auto longAgo = std::filesystem::last_write_time(file.Path()) - std::chrono::hours(24);
    std::filesystem::last_write_time(file.Path(), longAgo);
    CHECK(IniLib::DeleteKey(L"S", L"Missing"));
    CHECK(IniLib::DeleteKey(L"Missing", L"K"));
    CHECK(file.Bytes() == before);
    CHECK(std::filesystem::last_write_time(file.Path()) == longAgo);
    CHECK(IniLib::DeleteKey(L"S", L"Empty"));
    CHECK(file.Bytes().find("Empty") == std::string::npos);
}
