#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

// The arithmetic of resizing a frameless window by its borders. All coordinates
// are global, in pixels.
namespace WindowEdge {

// The borders that the pointer is on, as a set of bits.
enum Edge { None = 0, Top = 1, Bottom = 2, Left = 4, Right = 8 };

// The borders of `frame` that `pointer` is nearer to than `margin`. On a window
// smaller than two margins top wins over bottom and left over right.
int at(const QRect &frame, const QPoint &pointer, int margin);

// The cursor that shows what a drag at these borders does.
Qt::CursorShape cursor(int edges);

struct SizeRange
{
    QSize minimum;
    QSize maximum;
};

// `frame` with the given borders moved to the pointer, cut at its right and bottom
// so that right - left and bottom - top stay at or below `limit`. A border that
// would leave the range of sizes stays where it is; a frame turned inside out comes
// back unchanged.
QRect resized(const QRect &frame, int edges, const QPoint &pointer, const SizeRange &range,
              const QSize &limit);

} // namespace WindowEdge
