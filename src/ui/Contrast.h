#pragma once

#include "win32/Windows.h"

/// Colours that everybody can read.
namespace Contrast {

/// True while the user has chosen one of the system's high-contrast schemes: colours are the system's then.
bool IsHigh();

/// The contrast of two colours, 1 to 21, as the Web Content Accessibility Guidelines define it.
double Ratio(COLORREF one, COLORREF other);

/// `color` if its contrast to `background` is at least 4.5 : 1, else `system`.
COLORREF Readable(COLORREF color, COLORREF background, COLORREF system);

} // namespace Contrast
