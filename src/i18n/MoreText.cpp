#include "i18n/MoreText.h"

#include "i18n/modLangues.h"

#include <array>

namespace {

// English, French, German, in the order of the languages' numbers.
using Translations = std::array<const wchar_t*, 3>;

constexpr std::array<Translations, 15> kTexts{{
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
    {L"The settings file\r\n%1\r\nis empty or cannot be read. Its contents of %2 have been kept.\r\n\r\nDo you want to "
     L"restore them? With No the program goes on with an empty list of databases.",
     L"Le fichier de paramètres\r\n%1\r\nest vide ou ne peut pas être lu. Son contenu du %2 a été conservé.\r\n\r\n"
     L"Voulez-vous le restaurer ? Avec Non, le programme continue avec une liste de bases de données vide.",
     L"Die Einstellungsdatei\r\n%1\r\nist leer oder nicht lesbar. Ihr Inhalt vom %2 wurde aufbewahrt.\r\n\r\nSoll er "
     L"wiederhergestellt werden? Bei Nein fährt das Programm mit einer leeren Liste der Datenbanken fort."},
    {L"The settings file could not be restored. What has been kept of it is in\r\n%1",
     L"Le fichier de paramètres n'a pas pu être restauré. Son contenu conservé se trouve dans\r\n%1",
     L"Die Einstellungsdatei konnte nicht wiederhergestellt werden. Ihr aufbewahrter Inhalt liegt in\r\n%1"},
    {L"Somebody else has changed the list meanwhile. Their changes and yours have both been kept.",
     L"Quelqu'un d'autre a modifié la liste entre-temps. Ses modifications et les vôtres ont été conservées.",
     L"Jemand anders hat die Liste inzwischen geändert. Diese Änderungen und Ihre wurden beide übernommen."},
    {L"D&uplicate", L"Du&pliquer", L"&Duplizieren"},
    {L"Undo Remo&ve", L"A&nnuler la suppression", L"Entfernen &rückgängig"},
    {L"Ins", L"Inser", L"Einfg"},
    {L"Del", L"Suppr", L"Entf"},
    {L"Ctrl", L"Ctrl", L"Strg"},
    {L"Up", L"Haut", L"Nach oben"},
    {L"Down", L"Bas", L"Nach unten"},
    {L"Find:", L"Chercher :", L"Suchen:"},
    {L"open in ACT!", L"ouverte dans ACT!", L"in ACT! geöffnet"},
    {L"The database file is not there:", L"Le fichier de la base est introuvable :",
     L"Die Datenbankdatei ist nicht vorhanden:"},
}};

} // namespace

std::wstring Translated(MoreText text) {
    return kTexts.at(static_cast<size_t>(text)).at(static_cast<size_t>(CurrentLanguage));
}
