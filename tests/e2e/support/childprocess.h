#pragma once

#include <QProcess>

/// A child process that never outlives the test, even when the test is killed.
class ChildProcess : public QProcess
{
    Q_OBJECT

public:
    explicit ChildProcess(QObject *parent = nullptr);
    ~ChildProcess() override;

    /// Asks the process to end, and kills it if it does not.
    void end();

protected:
    void setupChildProcess() override;
};
