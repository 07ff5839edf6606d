#pragma once

#include "stores/Reading.h"

#include <string>

/// Starts ACT! on a database.
namespace StartAct {

/// Makes the database the one that ACT! opens by itself, starts ACT!'s program, and has the log-on helper answer ACT!'s
/// dialog. False when Windows knows no program of ACT!'s. Throws Error as the registry's calls do.
bool On(const IniLib::Reading& stored, const std::wstring& name);

} // namespace StartAct
