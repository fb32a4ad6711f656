#include "cellnumbers.h"

#include <QFontInfo>
#include <QPainter>
#include <QRawFont>
#include <QTextLayout>

namespace {

// Characters this high, in device pixels, are about to be too large for the kept pictures of
// characters; Qt draws them as outlines, and several at a time not as one at a time.
constexpr qreal largestCharacter = 48;

// The painter places text on 64ths of a pixel, and drops what is less.
qreal placed(qreal position)
{
    constexpr qreal steps = 64;
    return qreal(int(position * steps)) / steps;
}

// Lays out one line of text as the painter does.
QTextLine layOut(QTextLayout &text)
{
    constexpr qreal endless = 0x01000000;
    text.beginLayout();
    QTextLine line = text.createLine();
    line.setLineWidth(endless);
    text.endLayout();
    return line;
}

// Each digit after each.
QString everyPair()
{
    QString text;
    for (int pair = 0; pair < 100; ++pair)
        text += QStringLiteral("%1").arg(pair, 2, 10, QLatin1Char('0'));
    return text;
}

} // namespace

bool CellNumbers::prepare(const CabinetLayout &layout, const QPainter &painter)
{
    m_pen = layout.numberPen(painter);
    const QFont font(layout.numberFont(painter), painter.device());
    const qreal scale = painter.deviceTransform().m11();
    if (layout.m_beginRow < 0 || layout.m_beginColumn < 0 || layout.direction != Qt::LeftToRight
        || m_pen.style() == Qt::NoPen || QFontInfo(font).pixelSize() * scale > largestCharacter
        || !measureDigits(font, painter.device()))
        return false;
    m_columns.clear();
    const qint64 columns = layout.columnCount();
    for (qint64 column = 0; column < columns; ++column)
        m_columns.append(layout.columnText(column));
    return true;
}

bool CellNumbers::measureDigits(const QFont &font, QPaintDevice *device)
{
    QRawFont rawFont;
    for (int digit = 0; digit < 10; ++digit) {
        QTextLayout text(QString::number(digit), font, device);
        const QTextLine line = layOut(text);
        const QList<QGlyphRun> runs = text.glyphRuns();
        if (runs.size() != 1 || runs.first().glyphIndexes().size() != 1)
            return false;
        rawFont = runs.first().rawFont();
        m_height = line.height();
        m_baseline = runs.first().positions().constFirst().y();
        m_digits[size_t(digit)] = {runs.first().glyphIndexes().constFirst(),
                                   line.horizontalAdvance(),
                                   line.naturalTextWidth() - line.horizontalAdvance()};
    }
    m_run.setRawFont(rawFont);
    m_glyphs.clear();
    m_places.clear();
    QPointF place(0, m_baseline);
    add(everyPair(), place);
    QTextLayout text(everyPair(), font, device);
    const QTextLine line = layOut(text);
    const QList<QGlyphRun> runs = text.glyphRuns();
    return runs.size() == 1 && runs.first().rawFont() == rawFont
           && runs.first().glyphIndexes() == m_glyphs && runs.first().positions() == m_places
           && line.height() == m_height && line.horizontalAdvance() == place.x();
}

qreal CellNumbers::advance(const QString &text) const
{
    qreal sum = 0;
    for (const QChar character : text)
        sum += digit(character).advance;
    return sum;
}

void CellNumbers::add(const QString &text, QPointF &place)
{
    for (const QChar character : text) {
        m_glyphs.append(digit(character).glyph);
        m_places.append(place);
        place.rx() += digit(character).advance;
    }
}

void CellNumbers::drawCollected(QPainter &painter)
{
    m_run.setRawData(m_glyphs.constData(), m_places.constData(), m_glyphs.size());
    painter.drawGlyphRun(QPointF(), m_run);
    m_glyphs.clear();
    m_places.clear();
}

// A text that does not fit is cut off at its cell's border.
qint64 CellNumbers::drawRow(QPainter &painter, const CabinetLayout &layout, qint64 item)
{
    const qint64 row = item / m_columns.size();
    painter.setPen(m_pen);
    m_glyphs.clear();
    m_places.clear();
    const QString rowText = layout.rowText(row);
    const qreal rowAdvance = advance(rowText);
    bool fitted = true;
    for (int column = 0; column < m_columns.size(); ++column) {
        const QString &columnText = m_columns.at(column);
        const QRect cell = layout.cell(row, column);
        const qreal length = rowAdvance + advance(columnText);
        const qreal width = length + digit(columnText.back()).overhang;
        const qreal top = cell.y() + (cell.height() - m_height) / 2;
        const bool fits = QRectF(cell).contains(
            QRectF(cell.x() + (cell.width() - width) / 2, top, width, m_height));
        if (!fitted || !fits) {
            drawCollected(painter);
            painter.setClipRect(cell);
            painter.setClipping(!fits);
        }
        fitted = fits;
        QPointF place(placed(cell.x() + (cell.width() - length) / 2), placed(top) + m_baseline);
        add(rowText, place);
        add(columnText, place);
    }
    drawCollected(painter);
    painter.setClipping(false);
    return item + m_columns.size();
}
