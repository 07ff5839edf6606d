#pragma once

#include "common/Automation.h"

/// Makers of the stand-in's automation objects.
ComPtr<IDispatch> MakeAppObject();
ComPtr<IDispatch> MakeViews();
ComPtr<IDispatch> MakePreferences();
ComPtr<IDispatch> MakeAuxCommands();
