#pragma once

#include <QColor>
#include <QImage>
#include <QRect>

class XConnection;

/// What the X server shows, read from its root window; the mouse pointer is
/// not part of it.
class ScreenPixels
{
public:
    /// \a connection must outlive it.
    explicit ScreenPixels(XConnection &connection);

    QRect rect() const;
    /// The pixels of \a area, cut to the screen; 32 bits without alpha.
    QImage grab(const QRect &area) const;
    QImage grab() const { return grab(rect()); }
    /// Opaque; transparent black outside the screen.
    QRgb pixel(const QPoint &position) const;
    /// Whether every pixel of \a area has this colour; false if a part of it
    /// lies outside the screen.
    bool isFilled(const QRect &area, QRgb colour) const;
    /// How many pixels of \a area have this colour.
    int count(const QRect &area, QRgb colour) const;

private:
    XConnection &m_connection;
};
