#include "i18n/MoreText.h"

#include "i18n/modLangues.h"
#include "win32/AnsiText.h"

#include <array>

namespace {

// UTF-8, like the numbered table: English, French, German, in the order of the languages' numbers.
using Translations = std::array<const char*, 3>;

constexpr std::array<Translations, 43> kTexts{{
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
    {"The settings file\r\n%1\r\nis empty or cannot be read.\r\n\r\nThere is a copy of %2. Do you want to restore it? "
     "If you choose No, nothing is changed.",
     "Le fichier de paramètres\r\n%1\r\nest vide ou ne peut pas être lu.\r\n\r\nIl existe une copie du %2. "
     "Voulez-vous la restaurer\u00A0? Si vous choisissez Non, rien n'est modifié.",
     "Die Einstellungsdatei\r\n%1\r\nist leer oder nicht lesbar.\r\n\r\nEs gibt eine Kopie vom %2. Möchten Sie sie "
     "wiederherstellen? Wenn Sie Nein wählen, wird nichts geändert."},
    {"The settings file could not be restored. The copy is this file:\r\n%1",
     "Le fichier de paramètres n'a pas pu être restauré. La copie est ce fichier\u00A0:\r\n%1",
     "Die Einstellungsdatei konnte nicht wiederhergestellt werden. Die Kopie ist diese Datei:\r\n%1"},
    {"Somebody else has changed the list in the meantime. Their changes and yours have both been kept.",
     "Quelqu'un d'autre a modifié la liste entre-temps. Ses modifications et les vôtres ont été conservées.",
     "Jemand anders hat die Liste inzwischen geändert. Diese Änderungen und Ihre wurden beide übernommen."},
    {"Du&plicate", "Du&pliquer", "&Duplizieren"},
    {"Undo Remo&ve", "A&nnuler le retrait", "Entfernen &rückgängig machen"},
    {"Ins", "Inser", "Einfg"},
    {"Del", "Suppr", "Entf"},
    {"Ctrl", "Ctrl", "Strg"},
    {"Up", "Haut", "Nach oben"},
    {"Down", "Bas", "Nach unten"},
    {"Find:", "Chercher\u00A0:", "Suchen:"},
    {"open in ACT!", "ouverte dans ACT!", "in ACT! geöffnet"},
    {"The database file cannot be found:", "Le fichier de la base de données est introuvable\u00A0:",
     "Die Datenbankdatei wurde nicht gefunden:"},
    {"The list of databases cannot be kept in\r\n%1\r\nbecause it cannot be written there. Please make an empty file "
     "Kelmorra.ini in a folder of your own and choose it under %2.",
     "La liste des bases de données ne peut pas être conservée dans\r\n%1\r\ncar il est impossible d'y écrire. "
     "Veuillez créer un fichier Kelmorra.ini vide dans l'un de vos dossiers, puis le choisir sous %2.",
     "Die Liste der Datenbanken kann nicht in\r\n%1\r\ngespeichert werden, weil dort nicht geschrieben werden kann. "
     "Bitte legen Sie in einem eigenen Ordner eine leere Datei Kelmorra.ini an und wählen Sie sie unter %2 aus."},
    {"The settings file\r\n%1\r\nis in order again. It has been left as it is.",
     "Le fichier de paramètres\r\n%1\r\nest de nouveau en ordre. Il n'a pas été modifié.",
     "Die Einstellungsdatei\r\n%1\r\nist wieder in Ordnung. Sie wurde nicht verändert."},
    {"The settings file\r\n%1\r\ncannot be read at the moment. Nothing has been changed. Please try again later.",
     "Le fichier de paramètres\r\n%1\r\nne peut pas être lu pour le moment. Rien n'a été modifié. Veuillez réessayer "
     "plus tard.",
     "Die Einstellungsdatei\r\n%1\r\nkann im Moment nicht gelesen werden. Es wurde nichts geändert. Bitte versuchen "
     "Sie es später noch einmal."},
    {"The change could not be saved in the settings file\r\n%1\r\nNothing has been changed. The file may be away, "
     "write-protected or in use. Please try again.",
     "La modification n'a pas pu être enregistrée dans le fichier de paramètres\r\n%1\r\nRien n'a été modifié. Le "
     "fichier est peut-être inaccessible, protégé en écriture ou en cours d'utilisation. Veuillez réessayer.",
     "Die Änderung konnte nicht gespeichert werden in der Einstellungsdatei\r\n%1\r\nEs wurde nichts geändert. "
     "Vielleicht ist die Datei nicht erreichbar, schreibgeschützt oder in Gebrauch. Bitte versuchen Sie es noch "
     "einmal."},
    {"The order of the databases could not be saved in the settings file\r\n%1\r\n\r\nDo you want to try again? If you "
     "choose No, the list keeps its former order.",
     "L'ordre des bases de données n'a pas pu être enregistré dans le fichier de paramètres\r\n%1\r\n\r\nVoulez-vous "
     "réessayer\u00A0? Si vous choisissez Non, la liste garde son ordre précédent.",
     "Die Reihenfolge der Datenbanken konnte nicht gespeichert werden in der Einstellungsdatei\r\n%1\r\n\r\nMöchten "
     "Sie es noch einmal versuchen? Wenn Sie Nein wählen, behält die Liste ihre bisherige Reihenfolge."},
    {"Menu of the palette (Shift+F10)", "Menu de la palette (Maj+F10)", "Menü der Palette (Umschalt+F10)"},
    {"Kelmorra is waiting for ACT!, which is busy at the moment.",
     "Kelmorra attend une réponse d'ACT!, qui est occupé pour le moment.",
     "Kelmorra wartet auf ACT!, das im Moment beschäftigt ist."},
    {"Edit...", "Modifier...", "Bearbeiten..."},
    {"No databases yet: %1 > %2", "Aucune base de données pour le moment\u00A0: %1 > %2",
     "Noch keine Datenbanken: %1 > %2"},
    {"Add What ACT! Has &Open", "Ajouter la base &ouverte dans ACT!", "In ACT! &geöffnete Datenbank hinzufügen"},
    {"ACT! has no database open.", "ACT! n'a aucune base de données ouverte.", "In ACT! ist keine Datenbank geöffnet."},
    {"&Import from Another Settings File", "&Importer depuis un autre fichier de paramètres",
     "Aus anderer Einstellungsdatei &importieren"},
    {"Choose a settings file above.", "Choisissez un fichier de paramètres ci-dessus.",
     "Wählen Sie oben eine Einstellungsdatei aus."},
    {"Databases to import:", "Bases de données à importer\u00A0:", "Zu importierende Datenbanken:"},
    {"Copy of %1", "Copie du %1", "Kopie vom %1"},
    {"in the list already", "déjà dans la liste", "schon in der Liste"},
    {"Left out, as the list has no room for more: %1", "Laissées de côté, faute de place dans la liste\u00A0: %1",
     "Weggelassen, weil die Liste nicht mehr aufnimmt: %1"},
    {"There are no databases to be imported in the file\r\n%1\r\nIt may be no settings file, or cannot be read at the "
     "moment.",
     "Aucune base de données à importer dans le fichier\r\n%1\r\nCe n'est peut-être pas un fichier de paramètres, ou "
     "il ne peut pas être lu pour le moment.",
     "Es gibt keine Datenbanken zum Importieren in der Datei\r\n%1\r\nVielleicht ist sie keine Einstellungsdatei, oder "
     "sie kann im Moment nicht gelesen werden."},
    {"Undo I&mport", "A&nnuler l'importation", "Import &rückgängig machen"},
    {"Chec&k the List", "&Vérifier la liste", "Liste &prüfen"},
    {"Files and folders are being looked for.", "Recherche des fichiers et des dossiers en cours.",
     "Dateien und Ordner werden gesucht."},
    {"Nothing is missing.", "Il ne manque rien.", "Es fehlt nichts."},
    {"This is missing, or its drive does not answer:", "Éléments manquants, ou lecteur sans réponse\u00A0:",
     "Das fehlt, oder das Laufwerk antwortet nicht:"},
    {"Missing", "Élément", "Was fehlt"},
    {"State", "État", "Zustand"},
    {"missing", "manquant", "fehlt"},
    {"no answer", "sans réponse", "keine Antwort"},
    {"C&opy", "C&opier", "&Kopieren"},
}};

} // namespace

std::wstring Translated(MoreText text) {
    return FromUtf8(kTexts.at(static_cast<size_t>(text)).at(static_cast<size_t>(CurrentLanguage)));
}
