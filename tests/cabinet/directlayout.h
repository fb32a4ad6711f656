#pragma once

#include "scrgrid.h"

#include <QImage>

// The rule for a layout's pixels spelled out, each line and each number by a call of its own.
// For steps of 1 and more.
namespace DirectLayout {

void paintLayers(QPainter &painter, const ScrGrid &drawer);

// All of it, background included.
void paint(QPainter &painter, const ScrGrid &drawer);

// The same on an image of the window's size.
QImage image(const ScrGrid &drawer, qreal scale = 1);

// How large points are on an image.
void setResolution(QImage &image, int dotsPerInch);

// An image on which the drawer's window can be painted.
QImage blank(const QSize &size, qreal scale = 1);

} // namespace DirectLayout
