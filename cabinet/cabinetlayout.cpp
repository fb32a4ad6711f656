#include "cabinetlayout.h"

#include <QPainter>

#include <algorithm>
#include <tuple>

namespace {

// Beyond these, in pixels, points and pixels, nothing visible depends on the exact value; Qt
// draws lines up to that width.
constexpr qint64 longestSide = 1 << 22;
constexpr int largestFont = 1000;
constexpr int widestLine = 32767;

bool isGeneral(CabinetLayout::Layer layer)
{
    return layer <= CabinetLayout::SlantRightLines;
}

int penWidth(int wanted)
{
    return qBound(0, wanted, widestLine);
}

int cellLength(qint64 length)
{
    return int(qBound(qint64(0), length, longestSide));
}

// At least two digits.
QString numberText(qint64 number)
{
    return QStringLiteral("%1").arg(number, 2, 10, QLatin1Char('0'));
}

} // namespace

bool CabinetLayout::Outline::operator==(const Outline &other) const
{
    return std::tie(width, height, lineWidth, color)
           == std::tie(other.width, other.height, other.lineWidth, other.color);
}

bool CabinetLayout::operator==(const CabinetLayout &other) const
{
    const auto key = [](const CabinetLayout &l) {
        return std::tie(l.size, l.background, l.pen, l.font, l.direction, l.lineStart, l.lineStep,
                        l.layoutOn, l.module, l.scanBoard, l.leftToRight, l.fontColor, l.fontSize,
                        l.fontShape, l.beginRow, l.beginColumn);
    };
    return key(*this) == key(other)
           && std::equal(std::begin(generalLines), std::end(generalLines),
                         std::begin(other.generalLines));
}

void CabinetLayout::preparePainter(QPainter &painter) const
{
    painter.setFont(font);
    painter.setLayoutDirection(direction);
    painter.setPen(pen);
}

void CabinetLayout::drawBackground(QPainter &painter) const
{
    const QRect all(QPoint(0, 0), size);
    const bool isPicture = background.style() == Qt::TexturePattern;
    if (!background.isOpaque() || (isPicture && background.texture().isNull()))
        painter.fillRect(all, Qt::black);
    if (isPicture)
        painter.drawTiledPixmap(all, background.texture());
    else
        painter.fillRect(all, background);
}

qint64 CabinetLayout::strokeCount(Layer layer) const
{
    if (isGeneral(layer) ? !generalLines[layer] : !layoutOn)
        return 0;
    return layer == Numbers ? rowCount() * columnCount() : family(layer).count();
}

void CabinetLayout::drawLayer(QPainter &painter, Layer layer) const
{
    drawStrokes(painter, layer, 0, strokeCount(layer));
}

void CabinetLayout::drawStrokes(QPainter &painter, Layer layer, qint64 from, qint64 to) const
{
    const QPen oldPen = painter.pen();
    if (layer == Numbers) {
        const QFont oldFont = painter.font();
        painter.setPen(numberPen(painter));
        painter.setFont(numberFont(painter));
        for (qint64 stroke = from; stroke < to; ++stroke)
            drawNumber(painter, stroke / columnCount(), stroke % columnCount());
        painter.setFont(oldFont);
    } else {
        const LineFamily lines = family(layer);
        painter.setPen(linePen(oldPen, layer));
        for (qint64 stroke = from; stroke < to; ++stroke)
            painter.drawLine(lines.line(stroke));
    }
    painter.setPen(oldPen);
}

void CabinetLayout::drawLines(QPainter &painter, Layer layer) const
{
    drawStrokes(painter, layer, 0, family(layer).count());
}

void CabinetLayout::drawText(QPainter &painter) const
{
    drawStrokes(painter, Numbers, 0, rowCount() * columnCount());
}

LineFamily CabinetLayout::family(Layer layer) const
{
    if (isGeneral(layer))
        return {LineFamily::Direction(layer), size, lineStart, lineStep};
    if (layer == ModuleRows || layer == ScanRows)
        return {LineFamily::Horizontal, size, lineStart, cellLength(outline(layer).height)};
    const int step = cellLength(outline(layer).width);
    int first = lineStart;
    if (!leftToRight && step > 0 && first <= size.width())
        first += (size.width() - first) % step; // one stands at the right edge
    return {LineFamily::Vertical, size, first, step};
}

const CabinetLayout::Outline &CabinetLayout::outline(Layer layer) const
{
    return layer == ModuleRows || layer == ModuleColumns ? module : scanBoard;
}

QPen CabinetLayout::linePen(QPen linePen, Layer layer) const
{
    if (!isGeneral(layer)) {
        linePen.setColor(outline(layer).color);
        linePen.setWidth(penWidth(outline(layer).lineWidth));
    }
    return linePen;
}

qint64 CabinetLayout::rowCount() const
{
    const int height = cellLength(scanBoard.height);
    return height > 0 && size.height() >= 0 ? size.height() / height + 1 : 0;
}

qint64 CabinetLayout::columnCount() const
{
    const int width = cellLength(scanBoard.width);
    return width > 0 && size.width() >= 0 ? size.width() / width + 1 : 0;
}

// From right to left the last column may lie beyond the left edge, and from left to right
// beyond the right one: wanted.
QRect CabinetLayout::cell(qint64 row, qint64 column) const
{
    const int width = cellLength(scanBoard.width);
    const int height = cellLength(scanBoard.height);
    const qint64 left = leftToRight ? column * width : size.width() - (column + 1) * width;
    return {int(left), int(row * height), width, height};
}

QString CabinetLayout::rowText(qint64 row) const
{
    return numberText(beginRow + row);
}

QString CabinetLayout::columnText(qint64 column) const
{
    return numberText(beginColumn + column);
}

void CabinetLayout::drawNumber(QPainter &painter, qint64 row, qint64 column) const
{
    painter.drawText(cell(row, column), Qt::AlignCenter, rowText(row) + columnText(column));
}

QPen CabinetLayout::numberPen(const QPainter &painter) const
{
    QPen numberPen = painter.pen();
    numberPen.setColor(fontColor);
    numberPen.setWidth(penWidth(fontSize));
    return numberPen;
}

QFont CabinetLayout::numberFont(const QPainter &painter) const
{
    QFont numberFont = painter.font();
    if (fontSize > 0)
        numberFont.setPointSize(qMin(fontSize, largestFont));
    if (fontShape == 0 || fontShape == 1)
        numberFont.setStyle(QFont::StyleNormal);
    if (fontShape == 2)
        numberFont.setStyle(QFont::StyleItalic);
    if (fontShape == 0 || fontShape == 2)
        numberFont.setWeight(QFont::Normal);
    if (fontShape == 1)
        numberFont.setWeight(QFont::Bold);
    return numberFont;
}
