#include "support/Text.h"

#include <doctest/doctest.h>

TEST_CASE("Paths compare without letter case and with or without a trailing backslash; empty ones never match") {
    CHECK(Text::SamePath(L"C:\\Data\\Sales.dbf", L"c:\\data\\SALES.DBF"));
    CHECK(Text::SamePath(L"C:\\Data\\", L"C:\\Data"));
    CHECK_FALSE(Text::SamePath(L"", L""));
    CHECK(Text::ContainsFolder(L"C:\\ACT\\Layout\\x.cly", L"c:\\act\\layout\\"));
    CHECK(Text::ContainsFolder(L"C:\\ACT\\Layout\\x.cly", L"c:\\act\\layout"));
    CHECK_FALSE(Text::ContainsFolder(L"C:\\ACT\\Layouts2\\x.cly", L"C:\\ACT\\Layout"));
    CHECK_FALSE(Text::ContainsFolder(L"C:\\x.cly", L""));
}

TEST_CASE("Split keeps empty elements and Join is its reverse") {
    CHECK(Text::Split(L"", L';').empty());
    const auto elements = Text::Split(L";A;;B;", L';');
    CHECK(elements.size() == 5);
    CHECK(Text::Join(elements, L';') == L";A;;B;");
}

TEST_CASE("A stored measure takes either decimal sign and refuses garbage") {
    CHECK(Text::Measure(L"8475") == 8475);
    CHECK(Text::Measure(L"8475.6") == 8476);
    CHECK(Text::Measure(L"8475,4") == 8475);
    CHECK(Text::Measure(L"-15,5") == -16);
    for (const wchar_t* garbage : {L"", L" ", L"-", L".", L"12a", L"1.2.3", L"1e3", L"99999999999", L"0x10", L"12,x"})
        CHECK_FALSE_MESSAGE(Text::Measure(garbage), std::string("garbage"));
}
