#include "i18n/MoreText.h"

#include "i18n/modLangues.h"
#include "win32/AnsiText.h"

#include <array>

namespace {

// UTF-8, like the numbered table: English, French, German, in the order of the languages' numbers.
using Translations = std::array<const char*, 3>;

constexpr std::array<Translations, 16> kTexts{{
    {"The list of databases is longer than can be shown. The databases at its end stay in the settings "
     "file.",
     "La liste des bases de données est trop longue pour être affichée en entier. Les bases de données de "
     "la fin restent dans le fichier de paramètres.",
     "Die Liste der Datenbanken ist länger, als angezeigt werden kann. Die Datenbanken am Ende bleiben in "
     "der Einstellungsdatei erhalten."},
    {"Keeps your ACT! databases in one list and opens each with its own log-on, layouts, folders and macro.",
     "Réunit vos bases de données ACT! dans une liste et ouvre chacune avec sa connexion, ses présentations, ses "
     "dossiers et sa macro.",
     "Führt Ihre ACT!-Datenbanken in einer Liste und öffnet jede mit eigener Anmeldung, eigenen Layouts, Ordnern und "
     "eigenem Makro."},
    {"The settings file\r\n%1\r\nis empty or cannot be read. Its contents of %2 have been kept.\r\n\r\nDo you want to "
     "restore them? With No the program goes on with an empty list of databases.",
     "Le fichier de paramètres\r\n%1\r\nest vide ou ne peut pas être lu. Son contenu du %2 a été conservé.\r\n\r\n"
     "Voulez-vous le restaurer ? Avec Non, le programme continue avec une liste de bases de données vide.",
     "Die Einstellungsdatei\r\n%1\r\nist leer oder nicht lesbar. Ihr Inhalt vom %2 wurde aufbewahrt.\r\n\r\nSoll er "
     "wiederhergestellt werden? Bei Nein fährt das Programm mit einer leeren Liste der Datenbanken fort."},
    {"The settings file could not be restored. What has been kept of it is in\r\n%1",
     "Le fichier de paramètres n'a pas pu être restauré. Son contenu conservé se trouve dans\r\n%1",
     "Die Einstellungsdatei konnte nicht wiederhergestellt werden. Ihr aufbewahrter Inhalt liegt in\r\n%1"},
    {"Somebody else has changed the list meanwhile. Their changes and yours have both been kept.",
     "Quelqu'un d'autre a modifié la liste entre-temps. Ses modifications et les vôtres ont été conservées.",
     "Jemand anders hat die Liste inzwischen geändert. Diese Änderungen und Ihre wurden beide übernommen."},
    {"D&uplicate", "Du&pliquer", "&Duplizieren"},
    {"Undo Remo&ve", "A&nnuler la suppression", "Entfernen &rückgängig"},
    {"Ins", "Inser", "Einfg"},
    {"Del", "Suppr", "Entf"},
    {"Ctrl", "Ctrl", "Strg"},
    {"Up", "Haut", "Nach oben"},
    {"Down", "Bas", "Nach unten"},
    {"Find:", "Chercher :", "Suchen:"},
    {"open in ACT!", "ouverte dans ACT!", "in ACT! geöffnet"},
    {"The database file is not there:", "Le fichier de la base est introuvable :",
     "Die Datenbankdatei ist nicht vorhanden:"},
    {"The list of databases cannot be kept in\r\n%1\r\nbecause you may not write there. Please choose another place "
     "under %2.",
     "La liste des bases de données ne peut pas être conservée dans\r\n%1\r\ncar vous n'avez pas le droit d'y écrire. "
     "Veuillez choisir un autre emplacement sous %2.",
     "Die Liste der Datenbanken kann nicht in\r\n%1\r\naufbewahrt werden, weil Sie dort nicht schreiben dürfen. Bitte "
     "wählen Sie unter %2 einen anderen Ort."},
}};

} // namespace

std::wstring Translated(MoreText text) {
    return FromUtf8(kTexts.at(static_cast<size_t>(text)).at(static_cast<size_t>(CurrentLanguage)));
}
