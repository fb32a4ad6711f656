#include "gridpicture.h"

#include "painterscale.h"

#include <QPainter>

GridPicture::GridPicture()
    : PictureInParts(GridPattern::familyCount)
{ }

// The lines are drawn one by one where copies would not give the same pixels, since translucent
// colours mix with what is below and fractions of a pixel round line by line, and where there
// is too little that repeats.
void GridPicture::show(QPainter &painter, const GridPattern &pattern)
{
    const qreal scale = plainScale(painter);
    const bool canCopy = scale > 0 && isWhole(scale) && pattern.isOpaque() && pattern.distance > 0
                         && !pattern.size.isEmpty();
    if (canCopy && pattern.offset >= pattern.distance) {
        const bool isAnother = pattern != m_pattern;
        m_pattern = pattern;
        if (showPart(painter, pattern.size, isAnother))
            return;
    } else {
        drop();
        if (canCopy && m_tiles.prepare(pattern, qRound(scale))) {
            m_tiles.paint(painter);
            return;
        }
    }
    pattern.paint(painter);
}

void GridPicture::preparePainter(QPainter &painter) const
{
    painter.setPen(m_pattern.pen);
    painter.setClipRect(QRect(QPoint(), m_pattern.size)); // thin lines are much faster with a clip
}

void GridPicture::drawBackground(QPainter &painter)
{
    m_pattern.drawBackground(painter);
}

qint64 GridPicture::itemCount(int layer) const
{
    return m_pattern.enabled[size_t(layer)] ? m_pattern.family(layer).count() : 0;
}

qint64 GridPicture::drawItems(QPainter &painter, int layer, qint64 from)
{
    painter.drawLine(m_pattern.family(layer).line(from));
    return from + 1;
}
