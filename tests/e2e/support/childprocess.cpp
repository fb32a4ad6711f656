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
