#pragma once

#include "stores/IniLib.h"

#include <string>
#include <utility>
#include <vector>

/// What both stores keep about a database that is about to be removed, so that the removal can be undone.
class RemovedDatabase {
public:
    /// Remembers a database; `line` is where it stood in the list.
    RemovedDatabase(std::wstring name, int line);
    /// To be called once it is gone: what the buttons of the palette are then.
    void NoteRemoval();

    const std::wstring& Name() const { return name_; }
    int Line() const { return line_; }

    /// Puts back what is not there any more. Values that somebody has written since stay, and so do the buttons when
    /// somebody has assigned them anew.
    void RestoreFile(IniLib::Change& change) const;
    void RestoreUser() const;

private:
    using Values = std::vector<std::pair<std::wstring, std::wstring>>;

    std::wstring name_;
    int line_;
    Values fileValues_;
    Values userValues_;
    std::wstring buttonsBefore_;
    std::wstring buttonsAfter_;
};
