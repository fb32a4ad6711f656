#pragma once

#include "gridpattern.h"
#include "linetrace.h"

#include <QPixmap>
#include <QRect>

#include <array>

class QPainter;

// Paints a grid at about the cost of copying a picture of its size, and to the pixel as the
// pattern itself would: away from the border the picture repeats every line distance in both
// directions. So it is put together from nine pieces, a middle, four edges and four corners,
// which are kept until the pattern changes and together are smaller than the picture.
class GridPicture
{
public:
    void paint(QPainter &painter, const GridPattern &pattern);

    // What the pieces occupy, in bytes.
    qint64 memory() const;

private:
    struct Piece
    {
        QRect area; // of the window
        QPixmap tile; // fills the area from its upper left corner on
    };

    void dropPieces();
    void prepare(const GridPattern &pattern, int scale);
    void fillPiece(Piece &piece, const QSize &cell, const QSize &tile);
    void paintPart(QPixmap &pixmap, const QRect &part) const;
    void drawStraightLines(QPainter &painter, const QRect &part) const;
    void drawSlantLines(QPainter &painter, const QRect &part) const;

    GridPattern m_pattern; // of the pieces
    int m_scale = 0; // device pixels to a pixel; 0 while there are no pieces
    LineTrace m_rows; // of the horizontal lines
    LineTrace m_columns; // of the vertical lines
    std::array<Piece, 9> m_pieces;
};
