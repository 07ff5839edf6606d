#pragma once

#include "win32/Windows.h"

/// True when a window belongs to a process of that program: a file name, a path, or "" for the program that opens .dbf
/// files, by which the launcher finds ACT! too.
bool IsOfProgram(HWND window, const wchar_t* program);
