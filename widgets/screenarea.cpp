#include "screenarea.h"

#include <QGuiApplication>
#include <QScreen>

#include <algorithm>

namespace ScreenArea {

QRect around(const QPoint &point)
{
    const QList<QScreen *> screens = QGuiApplication::screens();
    const auto found = std::find_if(screens.cbegin(), screens.cend(), [point](QScreen *screen) {
        return screen->geometry().contains(point);
    });
    const QScreen *screen = found == screens.cend() ? QGuiApplication::primaryScreen() : *found;
    return screen ? screen->availableGeometry() : QRect();
}

QRect movedInto(QRect rectangle, const QRect &area)
{
    rectangle.moveRight(std::min(rectangle.right(), area.right()));
    rectangle.moveBottom(std::min(rectangle.bottom(), area.bottom()));
    rectangle.moveLeft(std::max(rectangle.left(), area.left()));
    rectangle.moveTop(std::max(rectangle.top(), area.top()));
    return rectangle;
}

} // namespace ScreenArea
