#pragma once

#include "i18n/LangText.h"

#include <string>
#include <vector>

/// The texts of the language in use, by index (1 to 152); empty until a language is set.
class LangTexts {
public:
    /// Error 9 for any other index.
    const std::wstring& operator[](int index) const;
    /// Takes all texts from one column of the table.
    void Fill(const char* LangTextRow::*column);

private:
    std::vector<std::wstring> texts_;
};

extern LangTexts LangText;

/// The language in use: 0 English, 1 French, 2 German.
extern short CurrentLanguage;

namespace modLangues {

/// Fills LangText with a language (0 English, 1 French, 2 German) and makes it the current one. Any other value changes
/// nothing.
void Init_Language(const short& language);

/// Fill LangText with one language.
void English();
void French();
void German();

} // namespace modLangues
