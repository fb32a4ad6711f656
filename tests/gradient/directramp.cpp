#include "directramp.h"

#include <cmath>

// A ramp has `level` columns; the first is half a step above black, the last half a step below
// the colour.
QImage DirectRamp::image(const QSize &size, QImage::Format format) const
{
    const auto channel = [this](int full, int column) {
        return int(std::floor(full * (2.0 * (column % level) + 1) / (2.0 * level) + 0.5));
    };
    QImage image(size, QImage::Format_ARGB32);
    for (int x = 0; x < size.width(); ++x) {
        const QRgb pixel =
            qRgb(channel(color.red(), x), channel(color.green(), x), channel(color.blue(), x));
        for (int y = 0; y < size.height(); ++y) {
            const bool isOutline = x == size.width() - 1 || y == size.height() - 1;
            image.setPixel(x, y, isOutline ? outline.rgba() : pixel);
        }
    }
    return image.convertToFormat(format);
}
