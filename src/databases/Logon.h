#pragma once

#include <string>

/// A user's log-on values of one database.
struct LogonValues {
    std::wstring Username;
    std::wstring Password; ///< in plain
    bool UsesPassword = false;
    bool IsWithoutPasswordAtStart = false; ///< none is given where this program starts ACT!

    static LogonValues Load(const std::wstring& name);
    /// Stores them under a database's name, the password enciphered, and only where it is used.
    void Store(const std::wstring& name) const;
};

/// The hand-over of log-on values to the log-on program.
namespace LogonHandOver {

/// Copies a database's "UsePassword", "Username" and "Password" to the section "Logon", and its user name to
/// "Settings"/"Last Username". A missing value is copied as an empty text.
void CopyToLogon(const std::wstring& name);

} // namespace LogonHandOver
