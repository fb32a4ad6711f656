#pragma once

#include <QObject>
#include <QScopedValueRollback>
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

    // Until the result ends, controls change without the operator, and nothing is scheduled.
    [[nodiscard]] QScopedValueRollback<bool> hold()
    {
        return QScopedValueRollback<bool>(m_isHeld, true);
    }
    bool isHeld() const { return m_isHeld; }

public slots:
    void schedule();

private:
    std::function<void()> m_save;
    QTimer m_timer;
    bool m_isHeld = false;
};
