#include "i18n/modLangues.h"

#include "support/ErrorReport.h"

LangTexts LangText;
short CurrentLanguage = 0;

void LangTexts::Fill(const wchar_t* LangTextRow::*column) {
    for (const LangTextRow& row : LangTextTable) texts_.at(static_cast<std::size_t>(row.Index) - 1) = row.*column;
}

namespace modLangues {

void Init_Language(const short& language) try {
    constexpr std::array kLanguages{English, French, German};
    if (language < 0 || static_cast<std::size_t>(language) >= kLanguages.size()) return;
    kLanguages.at(static_cast<std::size_t>(language))();
    CurrentLanguage = language;
} catch (...) {
    ErrorReport(L"modLangues: Sub Init_Language");
}

void English() try { LangText.Fill(&LangTextRow::English); } catch (...) {
    ErrorReport(L"modLangues: Sub English");
}

void French() try { LangText.Fill(&LangTextRow::French); } catch (...) {
    ErrorReport(L"modLangues: Sub French");
}

void German() try { LangText.Fill(&LangTextRow::German); } catch (...) {
    ErrorReport(L"modLangues: Sub German");
}

} // namespace modLangues
