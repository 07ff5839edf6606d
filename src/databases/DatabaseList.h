#pragma once

#include "databases/NameList.h"
#include "stores/IniChange.h"

#include <string>
#include <vector>

/// The list of databases in the settings file, and what both stores keep under a database's name. What changes the list
/// is made of the list as it is stored when the change is made.
namespace DatabaseList {

using NameList::Names;

/// The databases in display order, divided where a reading cuts a long list.
NameList::Divided Read(const IniLib::Reading& stored);

/// Every database, those included that a cut reading does not show.
Names ReadAll(const IniLib::Reading& stored);

/// Writes the list, joined. Refuses the change of a list that is too long to have been read whole.
void Write(const IniLib::Reading& stored, IniLib::Change& change, const std::wstring& list);

/// The name, or the first of "name (2)" and so on under which nothing is stored and that none of `names` shares a
/// section with.
std::wstring FreeName(const IniLib::Reading& stored, const std::wstring& name, const Names& names);

/// Adds a database behind those that are shown. False when the name is taken.
bool Add(const IniLib::Reading& stored, IniLib::Change& change, const std::wstring& name);

/// Renames a database: in the list by exact text replacement (NameList::RenamedByText), on the buttons, in its section
/// with its own preference locations, and where others borrow them from it. Its other keys are written by the caller.
/// False when the new name is taken.
bool Rename(const IniLib::Reading& stored, IniLib::Change& change, const std::wstring& oldName,
            const std::wstring& newName);

/// Deletes what the settings file keeps under a name that is leaving the list, unless another one of the list shares
/// the section. In the program's own section only a database's keys go. Neither list of names is changed.
void DeleteFileRecord(const IniLib::Reading& stored, IniLib::Change& change, const std::wstring& name);

/// Deletes what the per-user store keeps under a name, unless one of `others` shares the section. In a section of the
/// program's own only a database's values go.
void DeleteUserRecord(const std::wstring& name, const Names& others);

} // namespace DatabaseList
