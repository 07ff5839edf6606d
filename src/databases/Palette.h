#pragma once

#include "databases/NameList.h"
#include "stores/IniChange.h"
#include "stores/Read.h"

#include <string>
#include <vector>

/// The palette's settings in the settings file.
namespace Palette {

using NameList::Names;

inline constexpr size_t ButtonCount = 8;
inline constexpr int SchemeCount = 5;

/// The databases on the buttons, an empty name where there is none: at least `ButtonCount` elements.
Names Buttons(const IniLib::Reading& stored);

/// The colour scheme, 0 to 4. Throws Error (TypeMismatch, OutOfRange) when something else is stored.
short Scheme(const IniLib::Reading& stored);

/// Whether the palette comes up at the start, and has a button at all.
bool OpensAtStart(const IniLib::Reading& stored);

/// Renames a database on every button that has it. An empty new name takes it out: later buttons move up.
void ReplaceInQuickSwitch(const IniLib::Reading& stored, IniLib::Change& change, const std::wstring& oldName,
                          const std::wstring& newName);

/// The settings as one dialog reads and writes them.
class Edited {
public:
    static Read<Edited> Load();

    /// The databases to choose from for a button, 0 to 7: those of the list that are shown, and its own when only the
    /// rest of a long list holds it.
    Names Choices(size_t button) const;
    /// The database on a button; "" for none, and for one that the list does not hold.
    const std::wstring& Button(size_t button) const { return buttons_.at(button); }
    /// Throws like Palette::Scheme.
    short Scheme() const { return Palette::Scheme(stored_); }
    bool IsShownAtStart() const;

    /// Writes all of it; buttons that are left as they were stay as others have assigned them meanwhile. False when it
    /// could not be written.
    bool Save(const Names& buttons, int scheme, bool isShownAtStart) const;

private:
    explicit Edited(IniLib::Reading stored);

    IniLib::Reading stored_;
    Names shown_;
    Names buttons_;
};

} // namespace Palette
