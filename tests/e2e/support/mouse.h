#pragma once

#include <QByteArray>
#include <QPoint>
#include <qnamespace.h>

class WindowTree;
class XConnection;

/// The mouse of the X server, in coordinates of the root window.
///
/// A window manager sees each press first and hands it on afterwards, while
/// keys go their way at once; so every press here returns only when the window
/// manager is through with it, and what follows cannot overtake it.
class Mouse
{
public:
    /// Both must outlive the mouse.
    Mouse(XConnection &connection, WindowTree &windows);

    void move(const QPoint &position);
    void press(Qt::MouseButton pressed = Qt::LeftButton);
    void release(Qt::MouseButton released = Qt::LeftButton);
    void click(const QPoint &position, Qt::MouseButton clicked = Qt::LeftButton);
    void doubleClick(const QPoint &position, Qt::MouseButton clicked = Qt::LeftButton);
    /// Upwards (away from the user) for a positive number of steps.
    void turnWheel(const QPoint &position, int steps);
    /// Presses the left button at \a from, moves to \a to pixel by pixel along
    /// the straight line, and releases it there.
    void drag(const QPoint &from, const QPoint &to);
    /// The same with a double click at \a from, whose second press is held.
    void doubleClickAndDrag(const QPoint &from, const QPoint &to);

    QPoint position() const;
    /// Whether the pointer has the shape for writing text.
    bool isTextCursor() const;

private:
    void button(Qt::MouseButton which, bool press);
    void glide(const QPoint &from, const QPoint &to);

    XConnection &m_connection;
    WindowTree &m_windows;
};
