#include "windowdragger.h"

#include "wayland.h"

#include <QMouseEvent>
#include <QWidget>
#include <QWindow>

namespace UX::Widgets {

bool WindowDragger::handleEvent(const QEvent *event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        return beginDrag(static_cast<const QMouseEvent *>(event));
    case QEvent::MouseMove:
        return drag(static_cast<const QMouseEvent *>(event));
    case QEvent::MouseButtonRelease:
        return endDrag(static_cast<const QMouseEvent *>(event));
    default:
        return false;
    }
}

bool WindowDragger::beginDrag(const QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton || m_window->isMaximized())
        return false;
    m_offset = event->globalPos() - m_window->pos();
    m_isDragging = true;
    return true;
}

bool WindowDragger::drag(const QMouseEvent *event)
{
    if (!m_isDragging)
        return false;
    if (!event->buttons().testFlag(Qt::LeftButton)) {
        // The release went to somebody else.
        m_isDragging = false;
        return false;
    }
    if (startSystemMove())
        m_isDragging = false;
    else
        m_window->move(event->globalPos() - m_offset);
    return true;
}

bool WindowDragger::endDrag(const QMouseEvent *event)
{
    if (!m_isDragging || event->button() != Qt::LeftButton)
        return false;
    m_isDragging = false;
    return true;
}

// Only where a program cannot place its own windows: elsewhere moving by hand is exact, and works
// without a window manager too.
bool WindowDragger::startSystemMove()
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 15, 0)
    if (isOnWayland())
        return m_window->windowHandle() && m_window->windowHandle()->startSystemMove();
#endif
    return false;
}

} // namespace UX::Widgets
