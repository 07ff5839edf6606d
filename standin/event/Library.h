#pragma once

#include "win32/Windows.h"

namespace Library {

/// The component's own module.
HINSTANCE Instance();

} // namespace Library
