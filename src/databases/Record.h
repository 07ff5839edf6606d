#pragma once

#include "databases/Keys.h"
#include "stores/Reading.h"

#include <array>
#include <string>

/// What the settings file knows about one database; full paths, empty where nothing is set.
struct DatabaseRecord {
    std::wstring Path;
    std::wstring ContactLayout;
    std::wstring GroupLayout;
    std::wstring OpeningMacro;
};

/// A value of a section that was read at once, cut to what is shown; "" when the key is missing.
std::wstring ValueIn(const IniLib::Reading::Values& section, std::wstring_view key);

/// The record of a database by its name. A database without a section has an empty record.
DatabaseRecord ExtractInfo(const IniLib::Reading& stored, const std::wstring& name);

/// Folders of preference locations, in the order of Keys::Locations; empty where ACT!'s own is used.
using Folders = std::array<std::wstring, Keys::Locations.size()>;

/// A database's own preference locations.
Folders OwnFolders(const IniLib::Reading& stored, const std::wstring& name);

/// Those that a database uses: of the one that it borrows from, or its own.
Folders UsedFolders(const IniLib::Reading& stored, const std::wstring& name);
