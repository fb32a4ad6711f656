#include "gridpicture.h"

#include <QPainter>

namespace {

// Device pixels to a pixel, if the painter does no more than move and enlarge by whole
// numbers; otherwise 0.
int wholeScale(const QPainter &painter)
{
    const QTransform &transform = painter.deviceTransform();
    const auto isWhole = [](qreal value) { return qFuzzyIsNull(value - qRound(value)); };
    if (transform.type() > QTransform::TxScale || transform.m11() < 1
        || !qFuzzyCompare(transform.m11(), transform.m22()) || !isWhole(transform.m11())
        || !isWhole(transform.dx()) || !isWhole(transform.dy()))
        return 0;
    return qRound(transform.m11());
}

bool isOpaque(const GridPattern &pattern)
{
    return pattern.background.alpha() == 255 && pattern.pen.color().alpha() == 255;
}

} // namespace

// The lines are drawn one by one where pieces would not give the same pixels, since translucent
// colours mix with what is below and fractions of a pixel round line by line, and where there
// is too little that repeats.
void GridPicture::paint(QPainter &painter, const GridPattern &pattern)
{
    const int scale = wholeScale(painter);
    const bool repeats = scale > 0 && pattern.distance > 0 && !pattern.size.isEmpty();
    if (!repeats || !isOpaque(pattern))
        dropPieces();
    else if (scale != m_scale || pattern != m_pattern)
        prepare(pattern, scale);
    if (m_tiles.isEmpty()) {
        pattern.paint(painter);
        return;
    }
    drawPieces(painter);
    drawLinesOver(painter);
}

void GridPicture::dropPieces()
{
    m_scale = 0;
    m_tiles.clear();
}

void GridPicture::prepare(const GridPattern &pattern, int scale)
{
    m_pattern = pattern;
    m_scale = scale;
    m_division = GridDivision(pattern);
    if (!m_division.saves()) {
        m_tiles.clear();
        return;
    }
    m_rows.measure(Qt::Horizontal, pattern.pen, pattern.size.width(), pattern.reach(), scale);
    m_columns.measure(Qt::Vertical, pattern.pen, pattern.size.height(), pattern.reach(), scale);
    m_tiles.resize(m_division.pieces().size());
    QPixmap *tile = m_tiles.data();
    for (const GridPiece &piece : m_division.pieces())
        fillTile(*tile++, piece);
}

void GridPicture::fillTile(QPixmap &tile, const GridPiece &piece) const
{
    // A tile of the same size as before is painted over, which is faster than a new one.
    if (tile.size() != piece.tile * m_scale)
        tile = QPixmap(piece.tile * m_scale);
    if (tile.isNull())
        return;
    tile.setDevicePixelRatio(1);
    QPainter painter(&tile);
    if (piece.cell == piece.tile) {
        paintCell(painter, piece);
    } else {
        QPixmap cell(piece.cell * m_scale);
        QPainter cellPainter(&cell);
        paintCell(cellPainter, piece);
        cellPainter.end();
        painter.drawTiledPixmap(tile.rect(), cell);
    }
    painter.end();
    tile.setDevicePixelRatio(m_scale);
}

// The painter's units are device pixels from the cell's upper left corner on.
void GridPicture::paintCell(QPainter &painter, const GridPiece &piece) const
{
    const QRect part(piece.area.topLeft(), piece.cell);
    painter.fillRect(QRect(QPoint(), piece.cell * m_scale), piece.pattern.background);
    drawStraightLines(painter, piece.pattern, part);
    painter.scale(m_scale, m_scale);
    painter.translate(-part.topLeft());
    drawSlantLines(painter, piece.pattern, part);
}

void GridPicture::drawPieces(QPainter &painter) const
{
    const QPixmap *tile = m_tiles.constData();
    for (const GridPiece &piece : m_division.pieces())
        drawPiece(painter, piece, *tile++);
}

void GridPicture::drawPiece(QPainter &painter, const GridPiece &piece, const QPixmap &tile) const
{
    if (piece.shown.isEmpty() && !tile.isNull()) {
        painter.drawTiledPixmap(piece.area, tile);
        return;
    }
    painter.save();
    painter.setClipRegion(piece.shown.isEmpty() ? QRegion(piece.area) : piece.shown,
                          Qt::IntersectClip);
    if (tile.isNull()) {
        painter.translate(piece.area.topLeft());
        painter.scale(1.0 / m_scale, 1.0 / m_scale);
        paintCell(painter, piece);
    } else {
        painter.drawTiledPixmap(piece.area, tile);
    }
    painter.restore();
}

void GridPicture::drawLinesOver(QPainter &painter) const
{
    painter.save();
    painter.scale(1.0 / m_scale, 1.0 / m_scale);
    drawStraightLines(painter, m_pattern, QRect(QPoint(), m_pattern.size),
                      m_division.straightLinesOver());
    painter.restore();
    painter.setPen(m_pattern.pen);
    if (m_pattern.slantLeft)
        m_pattern.drawSlantLeft(painter, m_division.slantLinesOver());
    if (m_pattern.slantRight)
        m_pattern.drawSlantRight(painter, m_division.slantLinesOver());
}

// Draws on device pixels, of which the part's upper left corner is the first.
void GridPicture::drawStraightLines(QPainter &painter, const GridPattern &pattern,
                                    const QRect &part, GridSpan span) const
{
    const int reach = pattern.lineReach();
    const QSize size = part.size() * m_scale;
    const QColor color = pattern.pen.color();
    if (pattern.horizontal) {
        const auto lines = pattern.horizontalLines(
            {qMax(span.from, part.top() - reach), qMin(span.to, part.bottom() + reach)});
        for (int y = lines.first; y <= lines.last; y += lines.distance) {
            const PixelRun rows = m_rows.covered(y);
            painter.fillRect(0, rows.first - part.top() * m_scale, size.width(), rows.count, color);
        }
    }
    if (pattern.vertical) {
        const auto lines = pattern.verticalLines(
            {qMax(span.from, part.left() - reach), qMin(span.to, part.right() + reach)});
        for (int x = lines.first; x <= lines.last; x += lines.distance) {
            const PixelRun columns = m_columns.covered(x);
            painter.fillRect(columns.first - part.left() * m_scale, 0, columns.count, size.height(),
                             color);
        }
    }
}

void GridPicture::drawSlantLines(QPainter &painter, const GridPattern &pattern,
                                 const QRect &part) const
{
    const int reach = pattern.lineReach();
    painter.setPen(pattern.pen);
    if (pattern.slantLeft)
        pattern.drawSlantLeft(painter, {part.left() + part.top() + 1 - reach,
                                        part.right() + part.bottom() + 1 + reach});
    if (pattern.slantRight)
        pattern.drawSlantRight(painter, {pattern.side() + part.left() - part.bottom() - reach,
                                         pattern.side() + part.right() - part.top() + reach});
}

qint64 GridPicture::memory() const
{
    qint64 bytes = 0;
    for (const QPixmap &tile : m_tiles)
        bytes += qint64(tile.width()) * tile.height() * tile.depth() / 8;
    return bytes;
}
