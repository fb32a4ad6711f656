#pragma once

#include <QLine>
#include <QRect>
#include <QSize>

class QPainter;

// Parallel lines across a window, one every few pixels: the rule for where each of them is.
class LineFamily
{
public:
    enum Direction { Horizontal, Vertical, SlantLeft, SlantRight };

    // The first line's position is 0 or more. Below a spacing of 1 there are no lines.
    LineFamily(Direction direction, const QSize &window, int first, int spacing);

    Direction direction() const { return m_direction; }
    QSize window() const { return m_window; }
    qint64 count() const;
    // In pixels: from the top, or from the left. Slant lines are in the square at the window's
    // upper left corner that has its longer side: from that far down the left edge up to the
    // right, and from that far up the left edge down to the right.
    int position(qint64 index) const { return int(m_first + index * m_spacing); }
    QLine line(qint64 index) const;

    // Those of the lines that a pen of this width can paint in a part of the window.
    LineFamily touching(const QRect &part, int penWidth) const;

    // With the painter's pen.
    void draw(QPainter &painter) const;

    // How far in pixels a line's paint can be from the line, along a row or a column: more than
    // half the width, since slant lines cut rows and columns aslant.
    static int reach(int penWidth) { return qMax(1, penWidth) + 3; }

private:
    int side() const { return qMax(m_window.width(), m_window.height()); }
    int lastPosition() const;

    Direction m_direction;
    QSize m_window;
    int m_first;
    int m_spacing;
    int m_last; // no line is beyond this position
};
