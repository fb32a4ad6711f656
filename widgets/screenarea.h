#pragma once

#include <QPoint>
#include <QRect>

// Where on the desktop windows of the control side may stand.
namespace ScreenArea {

// The part of the screen around the point that windows may cover; of the primary
// screen when the point is on none.
QRect around(const QPoint &point);

// The rectangle moved by as little as brings it into the area; at the area's top left
// when it is larger.
QRect constrained(QRect rectangle, const QRect &area);

} // namespace ScreenArea
