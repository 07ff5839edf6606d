#pragma once

#include "act/ActApplication.h"

#include <string>

/// ACT!'s own default layouts and start-up macro: recorded at the start, in the user's store, and put back when a
/// database with others has been opened.
namespace ActDefaults {

// Each throws Error when a call into ACT! fails.

void Record(const ActPreferences& preferences);
/// Makes a database's layouts ACT!'s defaults. An empty one stands for ACT!'s own: the last database's must not stay in
/// force.
void UseLayouts(const ActPreferences& preferences, const std::wstring& contact, const std::wstring& group);
void PutBack(const ActPreferences& preferences);

} // namespace ActDefaults
