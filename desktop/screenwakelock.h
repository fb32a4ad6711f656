#pragma once

#include <QObject>

#include <memory>

class QWidget;

// Keeps the screen awake while a window is visible: the desktop does not blank or lock it, and
// the display is not put to sleep. Given back when the window is hidden or goes; if the program is
// killed, the desktop gives it back by itself.
class ScreenWakeLock : public QObject
{
    Q_OBJECT

public:
    // A child of the window.
    explicit ScreenWakeLock(QWidget *window);
    ~ScreenWakeLock() override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    class Platform;
    const std::unique_ptr<Platform> m_platform;
};
