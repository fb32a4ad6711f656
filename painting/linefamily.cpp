#include "linefamily.h"

#include <QPainter>

LineFamily::LineFamily(Direction direction, const QSize &window, int first, int spacing)
    : m_direction(direction)
    , m_window(window)
    , m_first(first)
    , m_spacing(spacing)
    , m_last(lastPosition())
{ }

int LineFamily::lastPosition() const
{
    switch (m_direction) {
    case Horizontal:
        return m_window.height();
    case Vertical:
        return m_window.width();
    case SlantLeft:
        return 2 * side();
    case SlantRight:
        break;
    }
    // Specified: unlike the others without a line at the very end.
    return 2 * side() - 1;
}

qint64 LineFamily::count() const
{
    return m_spacing > 0 && m_first <= m_last ? (m_last - m_first) / m_spacing + 1 : 0;
}

QLine LineFamily::line(qint64 index) const
{
    const int at = position(index);
    switch (m_direction) {
    case Horizontal:
        return {0, at, m_window.width(), at};
    case Vertical:
        return {at, 0, at, m_window.height()};
    case SlantLeft:
        return {0, at, at, 0};
    case SlantRight:
        break;
    }
    return {0, side() - at, at, side()};
}

LineFamily LineFamily::touching(const QRect &part, int penWidth) const
{
    int from = side() + part.left() - part.bottom();
    int to = side() + part.right() - part.top();
    if (m_direction == Horizontal) {
        from = part.top();
        to = part.bottom();
    } else if (m_direction == Vertical) {
        from = part.left();
        to = part.right();
    } else if (m_direction == SlantLeft) {
        from = part.left() + part.top();
        to = part.right() + part.bottom();
    }
    LineFamily some = *this;
    const int before = from - reach(penWidth) - m_first;
    if (before > 0 && m_spacing > 0)
        some.m_first += (before + m_spacing - 1) / m_spacing * m_spacing;
    some.m_last = qMin(m_last, to + reach(penWidth));
    return some;
}

void LineFamily::draw(QPainter &painter) const
{
    for (qint64 index = 0; index < count(); ++index)
        painter.drawLine(line(index));
}
