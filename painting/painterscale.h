#pragma once

#include <QtGlobal>

class QPainter;

bool isWhole(qreal value);

// Device pixels to a pixel, if the painter does no more than move by whole numbers and scale
// evenly; otherwise 0.
qreal plainScale(const QPainter &painter);
