#pragma once

#include <string>

/// Full path of the program or library that this code is part of.
std::wstring ModulePath();

/// Full path of a file that lies in the same folder.
std::wstring BesideModule(const std::wstring& fileName);

/// The path that an environment variable names, or else that of a file beside this program or library.
std::wstring NamedOrBeside(const wchar_t* variable, const std::wstring& fileName);
