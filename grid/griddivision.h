#pragma once

#include "gridpattern.h"

#include <QRect>
#include <QRegion>
#include <QSize>
#include <QVector>

// A part of a grid's window in which the picture repeats in both directions.
struct GridPiece
{
    QRect area; // of the window
    QRegion shown; // what of the area is the piece's; empty where that is all of it
    QSize cell; // repeats from the area's upper left corner on
    QSize tile; // cells side by side, to fill the area with; empty where nothing repeats
    GridPattern pattern; // of the cell
};

// Divides a grid's window into pieces that each repeat, so that only their cells need be drawn
// line by line. Away from the border all lines repeat every line distance in both directions;
// where the first lines are further from the edge than that, the pieces end there too.
//
// Some lines have to be drawn over the pieces: those too close to where a family begins, and
// straight lines that are too few to make the pieces larger for.
class GridDivision
{
public:
    GridDivision() = default;
    // Of a pattern with a line distance of 1 or more.
    explicit GridDivision(const GridPattern &pattern);

    // They cover the window and do not overlap.
    const QVector<GridPiece> &pieces() const { return m_pieces; }
    GridSpan straightLinesOver() const { return m_straightLinesOver; }
    GridSpan slantLinesOver() const { return m_slantLinesOver; }

    // Whether the tiles together are smaller than the window.
    bool saves() const;

private:
    struct Run;

    static QVector<Run> runs(int length, int border, int start);
    void addPieces(const Run &columns, const Run &rows);
    void addPiece(GridPiece piece, bool columnsRepeat, bool rowsRepeat);

    GridPattern m_pattern; // were there lines all the way back to the edges
    QRegion m_leftMissing; // where no slant-left line is before the first ...
    QRegion m_rightMissing; // ... and no slant-right one
    GridSpan m_straightLinesOver;
    GridSpan m_slantLinesOver;
    QVector<GridPiece> m_pieces;
};
