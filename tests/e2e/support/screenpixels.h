#pragma once

#include "xconnection.h"

#include <QColor>
#include <QImage>
#include <QRect>

/// What the X server shows; the mouse pointer is not part of it.
class ScreenPixels
{
public:
    /// \a connection must outlive it. What is shown is read from the root window, or put together
    /// from all windows where a compositor leaves that one empty.
    ScreenPixels(XConnection &connection, bool isComposited);

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
    QImage grab(WindowId window, const QRect &area) const;
    QImage compose(const QRect &area) const;

    XConnection &m_connection;
    bool m_isComposited;
};
