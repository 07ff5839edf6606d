#pragma once

#include <string>

/// The log-on dialog.
namespace LogOn {

/// What a database's user has to type: the name in any letter case, the password exactly.
struct Credentials {
    std::wstring User;
    std::wstring Password;
};

/// Asks for the user and password of a database. Returns when they were right; fails with error 70 when the dialog was
/// cancelled, has refused three times or is open already.
void Ask(const std::wstring& database, const Credentials& credentials);

/// Closes an open dialog as its Cancel button does.
void Cancel();

} // namespace LogOn
