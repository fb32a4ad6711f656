#include "gridtiles.h"

#include <QPainter>

#include <array>

namespace {

// A tile holds as many cells side by side as fit into this length, in pixels: they are copied
// row by row, and long rows are copied fast.
constexpr int longestTile = 240;

// A stretch of the window's columns or rows, in which the picture repeats every `period`.
struct Stretch
{
    int from;
    int length;
    int period;
};

// The border at both ends and what is between them.
std::array<Stretch, 3> stretches(int length, const GridPattern &pattern)
{
    const int border = LineFamily::reach(pattern.pen.width());
    const int before = qMin(border, length);
    const int after = qMin(border, length - before);
    const int middle = length - before - after;
    return {{{0, before, before},
             {before, middle, qMin(pattern.distance, middle)},
             {length - after, after, after}}};
}

// As many cells side by side as are fast to copy, and less than what the columns hold.
int tileWidth(const Stretch &columns)
{
    if (columns.period == columns.length)
        return columns.period;
    return columns.period * qMax(1, qMin(longestTile, columns.length / 2) / columns.period);
}

} // namespace

bool GridTiles::prepare(const GridPattern &pattern, int scale)
{
    if (scale == m_scale && pattern == m_pattern)
        return !m_areas.isEmpty();
    m_pattern = pattern;
    m_scale = scale;
    const auto allColumns = stretches(pattern.size.width(), pattern);
    const auto allRows = stretches(pattern.size.height(), pattern);
    int width = 0;
    for (const Stretch &columns : allColumns)
        width += tileWidth(columns);
    int height = 0;
    for (const Stretch &rows : allRows)
        height += rows.period;
    if (qint64(width) * height >= qint64(pattern.size.width()) * pattern.size.height()) {
        m_areas.clear();
        return false;
    }
    m_areas.resize(int(allColumns.size() * allRows.size()));
    TiledArea *tiled = m_areas.data();
    for (const Stretch &columns : allColumns) {
        for (const Stretch &rows : allRows) {
            tiled->area = {columns.from, rows.from, columns.length, rows.length};
            fillTile(*tiled++, {columns.period, rows.period}, {tileWidth(columns), rows.period});
        }
    }
    return true;
}

void GridTiles::fillTile(TiledArea &tiled, const QSize &cell, const QSize &size)
{
    if (tiled.area.isEmpty())
        return;
    // A tile of the same size as before is painted over, which is faster than a new one.
    QPixmap &tile = tiled.tile;
    if (tile.size() != size * m_scale)
        tile = QPixmap(size * m_scale);
    tile.setDevicePixelRatio(1);
    const QRect part(tiled.area.topLeft(), cell);
    if (cell == size) {
        paintPart(tile, part);
    } else {
        QPixmap single(cell * m_scale);
        paintPart(single, part);
        QPainter(&tile).drawTiledPixmap(tile.rect(), single);
    }
    tile.setDevicePixelRatio(m_scale);
}

// Straight lines are drawn in device pixels.
void GridTiles::paintPart(QPixmap &pixmap, const QRect &part)
{
    const int penWidth = m_pattern.pen.width();
    QPainter painter(&pixmap);
    painter.fillRect(pixmap.rect(), m_pattern.background);
    painter.translate(-part.topLeft() * m_scale);
    painter.setPen(m_pattern.pen);
    for (int direction = 0; direction < GridPattern::familyCount; ++direction) {
        const LineFamily lines = m_pattern.family(direction).touching(part, penWidth);
        if (direction == LineFamily::SlantLeft)
            painter.scale(m_scale, m_scale);
        if (!m_pattern.enabled[size_t(direction)])
            continue;
        if (direction >= LineFamily::SlantLeft)
            lines.draw(painter);
        else
            fillLines(painter, lines);
    }
}

void GridTiles::fillLines(QPainter &painter, const LineFamily &lines)
{
    LineTrace &trace = m_traces[size_t(lines.direction())];
    trace.measure(lines, m_pattern.pen.width(), m_scale);
    for (qint64 index = 0; index < lines.count(); ++index)
        painter.fillRect(trace.covered(lines.position(index)), m_pattern.pen.color());
}

void GridTiles::paint(QPainter &painter) const
{
    for (const TiledArea &tiled : m_areas) {
        if (!tiled.area.isEmpty())
            painter.drawTiledPixmap(tiled.area, tiled.tile);
    }
}
