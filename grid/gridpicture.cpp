#include "gridpicture.h"

#include <QPainter>

namespace {

// In pixels. Lines are drawn one by one into a cell of at least this length ...
constexpr int shortestCell = 8;
// ... and a tile holds as many cells as fit into this length: little to fill, fast to copy.
constexpr int longestTile = 240;

// A run of the window's columns or rows.
struct Run
{
    int from;
    int length;
    bool repeats; // every cell's length
};

// The border at both ends, and what is between them.
std::array<Run, 3> runs(int length, int before, int after)
{
    before = qMin(before, length);
    after = qMin(after, length - before);
    return {{{0, before, false},
             {before, length - before - after, true},
             {length - after, after, false}}};
}

// The length that holds all of the run's pixels once.
int cellLength(const Run &run, int period)
{
    return run.repeats ? qMin(period, run.length) : run.length;
}

// At most half a run that repeats, since pieces that are as large as the picture save nothing.
int tileLength(const Run &run, int period)
{
    const int cells = qMin(longestTile, run.length / 2) / period;
    return cellLength(run, period * qMax(1, cells));
}

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

// From the left, from the top and, in the left columns, from the bottom: there lines are missing
// before a family's first one. Elsewhere the border is just a line's reach.
int borderBeforeFirstLine(const GridPattern &pattern)
{
    const int missing = pattern.offset < pattern.distance ? 0 : pattern.offset;
    return missing + pattern.reach();
}

// A multiple of the line distance.
int cellPeriod(const GridPattern &pattern)
{
    return pattern.distance * qMax(1, (shortestCell + pattern.distance - 1) / pattern.distance);
}

// Whether any piece is smaller than its area, so that the pieces save something.
bool repeats(const GridPattern &pattern)
{
    const int before = borderBeforeFirstLine(pattern);
    const int period = cellPeriod(pattern);
    const int beside = before + pattern.reach();
    const int aboveAndBelow = pattern.size.width() > beside ? beside : 2 * before;
    return pattern.size.width() > beside + period || pattern.size.height() > aboveAndBelow + period;
}

} // namespace

// The lines are drawn one by one where pieces would not give the same pixels, since translucent
// colours mix with what is below and fractions of a pixel round line by line, and where there
// is nothing that repeats.
void GridPicture::paint(QPainter &painter, const GridPattern &pattern)
{
    const int scale = wholeScale(painter);
    if (scale == 0 || pattern.distance < 1 || !isOpaque(pattern) || !repeats(pattern)) {
        dropPieces();
        pattern.paint(painter);
        return;
    }
    if (scale != m_scale || pattern != m_pattern)
        prepare(pattern, scale);
    for (const Piece &piece : m_pieces) {
        if (!piece.area.isEmpty())
            painter.drawTiledPixmap(piece.area, piece.tile);
    }
}

void GridPicture::dropPieces()
{
    m_scale = 0;
    m_pieces.fill(Piece());
}

void GridPicture::prepare(const GridPattern &pattern, int scale)
{
    m_pattern = pattern;
    m_scale = scale;
    const int width = pattern.size.width();
    const int height = pattern.size.height();
    m_rows.measure(Qt::Horizontal, pattern.pen, width, pattern.reach(), scale);
    m_columns.measure(Qt::Vertical, pattern.pen, height, pattern.reach(), scale);
    const int period = cellPeriod(pattern);
    const int border = borderBeforeFirstLine(pattern);
    Piece *piece = m_pieces.data();
    for (const Run &columns : runs(width, border, pattern.reach())) {
        const int below = columns.from == 0 ? border : pattern.reach();
        for (const Run &rows : runs(height, border, below)) {
            piece->area = QRect(columns.from, rows.from, columns.length, rows.length);
            fillPiece(*piece, {cellLength(columns, period), cellLength(rows, period)},
                      {tileLength(columns, period), tileLength(rows, period)});
            ++piece;
        }
    }
}

void GridPicture::fillPiece(Piece &piece, const QSize &cell, const QSize &tile)
{
    // A tile of the same size as before is painted over, which is faster than a new one.
    if (piece.tile.size() != tile * m_scale)
        piece.tile = QPixmap(tile * m_scale);
    if (tile.isEmpty())
        return;
    piece.tile.setDevicePixelRatio(1);
    const QRect part(piece.area.topLeft(), cell);
    if (cell == tile) {
        paintPart(piece.tile, part);
    } else {
        QPixmap painted(cell * m_scale);
        paintPart(painted, part);
        QPainter(&piece.tile).drawTiledPixmap(piece.tile.rect(), painted);
    }
    piece.tile.setDevicePixelRatio(m_scale);
}

// Paints on device pixels.
void GridPicture::paintPart(QPixmap &pixmap, const QRect &part) const
{
    QPainter painter(&pixmap);
    painter.fillRect(pixmap.rect(), m_pattern.background);
    drawStraightLines(painter, part);
    painter.scale(m_scale, m_scale);
    painter.translate(-part.topLeft());
    drawSlantLines(painter, part);
}

void GridPicture::drawStraightLines(QPainter &painter, const QRect &part) const
{
    const int reach = m_pattern.reach();
    const QSize size = part.size() * m_scale;
    const QColor color = m_pattern.pen.color();
    if (m_pattern.horizontal) {
        const auto lines = m_pattern.horizontalLines({part.top() - reach, part.bottom() + reach});
        for (int y = lines.first; y <= lines.last; y += lines.distance) {
            const PixelRun rows = m_rows.covered(y);
            painter.fillRect(0, rows.first - part.top() * m_scale, size.width(), rows.count, color);
        }
    }
    if (m_pattern.vertical) {
        const auto lines = m_pattern.verticalLines({part.left() - reach, part.right() + reach});
        for (int x = lines.first; x <= lines.last; x += lines.distance) {
            const PixelRun columns = m_columns.covered(x);
            painter.fillRect(columns.first - part.left() * m_scale, 0, columns.count, size.height(),
                             color);
        }
    }
}

void GridPicture::drawSlantLines(QPainter &painter, const QRect &part) const
{
    const int reach = m_pattern.reach();
    painter.setPen(m_pattern.pen);
    if (m_pattern.slantLeft)
        m_pattern.drawSlantLeft(
            painter, {part.left() + part.top() - reach, part.right() + part.bottom() + reach});
    if (m_pattern.slantRight)
        m_pattern.drawSlantRight(painter, {m_pattern.side() + part.left() - part.bottom() - reach,
                                           m_pattern.side() + part.right() - part.top() + reach});
}

qint64 GridPicture::memory() const
{
    qint64 bytes = 0;
    for (const Piece &piece : m_pieces)
        bytes += qint64(piece.tile.width()) * piece.tile.height() * piece.tile.depth() / 8;
    return bytes;
}
