#include "cabinetlayout.h"

#include <QPainter>

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

bool isOfModules(CabinetLayout::Layer layer)
{
    return layer == CabinetLayout::ModuleRows || layer == CabinetLayout::ModuleColumns;
}

int penWidth(int width)
{
    return qBound(0, width, widestLine);
}

// Of so many modules; 0 for a length that is none.
int length(int moduleLength, int modules)
{
    return int(qBound(qint64(0), qint64(moduleLength) * modules, longestSide));
}

void drawNumber(QPainter &painter, const CabinetLayout &layout, qint64 row, qint64 column)
{
    painter.drawText(layout.cell(row, column), Qt::AlignCenter,
                     layout.rowText(row) + layout.columnText(column));
}

} // namespace

QBrush LayoutParameters::background() const
{
    return hasPicture() ? QBrush(m_bgPixmap) : QBrush(m_oldTest ? m_oldTestColor : m_bgColor);
}

bool CabinetLayout::operator==(const CabinetLayout &other) const
{
    const auto key = [](const CabinetLayout &l) {
        return std::tie(l.size, l.font, l.direction, l.m_layoutOn, l.m_moduleWidth,
                        l.m_moduleHeight, l.m_moduleRowCount, l.m_moduleColumnCount, l.m_fontColor,
                        l.m_moduleLineColor, l.m_scanColor, l.m_leftToRight, l.m_fontSize,
                        l.m_fontShape, l.m_beginRow, l.m_beginColumn, l.m_moduleLineWidth,
                        l.m_scanLineWidth, l.m_pen, l.m_horiLines, l.m_vertLines,
                        l.m_slantLeftLines, l.m_slantRightLines, l.m_lineStart, l.m_lineStep);
    };
    return key(*this) == key(other) && background() == other.background();
}

void CabinetLayout::preparePainter(QPainter &painter) const
{
    painter.setFont(font);
    painter.setLayoutDirection(direction);
    painter.setPen(m_pen);
}

void CabinetLayout::drawBackground(QPainter &painter) const
{
    const QRect all(QPoint(0, 0), size);
    const QBrush brush = background();
    if (!brush.isOpaque())
        painter.fillRect(all, Qt::black);
    if (hasPicture())
        painter.drawTiledPixmap(all, m_bgPixmap);
    else
        painter.fillRect(all, brush);
}

void CabinetLayout::draw(QPainter &painter) const
{
    preparePainter(painter);
    for (int layer = 0; layer < LayerCount; ++layer)
        drawItems(painter, Layer(layer), 0, itemCount(Layer(layer)));
}

bool CabinetLayout::isOn(Layer layer) const
{
    const bool generalLines[] = {m_horiLines, m_vertLines, m_slantLeftLines, m_slantRightLines};
    return isGeneral(layer) ? generalLines[layer] : m_layoutOn;
}

qint64 CabinetLayout::fullCount(Layer layer) const
{
    return layer == Numbers ? rowCount() * columnCount() : family(layer).count();
}

qint64 CabinetLayout::itemCount(Layer layer) const
{
    return isOn(layer) ? fullCount(layer) : 0;
}

void CabinetLayout::drawLayer(QPainter &painter, Layer layer) const
{
    drawItems(painter, layer, 0, fullCount(layer));
}

void CabinetLayout::drawItems(QPainter &painter, Layer layer, qint64 from, qint64 to) const
{
    const QPen oldPen = painter.pen();
    if (layer == Numbers) {
        const QFont oldFont = painter.font();
        painter.setPen(numberPen(painter));
        painter.setFont(numberFont(painter));
        for (qint64 item = from; item < to; ++item)
            drawNumber(painter, *this, item / columnCount(), item % columnCount());
        painter.setFont(oldFont);
    } else {
        const LineFamily lines = family(layer);
        painter.setPen(linePen(oldPen, layer));
        for (qint64 item = from; item < to; ++item)
            painter.drawLine(lines.line(item));
    }
    painter.setPen(oldPen);
}

QSize CabinetLayout::cellSize() const
{
    return {length(m_moduleWidth, m_moduleColumnCount), length(m_moduleHeight, m_moduleRowCount)};
}

LineFamily CabinetLayout::family(Layer layer) const
{
    const int start = qMax(0, m_lineStart);
    if (isGeneral(layer))
        return {LineFamily::Direction(layer), size, start, m_lineStep};
    const QSize moduleSize(length(m_moduleWidth, 1), length(m_moduleHeight, 1));
    const QSize step = isOfModules(layer) ? moduleSize : cellSize();
    if (layer == ModuleRows || layer == ScanRows)
        return {LineFamily::Horizontal, size, start, step.height()};
    int first = start;
    if (!m_leftToRight && step.width() > 0 && first <= size.width())
        first += (size.width() - first) % step.width(); // one stands at the right edge
    return {LineFamily::Vertical, size, first, step.width()};
}

QPen CabinetLayout::linePen(QPen linePen, Layer layer) const
{
    if (!isGeneral(layer)) {
        linePen.setColor(isOfModules(layer) ? m_moduleLineColor : m_scanColor);
        linePen.setWidth(penWidth(isOfModules(layer) ? m_moduleLineWidth : m_scanLineWidth));
    }
    return linePen;
}

qint64 CabinetLayout::cellCount(int windowLength, int cellLength)
{
    return cellLength > 0 && windowLength >= 0 ? windowLength / cellLength + 1 : 0;
}

// Specified: from right to left the last column may lie beyond the left edge, and from left to
// right beyond the right one.
QRect CabinetLayout::cell(qint64 row, qint64 column) const
{
    const QSize cell = cellSize();
    const qint64 left =
        m_leftToRight ? column * cell.width() : size.width() - (column + 1) * cell.width();
    return {QPoint(int(left), int(row * cell.height())), cell};
}

// At least two digits.
QString CabinetLayout::numberText(qint64 number)
{
    return QStringLiteral("%1").arg(number, 2, 10, QLatin1Char('0'));
}

QPen CabinetLayout::numberPen(const QPainter &painter) const
{
    QPen numberPen = painter.pen();
    numberPen.setColor(m_fontColor);
    return numberPen;
}

QFont CabinetLayout::numberFont(const QPainter &painter) const
{
    QFont numberFont = painter.font();
    if (m_fontSize > 0)
        numberFont.setPointSize(qMin(m_fontSize, largestFont));
    // As many pixels as at 96 dots per inch, however dense the desktop claims to be.
    if (numberFont.pointSizeF() > 0)
        numberFont.setPointSizeF(numberFont.pointSizeF() * 96 / painter.device()->logicalDpiY());
    if (m_fontShape >= 0 && m_fontShape <= 2) {
        numberFont.setWeight(m_fontShape == 1 ? QFont::Bold : QFont::Normal);
        numberFont.setStyle(m_fontShape == 2 ? QFont::StyleItalic : QFont::StyleNormal);
    }
    return numberFont;
}
