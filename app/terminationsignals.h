#pragma once

#include <QObject>

// Turns SIGINT, SIGTERM and SIGHUP into the ordinary end of the event loop, so that
// every panel saves. A SIGHUP that is ignored already stays so: under nohup a run
// outlives its terminal. Systems without these signals are left alone.
//
// One object at a time; the handlers of before come back when it goes.
class TerminationSignals : public QObject
{
    Q_OBJECT

public:
    explicit TerminationSignals(QObject *parent = nullptr);
    ~TerminationSignals() override;

signals:
    void requested(); // on the event loop
};
