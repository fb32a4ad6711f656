#pragma once

#include "managerecho.h"

#include <QEvent>
#include <QRect>
#include <QTimer>
#include <QWidget>

// Keeps the test window where the operator wants it: asks the window manager, looks at what has
// become of that once it has answered, and if it goes on refusing takes the window out of its
// hands. What the window manager does later, unasked, stands.
//
// Under Wayland the place has a size, and says which screen a full screen is for.
class PlaceKeeper : public QObject
{
    Q_OBJECT

public:
    // The window is borrowed. `echo` becomes a child.
    PlaceKeeper(QWidget *window, ManagerEcho *echo, QObject *parent);

    // Where the window should be while it does not fill a screen.
    QRect place() const { return m_place; }
    void setPlace(const QRect &place);
    // The window is somewhere else, and may stay there.
    void accept(const QRect &place) { m_place = place; }
    // Call it when a screen has come or changed.
    void followScreens();

signals:
    // The window manager, or another program, has put the window there of its own accord.
    void displaced(const QRect &place);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    Qt::WindowState state() const { return m_isFull ? Qt::WindowFullScreen : Qt::WindowNoState; }
    QRect target() const;
    QRect actual() const;
    void request();
    void chooseScreen();
    void look();
    void check();
    void insist();
    void put();
    void keepState();
    void leaveManager();
    void lift();
    void giveKeyboardTo(QWidget *window);
    void passKeyboard(QWidget *widget, QEvent::Type event);
    void windowEvent(QEvent *event);
    void shown();
    void followState();

    QWidget *m_window;
    ManagerEcho *m_echo;
    QRect m_place;
    bool m_isFull = false;
    QString m_screen; // to be filled then; it may be off
    bool m_isSettled = false; // it was in place after the latest request
    int m_refusals = 0; // of the latest request
    bool m_isNew = false; // until the window manager has shown it
    bool m_isPressed = false; // by the mouse, which may be moving it
    bool m_isChanging = false; // by this class
    bool m_isOut = false; // of the window manager's hands
    QTimer m_liftTimer;
};
