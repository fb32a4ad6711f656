#pragma once

#include <QRgb>

class QImage;

/// The distance between the lines of a fresh grid, in pixels.
constexpr int gridSpacing = 10;

/// The offset of the lines, 0 to 9, or -1 when the image is not exactly a grid of
/// one pixel wide lines of this colour on black. Family 0 is horizontal, 1 vertical,
/// 2 slanting left, 3 slanting right.
int gridOffset(const QImage &image, QRgb colour, int family);
