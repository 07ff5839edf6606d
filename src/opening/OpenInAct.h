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

    /// The whole road, in the view of a code from 0 to 6. Where the database was not opened ACT! still has its layouts
    /// as defaults: PutDefaultsBack ends that. Throws Error when another call into ACT! fails.
    Outcome Run(short viewCode) const;
    /// Gives ACT! its own defaults back. Errors are ignored: the failure that led here has its message.
    void PutDefaultsBack() const noexcept;

private:
    void ShowView(short viewCode) const;
    bool RunOpeningMacro(const std::wstring& macro) const;

    const ActConnection& act_;
    const IniLib::Reading& stored_;
    const std::wstring& name_;
};
