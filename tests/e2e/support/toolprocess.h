#pragma once

#include "childprocess.h"
#include "windowtree.h"

#include <QMap>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <QVariant>

class VirtualDesktop;

/// The real program, run from a scratch application directory of its own on a
/// virtual desktop.
class ToolProcess
{
public:
    /// Whether the program is expected to start with its test window on screen.
    enum class TestWindow { Shown, Hidden };

    /// Copies the program and its translations. \a desktop must outlive it.
    explicit ToolProcess(VirtualDesktop &desktop);
    ~ToolProcess();
    Q_DISABLE_COPY(ToolProcess)

    /// The application directory: the executable, "ts", and what the program
    /// writes.
    QString directory() const { return m_directory.path(); }

    // Before start():
    void setArguments(const QStringList &arguments) { m_arguments = arguments; }
    void setEnvironment(const QString &name, const QString &value);
    void removeTranslations();
    /// Writes "config.ini" with these keys ("/setting/...").
    void writeConfig(const QVariantMap &values) const;

    /// Starts the program and waits until its windows are there and its event
    /// loop runs. False, with problem() set, if that does not happen.
    bool start(TestWindow testWindow = TestWindow::Shown);
    /// Closes the control window; true if the program then ends with exit code 0.
    bool quit();
    /// Sends a signal such as SIGTERM; true if the program then ends with exit
    /// code 0.
    bool endBySignal(int signal);
    /// Ends the program between one instruction and the next, as SIGKILL does.
    void kill();
    /// Waits until the program has ended by itself; true if with exit code 0.
    bool waitForCleanExit();
    qint64 processId() const { return m_process.processId(); }
    bool isRunning() const { return m_process.state() != QProcess::NotRunning; }
    /// What went wrong in the last operation, with the program's error output.
    QString problem() const;
    /// All of the error output until now.
    QString standardError() const;

    /// The test window, mapped or not; id 0 when there is none.
    WindowInfo testWindow() const;
    /// The control window; id 0 when it is not mapped.
    WindowInfo controlWindow() const;
    /// Every mapped window of the program, menus and tool tips included.
    QVector<WindowInfo> mappedWindows() const;
    /// Gives the control window the keyboard. False if that does not happen.
    bool focusControlWindow();

    /// A value of "config.ini" as it now is on disk; invalid when missing.
    QVariant configValue(const QString &key) const;
    QVariantMap configIni() const;

private:
    QString configPath() const;
    QProcessEnvironment environment() const;
    bool waitForStart(TestWindow testWindow);

    VirtualDesktop &m_desktop;
    QTemporaryDir m_directory;
    QTemporaryDir m_runtimeDirectory;
    QStringList m_arguments;
    QMap<QString, QString> m_extraEnvironment;
    mutable QByteArray m_standardError;
    QString m_problem;
    mutable ChildProcess m_process;
};
