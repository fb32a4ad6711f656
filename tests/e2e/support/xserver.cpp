#include "xserver.h"

#include "waiting.h"

bool XServer::start()
{
    m_process.start(program(), arguments(), QIODevice::ReadOnly);
    if (!m_process.waitForStarted()) {
        m_problem = QStringLiteral("%1 does not start: %2").arg(program(), m_process.errorString());
        return false;
    }
    return readDisplayNumber();
}

bool XServer::readDisplayNumber()
{
    const bool written = waitFor(
        [this] { return m_process.canReadLine() || m_process.state() == QProcess::NotRunning; },
        30000);
    bool isNumber = false;
    const int number = m_process.readLine().trimmed().toInt(&isNumber);
    if (!written || !isNumber) {
        m_problem = QStringLiteral("%1 gives no display number: %2")
                        .arg(program(), QString::fromLocal8Bit(m_process.readAllStandardError()));
        return false;
    }
    m_displayName = QStringLiteral(":%1").arg(number);
    return true;
}

QString XvfbServer::program() const
{
    return QStringLiteral("Xvfb");
}

QStringList XvfbServer::arguments() const
{
    const QString screen = QStringLiteral("%1x%2x24").arg(m_size.width()).arg(m_size.height());
    return {QStringLiteral("-displayfd"),
            QStringLiteral("1"),
            QStringLiteral("-screen"),
            QStringLiteral("0"),
            screen,
            QStringLiteral("-dpi"),
            QString::number(m_dotsPerInch),
            QStringLiteral("-nolisten"),
            QStringLiteral("tcp"),
            QStringLiteral("-noreset")};
}
