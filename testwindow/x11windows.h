#pragma once

#include <QRect>
#include <QVector>
#include <QWidget>

// What Qt does not tell about windows on an X server, and does not do with them, on Qt's own
// connection. Every "round trip" is an answer that the server is waited for.
namespace X11Windows {

#ifdef TARN_X11

// Whether the program runs on an X server; if not, nothing is known or done here.
bool isAvailable();

// Where the window is, without any frame; null if there is no such window. One round trip.
QRect geometry(WId window);

// Whether another program's window lies over a part of this managed one, as a panel of the desktop
// may. Six round trips, and three for each window higher up.
bool isCovered(WId window);

// Moves and resizes the window. No round trip.
void place(WId window, const QRect &place);

// Hides the window, so that a window manager lets go of it. No round trip.
void unmap(WId window);

// Puts the windows, none of them managed, above all managed ones, each above the one before it.
// What other programs show without the window manager, such as menus, stays where it is. Five round
// trips.
void lift(const QVector<WId> &windows);

// Gives the window the keyboard, behind the window manager's back. No round trip.
void focus(WId window);

#else

inline bool isAvailable()
{
    return false;
}
inline QRect geometry(WId /*window*/)
{
    return {};
}
inline bool isCovered(WId /*window*/)
{
    return false;
}
inline void place(WId /*window*/, const QRect & /*place*/) { }
inline void unmap(WId /*window*/) { }
inline void lift(const QVector<WId> & /*windows*/) { }
inline void focus(WId /*window*/) { }

#endif

} // namespace X11Windows
