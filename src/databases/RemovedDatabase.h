#pragma once

#include "databases/NameList.h"
#include "stores/IniChange.h"

#include <string>
#include <utility>
#include <vector>

/// A database that is taken out of both stores, with what they kept about it, so that the removal can be undone.
class RemovedDatabase {
public:
    /// `line` is where it stood in the list.
    RemovedDatabase(std::wstring name, size_t line) : name_(std::move(name)), line_(line) {}

    const std::wstring& Name() const { return name_; }
    size_t Line() const { return line_; }

    /// Takes it out of the settings file, but for the list.
    void Remove(const IniLib::Reading& stored, IniLib::Change& change);
    /// Takes it out of the per-user store, once the settings file is without it; `others` stay in the list.
    void RemoveFromUser(const NameList::Names& others);

    /// Puts back what is not there any more. Values that somebody has written since stay, and so do the buttons when
    /// somebody has assigned them anew.
    void Restore(const IniLib::Reading& stored, IniLib::Change& change) const;
    void RestoreToUser() const;

private:
    using Values = IniLib::Reading::Values;

    std::wstring name_;
    size_t line_;
    Values fileValues_;
    Values userValues_;
    std::wstring buttonsBefore_;
    std::wstring buttonsAfter_;
};
