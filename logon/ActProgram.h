#pragma once

#include "win32/Windows.h"

/// True when a window belongs to a process of that program: a command or path with a folder stands for this one
/// program, a file name for any of that name. "" is ACT!: the server of its automation object, or the program that
/// opens .dbf files.
bool IsOfProgram(HWND window, const wchar_t* program);
