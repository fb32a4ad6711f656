#include "directramp.h"

#include <QLinearGradient>
#include <QPainter>

void DirectRamp::paintOn(QImage &image) const
{
    QLinearGradient gradient(QPointF(0, 0), QPointF(level, 0));
    gradient.setStops({{0.0, Qt::black}, {1.0, color}});
    gradient.setSpread(QGradient::RepeatSpread);
    const QPointF bottomRight(image.width() / image.devicePixelRatioF() - 1,
                              image.height() / image.devicePixelRatioF() - 1);
    QPainter painter(&image);
    painter.setPen(outline);
    painter.setBrush(gradient);
    painter.drawRect(QRectF(QPointF(-1, -1), bottomRight));
}

QImage DirectRamp::image(const QSize &size) const
{
    QImage image(size, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    paintOn(image);
    return image;
}
