#pragma once

#include "quickswitch/Artwork.h"
#include "win32/Windows.h"

/// A system colour (a COLOR_ constant) for the artwork, and an artwork colour for Windows.
Artwork::Rgb SystemColor(int index);
COLORREF ToColorRef(Artwork::Rgb color);

/// Puts a picture onto a canvas, its upper left corner at a point in pixels.
void PutPicture(HDC canvas, POINT corner, const Artwork::Picture& picture);
