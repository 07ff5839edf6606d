#include "i18n/LangText.h"

#include "support/Vendor.h"

#include <algorithm>

namespace {

/// The texts one after another, ended by a zero.
template <size_t... Sizes>
constexpr auto Joined(const char (&... texts)[Sizes]) {
    std::array<char, (Sizes + ...) - sizeof...(Sizes) + 1> joined{};
    auto end = joined.begin();
    ((end = std::copy_n(texts, Sizes - 1, end)), ...);
    return joined;
}

constexpr auto kEnglishContact = Joined("Please contact ", Vendor::SupportEmail, " with this error message.");
constexpr auto kFrenchContact = Joined("Veuillez contacter ", Vendor::SupportEmail, " en citant ce message d'erreur.");
constexpr auto kGermanContact =
    Joined("Bitte wenden Sie sich mit dieser Fehlermeldung an ", Vendor::GermanSupportEmail, ".");

} // namespace

// Every English text, and the others of a row that is marked "fixed", are what users have always read, to the
// character. The other texts are free: their words and their typography may be mended.
// clang-format off
constexpr std::array<LangTextRow, LangTextRows> LangTextTable{{
    {1, "&OK", "&OK", "&OK"}, // fixed
    {2, "&Cancel", "&Annuler", "&Abbrechen"}, // fixed
    {3, "More at", "Voir", "Siehe"},
    {4, "About", "À propos", "Info"},
    {5, "This ACT! Add-On is freeware. It may be distributed freely without modification.",
        "Ce complément pour ACT! est un logiciel gratuit. Il peut être distribué librement, sans modification.",
        "Dieses Add-On für ACT! ist Freeware. Es darf unverändert frei weitergegeben werden."},
    {6, "E-mail us with any problem or suggestion :",
        "Envoyez-nous un e-mail pour tout problème ou toute suggestion\u00A0:",
        "Schreiben Sie uns bei Problemen oder Vorschlägen eine E-Mail:"},
    {7, "An instance of this program is already running !",
        "Une copie de ce programme est déjà en marche !",
        "Dieses Programm ist bereits gestartet !"}, // fixed
    {8, "Please open a database before running ",
        "Veuillez ouvrir une base de données avant de lancer ",
        "Bitte öffnen Sie eine Datenbank vor dem Start von "},
    {9, "Please run ACT! before running ",
        "Veuillez démarrer ACT! avant de lancer ",
        "Bitte starten Sie ACT! vor dem Start von "},
    {10, "Problem registering ACT! event.",
         "Problème lors de l'enregistrement de l'événement ACT!.",
         "Fehler beim Registrieren des ACT!-Ereignisses."},
    {11, "Please run actreg.exe in your ACT! folder and try again.",
         "Veuillez exécuter actreg.exe dans votre dossier ACT!, puis réessayer.",
         "Bitte führen Sie actreg.exe in Ihrem ACT!-Ordner aus, und versuchen Sie es erneut."},
    {12, "V&arnholtine Free Add-Ons for ACT!",
         "Compléments gratuits V&arnholtine pour ACT!",
         "Kostenlose V&arnholtine-Add-Ons für ACT!"},
    {13, "Integrate with ACT!", "Intégrer à ACT!", "In ACT! integrieren"},
    {14, "Launch options", "Options de lancement", "Startoptionen"},
    {15, "Remove icon from the Toolbars",
         "Supprimer l'icône des barres d'outils",
         "Symbol aus den Symbolleisten entfernen"},
    {16, "Add icon to the Toolbars",
         "Ajouter l'icône aux barres d'outils",
         "Symbol zu den Symbolleisten hinzufügen"},
    {17, "&Close", "&Fermer", "&Schließen"},
    {18, "Remove item from the Tools menu",
         "Supprimer l'élément du menu Outils",
         "Eintrag aus dem Menü Extras entfernen"},
    {19, "Add item to the Tools menu", "Ajouter l'élément au menu Outils", "Eintrag zum Menü Extras hinzufügen"},
    {20, "You need to re-start ACT! for the changes to take effect!",
         "Vous devez redémarrer ACT! pour que les modifications prennent effet\u00A0!",
         "Sie müssen ACT! neu starten, damit die Änderungen wirksam werden!"},
    {21, "Do you want to re-start it now?",
         "Voulez-vous le redémarrer maintenant\u00A0?",
         "Möchten Sie ACT! jetzt neu starten?"},
    {22, "Operation failed. You will have to add/remove the command manually.",
         "L'opération a échoué. Vous devrez ajouter ou supprimer la commande manuellement.",
         "Der Vorgang ist fehlgeschlagen. Sie müssen den Befehl manuell hinzufügen oder entfernen."},
    {23, "Click to launch", "Cliquez pour lancer", "Zum Starten klicken"},
    {24, "software.htm", "logiciels.htm", "software.htm"}, // fixed
    {25, "", "", ""},
    {26, "", "", ""},
    {27, "", "", ""},
    {28, "", "", ""},
    {29, "", "", ""},
    {30, "", "", ""},
    {31, "", "", ""},
    {32, "", "", ""},
    {33, "", "", ""},
    {34, "", "", ""},
    {35, "", "", ""},
    {36, "", "", ""},
    {37, "Remove as Startup Macro", "Supprimer en tant que macro de démarrage", "Als Startmakro entfernen"},
    {38, "Set as ACT! Startup Macro", "Définir comme macro de démarrage d'ACT!", "Als ACT!-Startmakro festlegen"},
    {39, "Kelmorra Macro", "Macro Kelmorra", "Kelmorra-Makro"},
    {40, "Set Kelmorra Macro as ACT! startup macro, if your ACT! Preferences are set to open the last opened "
         "database on startup. That way, if you set an Opening macro in Kelmorra and ACT! opens the database on "
         "startup, even though Kelmorra will not be running, the Opening macro will run.",
         "Définissez la macro Kelmorra comme macro de démarrage d'ACT! si vos préférences ACT! prévoient "
         "d'ouvrir la dernière base de données au démarrage. Ainsi, si vous avez défini une macro d'ouverture "
         "dans Kelmorra et qu'ACT! ouvre la base de données au démarrage, la macro d'ouverture sera exécutée "
         "même si Kelmorra n'est pas lancé.",
         "Legen Sie das Kelmorra-Makro als ACT!-Startmakro fest, wenn ACT! laut Ihren Einstellungen beim Start "
         "die zuletzt geöffnete Datenbank öffnet. Haben Sie in Kelmorra ein Öffnungsmakro festgelegt und öffnet "
         "ACT! die Datenbank beim Start, so wird das Öffnungsmakro auch dann ausgeführt, wenn Kelmorra nicht "
         "läuft."},
    {41, "", "", ""},
    {42, "Database", "Base de données", "Datenbank"},
    {43, "Contact Layout", "Prés. contacts", "Kontaktlayout"},
    {44, "Group Layout", "Prés. groupes", "Gruppenlayout"},
    {45, "Opening Macro", "Macro d'ouverture", "Öffnungsmakro"},
    {46, "Open in", "Ouvrir dans", "Öffnen in"},
    {47, "Contact View", "Vue Contact", "Kontaktansicht"},
    {48, "Contact List View", "Vue Liste des contacts", "Kontaktlistenansicht"},
    {49, "Groups View", "Vue Groupes", "Gruppenansicht"},
    {50, "Task List View", "Vue Liste des tâches", "Aufgabenlistenansicht"},
    {51, "Monthly Calendar View", "Vue Calendrier mensuel", "Monatskalenderansicht"},
    {52, "Weekly Calendar View", "Vue Calendrier hebdomadaire", "Wochenkalenderansicht"},
    {53, "Daily Calendar View", "Vue Calendrier quotidien", "Tageskalenderansicht"},
    {54, "", "", ""},
    {55, "&Database Properties", "&Propriétés de la base de données", "&Datenbankeigenschaften"},
    {56, "&Help", "Ai&de", "&Hilfe"},
    {57, "&Online Help", "Aide en &ligne", "&Online-Hilfe"},
    {58, "&About", "À &propos", "&Info"},
    {59, "&Options", "O&ptions", "&Optionen"},
    {60, "&Integrate with ACT!", "&Intégrer à ACT!", "&In ACT! integrieren"},
    {61, "&Languages", "&Langues", "&Sprachen"},
    {62, "&Open", "&Ouvrir", "Ö&ffnen"},
    {63, "kelmorra_online", "kelmorra_enligne", "kelmorra_online_de"}, // fixed
    {64, "Pick your language", "Choisissez votre langue", "Wählen Sie Ihre Sprache"}, // fixed
    {65, "Languages", "Langues", "Sprachen"},
    {66, "", "", ""},
    {67, "", "", ""},
    {68, "", "", ""},
    {69, "", "", ""},
    {70, "", "", ""},
    {71, "", "", ""},
    {72, "", "", ""},
    {73, "", "", ""},
    {74, "To complete the uninstallation of the Kelmorra macro, you will need to manually remove the macro from "
         "the Startup Macro field under the Startup tab of the Preferences window.",
         "Pour terminer la désinstallation de la macro Kelmorra, vous devez supprimer manuellement la macro du "
         "champ Macro de démarrage, sous l'onglet Démarrage de la fenêtre Préférences.",
         "Um die Deinstallation des Kelmorra-Makros abzuschließen, müssen Sie das Makro im Fenster Einstellungen "
         "auf der Registerkarte Start manuell aus dem Feld Startmakro entfernen."},
    {75, "Uninstalling Startup Macro",
         "Désinstallation de la macro de démarrage",
         "Deinstallation des Startmakros"},
    {76, "Click OK when you are done.",
         "Cliquez sur OK lorsque vous avez terminé.",
         "Klicken Sie auf OK, wenn Sie fertig sind."},
    {77, "Are you sure you want to uninstall Kelmorra Startup macro?",
         "Voulez-vous vraiment désinstaller la macro de démarrage Kelmorra\u00A0?",
         "Möchten Sie das Kelmorra-Startmakro wirklich deinstallieren?"},
    {78, "The database default location path does not exist!",
         "Le chemin de l'emplacement par défaut des bases de données n'existe pas\u00A0!",
         "Der Pfad des Standardspeicherorts für Datenbanken ist nicht vorhanden!"},
    {79, "This database is already open!",
         "Cette base de données est déjà ouverte!",
         "Die Datenbank ist bereits geöffnet !"}, // fixed
    {80, "The layout default location path does not exist!",
         "Le chemin de l'emplacement par défaut des présentations n'existe pas\u00A0!",
         "Der Pfad des Standardspeicherorts für Layouts ist nicht vorhanden!"},
    {81, "The macro default location path does not exist!",
         "Le chemin de l'emplacement par défaut des macros n'existe pas\u00A0!",
         "Der Pfad des Standardspeicherorts für Makros ist nicht vorhanden!"},
    {82, "No database selected!",
         "Aucune base de données n'a été sélectionnée!",
         "Keine Datenbank ausgewählt!"}, // fixed
    {83, "Properties", "Propriétés", "Eigenschaften"},
    {84, "Default Contact Layout", "Présentation des contacts par défaut", "Standard-Kontaktlayout"},
    {85, "Default Group Layout", "Présentation des groupes par défaut", "Standard-Gruppenlayout"},
    {86, "Run macro on database opening",
         "Exécuter une macro à l'ouverture de la base de données",
         "Makro beim Öffnen der Datenbank ausführen"},
    {87, "&Add", "&Ajouter", "&Hinzufügen"},
    {88, "&Remove", "&Retirer", "&Entfernen"},
    {89, "&Manage List", "&Gérer la liste", "&Liste verwalten"},
    {90, "Databases currently listed", "Bases de données de la liste", "Datenbanken in der Liste"},
    {91, "Database Path", "Chemin de la base", "Datenbankpfad"},
    {92, "Database Friendly Name", "Nom convivial de la base de données", "Anzeigename der Datenbank"},
    {93, "You need to select at least a Contact Layout!",
         "Vous devez sélectionner au moins une présentation des contacts\u00A0!",
         "Sie müssen mindestens ein Kontaktlayout auswählen!"},
    {94, "Move &Up", "&Monter", "Nach &oben"},
    {95, "Move &Down", "&Descendre", "Nach &unten"},
    {96, "Views in which a button has been added to the toolbar",
         "Vues dans lesquelles un bouton a été ajouté à la barre d'outils",
         "Ansichten mit zusätzlicher Schaltfläche in der Symbolleiste"},
    {97, "Views in which a menu item has been added to the Tools menu",
         "Vues dans lesquelles un élément a été ajouté au menu Outils",
         "Ansichten mit zusätzlichem Eintrag im Menü Extras"},
    {98, "Contacts", "Contacts", "Kontakte"},
    {99, "Contact List", "Liste des contacts", "Kontaktliste"},
    {100, "Groups", "Groupes", "Gruppen"},
    {101, "Task List", "Liste des tâches", "Aufgabenliste"},
    {102, "Calendars", "Calendriers", "Kalender"},
    {103, "E-mail", "E-mail", "E-Mail"},
    {104, "You need to select a database first.",
          "Vous devez d'abord sélectionner une base de données.",
          "Sie müssen zuerst eine Datenbank auswählen."},
    {105, "If your list of databases is empty, click on the Edit List button to add databases to it.",
          "Si votre liste de bases de données est vide, choisissez Édition > Gérer la liste pour y ajouter des "
          "bases de données.",
          "Wenn Ihre Datenbankliste leer ist, wählen Sie Bearbeiten > Liste verwalten, um ihr Datenbanken "
          "hinzuzufügen."},
    {106, "This database is not accessible. Please choose another database.",
          "Cette base de données n'est pas accessible. Veuillez choisir une autre base de données.",
          "Auf diese Datenbank kann nicht zugegriffen werden. Bitte wählen Sie eine andere Datenbank."},
    {107, "This database has already been added to the list. Please choose another database.",
          "Cette base de données a déjà été ajoutée à la liste. Veuillez choisir une autre base de données.",
          "Diese Datenbank wurde der Liste bereits hinzugefügt. Bitte wählen Sie eine andere Datenbank."},
    {108, kEnglishContact.data(), kFrenchContact.data(), kGermanContact.data()},
    {109, "Attached E-mail", "E-mail joint", "Angehängte E-Mail"},
    {110, "Database", "Base de données", "Datenbank"},
    {111, "Document", "Document", "Dokument"},
    {112, "Document Template", "Modèle de document", "Dokumentvorlage"},
    {113, "E-mail", "E-mail", "E-Mail"},
    {114, "Layout", "Présentation", "Layout"},
    {115, "Macro", "Macro", "Makro"},
    {116, "NetLinks", "NetLinks", "NetLinks"},
    {117, "Query", "Requête", "Abfrage"},
    {118, "Report, Label, Envelope", "Rapport, étiquette, enveloppe", "Bericht, Etikett, Umschlag"},
    {119, "Synchronize", "Synchronisation", "Synchronisierung"},
    {120, "Spelling Dictionary", "Dictionnaire orthographique", "Rechtschreibwörterbuch"},
    {121, "You need to give this database a unique friendly name.\rEither you did not enter a name or this name "
          "is already in use.",
          "Vous devez donner à cette base de données un nom convivial unique.\rSoit vous n'avez pas saisi de "
          "nom, soit ce nom est déjà utilisé.",
          "Sie müssen dieser Datenbank einen eindeutigen Anzeigenamen geben.\rEntweder haben Sie keinen Namen "
          "eingegeben, oder der Name wird bereits verwendet."},
    {122, "Settings File Location", "Emplacement du fichier de paramètres", "Speicherort der Einstellungsdatei"},
    {123, "You need to select a database!",
          "Vous devez sélectionner une base de données\u00A0!",
          "Sie müssen eine Datenbank auswählen!"},
    {124, "Edit Locations", "Modifier les emplacements", "Speicherorte bearbeiten"},
    {125, "Edit", "Édition", "Bearbeiten"},
    {126, "Please make sure a database is open or ACT! completely closed before running Kelmorra!",
          "Veuillez ouvrir une base de données ou fermer ACT! complètement avant de lancer Kelmorra!",
          "Please make sure a database is open before running Kelmorra!"}, // fixed
    {127, "QuickSwitch Settings", "Paramètres de QuickSwitch", "QuickSwitch-Einstellungen"},
    {128, "File", "Fichier", "Datei"},
    {129, "Exit", "Quitter", "Beenden"},
    {130, "User's manual", "Manuel de l'utilisateur", "User's manual"}, // fixed
    {131, "General", "Général", "Allgemein"},
    {132, "Default locations", "Emplacements par défaut", "Standardspeicherorte"},
    {133, "Logon", "Connexion", "Anmeldung"},
    {134, "Use locations from", "Utiliser les emplacements de", "Speicherorte übernehmen von"},
    {135, "Use specific locations", "Utiliser des emplacements spécifiques", "Eigene Speicherorte verwenden"},
    {136, "Username", "Nom d'utilisateur", "Benutzername"},
    {137, "Use the following password", "Utiliser le mot de passe suivant", "Folgendes Kennwort verwenden"},
    {138, "Buttons", "Boutons", "Schaltflächen"},
    {139, "Color Scheme", "Jeu de couleurs", "Farbschema"},
    {140, "Assign a database", "Affecter une base de données", "Datenbank zuweisen"},
    {141, "Button", "Bouton", "Schaltfläche"},
    {142, "Top Right Button", "Bouton supérieur droit", "Schaltfläche oben rechts"},
    {143, "Bottom Left Button", "Bouton inférieur gauche", "Schaltfläche unten links"},
    {144, "Bottom Right Button", "Bouton inférieur droit", "Schaltfläche unten rechts"},
    {145, "Display QuickSwitch screen at Kelmorra startup",
          "Afficher l'écran QuickSwitch au démarrage de Kelmorra",
          "Display QuickSwitch screen at Kelmorra startup"}, // fixed
    {146, "Choose a color scheme", "Choisissez un jeu de couleurs", "Choose a color scheme"}, // fixed
    {147, "File Type", "Type de fichier", "Dateityp"},
    {148, "Location", "Emplacement", "Speicherort"},
    {149, "Are you sure you want to clear the location: ",
          "Voulez-vous vraiment retirer cet emplacement\u00A0: ",
          "Möchten Sie diese Speicherortangabe wirklich entfernen: "},
    {150, "Close and Launch Kelmorra", "Fermer et lancer Kelmorra", "Close and Launch Kelmorra"}, // fixed
    {151, "", "", ""},
    {152, "Do not use password when Kelmorra launches ACT!",
          "Ne pas utiliser de mot de passe lorsque Kelmorra lance ACT!",
          "Kein Kennwort verwenden, wenn Kelmorra ACT! startet"},
}};
// clang-format on

namespace {

consteval bool IsInOrder() {
    for (size_t place = 0; place < LangTextRows; ++place)
        if (LangTextTable[place].Index != static_cast<int>(place) + 1) return false;
    return true;
}
static_assert(IsInOrder(), "a row's number is its place");

} // namespace
