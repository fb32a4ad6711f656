#include "gridpattern.h"

#include <QLine>
#include <QPainter>

#include <tuple>

namespace {

void drawLine(QPainter &painter, const QLine &line)
{
    painter.drawLines(&line, 1);
}

} // namespace

void GridPattern::paint(QPainter &painter) const
{
    painter.setPen(pen);
    painter.fillRect(0, 0, size.width(), size.height(), background);
    if (horizontal)
        drawHorizontal(painter);
    if (vertical)
        drawVertical(painter);
    if (slantLeft)
        drawSlantLeft(painter);
    if (slantRight)
        drawSlantRight(painter);
}

void GridPattern::drawHorizontal(QPainter &painter) const
{
    const Lines all = horizontalLines();
    for (int y = all.first; y <= all.last; y += all.distance)
        drawLine(painter, QLine(0, y, size.width(), y));
}

void GridPattern::drawVertical(QPainter &painter) const
{
    const Lines all = verticalLines();
    for (int x = all.first; x <= all.last; x += all.distance)
        drawLine(painter, QLine(x, 0, x, size.height()));
}

void GridPattern::drawSlantLeft(QPainter &painter, GridSpan span) const
{
    const Lines some = slantLeftLines(span);
    for (int d = some.first; d <= some.last; d += some.distance)
        drawLine(painter, QLine(0, d, d, 0));
}

void GridPattern::drawSlantRight(QPainter &painter, GridSpan span) const
{
    const Lines some = slantRightLines(span);
    for (int d = some.first; d <= some.last; d += some.distance)
        drawLine(painter, QLine(0, side() - d, d, side()));
}

GridPattern::Lines GridPattern::horizontalLines(GridSpan span) const
{
    return lines(span, size.height());
}

GridPattern::Lines GridPattern::verticalLines(GridSpan span) const
{
    return lines(span, size.width());
}

GridPattern::Lines GridPattern::slantLeftLines(GridSpan span) const
{
    return lines(span, 2 * side());
}

// Unlike the others without a line at the very end: wanted.
GridPattern::Lines GridPattern::slantRightLines(GridSpan span) const
{
    return lines(span, 2 * side() - 1);
}

GridPattern::Lines GridPattern::lines(GridSpan span, int last) const
{
    if (distance < 1)
        return {0, -1, 1};
    int first = offset;
    if (span.from > offset)
        first += (span.from - offset + distance - 1) / distance * distance;
    return {first, qMin(last, span.to), distance};
}

int GridPattern::reach() const
{
    // More than half the width, since slant lines cut rows and columns aslant.
    return qMax(1, pen.width()) + 3;
}

int GridPattern::lineReach() const
{
    // Half the width and half a pixel, both aslant and rounded up.
    return qMax(1, pen.width()) * 3 / 4 + 1;
}

bool GridPattern::operator==(const GridPattern &other) const
{
    const auto key = [](const GridPattern &p) {
        return std::tie(p.size, p.distance, p.offset, p.horizontal, p.vertical, p.slantLeft,
                        p.slantRight, p.pen, p.background);
    };
    return key(*this) == key(other);
}
