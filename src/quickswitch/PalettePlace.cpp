#include "quickswitch/PalettePlace.h"

#include <algorithm>
#include <cstdlib>

namespace {

BOOL CALLBACK NoteScreen(HMONITOR monitor, HDC, RECT*, LPARAM screens) {
    MONITORINFO information{};
    information.cbSize = sizeof information;
    if (GetMonitorInfoW(monitor, &information))
        reinterpret_cast<std::vector<RECT>*>(screens)->push_back(information.rcWork); // NOLINT(*-no-int-to-ptr)
    return TRUE;
}

bool Holds(const RECT& screen, const RECT& part) {
    return part.left >= screen.left && part.top >= screen.top && part.right <= screen.right &&
           part.bottom <= screen.bottom;
}

/// The place moved onto a screen. Where it is too large the upper right corner, with the control box, is kept.
RECT MovedOnto(const RECT& screen, RECT place) {
    const LONG left = std::max(std::min(place.left, screen.right - (place.right - place.left)),
                               std::min(screen.left, screen.right - (place.right - place.left)));
    const LONG top = std::max(std::min(place.top, screen.bottom - (place.bottom - place.top)), screen.top);
    OffsetRect(&place, left - place.left, top - place.top);
    return place;
}

long Distance(const RECT& one, const RECT& other) {
    return std::labs(one.left - other.left) + std::labs(one.top - other.top);
}

} // namespace

namespace PalettePlace {

std::vector<RECT> Screens() {
    std::vector<RECT> screens;
    EnumDisplayMonitors(nullptr, nullptr, &NoteScreen, reinterpret_cast<LPARAM>(&screens));
    return screens;
}

RECT WithinReach(const RECT& palette, int side, const std::vector<RECT>& screens) {
    const RECT controlBox{palette.right - side, palette.top, palette.right, palette.top + side};
    if (std::ranges::any_of(screens, [&](const RECT& screen) { return Holds(screen, controlBox); })) return palette;
    RECT nearest = palette;
    long distance = -1;
    for (const RECT& screen : screens) {
        const RECT moved = MovedOnto(screen, palette);
        if (distance >= 0 && Distance(moved, palette) >= distance) continue;
        distance = Distance(moved, palette);
        nearest = moved;
    }
    return nearest;
}

} // namespace PalettePlace
