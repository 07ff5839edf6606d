#pragma once

/// A dialog that is no log-on to a database but looks like one: a user box, a password box and OK. The state file
/// orders it, and the journal tells how it ended.
namespace EmailAccount {

/// Lives as long as a call of openDB. At its beginning it asks, with a further text box, when DuringOpen is 1; at its
/// end, be it a failure, it orders the dialog for so many milliseconds later as AfterOpen says.
class AtOpen {
public:
    AtOpen();
    ~AtOpen();
    AtOpen(const AtOpen&) = delete;
    AtOpen& operator=(const AtOpen&) = delete;
};

/// Closes an open dialog as its Cancel button does.
void Cancel();

} // namespace EmailAccount
