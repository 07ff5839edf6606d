#pragma once

/// Colours that everybody can read.
namespace Contrast {

/// True while the user has chosen one of the system's high-contrast schemes: colours are the system's then.
bool IsHigh();

} // namespace Contrast
