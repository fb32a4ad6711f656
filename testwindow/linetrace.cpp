#include "linetrace.h"

#include <QImage>
#include <QPainter>

#include <tuple>

namespace {

constexpr int farPosition = 24; // in pixels; lengths no longer matter from about 4 on

} // namespace

void LineTrace::measure(Qt::Orientation orientation, const QPen &pen, int length, int reach,
                        int scale)
{
    const Key key{orientation, pen.width(), length, reach, scale};
    if (key == m_key)
        return;
    m_key = key;
    m_near.clear();
    m_far = drawn(farPosition + reach);
    m_far.first -= (farPosition + reach) * scale;
}

PixelRun LineTrace::covered(int position) const
{
    if (position > m_key.reach)
        return {m_far.first + position * m_key.scale, m_far.count};
    const auto known = m_near.constFind(position);
    return known != m_near.constEnd() ? *known : *m_near.insert(position, drawn(position));
}

PixelRun LineTrace::drawn(int position) const
{
    const bool horizontal = m_key.orientation == Qt::Horizontal;
    const QSize strip(m_key.length, position + m_key.reach + 1);
    QImage image((horizontal ? strip : strip.transposed()) * m_key.scale, QImage::Format_RGB32);
    image.setDevicePixelRatio(m_key.scale);
    image.fill(Qt::white);
    QPainter painter(&image);
    QPen pen(Qt::black);
    pen.setWidth(m_key.width);
    painter.setPen(pen);
    const QLine line = horizontal ? QLine(0, position, m_key.length, position)
                                  : QLine(position, 0, position, m_key.length);
    painter.drawLines(&line, 1);
    painter.end();

    PixelRun run;
    const int middle = m_key.length * m_key.scale / 2;
    for (int i = 0; i < strip.height() * m_key.scale; ++i) {
        if (image.pixel(horizontal ? QPoint(middle, i) : QPoint(i, middle)) != qRgb(0, 0, 0))
            continue;
        if (run.count == 0)
            run.first = i;
        ++run.count;
    }
    return run;
}

bool LineTrace::Key::operator==(const Key &other) const
{
    return std::tie(orientation, width, length, reach, scale)
           == std::tie(other.orientation, other.width, other.length, other.reach, other.scale);
}
