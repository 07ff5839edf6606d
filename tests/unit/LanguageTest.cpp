#include "i18n/modLangues.h"

#include "support/Vendor.h"
#include "support/Wide.h"
#include "win32/AnsiText.h"

#include <algorithm>
#include <set>

namespace {

using Column = const char* LangTextRow::*;

constexpr Column kColumns[] = {&LangTextRow::English, &LangTextRow::French, &LangTextRow::German};

std::wstring TextAt(int index, Column column) {
    return FromUtf8(LangTextTable.at(static_cast<size_t>(index) - 1).*column);
}

/// The access key of a caption, lower case; 0 when it has none.
wchar_t AccessKey(const std::wstring& caption) {
    const size_t mark = caption.find(L'&');
    if (mark == std::wstring::npos || mark + 1 == caption.size()) return 0;
    std::wstring key = caption.substr(mark + 1, 1);
    CharLowerW(key.data());
    return key.front();
}

bool IsUnused(int index) {
    return (index >= 25 && index <= 36) || index == 41 || index == 54 || (index >= 66 && index <= 73) || index == 151;
}

} // namespace

TEST_CASE("Rows stand at their index; every used one has a text in each language, an unused one has none") {
    for (int index = 1; index <= 152; ++index) {
        CAPTURE(index);
        CHECK(LangTextTable.at(static_cast<size_t>(index) - 1).Index == index);
        for (const Column column : kColumns) CHECK(TextAt(index, column).empty() == IsUnused(index));
    }
}

TEST_CASE("Texts that others build upon keep their shape in every language") {
    for (const Column column : kColumns) {
        for (const int index : {8, 9, 149}) CHECK(TextAt(index, column).ends_with(L' '));
        CHECK(TextAt(89, column).front() == L'&');
        const std::wstring twoLines = TextAt(121, column);
        CHECK(std::ranges::count(twoLines, L'\r') == 1);
        CHECK(twoLines.find(L'\n') == std::wstring::npos);
        for (const int index : {12, 60, 61}) CHECK(AccessKey(TextAt(index, column)) != 0);
        for (const LangTextRow& row : LangTextTable)
            if (row.Index != 121) CHECK(std::string_view(row.*column).find_first_of("\r\n") == std::string_view::npos);
    }
    for (const Column column : kColumns) {
        const bool isGerman = column == &LangTextRow::German;
        const auto* const email = isGerman ? Vendor::GermanSupportEmail : Vendor::SupportEmail;
        CHECK(TextAt(108, column).find(FromUtf8(email)) != std::wstring::npos);
    }
}

TEST_CASE("Access keys exist where English has them and do not clash within a menu or dialog") {
    for (const LangTextRow& row : LangTextTable)
        for (const Column column : kColumns) {
            CAPTURE(row.Index);
            CHECK((AccessKey(FromUtf8(row.*column)) != 0) == (AccessKey(FromUtf8(row.English)) != 0));
        }
    // Of dialogs the windows themselves are looked at.
    const std::vector<int> menus[] = {{128, 125, 59, 56}, {55, 89}, {122, 61, 60}, {130, 57, 58}, {62, 129}, {62, 55}};
    for (const auto& menu : menus)
        for (const Column column : kColumns) {
            std::set<wchar_t> keys;
            for (const int index : menu) {
                CAPTURE(index);
                const wchar_t key = AccessKey(TextAt(index, column));
                if (key != 0) CHECK(keys.insert(key).second);
            }
        }
}
