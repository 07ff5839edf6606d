#pragma once

#include <string>

/// What the running stand-in has open and shows: ACT!'s side of the conversation.
namespace Session {

struct Facts {
    std::wstring Database; ///< full path, "" when none is open
    int View = 0;          ///< 0: none chosen yet
    int CalendarMode = 0;
    std::wstring ContactLayout; ///< in use since the start
    std::wstring GroupLayout;
    std::wstring LastMacro;
};

const Facts& Current();

/// Opens a database file and records it as the last one, after its user has logged on when it has a preset in
/// [Passwords]. Fails with error 91 for "", with 53 for a missing file and with 70 when nobody has logged on: the
/// database that was open before stays so.
void OpenDatabase(const std::wstring& path);
/// The logged-on user: a preset of the database's path or file name in [Users], else of "default"; "" when none is
/// open.
std::wstring User();

void ShowView(int view);
void SetCalendarMode(int mode);
void RunMacro(const std::wstring& path);
void UseLayouts(const std::wstring& contact, const std::wstring& group);

/// Asks the stand-in to close itself once the present call has returned.
void RequestClose();
void SetCloseRequest(void (*request)());

} // namespace Session
