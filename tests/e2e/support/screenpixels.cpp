#include "screenpixels.h"

#include <QPainter>

#include <algorithm>
#include <cstring>

#include <X11/Xlib.h>
#include <X11/Xutil.h>

ScreenPixels::ScreenPixels(XConnection &connection, bool isComposited)
    : m_connection(connection)
    , m_isComposited(isComposited)
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
    return m_isComposited ? compose(visible) : grab(m_connection.root(), visible);
}

// In the order of the windows, which the compositor tells its X server.
QImage ScreenPixels::compose(const QRect &area) const
{
    QImage image(area.size(), QImage::Format_RGB32);
    image.fill(Qt::black);
    QPainter painter(&image);
    Window root = 0;
    Window above = 0;
    Window *children = nullptr;
    unsigned int count = 0;
    XQueryTree(m_connection.display(), m_connection.root(), &root, &above, &children, &count);
    for (unsigned int i = 0; i < count; ++i) {
        XWindowAttributes window = {};
        XGetWindowAttributes(m_connection.display(), children[i], &window);
        const QRect place(window.x, window.y, window.width, window.height);
        const QRect part = place & area;
        if (window.map_state == IsViewable && window.c_class == InputOutput && !part.isEmpty())
            painter.drawImage(part.topLeft() - area.topLeft(),
                              grab(children[i], part.translated(-place.topLeft())));
    }
    if (children)
        XFree(children);
    return image;
}

QImage ScreenPixels::grab(WindowId window, const QRect &area) const
{
    XImage *source = XGetImage(m_connection.display(), window, area.x(), area.y(),
                               static_cast<unsigned int>(area.width()),
                               static_cast<unsigned int>(area.height()), AllPlanes, ZPixmap);
    if (!source)
        return {};
    QImage image;
    if (source->bits_per_pixel == 32) {
        image = QImage(area.size(), QImage::Format_RGB32);
        for (int y = 0; y < area.height(); ++y) {
            std::memcpy(image.scanLine(y), source->data + y * source->bytes_per_line,
                        static_cast<std::size_t>(area.width()) * sizeof(QRgb));
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
