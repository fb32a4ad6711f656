#pragma once

#include "linefamily.h"

#include <QHash>
#include <QRect>

// Which pixels a horizontal or a vertical line covers; found out by drawing, because close to
// the window's upper left border that depends on how the line's length rounds.
class LineTrace
{
public:
    // For lines of the family, drawn with a plain pen. `scale` is the number of device pixels
    // to a pixel.
    void measure(const LineFamily &family, int penWidth, int scale);

    // In device pixels, for a line at `position` in pixels.
    QRect covered(int position) const;

private:
    struct Key
    {
        LineFamily::Direction direction = LineFamily::Horizontal;
        int length = 0;
        int penWidth = 0;
        int scale = 0; // 0 before the first measurement

        bool operator==(const Key &other) const;
    };

    QRect drawn(int position) const;

    Key m_key;
    mutable QHash<int, QRect> m_near; // by position, as far as they were asked for
    QRect m_far; // of a line at 0, were there no border
};
