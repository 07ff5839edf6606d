#include "quickswitch/Artwork.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <optional>

namespace Artwork {

namespace {

/// What one shape of a scheme is filled with; the highlighted form has another hue and a bright rim.
struct Paint {
    Rgb Normal;
    Rgb Highlighted;
};

using SchemePaint = std::array<Paint, ShapeCount>;

// Scheme 0 carries black captions and white ones on its shapes 1 and 4. Only a luminance between 0.175 and 0.183 has a
// contrast of 4.5 : 1 to both, so these four colours differ in hue alone.
constexpr std::array<SchemePaint, SchemeCount> kPaint{{
    {{{{0x3A, 0x7B, 0xA8}, {0xAF, 0x62, 0x20}},
      {{0xC9, 0xDE, 0xEA}, {0xFF, 0xD9, 0x8A}},
      {{0xDC, 0xE6, 0xD5}, {0xFF, 0xD9, 0x8A}},
      {{0x78, 0x75, 0x73}, {0xAF, 0x62, 0x20}}}},
    {{{{0x1F, 0x4E, 0x79}, {0x1A, 0x74, 0xB8}},
      {{0x2B, 0x5F, 0x8C}, {0x1A, 0x74, 0xB8}},
      {{0x25, 0x57, 0x82}, {0x1A, 0x74, 0xB8}},
      {{0x33, 0x68, 0x96}, {0x1A, 0x74, 0xB8}}}},
    {{{{0x2F, 0x5D, 0x3A}, {0x2E, 0x7D, 0x32}},
      {{0x3A, 0x69, 0x45}, {0x2E, 0x7D, 0x32}},
      {{0x35, 0x62, 0x40}, {0x2E, 0x7D, 0x32}},
      {{0x41, 0x70, 0x4C}, {0x2E, 0x7D, 0x32}}}},
    {{{{0x6B, 0x2D, 0x3C}, {0xB0, 0x3A, 0x48}},
      {{0x78, 0x38, 0x47}, {0xB0, 0x3A, 0x48}},
      {{0x71, 0x32, 0x41}, {0xB0, 0x3A, 0x48}},
      {{0x80, 0x40, 0x4F}, {0xB0, 0x3A, 0x48}}}},
    {{{{0x3C, 0x41, 0x4A}, {0x8A, 0x5A, 0x10}},
      {{0x49, 0x4F, 0x59}, {0x8A, 0x5A, 0x10}},
      {{0x42, 0x48, 0x52}, {0x8A, 0x5A, 0x10}},
      {{0x52, 0x58, 0x63}, {0x8A, 0x5A, 0x10}}}},
}};

constexpr Rgb kRim{0xFF, 0xE0, 0xA0};
constexpr int kSamples = 4; // sub-pixels along each side: edges come out smooth

/// Corner radii as shares of the shorter side, clockwise from the upper left. Each shape sweeps another corner.
constexpr double kSoft = 0.12;
constexpr double kSwept = 0.5;

double Radius(int shape, int corner) {
    constexpr std::array kSweptCorner{0, 2, 1, 3};
    return kSweptCorner.at(static_cast<std::size_t>(shape)) == corner ? kSwept : kSoft;
}

/// How far a point lies inside the tile's outline, in pixels; negative outside.
double Depth(int shape, double width, double height, double x, double y) {
    const double side = std::min(width, height);
    const bool isRight = x > width / 2;
    const bool isLower = y > height / 2;
    const int corner = isLower ? (isRight ? 2 : 3) : (isRight ? 1 : 0);
    const double radius = Radius(shape, corner) * side;
    const double fromSide = isRight ? width - x : x;
    const double fromEnd = isLower ? height - y : y;
    if (fromSide >= radius || fromEnd >= radius) return std::min(fromSide, fromEnd);
    return radius - std::sqrt((radius - fromSide) * (radius - fromSide) + (radius - fromEnd) * (radius - fromEnd));
}

/// The same for a sub-pixel of a pixel.
double Depth(int shape, int width, int height, int x, int y, int sample) {
    const int line = sample / kSamples;
    return Depth(shape, width, height, x + (sample % kSamples + 0.5) / kSamples, y + (line + 0.5) / kSamples);
}

struct Sum {
    int Red = 0;
    int Green = 0;
    int Blue = 0;
    void Add(Rgb color) {
        Red += color.Red;
        Green += color.Green;
        Blue += color.Blue;
    }
    Rgb Mean() const {
        constexpr int kCount = kSamples * kSamples;
        return {static_cast<std::uint8_t>(Red / kCount), static_cast<std::uint8_t>(Green / kCount),
                static_cast<std::uint8_t>(Blue / kCount)};
    }
};

/// Draws one tile into a rectangle of a picture.
void DrawTile(Picture& picture, int left, int top, int width, int height, int shape, Rgb fill,
              std::optional<Rgb> rimColor) {
    const double rim = std::max(1.5, std::min(width, height) / 24.0);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) {
            Sum sum;
            Rgb& pixel = picture.At(left + x, top + y);
            for (int sample = 0; sample < kSamples * kSamples; ++sample) {
                const double depth = Depth(shape, width, height, x, y, sample);
                const bool isRim = rimColor && depth < rim;
                sum.Add(depth < 0 ? pixel : (isRim ? *rimColor : fill));
            }
            pixel = sum.Mean();
        }
}

Picture Blank(int width, int height, Rgb background) {
    return {width, height,
            std::vector<Rgb>(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), background)};
}

} // namespace

