#pragma once

#include "databases/Logon.h"
#include "databases/NameList.h"
#include "databases/Record.h"
#include "stores/IniChange.h"
#include "stores/Read.h"

#include <optional>
#include <string>

/// All that can be edited of a database, but for its own preference locations.
struct DatabaseValues {
    std::wstring Name;
    DatabaseRecord Record;
    /// The database whose preference locations are used, "" where none was chosen; nothing for its own.
    std::optional<std::wstring> Lender;
    LogonValues Logon;
};

/// One database that is being edited, or a new one.
class EditedDatabase {
public:
    /// Reads a database by its name. With an empty name, a new one: empty too, or with the values of `model` under a
    /// name that is free.
    static Read<EditedDatabase> Load(const std::wstring& name, const std::wstring& model);

    const DatabaseValues& Values() const { return values_; }
    /// Every database of the list.
    const NameList::Names& All() const { return all_; }

    enum class Outcome { Saved, NameTaken, NotSaved };

    /// Writes what has become of it, the name included: first the settings file, then the user's log-on. Nothing is
    /// written when the file cannot be, or when another database of the list has that name by then.
    Outcome Save(const DatabaseValues& edited) const;

private:
    EditedDatabase(const IniLib::Reading& stored, const std::wstring& name, std::wstring model);
    bool Compose(const IniLib::Reading& stored, IniLib::Change& change, const DatabaseValues& edited) const;

    IniLib::Origin from_;
    std::wstring oldName_;
    std::wstring model_;
    NameList::Names all_;
    DatabaseValues values_;
};

/// The preference locations that belong to a database itself, as one dialog edits them.
class OwnLocations {
public:
    static Read<OwnLocations> Load(const std::wstring& name);

    const Folders& All() const { return folders_; }
    /// Takes one, 0 to 11, out of the settings file at once; false when it could not be. A database without a name has
    /// none to take.
    bool Clear(size_t index);
    /// Writes all of them under a name, empty ones as empty values; false when they could not be. Under an empty name
    /// there is nothing to be written.
    bool Save(const std::wstring& name, const Folders& folders) const;

private:
    OwnLocations(const IniLib::Reading& stored, std::wstring name);

    IniLib::Origin from_;
    std::wstring name_;
    Folders folders_;
};
