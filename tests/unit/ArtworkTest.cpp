#include "quickswitch/Artwork.h"

#include "support/Error.h"

#include <doctest/doctest.h>

#include <algorithm>
#include <cmath>
#include <stdexcept>

namespace {

/// Relative luminance and contrast as the accessibility guidelines for web content define them.
double Luminance(Artwork::Rgb color) {
    const auto linear = [](int channel) {
        const double share = channel / 255.0;
        return share <= 0.03928 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.Red) + 0.7152 * linear(color.Green) + 0.0722 * linear(color.Blue);
}

double Contrast(Artwork::Rgb left, Artwork::Rgb right) {
    const double one = Luminance(left) + 0.05;
    const double other = Luminance(right) + 0.05;
    return std::max(one, other) / std::min(one, other);
}

constexpr Artwork::Rgb kFace{0xF0, 0xF0, 0xF0};

/// The worst contrast of a caption in the band of the image where captions are written.
double WorstContrast(const Artwork::Picture& picture, Artwork::Rgb text) {
    const int margin = picture.Width / 18; // 4 of 72 pixels, as captions are clipped
    const int halfLine = picture.Height / 9;
    double worst = 21;
    for (int y = picture.Height / 2 - halfLine; y < picture.Height / 2 + halfLine; ++y)
        for (int x = margin; x < picture.Width - margin; ++x) worst = std::min(worst, Contrast(picture.At(x, y), text));
    return worst;
}

} // namespace

TEST_CASE("Captions are readable on every button of every scheme, normal and highlighted, at every DPI") {
    for (const int side : {72, 90, 108, 144})
        for (int scheme = 0; scheme < Artwork::SchemeCount; ++scheme)
            for (int button = 1; button <= 8; ++button)
                for (const int highlight : {0, 4}) {
                    const int image = Artwork::ImageOfButton(button) + highlight;
                    const auto picture = Artwork::ButtonImage(scheme, image, side, side, kFace);
                    CAPTURE(side);
                    CAPTURE(scheme);
                    CAPTURE(button);
                    CAPTURE(highlight);
                    CHECK(WorstContrast(picture, Artwork::TextColor(scheme, button - 1)) >= 4.5);
                }
}

TEST_CASE("A highlighted button differs at a glance, and the four shapes differ from each other") {
    for (int scheme = 0; scheme < Artwork::SchemeCount; ++scheme)
        for (int shape = 1; shape <= Artwork::ShapeCount; ++shape) {
            const auto normal = Artwork::ButtonImage(scheme, shape, 72, 72, kFace);
            const auto hot = Artwork::ButtonImage(scheme, shape + 4, 72, 72, kFace);
            int changed = 0;
            for (int y = 0; y < 72; ++y)
                for (int x = 0; x < 72; ++x) {
                    const auto& one = normal.At(x, y);
                    const auto& other = hot.At(x, y);
                    const int distance = std::abs(one.Red - other.Red) + std::abs(one.Green - other.Green) +
                                         std::abs(one.Blue - other.Blue);
                    changed += distance > 40 ? 1 : 0;
                }
            CHECK(changed > 72 * 72 / 2);
            // The swept corner shows the background, the opposite one the tile.
            const auto next = Artwork::ButtonImage(scheme, shape % 4 + 1, 72, 72, kFace);
            const auto isBare = [](const Artwork::Picture& picture, int x, int y) {
                return picture.At(x, y).Red == kFace.Red && picture.At(x, y).Green == kFace.Green;
            };
            bool differs = false;
            for (const auto& [x, y] : {std::pair{6, 6}, {65, 6}, {6, 65}, {65, 65}})
                differs |= isBare(normal, x, y) != isBare(next, x, y);
            CHECK(differs);
        }
}

TEST_CASE("Schemes and images that do not exist are refused") {
    CHECK_THROWS_AS(Artwork::ButtonImage(5, 1, 8, 8, kFace), Error);
    CHECK_THROWS_AS(Artwork::ButtonImage(0, 9, 8, 8, kFace), Error);
    CHECK_THROWS_AS(Artwork::TextColor(0, 8), Error);
    CHECK_THROWS_AS(Artwork::TextColor(-1, 0), Error);
}

TEST_CASE("The plain image has the given colours inside and along the outline, and the focus line lies between") {
    constexpr Artwork::Rgb kFace{10, 20, 30}, kFill{40, 50, 60}, kRim{70, 80, 90}, kFocus{200, 0, 0};
    constexpr int kSide = 72;
    for (int image = 1; image <= 2 * Artwork::ShapeCount; ++image) {
        Artwork::Picture picture = Artwork::PlainImage(image, kSide, kSide, kFace, kFill, kRim);
        Artwork::AddFocus(picture, image, kFocus);
        CHECK(picture.At(kSide / 2, kSide / 2).Red == kFill.Red);
        CHECK(picture.At(kSide / 2, 1).Red == kRim.Red);
        CHECK(picture.At(kSide / 2, 5).Red > kRim.Red);
    }
}
