#pragma once

#include <QProcess>
#include <QTemporaryDir>

/// A child process that never outlives the test, even when the test is killed.
class ChildProcess : public QProcess
{
    Q_OBJECT

public:
    explicit ChildProcess(QObject *parent = nullptr);
    ~ChildProcess() override;

    /// Starts a program with widgets on this X server; false, with errorString() set, if it does
    /// not start.
    bool startOn(const QString &display, const QString &program, const QStringList &arguments = {});
    /// Asks the process to end, and kills it if it does not.
    void end();

protected:
    void setupChildProcess() override;

private:
    QTemporaryDir m_runtimeDirectory;
};
