#pragma once

#include "opening/ActConnection.h"

#include <string>

namespace Module1 {

/// Connects to the running ACT!: creates the application object and takes its views and preferences. A failure is
/// reported to the user and gives false.
bool Create_object(ActConnection& act);

/// Lets go of everything that Create_object took.
void Release_object(ActConnection& act) noexcept;

/// Has ACT! close itself, as before a restart; the full path of the database that it had open. An ACT! that is gone
/// already is what was wanted. Throws Error for any other failure.
std::wstring CloseAct(const ActConnection& act);

} // namespace Module1
