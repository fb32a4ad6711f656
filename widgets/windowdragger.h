#pragma once

#include <QPoint>

class QEvent;
class QMouseEvent;
class QWidget;

namespace UX::Widgets {

// Does for a frameless window what a system title bar does with the mouse: the left button drags
// the window.
class WindowDragger
{
public:
    // The window is not owned and must outlive the dragger.
    explicit WindowDragger(QWidget *window)
        : m_window(window)
    { }

    // Takes an event of the title bar; true if it was one for the dragger and is dealt with.
    bool handleEvent(const QEvent *event);

private:
    bool beginDrag(const QMouseEvent *event);
    bool drag(const QMouseEvent *event);
    bool endDrag(const QMouseEvent *event);
    bool startSystemMove();

    QWidget *m_window;
    QPoint m_offset; // of the mouse from the window's top left corner
    bool m_isDragging = false;
};

} // namespace UX::Widgets
