#pragma once

#include "act/ActApplication.h"

/// The running ACT!, once Module1::Create_object has connected to it.
struct ActConnection {
    ActApplication Application;
    ActViews Views;
    ActPreferences Preferences;
};
