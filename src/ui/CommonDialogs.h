#pragma once

#include "win32/Windows.h"

#include <optional>
#include <string>

/// Lets the user pick an existing file. `filter` is descriptions and patterns separated by "|". The current folder of
/// the process is left alone. Nothing when the user cancels.
std::optional<std::wstring> PickFile(HWND owner, const std::wstring& filter, const std::wstring& initialFolder);

/// Lets the user pick a folder, starting at a given one. Nothing when the user cancels.
std::optional<std::wstring> PickFolder(HWND owner, const std::wstring& initialFolder);
