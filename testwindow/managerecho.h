#pragma once

#include <QObject>
#include <QWindow>

// Tells when the window manager has handled every request made until now.
class ManagerEcho : public QObject
{
    Q_OBJECT

public:
    explicit ManagerEcho(QObject *parent = nullptr);

    // answered() follows once, however often this is called meanwhile. False where there is no
    // window manager that could be asked.
    virtual bool ask();

signals:
    void answered();

private:
    void send();

    // Never shown: a window manager has to let a window that it does not manage have its way, and
    // handles the requests of a program in their order.
    QWindow m_probe;
    int m_number = 0;
    int m_rounds = 0;
};
