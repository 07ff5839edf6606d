#pragma once

#include "stores/Read.h"

#include <string>
#include <vector>

/// What every database of the list needs to be opened as it is set up.
namespace ListCheck {

enum class Kind { Record, File, ContactLayout, GroupLayout, Macro, Lender, Logon, Folder };
enum class Answer { None, There, Missing };

struct Part {
    std::wstring Database;
    Kind What;
    std::wstring Where;          ///< its path; the settings file for a record, a name for a lender, "" for a log-on
    Answer State = Answer::None; ///< none: a path that somebody has to look for
    size_t Folder = 0;           ///< in the order of Keys::Locations
};

/// In the list's order. Those that need no look at a path are there only when they are missing. A layout or macro that
/// is a bare name is ACT!'s to find.
Read<std::vector<Part>> Parts();

} // namespace ListCheck
