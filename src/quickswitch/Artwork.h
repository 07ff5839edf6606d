#pragma once

#include "databases/Palette.h"

#include <cstdint>
#include <vector>

/// The palette's pictures, drawn by code for the size they are shown in: a family of tiles, each with three softly
/// rounded corners and one swept one. Nothing here touches Windows.
namespace Artwork {

inline constexpr int SchemeCount = Palette::SchemeCount;
inline constexpr int ShapeCount = 4;

/// A colour, 8 bits a channel.
struct Rgb {
    std::uint8_t Red = 0;
    std::uint8_t Green = 0;
    std::uint8_t Blue = 0;
};

/// A picture: rows from the top, pixels from the left.
struct Picture {
    int Width = 0;
    int Height = 0;
    std::vector<Rgb> Pixels;

    const Rgb& At(int x, int y) const;
    Rgb& At(int x, int y);
};

/// A button image. `image` counts from 1: 1 to 4 are the normal shapes, 5 to 8 the same highlighted. Sizes are in
/// pixels; `background` shows around the shape. Error 9 for another scheme or image.
Picture ButtonImage(int scheme, int image, int width, int height, Rgb background);

/// The same shape in two given colours, for those who need them plain: filled and with a rim.
Picture PlainImage(int image, int width, int height, Rgb background, Rgb fill, Rgb rim);

/// Draws a thin line in a button's image, along its outline and inside it: the button has the keyboard's focus.
void AddFocus(Picture& picture, int image, Rgb color);

/// Four small tiles in a scheme's colours, as the settings dialog shows it.
Picture SchemeSample(int scheme, int width, int height, Rgb background);

/// The text colour of a button (0 to 7) in a scheme (0 to 4). Error 9 for others.
Rgb TextColor(int scheme, int button);

/// The normal image (1 to 4) of a button (1 to 8).
int ImageOfButton(int button);

} // namespace Artwork
