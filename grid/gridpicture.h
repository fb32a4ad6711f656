#pragma once

#include "griddivision.h"
#include "linetrace.h"

#include <QPixmap>
#include <QVector>

class QPainter;

// Paints a grid at about the cost of copying a picture of its size, and to the pixel as the
// pattern itself would: it is put together from pieces that repeat, whose tiles are kept until
// the pattern changes and together are smaller than the picture.
class GridPicture
{
public:
    void paint(QPainter &painter, const GridPattern &pattern);

    // What the pieces occupy, in bytes.
    qint64 memory() const;

private:
    void dropPieces();
    void prepare(const GridPattern &pattern, int scale);
    void fillTile(QPixmap &tile, const GridPiece &piece) const;
    void paintCell(QPainter &painter, const GridPiece &piece) const;
    void drawPieces(QPainter &painter) const;
    void drawPiece(QPainter &painter, const GridPiece &piece, const QPixmap &tile) const;
    void drawLinesOver(QPainter &painter) const;
    void drawStraightLines(QPainter &painter, const GridPattern &pattern, const QRect &part,
                           GridSpan span = {}) const;
    void drawSlantLines(QPainter &painter, const GridPattern &pattern, const QRect &part) const;

    GridPattern m_pattern; // of the pieces
    int m_scale = 0; // device pixels to a pixel; 0 while there are no pieces
    GridDivision m_division;
    QVector<QPixmap> m_tiles; // one for each piece; none where the pieces would save nothing
    LineTrace m_rows; // of the horizontal lines
    LineTrace m_columns; // of the vertical lines
};
