#pragma once

#include <QColor>
#include <QPen>
#include <QSize>

#include <limits>

class QPainter;

// Positions of lines, both ends included; unbounded unless said otherwise.
struct GridSpan
{
    int from = std::numeric_limits<int>::min();
    int to = std::numeric_limits<int>::max();
};

// Everything that decides on the grid's pixels: the window's size, the four families of
// lines and their colours. The drawing functions are the rule for what a grid looks like.
struct GridPattern
{
    // The lines of a family that lie in a span: from the first to the last, if the first is
    // not beyond it, every `distance` pixels.
    struct Lines
    {
        int first;
        int last;
        int distance;
    };

    QSize size; // of the window, in pixels
    int distance = 10; // between neighbouring lines of a family; below 1 there are no lines
    int offset = 0; // of the first line of each family
    bool horizontal = false;
    bool vertical = false;
    bool slantLeft = false;
    bool slantRight = false;
    QPen pen;
    QColor background;

    // Paints the background, then the enabled families, with the pattern's own pen.
    void paint(QPainter &painter) const;

    // One family each, enabled or not, with the painter's pen.
    void drawHorizontal(QPainter &painter) const;
    void drawVertical(QPainter &painter) const;
    // In the square at the window's upper left corner that has its longer side: from the left
    // edge up to the upper one, and from the left edge down to the right.
    void drawSlantLeft(QPainter &painter, GridSpan span = {}) const;
    void drawSlantRight(QPainter &painter, GridSpan span = {}) const;

    Lines horizontalLines(GridSpan span = {}) const;
    Lines verticalLines(GridSpan span = {}) const;
    Lines slantLeftLines(GridSpan span = {}) const;
    Lines slantRightLines(GridSpan span = {}) const;

    // Of the square; the position of a slant-right line is how far up it starts.
    int side() const { return qMax(size.width(), size.height()); }

    // How far in pixels a line's paint can be from the line, along a row or a column.
    int reach() const;

    // The same counted in positions of the line's own family, for lines at 1 or more. A pixel's
    // position is its row, its column, the sum of both plus 1 for slant-left lines, and for
    // slant-right ones the square's side plus its column minus its row.
    int lineReach() const;

    bool operator==(const GridPattern &other) const;
    bool operator!=(const GridPattern &other) const { return !(*this == other); }

private:
    Lines lines(GridSpan span, int last) const;
};
