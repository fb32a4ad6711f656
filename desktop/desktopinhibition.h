#pragma once

#include <QDBusMessage>
#include <QObject>
#include <QString>

class QDBusServiceWatcher;

// Asks the desktop over the session bus not to become idle: its screen saver service, or the
// portal where there is none. The bus drops what a program asked for when the program is gone.
class DesktopInhibition : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;
    // Gives back what is held.
    ~DesktopInhibition() override;

    // Without a session bus nothing happens. A service that comes later, or again, is asked then.
    void setHeld(bool held);

private:
    void watchServices();
    void settle();
    void askScreenSaver();
    void askPortal();
    template<typename Answer>
    void call(const QDBusMessage &request, Answer answer);
    void answered(const QDBusMessage &release);

    QDBusServiceWatcher *m_watcher = nullptr; // from the first time on that something is asked
    bool m_held = false; // as asked for by the owner
    QString m_asked; // the service that has not answered yet
    // Should all refuse: wanted once more in the meantime, or another service has come.
    bool m_asksAgain = false;
    QDBusMessage m_release; // gives back what the desktop granted; no method call while it did not
};
