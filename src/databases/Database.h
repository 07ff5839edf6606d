#pragma once

#include "stores/IniLib.h"

#include <array>
#include <string>
#include <vector>

/// What the settings file knows about one database; full paths, empty where nothing is set.
struct DatabaseRecord {
    std::wstring Path;
    std::wstring ContactLayout;
    std::wstring GroupLayout;
    std::wstring OpeningMacro;
};

/// Reads the record of a database by its name. A database without a section has an empty record.
DatabaseRecord ExtractInfo(const std::wstring& name);

/// ACT!'s preference locations in ACT!'s order: keys of a database's section, and (with " File Type" behind them) names
/// of ACT!'s registry values.
inline constexpr std::array<const wchar_t*, 12> LocationNames{L"Attached Email",
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

/// The lists of names in the settings file's section "General".
namespace DatabaseList {

inline constexpr size_t ButtonCount = 8;

/// The databases in display order. Of a list longer than the 998 bytes that are read, only the names that are seen
/// whole.
std::vector<std::wstring> ReadSort();

/// The same with those that ReadSort cannot show.
std::vector<std::wstring> ReadWholeSort();

/// Writes the databases in display order. Names that ReadSort cannot show stay in the list, behind the given ones. The
/// change is refused when the list could not be read (WasRead).
void WriteSort(IniLib::Change& change, const std::vector<std::wstring>& names);

/// The same, and what others change until the change is made stays: names that they add, and that they take away of the
/// `known` ones.
void MergeIntoSort(IniLib::Change& change, const std::vector<std::wstring>& names,
                   const std::vector<std::wstring>& known);

/// Adds a database behind those that ReadSort shows. Refused like WriteSort.
void AddToSort(IniLib::Change& change, const std::wstring& name);

/// Renames a database in the list, by exact text replacement (NameList::RenamedByText).
void RenameInSort(IniLib::Change& change, const std::wstring& oldName, const std::wstring& newName);

/// False when the last reading of a list of names met a file that could not be trusted (FileHealth). What was returned
/// then is not what is stored and must not be written back.
bool WasRead();

/// True when the list holds names that ReadSort cannot show.
bool IsLongerThanShown();

/// The databases on the QuickSwitch buttons, an empty name where there is none: at least `ButtonCount` elements.
std::vector<std::wstring> ReadQuickSwitch();

/// Renames a database on every button that has it. An empty new name takes it out: later buttons move up.
void ReplaceInQuickSwitch(IniLib::Change& change, const std::wstring& oldName, const std::wstring& newName);

/// Deletes what the settings file, or the per-user store, keeps about a database. In a section that is the program's
/// own ("General" of the settings file; "Settings", "Options", "Display" and "Logon" of the per-user store) only a
/// database's keys go. Neither list of names is changed.
void DeleteFileRecord(IniLib::Change& change, const std::wstring& name);
void DeleteUserRecord(const std::wstring& name);

} // namespace DatabaseList

/// The hand-over of log-on values to the log-on program.
namespace LogonValues {

/// Copies a database's "UsePassword", "Username" and "Password" to the section "Logon", and its user name to
/// "Settings"/"Last Username". A missing value is copied as an empty text.
void CopyToLogon(const std::wstring& name);

} // namespace LogonValues
