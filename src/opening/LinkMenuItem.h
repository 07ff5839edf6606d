#pragma once

#include <string>

/// Puts the vendor's web link under a title into ACT!'s "NetLinks" folder, which lies beside ACT!'s program, unless it
/// is there. `actProgram` is the full path of ACT!'s program; without such a folder nothing happens.
void Create_LinkMenuItem(const std::wstring& actProgram, const std::wstring& title);
