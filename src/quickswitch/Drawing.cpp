#include "quickswitch/Drawing.h"

#include <cstddef>
#include <vector>

Artwork::Rgb SystemColor(int index) {
    const COLORREF color = GetSysColor(index);
    return {GetRValue(color), GetGValue(color), GetBValue(color)};
}

COLORREF ToColorRef(Artwork::Rgb color) { return RGB(color.Red, color.Green, color.Blue); }

void PutPicture(HDC canvas, POINT corner, const Artwork::Picture& picture) {
    std::vector<RGBQUAD> pixels;
    pixels.reserve(picture.Pixels.size());
    for (const Artwork::Rgb& pixel : picture.Pixels) pixels.push_back({pixel.Blue, pixel.Green, pixel.Red, 0});
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = picture.Width;
    info.bmiHeader.biHeight = -picture.Height; // rows from the top
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    SetDIBitsToDevice(canvas, corner.x, corner.y, static_cast<DWORD>(picture.Width), static_cast<DWORD>(picture.Height),
                      0, 0, 0, static_cast<UINT>(picture.Height), pixels.data(), &info, DIB_RGB_COLORS);
}
