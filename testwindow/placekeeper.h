#pragma once

#include "managerecho.h"
#include "x11windows.h"

#include <QEvent>
#include <QPointer>
#include <QRect>
#include <QTimer>
#include <QVector>
#include <QWidget>

class QScreen;

// Keeps the test window where the operator wants it: asks the window manager, looks at what has
// become of that once it has answered, and if it has refused takes the window out of its hands.
class PlaceKeeper : public QObject
{
    Q_OBJECT

public:
    // The window is borrowed. `echo` becomes a child.
    PlaceKeeper(QWidget *window, ManagerEcho *echo, QObject *parent);
    ~PlaceKeeper() override;

    // Where the window should be while it does not fill a screen.
    QRect place() const { return m_place; }
    void setPlace(const QRect &place);
    // The window is somewhere else, and may stay there.
    void accept(const QRect &place) { m_place = place; }

signals:
    // The window manager, or another program, has put the window there of its own accord.
    void displaced(const QRect &place);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void follow(QScreen *screen);
    void request();
    void insist();
    void put();
    void check();
    void enterFullScreen();
    void stateChanged(bool isSpontaneous);
    void notice();
    QRect target() const;
    QRect actual() const;
    void leaveManager();
    void finishLeaving();
    void lift();
    void handKeyboardOn(const QWidget *from);
    void windowEvent(QEvent *event);
    void standInForManager(QWidget *widget, QEvent::Type event);
    void shown();

    QWidget *m_window;
    ManagerEcho *m_echo;
    QRect m_place;
    bool m_isFull = false;
    QRect m_screen; // to be filled then
    const QScreen *m_filled = nullptr; // the same, to be compared only: it may be off
    bool m_isSettled = false; // it was in place after the latest request
    int m_refusals = 0; // of the latest request
    bool m_isNew = false; // until the window manager has shown it
    bool m_isPressed = false; // by the mouse, which may be moving it
    bool m_isChanging = false; // by this class
    bool m_isLeaving = false; // until the window manager has lost it
    QVector<QPointer<QWidget>> m_leaving;
    QPointer<QWidget> m_hadKeyboard; // before
    bool m_isOut = false; // of the window manager's hands
    X11Windows m_x11;
    QTimer m_liftTimer;
};
