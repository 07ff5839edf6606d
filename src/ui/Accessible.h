#pragma once

#include "win32/Windows.h"

#include <string>

/// What assistive tools are told beyond what the system's controls tell by themselves.
namespace Accessible {

/// Names a control that neither its text nor a label before it names.
void Name(HWND control, const std::wstring& name);

/// Names one item of a control, counted from 1; "" gives it back to the control. Does nothing where the system has no
/// annotation service.
void ItemName(HWND control, int item, const std::wstring& name);

} // namespace Accessible
