#include "mouse.h"

#include "windowtree.h"
#include "xconnection.h"

#include <QtGlobal>

#include <algorithm>
#include <cstdlib>

#include <X11/Xlib.h>
#include <X11/extensions/XTest.h>
#include <X11/extensions/Xfixes.h>

namespace {
unsigned int buttonNumber(Qt::MouseButton button)
{
    switch (button) {
    case Qt::LeftButton:
        return 1;
    case Qt::MiddleButton:
        return 2;
    case Qt::RightButton:
        return 3;
    default:
        qFatal("The mouse has no button %d", static_cast<int>(button));
    }
}
} // namespace

Mouse::Mouse(XConnection &connection, WindowTree &windows)
    : m_connection(connection)
    , m_windows(windows)
{
    int eventBase = 0;
    int errorBase = 0;
    XFixesQueryExtension(m_connection.display(), &eventBase, &errorBase);
}

void Mouse::move(const QPoint &position)
{
    XTestFakeMotionEvent(m_connection.display(), -1, position.x(), position.y(), CurrentTime);
    m_connection.sync();
}

void Mouse::press(Qt::MouseButton pressed)
{
    button(pressed, true);
    m_windows.syncWithWindowManager();
}

void Mouse::release(Qt::MouseButton released)
{
    button(released, false);
    m_connection.sync();
}

void Mouse::click(const QPoint &position, Qt::MouseButton clicked)
{
    move(position);
    button(clicked, true);
    button(clicked, false);
    m_windows.syncWithWindowManager();
}

void Mouse::doubleClick(const QPoint &position, Qt::MouseButton clicked)
{
    move(position);
    // All four in one go: how far apart they are must not depend on the load.
    for (int i = 0; i < 2; ++i) {
        button(clicked, true);
        button(clicked, false);
    }
    // Once for each press: the second one waits for the first.
    m_windows.syncWithWindowManager();
    m_windows.syncWithWindowManager();
}

// To the X server a step of the wheel is a click of one more button.
void Mouse::turnWheel(const QPoint &position, int steps)
{
    move(position);
    for (int step = 0; step < std::abs(steps); ++step) {
        for (const int isPress : {True, False})
            XTestFakeButtonEvent(m_connection.display(), steps > 0 ? 4 : 5, isPress, CurrentTime);
    }
    m_windows.syncWithWindowManager();
}

void Mouse::drag(const QPoint &from, const QPoint &to)
{
    move(from);
    press();
    glide(from, to);
    release();
}

void Mouse::doubleClickAndDrag(const QPoint &from, const QPoint &to)
{
    click(from);
    press();
    glide(from, to);
    release();
}

void Mouse::glide(const QPoint &from, const QPoint &to)
{
    const QPoint way = to - from;
    const int steps = std::max(std::abs(way.x()), std::abs(way.y()));
    for (int step = 1; step <= steps; ++step)
        move(from + QPoint(way.x() * step / steps, way.y() * step / steps));
}

QPoint Mouse::position() const
{
    Window root = 0;
    Window child = 0;
    int rootX = 0;
    int rootY = 0;
    int x = 0;
    int y = 0;
    unsigned int mask = 0;
    XQueryPointer(m_connection.display(), m_connection.root(), &root, &child, &rootX, &rootY, &x,
                  &y, &mask);
    return {rootX, rootY};
}

bool Mouse::isTextCursor() const
{
    XFixesCursorImage *image = XFixesGetCursorImage(m_connection.display());
    if (!image)
        return false;
    const QByteArray name(image->name);
    XFree(image);
    return name == "xterm" || name == "text" || name == "ibeam";
}

void Mouse::button(Qt::MouseButton which, bool press)
{
    XTestFakeButtonEvent(m_connection.display(), buttonNumber(which), press ? True : False,
                         CurrentTime);
}
