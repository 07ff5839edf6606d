#include "i18n/modLangues.h"

#include "i18n/MoreText.h"
#include "support/Error.h"
#include "support/Text.h"
#include "support/Vendor.h"
#include "support/Wide.h"
#include "win32/AnsiText.h"

#include <algorithm>
#include <array>
#include <vector>

namespace {

using Column = const char* LangTextRow::*;

constexpr Column kColumns[] = {&LangTextRow::English, &LangTextRow::French, &LangTextRow::German};

std::wstring TextAt(int index, Column column) {
    return FromUtf8(LangTextTable.at(static_cast<size_t>(index) - 1).*column);
}

bool HasAccessKey(const std::wstring& caption) {
    const size_t mark = caption.find(L'&');
    return mark != std::wstring::npos && mark + 1 < caption.size();
}

bool IsUnused(int index) {
    return (index >= 25 && index <= 36) || index == 41 || index == 54 || (index >= 66 && index <= 73) || index == 151;
}

} // namespace

TEST_CASE("Rows stand at their index; a used one has a text in each language, with an access key where English has") {
    for (int index = 1; index <= 152; ++index) {
        CAPTURE(index);
        CHECK(LangTextTable.at(static_cast<size_t>(index) - 1).Index == index);
        for (const Column column : kColumns) {
            CHECK(TextAt(index, column).empty() == IsUnused(index));
            CHECK(HasAccessKey(TextAt(index, column)) == HasAccessKey(TextAt(index, &LangTextRow::English)));
        }
    }
}

TEST_CASE("Texts that others build upon keep their shape in every language") {
    for (const Column column : kColumns) {
        for (const int index : {8, 9, 149}) CHECK(TextAt(index, column).ends_with(L' '));
        CHECK(TextAt(89, column).front() == L'&');
        const std::wstring twoLines = TextAt(121, column);
        CHECK(std::ranges::count(twoLines, L'\r') == 1);
        CHECK(twoLines.find(L'\n') == std::wstring::npos);
        for (const int index : {12, 60, 61}) CHECK(HasAccessKey(TextAt(index, column)));
        for (const LangTextRow& row : LangTextTable)
            if (row.Index != 121) CHECK(std::string_view(row.*column).find_first_of("\r\n") == std::string_view::npos);
        const bool isGerman = column == &LangTextRow::German;
        const auto* const email = isGerman ? Vendor::GermanSupportEmail : Vendor::SupportEmail;
        CHECK(TextAt(108, column).find(FromUtf8(email)) != std::wstring::npos);
    }
}

TEST_CASE("In French a no-break space stands before every mark that has one, but for texts that are fixed") {
    constexpr std::array kFixed{7, 79, 82, 126}; // of the rows that the table marks so, those that have a mark
    std::vector<std::wstring> texts;
    for (const LangTextRow& row : LangTextTable)
        if (std::ranges::find(kFixed, row.Index) == kFixed.end()) texts.push_back(FromUtf8(row.French));
    modLangues::Init_Language(short{1});
    for (int text = 0; text <= static_cast<int>(MoreText::Copy); ++text)
        texts.push_back(Translated(static_cast<MoreText>(text)));
    CHECK_THROWS_AS(Translated(static_cast<MoreText>(static_cast<int>(MoreText::Copy) + 1)),
                    Error); // no text without a name
    for (std::wstring& text : texts) {
        CAPTURE(text);
        text = Text::Replace(text, L"ACT!", L"ACT");
        for (size_t mark = text.find_first_of(L":;!?"); mark != std::wstring::npos;
             mark = text.find_first_of(L":;!?", mark + 1))
            CHECK(text.substr(0, mark).ends_with(L'\u00A0'));
    }
    modLangues::Init_Language(short{0});
}
