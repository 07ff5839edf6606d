#include "ui/Contrast.h"

#include "win32/Windows.h"

bool Contrast::IsHigh() {
    HIGHCONTRASTW scheme{};
    scheme.cbSize = sizeof scheme;
    return SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof scheme, &scheme, 0) &&
           (scheme.dwFlags & HCF_HIGHCONTRASTON) != 0;
}
