#include "cellnumbers.h"

#include <QFontInfo>
#include <QPainter>
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

// One line of text, laid out as the painter does.
class TextLine
{
public:
    TextLine(const QString &text, const QFont &font, QPaintDevice *device)
        : m_layout(text, font, device)
    {
        constexpr qreal endless = 0x01000000;
        m_layout.beginLayout();
        m_line = m_layout.createLine();
        m_line.setLineWidth(endless);
        m_layout.endLayout();
    }

    qreal advance() const { return m_line.horizontalAdvance(); }
    qreal width() const { return m_line.naturalTextWidth(); }
    qreal height() const { return m_line.height(); }
    QList<QGlyphRun> glyphRuns() const { return m_layout.glyphRuns(); }

private:
    QTextLayout m_layout;
    QTextLine m_line;
};

QString digitText(int digit)
{
    return {QChar(ushort('0' + digit))};
}

// Each digit after each.
QString everyPair()
{
    QString text;
    for (int first = 0; first < 10; ++first) {
        for (int second = 0; second < 10; ++second)
            text += digitText(first) + digitText(second);
    }
    return text;
}

} // namespace

bool CellNumbers::prepare(const CabinetLayout &layout, const QPainter &painter)
{
    m_pen = layout.numberPen(painter);
    m_font = QFont(layout.numberFont(painter), painter.device());
    const qreal scale = painter.deviceTransform().m11();
    if (layout.m_beginRow < 0 || layout.m_beginColumn < 0 || layout.direction != Qt::LeftToRight
        || m_pen.style() == Qt::NoPen || QFontInfo(m_font).pixelSize() * scale > largestCharacter
        || !measureDigits(m_font, painter.device()))
        return false;
    m_columns.clear();
    const qint64 columns = layout.columnCount();
    for (qint64 column = 0; column < columns; ++column)
        m_columns.append(digits(layout.columnText(column)));
    return true;
}

bool CellNumbers::measureDigits(const QFont &font, QPaintDevice *device)
{
    for (int digit = 0; digit < 10; ++digit) {
        const TextLine line(digitText(digit), font, device);
        const QList<QGlyphRun> runs = line.glyphRuns();
        if (runs.size() != 1 || runs.first().glyphIndexes().size() != 1)
            return false;
        m_rawFont = runs.first().rawFont();
        m_height = line.height();
        m_baseline = runs.first().positions().constFirst().y();
        m_digits[size_t(digit)] = {runs.first().glyphIndexes().constFirst(), line.advance(),
                                   line.width() - line.advance()};
    }

    m_run.setRawFont(m_rawFont);

    const QString text = everyPair();
    m_glyphs.clear();
    m_places.clear();
    QPointF place(0, m_baseline);
    add(digits(text), place);
    const TextLine line(text, font, device);
    const QList<QGlyphRun> runs = line.glyphRuns();
    return runs.size() == 1 && runs.first().rawFont() == m_rawFont
           && runs.first().glyphIndexes() == m_glyphs && runs.first().positions() == m_places
           && line.height() == m_height && line.advance() == place.x();
}

CellNumbers::Digits CellNumbers::digits(const QString &text)
{
    Digits digits;
    for (const QChar character : text)
        digits.append(quint8(character.digitValue()));
    return digits;
}

qreal CellNumbers::advance(const Digits &digits) const
{
    qreal sum = 0;
    for (const quint8 digit : digits)
        sum += m_digits[digit].advance;
    return sum;
}

void CellNumbers::add(const Digits &digits, QPointF &place)
{
    for (const quint8 digit : digits) {
        m_glyphs.append(m_digits[digit].glyph);
        m_places.append(place);
        place.rx() += m_digits[digit].advance;
    }
}

void CellNumbers::drawCollected(QPainter &painter)
{
    if (m_glyphs.isEmpty())
        return;
    m_run.setRawData(m_glyphs.constData(), m_places.constData(), m_glyphs.size());
    painter.drawGlyphRun(QPointF(), m_run);
    m_glyphs.clear();
    m_places.clear();
}

// A text that does not fit is cut off at its cell's border.
void CellNumbers::drawRow(QPainter &painter, const CabinetLayout &layout, qint64 row)
{
    painter.setPen(m_pen);
    m_glyphs.clear();
    m_places.clear();
    const Digits rowDigits = digits(layout.rowText(row));
    const qreal rowAdvance = advance(rowDigits);
    bool clipped = false;
    for (int column = 0; column < m_columns.size(); ++column) {
        const Digits &columnDigits = m_columns.at(column);
        const QRect cell = layout.cell(row, column);
        const qreal length = rowAdvance + advance(columnDigits);
        const qreal width = length + m_digits[columnDigits.last()].overhang;
        const qreal top = cell.y() + (cell.height() - m_height) / 2;
        const QRectF bounds(cell.x() + (cell.width() - width) / 2, top, width, m_height);
        if (clipped)
            drawCollected(painter);
        if (!QRectF(cell).contains(bounds)) {
            drawCollected(painter);
            painter.setClipRect(cell);
            clipped = true;
        } else if (clipped) {
            painter.setClipping(false);
            clipped = false;
        }
        QPointF place(placed(cell.x() + (cell.width() - length) / 2), placed(top) + m_baseline);
        add(rowDigits, place);
        add(columnDigits, place);
    }
    drawCollected(painter);
    painter.setClipping(false);
}
