#pragma once

#include "win32/Windows.h"

#include <string>

/// Puts a text on the clipboard, in place of what is there. Does nothing while another program holds the clipboard.
void CopyToClipboard(HWND owner, const std::wstring& text);
