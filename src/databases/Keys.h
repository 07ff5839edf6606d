#pragma once

#include <array>

/// Names of sections and keys in both stores. Letter case does not count.
namespace Keys {

// The settings file: the section of the whole list
inline constexpr wchar_t General[] = L"General";
inline constexpr wchar_t Sort[] = L"Sort";               ///< the databases in display order, joined by ";"
inline constexpr wchar_t QuickSwitch[] = L"QuickSwitch"; ///< those on the palette's buttons, likewise
inline constexpr wchar_t QuickSwitchScheme[] = L"QuickSwitchScheme";
inline constexpr wchar_t QuickSwitchStartup[] = L"QuickSwitchStartup";

// The settings file: a database's section, which has its name
inline constexpr wchar_t Path[] = L"Path";
inline constexpr wchar_t ContactLayout[] = L"CLY";
inline constexpr wchar_t GroupLayout[] = L"GLY";
inline constexpr wchar_t OpeningMacro[] = L"StartupMacro";
inline constexpr wchar_t UseLocationsFrom[] = L"UseLocationsFrom";

/// ACT!'s preference locations in ACT!'s order: keys of a database's section, and (with " File Type" behind them) names
/// of ACT!'s registry values.
inline constexpr std::array<const wchar_t*, 12> Locations{L"Attached Email",
                                                          L"Database",
                                                          L"Document",
                                                          L"Document Template",
                                                          L"Email Root Folder",
                                                          L"Layout",
                                                          L"Macro",
                                                          L"NetLinks",
                                                          L"Query",
                                                          L"Report, Label, Envelope",
                                                          L"Synchronize",
                                                          L"Spelling Dictionary"};

// The per-user store: a database's section, and what is handed to the log-on program
inline constexpr wchar_t Username[] = L"Username";
inline constexpr wchar_t Password[] = L"Password"; ///< enciphered
inline constexpr wchar_t UsePassword[] = L"UsePassword";
inline constexpr wchar_t NoPasswordAtACTStartup[] = L"NoPasswordAtACTStartup";

// The per-user store: the program's own sections
inline constexpr wchar_t Settings[] = L"Settings";
inline constexpr wchar_t Options[] = L"Options";
inline constexpr wchar_t Display[] = L"Display";
inline constexpr wchar_t Logon[] = L"Logon";
inline constexpr wchar_t LogonDialog[] = L"LogonDialog";

inline constexpr wchar_t IniLocation[] = L"IniLocation";
inline constexpr wchar_t Installed[] = L"Installed";
inline constexpr wchar_t Version[] = L"Version";
inline constexpr wchar_t Language[] = L"Language";
inline constexpr wchar_t Height[] = L"Height";
inline constexpr wchar_t Width[] = L"Width";
inline constexpr wchar_t Column[] = L"Column"; ///< with the column's number behind
inline constexpr wchar_t Selected[] = L"Selected";
inline constexpr wchar_t QuickLeft[] = L"QuickLeft";
inline constexpr wchar_t QuickTop[] = L"QuickTop";
inline constexpr wchar_t LastUsername[] = L"Last Username";
inline constexpr wchar_t OriginalCL[] = L"OriginalCL";
inline constexpr wchar_t OriginalGL[] = L"OriginalGL";
inline constexpr wchar_t OriginalMacro[] = L"OriginalMacro";

} // namespace Keys
