#include "gridimage.h"

#include <QImage>

#include <algorithm>

namespace {

// Which line of its family a pixel is on, counted in pixels from the first line at offset 0:
// horizontal, vertical, slanting left, slanting right.
int place(int family, int x, int y, int side)
{
    switch (family) {
    case 0:
        return y;
    case 1:
        return x;
    case 2:
        return x + y;
    default:
        return x - y + side;
    }
}

} // namespace

int gridOffset(const QImage &image, QRgb colour, int family)
{
    const int side = std::max(image.width(), image.height());
    for (int offset = 0; offset < gridSpacing; ++offset) {
        bool matches = true;
        for (int y = 0; matches && y < image.height(); ++y) {
            for (int x = 0; matches && x < image.width(); ++x) {
                const int distance = place(family, x, y, side) - offset;
                const bool onLine = distance >= 0 && distance % gridSpacing == 0;
                matches = image.pixel(x, y) == (onLine ? colour : qRgb(0, 0, 0));
            }
        }
        if (matches)
            return offset;
    }
    return -1;
}
