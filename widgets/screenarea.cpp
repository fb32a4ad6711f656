#include "screenarea.h"

#include <QGuiApplication>
#include <QScreen>

namespace ScreenArea {

QRect around(const QPoint &point)
{
    const QList<QScreen *> screens = QGuiApplication::screens();
    for (const QScreen *screen : screens) {
        if (screen->geometry().contains(point))
            return screen->availableGeometry();
    }
    const QScreen *primary = QGuiApplication::primaryScreen();
    return primary ? primary->availableGeometry() : QRect();
}

QRect constrained(QRect rectangle, const QRect &area)
{
    rectangle.moveRight(qMin(rectangle.right(), area.right()));
    rectangle.moveBottom(qMin(rectangle.bottom(), area.bottom()));
    rectangle.moveLeft(qMax(rectangle.left(), area.left()));
    rectangle.moveTop(qMax(rectangle.top(), area.top()));
    return rectangle;
}

} // namespace ScreenArea
