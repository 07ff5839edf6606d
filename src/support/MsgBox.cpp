#include "support/MsgBox.h"

#include "support/Application.h"
#include "win32/Windows.h"

namespace {

bool silenced = false;

UINT IconFlag(MsgIcon icon) {
    switch (icon) {
    case MsgIcon::Exclamation: return MB_ICONEXCLAMATION;
    case MsgIcon::Information: return MB_ICONINFORMATION;
    case MsgIcon::Question: return MB_ICONQUESTION;
    case MsgIcon::Critical: return MB_ICONERROR;
    case MsgIcon::None: break;
    }
    return 0;
}

int Show(const std::wstring& text, UINT flags, const wchar_t* title) {
    HWND owner = GetActiveWindow();
    if (owner && !IsWindowVisible(owner)) owner = nullptr;
    // Without an owner nothing would bring the box before the window of the program that is in use.
    if (!owner) flags |= MB_SETFOREGROUND;
    return MessageBoxW(owner, text.c_str(), title ? title : Application::Title, flags);
}

} // namespace

void MsgBox(const std::wstring& text, MsgIcon icon, const wchar_t* title) {
    if (!silenced) Show(text, MB_OK | IconFlag(icon), title);
}

bool AskYesNo(const std::wstring& text, MsgIcon icon, const wchar_t* title) {
    return !silenced && Show(text, MB_YESNO | IconFlag(icon), title) == IDYES;
}

void SilenceMessages(bool silent) { silenced = silent; }
