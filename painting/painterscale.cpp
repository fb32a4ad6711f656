#include "painterscale.h"

#include <QPainter>

#include <cmath>

bool isWhole(qreal value)
{
    return qFuzzyIsNull(value - std::round(value));
}

qreal plainScale(const QPainter &painter)
{
    const QTransform &transform = painter.deviceTransform();
    if (transform.type() > QTransform::TxScale || transform.m11() <= 0
        || !qFuzzyCompare(transform.m11(), transform.m22()) || !isWhole(transform.dx())
        || !isWhole(transform.dy()))
        return 0;
    return transform.m11();
}
