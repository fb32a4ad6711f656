#include "gridpattern.h"

#include <QPainter>

#include <tuple>

LineFamily GridPattern::family(int direction) const
{
    return {LineFamily::Direction(direction), size, offset, distance};
}

void GridPattern::drawBackground(QPainter &painter) const
{
    painter.fillRect(QRect(QPoint(), size), background);
}

void GridPattern::paint(QPainter &painter) const
{
    painter.setPen(pen);
    drawBackground(painter);
    for (int direction = 0; direction < familyCount; ++direction) {
        if (enabled[size_t(direction)])
            family(direction).draw(painter);
    }
}

bool GridPattern::operator==(const GridPattern &other) const
{
    return std::tie(size, distance, offset, enabled, pen, background)
           == std::tie(other.size, other.distance, other.offset, other.enabled, other.pen,
                       other.background);
}
