#pragma once

#include <QTest>
#include <QWidget>
#include <QWindow>

// Sends press, moves and release through the window system, so that they find their widget as the
// operator's would.
inline void dragThroughTheWindow(const QWidget &window, const QPoint &grip, const QPoint &delta,
                                 Qt::MouseButton button)
{
    QWindow *handle = window.windowHandle();
    const QPoint from = window.mapToGlobal(grip);
    QTest::mousePress(handle, button, Qt::NoModifier, grip);
    QTest::mouseMove(handle, handle->mapFromGlobal(from + delta / 3));
    QTest::mouseMove(handle, handle->mapFromGlobal(from + delta));
    QTest::mouseRelease(handle, button, Qt::NoModifier, handle->mapFromGlobal(from + delta));
}
