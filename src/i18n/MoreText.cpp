#include "i18n/MoreText.h"

#include "i18n/modLangues.h"

#include <array>

namespace {

// English, French, German, in the order of the languages' numbers.
using Translations = std::array<const wchar_t*, 3>;

constexpr std::array<Translations, 2> kTexts{{
    {L"The list of databases is longer than can be shown. The databases at its end stay in the settings "
     L"file.",
     L"La liste des bases de données est trop longue pour être affichée en entier. Les bases de données de "
     L"la fin restent dans le fichier de paramètres.",
     L"Die Liste der Datenbanken ist länger, als angezeigt werden kann. Die Datenbanken am Ende bleiben in "
     L"der Einstellungsdatei erhalten."},
    {L"Keeps your ACT! databases in one list and opens each with its own log-on, layouts, folders and macro.",
     L"Réunit vos bases de données ACT! dans une liste et ouvre chacune avec sa connexion, ses présentations, ses "
     L"dossiers et sa macro.",
     L"Führt Ihre ACT!-Datenbanken in einer Liste und öffnet jede mit eigener Anmeldung, eigenen Layouts, Ordnern und "
     L"eigenem Makro."},
}};

} // namespace

std::wstring Translated(MoreText text) {
    return kTexts.at(static_cast<size_t>(text)).at(static_cast<size_t>(CurrentLanguage));
}
