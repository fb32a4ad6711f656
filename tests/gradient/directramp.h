#pragma once

#include <QColor>
#include <QImage>

// The pattern as Qt's painter draws it straight on to an image: what the drawer has to
// show, pixel for pixel.
struct DirectRamp
{
    int level = 256;
    QColor color = Qt::red;
    QColor outline = Qt::black;

    void paintOn(QImage &image) const;

    // In the format of Canvas::painted(), over nothing.
    QImage image(const QSize &size) const;
};
