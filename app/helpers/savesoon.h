#pragma once

#include <QObject>
#include <QTimer>

#include <functional>

// Coalesces runs of changes into few saves: the first change starts the clock, the
// changes that follow ride along, and the save runs once, half a second later. So
// what is stored is never older than that, and no drag waits on the disk.
class SaveSoon : public QObject
{
    Q_OBJECT

public:
    static constexpr int delayMs = 500;

    // `save` runs on the event loop of this object's thread, and not after this
    // object is gone: what is still due then is the owner's to save.
    SaveSoon(std::function<void()> save, QObject *parent);

    bool isDue() const { return m_timer.isActive(); }

public slots:
    void schedule();

private:
    std::function<void()> m_save;
    QTimer m_timer;
};
