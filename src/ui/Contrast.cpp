#include "ui/Contrast.h"

#include <algorithm>

namespace {

constexpr double kLeastRatio = 4.5;

/// A number to the power of 2.4, from its fifth root (by Newton's method; numbers from 0.05 to 1).
double ToThe2_4(double number) {
    constexpr int kSteps = 12;
    double root = 1;
    for (int step = 0; step < kSteps; ++step) root -= (root - number / (root * root * root * root)) / 5;
    return number * number * root * root;
}

double Linear(int channel) {
    const double share = channel / 255.0;
    return share <= 0.03928 ? share / 12.92 : ToThe2_4((share + 0.055) / 1.055);
}

double Luminance(COLORREF color) {
    return 0.2126 * Linear(GetRValue(color)) + 0.7152 * Linear(GetGValue(color)) + 0.0722 * Linear(GetBValue(color));
}

} // namespace

namespace Contrast {

bool IsHigh() {
    HIGHCONTRASTW scheme{};
    scheme.cbSize = sizeof scheme;
    return SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof scheme, &scheme, 0) &&
           (scheme.dwFlags & HCF_HIGHCONTRASTON) != 0;
}

double Ratio(COLORREF one, COLORREF other) {
    constexpr double kGlare = 0.05;
    const double darker = std::min(Luminance(one), Luminance(other));
    const double lighter = std::max(Luminance(one), Luminance(other));
    return (lighter + kGlare) / (darker + kGlare);
}

COLORREF Readable(COLORREF color, COLORREF background, COLORREF system) {
    return Ratio(color, background) < kLeastRatio ? system : color;
}

} // namespace Contrast