const Rgb& Picture::At(int x, int y) const {
    return Pixels.at(static_cast<std::size_t>(y) * static_cast<std::size_t>(Width) + static_cast<std::size_t>(x));
}

Rgb& Picture::At(int x, int y) {
    return Pixels.at(static_cast<std::size_t>(y) * static_cast<std::size_t>(Width) + static_cast<std::size_t>(x));
}

Picture ButtonImage(int scheme, int image, int width, int height, Rgb background) {
    const bool isHighlighted = image > ShapeCount;
    const int shape = image - 1 - (isHighlighted ? ShapeCount : 0);
    const Paint& paint = kPaint.at(static_cast<std::size_t>(scheme)).at(static_cast<std::size_t>(shape));
    Picture picture = Blank(width, height, background);
    DrawTile(picture, 0, 0, width, height, shape, isHighlighted ? paint.Highlighted : paint.Normal,
             isHighlighted ? std::optional(kRim) : std::nullopt);
    return picture;
}

Picture PlainImage(int image, int width, int height, Rgb background, Rgb fill, Rgb rim) {
    Picture picture = Blank(width, height, background);
    DrawTile(picture, 0, 0, width, height, (image - 1) % ShapeCount, fill, rim);
    return picture;
}

void AddFocus(Picture& picture, int image, Rgb color) {
    const int shape = (image - 1) % ShapeCount;
    const double side = std::min(picture.Width, picture.Height);
    const double outer = side / 14;
    const double inner = outer + std::max(1.0, side / 60);
    for (int y = 0; y < picture.Height; ++y)
        for (int x = 0; x < picture.Width; ++x) {
            Sum sum;
            Rgb& pixel = picture.At(x, y);
            for (int sample = 0; sample < kSamples * kSamples; ++sample) {
                const double depth = Depth(shape, picture.Width, picture.Height, x, y, sample);
                sum.Add(depth >= outer && depth < inner ? color : pixel);
            }
            pixel = sum.Mean();
        }
}

Picture SchemeSample(int scheme, int width, int height, Rgb background) {
    constexpr std::array kPlaces{0, 2, 1, 3}; // shapes 1 and 2 in the left column, 3 and 4 in the right one
    Picture picture = Blank(width, height, background);
    const int gap = std::max(1, width / 24);
    const int tileWidth = (width - gap) / 2;
    const int tileHeight = (height - gap) / 2;
    for (int shape = 0; shape < ShapeCount; ++shape) {
        const int place = kPlaces.at(static_cast<std::size_t>(shape));
        DrawTile(picture, place % 2 * (tileWidth + gap), place / 2 * (tileHeight + gap), tileWidth, tileHeight, shape,
                 kPaint.at(static_cast<std::size_t>(scheme)).at(static_cast<std::size_t>(shape)).Normal, std::nullopt);
    }
    return picture;
}

Rgb TextColor(int scheme, int button) {
    constexpr Rgb kWhite{0xFF, 0xFF, 0xFF};
    constexpr Rgb kBlack{0, 0, 0};
    // Buttons 1 and 4 of scheme 0 alone are white; 5 to 8 stay black although they share those images.
    constexpr std::array<Rgb, 8> kFirstScheme{kWhite, kBlack, kBlack, kWhite, kBlack, kBlack, kBlack, kBlack};
    const Rgb color = kFirstScheme.at(static_cast<std::size_t>(button));
    static_cast<void>(kPaint.at(static_cast<std::size_t>(scheme)));
    return scheme == 0 ? color : kWhite;
}

int ImageOfButton(int button) {
    constexpr std::array kImages{1, 2, 3, 4, 2, 1, 4, 3};
    return kImages.at(static_cast<std::size_t>(button) - 1);
}

} // namespace Artwork
