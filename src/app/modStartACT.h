#pragma once

#include "program/MainWindow.h"

namespace modStartACT {

/// Lets the user pick a database on the palette, makes it the one that ACT! opens by itself, and starts ACT! and the
/// log-on program. Without a choice nothing is written or started. Errors are reported to the user.
void StartACT_mode(MainWindow& mainWindow);

} // namespace modStartACT
