#pragma once

#include "opening/ActConnection.h"
#include "stores/Reading.h"

#include <string>

/// Opens a database in the running ACT!.
class OpenInAct {
public:
    enum class Outcome {
        Opened,
        MacroRefused, ///< it is open, but its macro is no file that can be run
        NotSelected,  ///< ACT! has been given no database
        NotAccessible,
    };

    OpenInAct(const ActConnection& act, const IniLib::Reading& stored, const std::wstring& name)
        : act_(act), stored_(stored), name_(name) {}

    /// From the layouts to the macro, in the view of a code from 0 to 6. ACT! has the database's layouts as defaults
    /// then: Finish ends that, or PutDefaultsBack where it was not opened. Throws Error when a call into ACT! other
    /// than openDB fails.
    Outcome Run(short viewCode) const;
    /// Gives ACT! its own defaults back, unless it opens its last database at start. Throws Error.
    void Finish() const;
    /// Gives ACT! its own defaults back. Errors are ignored: the failure that led here has its message.
    void PutDefaultsBack() const noexcept;

private:
    void ShowView(short viewCode) const;
    bool RunOpeningMacro(const std::wstring& macro) const;

    const ActConnection& act_;
    const IniLib::Reading& stored_;
    const std::wstring& name_;
};
