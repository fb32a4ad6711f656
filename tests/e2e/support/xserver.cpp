#include "xserver.h"

#include "waiting.h"

#include <QRegularExpression>

XServer::XServer(QProcess::ProcessChannelMode output)
{
    m_process.setProcessChannelMode(output);
}

bool XServer::start(const QProcessEnvironment &environment)
{
    m_process.setProcessEnvironment(environment);
    m_process.start(program(), arguments(), QIODevice::ReadOnly);
    if (!m_process.waitForStarted()) {
        m_problem = QStringLiteral("%1 does not start: %2").arg(program(), m_process.errorString());
        return false;
    }
    return readDisplayNumber();
}

bool XServer::readDisplayNumber()
{
    static const QRegularExpression numberLine(QStringLiteral("^(\\d+)\n"),
                                               QRegularExpression::MultilineOption);
    QString output;
    QRegularExpressionMatch number;
    const auto read = [&] {
        output += QString::fromLocal8Bit(m_process.readAll());
        number = numberLine.match(output);
        return number.hasMatch() || m_process.state() == QProcess::NotRunning;
    };
    waitFor(read, 30000);
    if (!number.hasMatch()) {
        output += QString::fromLocal8Bit(m_process.readAllStandardError());
        m_problem = QStringLiteral("%1 gives no display number: %2").arg(program(), output);
        return false;
    }
    m_displayName = QLatin1Char(':') + number.captured(1);
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
