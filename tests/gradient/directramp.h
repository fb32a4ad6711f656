#pragma once

#include <QColor>
#include <QImage>

// The pattern by arithmetic on the columns: what the drawer has to show, pixel for pixel.
struct DirectRamp
{
    int level = 256; // 1 or more
    QColor color = Qt::red; // opaque
    QColor outline = Qt::black;

    QImage image(const QSize &size, QImage::Format format = QImage::Format_ARGB32) const;
};
