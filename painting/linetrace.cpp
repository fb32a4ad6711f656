#include "linetrace.h"

#include <QImage>
#include <QPainter>

#include <tuple>

namespace {

constexpr int farPosition = 24; // in pixels; lengths no longer matter from about 4 on

} // namespace

void LineTrace::measure(const LineFamily &family, int penWidth, int scale)
{
    const bool horizontal = family.direction() == LineFamily::Horizontal;
    const QSize window = family.window();
    const Key key{family.direction(), horizontal ? window.width() : window.height(), penWidth,
                  scale};
    if (key == m_key)
        return;
    m_key = key;
    m_near.clear();
    const int position = farPosition + LineFamily::reach(penWidth);
    const QPoint back = horizontal ? QPoint(0, position) : QPoint(position, 0);
    m_far = drawn(position).translated(-back * scale);
}

QRect LineTrace::covered(int position) const
{
    if (position > LineFamily::reach(m_key.penWidth)) {
        const QPoint forth =
            m_key.direction == LineFamily::Horizontal ? QPoint(0, position) : QPoint(position, 0);
        return m_far.translated(forth * m_key.scale);
    }
    const auto known = m_near.constFind(position);
    return known != m_near.constEnd() ? *known : *m_near.insert(position, drawn(position));
}

QRect LineTrace::drawn(int position) const
{
    const bool horizontal = m_key.direction == LineFamily::Horizontal;
    const QSize strip(m_key.length, position + LineFamily::reach(m_key.penWidth) + 1);
    QImage image((horizontal ? strip : strip.transposed()) * m_key.scale, QImage::Format_RGB32);
    image.setDevicePixelRatio(m_key.scale);
    image.fill(Qt::white);
    QPainter painter(&image);
    QPen pen(Qt::black);
    pen.setWidth(m_key.penWidth);
    painter.setPen(pen);
    painter.drawLine(LineFamily(m_key.direction, image.size() / m_key.scale, position, 1).line(0));
    painter.end();

    QRect covered;
    const int middle = m_key.length * m_key.scale / 2;
    for (int i = 0; i < strip.height() * m_key.scale; ++i) {
        const QPoint pixel = horizontal ? QPoint(middle, i) : QPoint(i, middle);
        if (image.pixel(pixel) == qRgb(0, 0, 0))
            covered |= QRect(pixel, QSize(1, 1));
    }
    return horizontal ? QRect(0, covered.y(), image.width(), covered.height())
                      : QRect(covered.x(), 0, covered.width(), image.height());
}

bool LineTrace::Key::operator==(const Key &other) const
{
    return std::tie(direction, length, penWidth, scale)
           == std::tie(other.direction, other.length, other.penWidth, other.scale);
}
