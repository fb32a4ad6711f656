#pragma once

#include "gridpattern.h"
#include "linetrace.h"

#include <QPixmap>
#include <QVector>

#include <array>

// Paints a grid at about the cost of copying a picture of its size, and to the pixel as the
// pattern itself would: but for the border, all lines repeat every line distance in both
// directions, so that only small tiles are drawn line by line and put side by side.
class GridTiles
{
public:
    // For a pattern whose offset is below its line distance, and `scale` device pixels to a
    // pixel. False where the tiles would be as large as the window.
    bool prepare(const GridPattern &pattern, int scale);

    void paint(QPainter &painter) const;

private:
    struct TiledArea
    {
        QRect area; // of the window
        QPixmap tile; // to fill the area with
    };

    void fillTile(TiledArea &tiled, const QSize &cell, const QSize &size);
    void paintPart(QPixmap &pixmap, const QRect &part);
    void fillLines(QPainter &painter, const LineFamily &lines);

    GridPattern m_pattern;
    int m_scale = 0;
    QVector<TiledArea> m_areas;
    std::array<LineTrace, 2> m_traces; // of horizontal and of vertical lines
};
