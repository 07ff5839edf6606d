#pragma once

#include <string>

/// The icon of a message box.
enum class MsgIcon { None, Exclamation, Information, Question, Critical };

/// Shows a message box with an OK button, owned by the active window of this program and titled with the application's
/// title unless another title is given. Shows nothing while messages are silenced.
void MsgBox(const std::wstring& text, MsgIcon icon = MsgIcon::None, const wchar_t* title = nullptr);

/// The same with Yes and No; true when Yes was chosen. The answer is No while messages are silenced.
bool AskYesNo(const std::wstring& text, MsgIcon icon = MsgIcon::Question, const wchar_t* title = nullptr);

/// Silences all message boxes, or lets them speak again: while the session or ACT! is ending nobody is asked anything.
void SilenceMessages(bool silent);
