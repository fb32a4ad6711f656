#include "griddivision.h"

namespace {

// A tile holds as many cells side by side as fit into this length, in pixels: they are copied
// row by row, and long rows are copied fast.
constexpr int longestTile = 240;
// From this line distance on straight lines are so few that drawing them over the pieces costs
// less than ending pieces where they begin.
constexpr int sparse = 75;

// In pixels. Pieces of slant lines end in steps; the higher these, the fewer.
constexpr int highestStep = 16;

constexpr GridSpan nothing{0, -1};

// As many cells side by side as are fast to copy, and less than what the area holds.
QSize tileSize(const GridPiece &piece, bool columnsRepeat)
{
    QSize tile = piece.cell;
    if (columnsRepeat)
        tile.rwidth() *= qMax(1, qMin(longestTile, piece.area.width() / 2) / tile.width());
    return tile;
}

// From this position on a family's picture is the same as if it had lines before the first.
int familyStart(const GridPattern &pattern)
{
    if (pattern.offset < pattern.distance)
        return 0;
    const int reach = pattern.lineReach();
    return pattern.offset + qMax(-reach, reach + 1 - pattern.distance);
}

// The lines without which the picture would not be right before the family's start: those that
// reach there, of which the first hides the others unless there is more than it can cover.
GridSpan firstLines(const GridPattern &pattern, int start)
{
    if (start == 0)
        return nothing;
    const int covered = pattern.offset + (qMax(1, pattern.pen.width()) - 1) / 2;
    const int last = start + pattern.lineReach() - 1;
    return {pattern.offset, start - 1 <= covered ? qMin(last, pattern.offset) : last};
}

// How high the steps may be in which pieces of slant lines end: just before the start there is
// nothing of any line for that long.
int stepHeight(const GridPattern &pattern)
{
    return qBound(1, pattern.distance - 2 * pattern.lineReach(), highestStep);
}

// The pixels whose slant-left position is below `start`, but for those beyond whole steps.
QRegion upperLeftTriangle(const QSize &window, int start, int step)
{
    QVector<QRect> rows;
    rows.reserve(start);
    for (int y = 0; y < qMin(start - step, window.height()); y += step)
        rows.append({0, y, qMin(start - step - y, window.width()), step});
    QRegion region;
    region.setRects(rows.constData(), rows.size());
    return region;
}

// The pixels whose slant-right position is, at the lower left corner of the square, which the
// window may not reach.
QRegion lowerLeftTriangle(const QSize &window, int side, int start, int step)
{
    QVector<QRect> rows;
    rows.reserve(start);
    for (int y = qMax(0, side - start + 1); y < window.height(); y += step)
        rows.append({0, y, qMin(start - side + y, window.width()), step});
    QRegion region;
    region.setRects(rows.constData(), rows.size());
    return region;
}

} // namespace

// A run of the window's columns or rows.
struct GridDivision::Run
{
    int from;
    int length;
    bool repeats; // every cell's length
    bool lines; // of the family that runs across
};

GridDivision::GridDivision(const GridPattern &pattern)
    : m_pattern(pattern)
{
    const int start = familyStart(pattern);
    const bool isSparse = start > 0 && pattern.distance >= sparse;
    m_slantLinesOver = firstLines(pattern, start);
    m_straightLinesOver = isSparse ? GridSpan() : m_slantLinesOver;
    if (isSparse)
        m_pattern.horizontal = m_pattern.vertical = false;
    if (start > 0) {
        // The distance itself rather than 0, where the line would be a mere point.
        m_pattern.offset = (pattern.offset - 1) % pattern.distance + 1;
        const int step = stepHeight(pattern);
        if (pattern.slantLeft)
            m_leftMissing = upperLeftTriangle(pattern.size, start, step);
        if (pattern.slantRight)
            m_rightMissing = lowerLeftTriangle(pattern.size, pattern.side(), start, step);
    }
    const int border = pattern.reach();
    const auto columns = runs(pattern.size.width(), border, m_pattern.vertical ? start : 0);
    const auto rows = runs(pattern.size.height(), border, m_pattern.horizontal ? start : 0);
    for (const Run &columnRun : columns) {
        for (const Run &rowRun : rows)
            addPieces(columnRun, rowRun);
    }
}

// The border at both ends and what is between them, each cut in two at the start.
QVector<GridDivision::Run> GridDivision::runs(int length, int border, int start)
{
    const int before = qMin(border, length);
    const int after = qMin(border, length - before);
    const int ends[] = {0, before, length - after, length};
    QVector<Run> runs;
    for (int i = 0; i < 3; ++i) {
        const int cut = qBound(ends[i], start, ends[i + 1]);
        const bool repeats = i == 1;
        if (cut > ends[i])
            runs.append({ends[i], cut - ends[i], repeats, false});
        if (ends[i + 1] > cut)
            runs.append({cut, ends[i + 1] - cut, repeats, true});
    }
    return runs;
}

// Up to four pieces, as slant lines are missing in a part of the area or not.
void GridDivision::addPieces(const Run &columns, const Run &rows)
{
    const QRegion whole(columns.from, rows.from, columns.length, rows.length);
    GridPiece piece;
    piece.pattern = m_pattern;
    piece.pattern.horizontal &= rows.lines;
    piece.pattern.vertical &= columns.lines;
    for (const bool leftMissing : {false, true}) {
        piece.pattern.slantLeft = m_pattern.slantLeft && !leftMissing;
        const QRegion shown = leftMissing ? whole & m_leftMissing : whole - m_leftMissing;
        for (const bool rightMissing : {false, true}) {
            piece.pattern.slantRight = m_pattern.slantRight && !rightMissing;
            piece.shown = rightMissing ? shown & m_rightMissing : shown - m_rightMissing;
            if (!piece.shown.isEmpty())
                addPiece(piece, columns.repeats, rows.repeats);
        }
    }
}

void GridDivision::addPiece(GridPiece piece, bool columnsRepeat, bool rowsRepeat)
{
    piece.area = piece.shown.boundingRect();
    if (piece.shown.rectCount() == 1)
        piece.shown = QRegion();
    const QSize size = piece.area.size();
    piece.cell = {columnsRepeat ? qMin(m_pattern.distance, size.width()) : size.width(),
                  rowsRepeat ? qMin(m_pattern.distance, size.height()) : size.height()};
    if (!columnsRepeat || !rowsRepeat || piece.cell != size)
        piece.tile = tileSize(piece, columnsRepeat);
    m_pieces.append(piece);
}

bool GridDivision::saves() const
{
    qint64 pixels = 0;
    for (const GridPiece &piece : m_pieces)
        pixels += qint64(piece.tile.width()) * piece.tile.height();
    return pixels < qint64(m_pattern.size.width()) * m_pattern.size.height();
}
