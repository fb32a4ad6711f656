#pragma once

#include <QHash>
#include <QPen>

// Pixel rows or columns next to one another.
struct PixelRun
{
    int first = 0;
    int count = 0;
};

// Which rows of pixels a horizontal line across the whole window covers, or which columns a
// vertical one; found out by drawing, because close to the window's upper left border that
// depends on how the line's length rounds.
class LineTrace
{
public:
    // For lines of `length` pixels, of the pen only its width counts, whose paint reaches
    // `reach` pixels to either side. `scale` is the number of device pixels to a pixel.
    void measure(Qt::Orientation orientation, const QPen &pen, int length, int reach, int scale);

    // In device pixels, for a line at `position` in pixels, 0 or more.
    PixelRun covered(int position) const;

private:
    struct Key
    {
        Qt::Orientation orientation = Qt::Horizontal;
        int width = 0;
        int length = 0;
        int reach = 0;
        int scale = 0; // 0 before the first measurement

        bool operator==(const Key &other) const;
    };

    PixelRun drawn(int position) const;

    Key m_key;
    mutable QHash<int, PixelRun> m_near; // by position, as far as they were asked for
    PixelRun m_far; // of a line at 0, were there no border
};
