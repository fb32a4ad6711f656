#pragma once

#include <QCoreApplication>
#include <QCursor>
#include <QEvent>
#include <QMouseEvent>
#include <QWidget>

// A mouse on one window that does what a test says and nothing else: moves that the
// platform makes up when the cursor is placed never reach the window.
class ScriptedPointer : public QObject
{
public:
    explicit ScriptedPointer(QWidget *window)
        : m_window(window)
    {
        window->installEventFilter(this);
    }

    // All positions are global, in pixels.
    void move(const QPointF &to, Qt::MouseButtons held = Qt::NoButton)
    {
        send(QEvent::MouseMove, to, Qt::NoButton, held);
    }

    void press(const QPointF &at, Qt::MouseButton button = Qt::LeftButton)
    {
        send(QEvent::MouseButtonPress, at, button, button);
    }

    void release(const QPointF &at, Qt::MouseButton button = Qt::LeftButton,
                 Qt::MouseButtons stillHeld = Qt::NoButton)
    {
        send(QEvent::MouseButtonRelease, at, button, stillHeld);
    }

    void doubleClick(const QPointF &at, Qt::MouseButton button = Qt::LeftButton)
    {
        press(at, button);
        release(at, button);
        send(QEvent::MouseButtonDblClick, at, button, button);
    }

    // Comes to a point, presses the left button there and goes on with it held.
    void drag(const QPointF &from, const QPointF &to)
    {
        move(from);
        press(from);
        move(to, Qt::LeftButton);
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::MouseMove && !m_sending)
            return true;
        return QObject::eventFilter(watched, event);
    }

private:
    void send(QEvent::Type type, const QPointF &global, Qt::MouseButton button,
              Qt::MouseButtons held)
    {
        QCursor::setPos(qRound(global.x()), qRound(global.y()));
        QCoreApplication::processEvents(); // what the platform makes of that
        const QPointF local = global - m_window->pos();
        QMouseEvent event(type, local, local, global, button, held, Qt::NoModifier);
        m_sending = true;
        QCoreApplication::sendEvent(m_window, &event);
        m_sending = false;
    }

    QWidget *m_window;
    bool m_sending = false;
};
