#include "screenpixels.h"

#include "xconnection.h"

#include <algorithm>
#include <cstring>

#include <X11/Xlib.h>
#include <X11/Xutil.h>

ScreenPixels::ScreenPixels(XConnection &connection)
    : m_connection(connection)
{ }

QRect ScreenPixels::rect() const
{
    // Asked again each time: the screen's size may change while the test runs.
    XWindowAttributes attributes;
    if (!XGetWindowAttributes(m_connection.display(), m_connection.root(), &attributes))
        return {};
    return {0, 0, attributes.width, attributes.height};
}

QImage ScreenPixels::grab(const QRect &area) const
{
    const QRect visible = area & rect();
    if (visible.isEmpty())
        return {};
    XImage *source = XGetImage(m_connection.display(), m_connection.root(), visible.x(),
                               visible.y(), static_cast<unsigned int>(visible.width()),
                               static_cast<unsigned int>(visible.height()), AllPlanes, ZPixmap);
    if (!source)
        return {};
    QImage image;
    if (source->bits_per_pixel == 32) {
        image = QImage(visible.size(), QImage::Format_RGB32);
        for (int y = 0; y < visible.height(); ++y) {
            std::memcpy(image.scanLine(y), source->data + y * source->bytes_per_line,
                        static_cast<std::size_t>(visible.width()) * sizeof(QRgb));
        }
    }
    XDestroyImage(source);
    return image;
}

QRgb ScreenPixels::pixel(const QPoint &position) const
{
    const QImage image = grab(QRect(position, QSize(1, 1)));
    return image.isNull() ? 0 : image.pixel(0, 0);
}

bool ScreenPixels::isFilled(const QRect &area, QRgb colour) const
{
    return count(area, colour) == area.width() * area.height();
}

int ScreenPixels::count(const QRect &area, QRgb colour) const
{
    const QImage image = grab(area);
    int matching = 0;
    for (int y = 0; y < image.height(); ++y) {
        const auto *line = reinterpret_cast<const QRgb *>(image.constScanLine(y));
        matching +=
            static_cast<int>(std::count_if(line, line + image.width(), [colour](QRgb pixel) {
                return (pixel & RGB_MASK) == (colour & RGB_MASK);
            }));
    }
    return matching;
}
