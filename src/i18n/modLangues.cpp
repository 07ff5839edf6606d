#include "i18n/modLangues.h"

#include "support/ErrorReport.h"
#include "win32/AnsiText.h"

LangTexts LangText;
short CurrentLanguage = 0;

const std::wstring& LangTexts::operator[](int index) const {
    static const std::wstring none;
    const auto row = static_cast<std::size_t>(index) - 1;
    return texts_.empty() && row < LangTextRows ? none : texts_.at(row);
}

void LangTexts::Fill(const char* LangTextRow::*column) {
    texts_.resize(LangTextRows);
    for (const LangTextRow& row : LangTextTable)
        texts_.at(static_cast<std::size_t>(row.Index) - 1) = FromUtf8(row.*column);
}

namespace modLangues {

void Init_Language(const short& language) try {
    constexpr std::array kLanguages{English, French, German};
    if (language < 0 || static_cast<std::size_t>(language) >= kLanguages.size()) return;
    kLanguages.at(static_cast<std::size_t>(language))();
    CurrentLanguage = language;
} catch (...) {
    ErrorReport("modLangues: Sub Init_Language");
}

void English() try { LangText.Fill(&LangTextRow::English); } catch (...) {
    ErrorReport("modLangues: Sub English");
}

void French() try { LangText.Fill(&LangTextRow::French); } catch (...) {
    ErrorReport("modLangues: Sub French");
}

void German() try { LangText.Fill(&LangTextRow::German); } catch (...) {
    ErrorReport("modLangues: Sub German");
}

} // namespace modLangues
