#include "childprocess.h"

#include "waiting.h"

#include <csignal>

#ifdef Q_OS_LINUX
#include <sys/prctl.h>
#endif

namespace {
constexpr int PoliteEndDeadline = 5000;
}

ChildProcess::ChildProcess(QObject *parent)
    : QProcess(parent)
{ }

ChildProcess::~ChildProcess()
{
    end();
}

bool ChildProcess::startOn(const QString &display, const QString &program,
                           const QStringList &arguments)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("DISPLAY"), display);
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
    environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), m_runtimeDirectory.path());
    setProcessEnvironment(environment);
    setProcessChannelMode(QProcess::ForwardedErrorChannel);
    start(program, arguments, QIODevice::ReadOnly);
    return waitForStarted();
}

void ChildProcess::end()
{
    if (state() == NotRunning)
        return;
    terminate();
    if (waitForFinished(scaledTimeout(PoliteEndDeadline)))
        return;
    kill();
    waitForFinished();
}

void ChildProcess::setupChildProcess()
{
#ifdef Q_OS_LINUX
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
#endif
}
