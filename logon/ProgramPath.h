#pragma once

#include <array>

/// Text in a buffer of its own, ended by a zero; "" stands for none.
using PathText = std::array<wchar_t, 1024>;

/// Full path of the program that CreateProcess would start for a command line: quotes, blanks in an unquoted path, a
/// missing ".exe" and the search path count as there. "" when it would find none.
PathText ProgramOf(const wchar_t* command);

/// True when a program's name is a path and not a file name alone.
bool HasFolder(const wchar_t* program);

/// True when a program's name, with its folder or without any, is that of a full path. Short names are those of the
/// long ones, and letter case does not matter.
bool Names(const wchar_t* program, const wchar_t* path);
