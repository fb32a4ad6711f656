#pragma once

#include "cabinetlayout.h"

#include <QGlyphRun>
#include <QPointF>
#include <QStringList>
#include <QVector>

#include <array>

class QPainter;

// Draws a layout's numbers much faster than text by text, to the same pixels: the shapes of
// the ten digits and their places are found once, for all texts are made of these.
class CellNumbers
{
public:
    // For a painter that is to draw them. False where they have to be drawn text by text: of
    // others than digits, or of digits that do not look the same in every text.
    bool prepare(const CabinetLayout &layout, const QPainter &painter);

    // Of the layout that was prepared, the row that starts with this item; returns the item after
    // the row. The painter's clipping is lost.
    qint64 drawRow(QPainter &painter, const CabinetLayout &layout, qint64 item);

private:
    struct Digit
    {
        quint32 glyph = 0;
        qreal advance = 0;
        qreal overhang = 0; // beyond the advance, which counts at the end of a text
    };

    bool measureDigits(const QFont &font, QPaintDevice *device);
    const Digit &digit(QChar digit) const { return m_digits[size_t(digit.digitValue())]; }
    qreal advance(const QString &text) const;
    void add(const QString &text, QPointF &place);
    void drawCollected(QPainter &painter);

    QPen m_pen;
    std::array<Digit, 10> m_digits;
    qreal m_height = 0; // of a text
    qreal m_baseline = 0; // from a text's top
    QStringList m_columns;
    QGlyphRun m_run;
    QVector<quint32> m_glyphs; // collected, to be drawn at once
    QVector<QPointF> m_places;
};
