#include "configwatcher.h"

#include <QFile>
#include <QMutexLocker>

#include <algorithm>

namespace {
constexpr unsigned long LookIntervalUs = 500;
}

ConfigWatcher::ConfigWatcher(const QString &path)
    : m_path(path)
{
    start();
}

ConfigWatcher::~ConfigWatcher()
{
    requestInterruption();
    wait();
}

bool ConfigWatcher::isWhole(const QByteArray &text)
{
    if (!text.startsWith("[setting]\n") || !text.endsWith('\n'))
        return false;
    const QList<QByteArray> lines = text.trimmed().split('\n').mid(1);
    return std::all_of(lines.cbegin(), lines.cend(), [](const QByteArray &line) {
        return line.indexOf('=') > 0 && line.indexOf('=') < line.size() - 1;
    });
}

QByteArray ConfigWatcher::text(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QString ConfigWatcher::problem() const
{
    const QMutexLocker locker(&m_mutex);
    return m_problem;
}

void ConfigWatcher::run()
{
    while (!isInterruptionRequested()) {
        look(text(m_path));
        usleep(LookIntervalUs);
    }
}

void ConfigWatcher::look(const QByteArray &version)
{
    if (version == m_version)
        return;
    m_version = version;
    ++m_versionCount;
    const QMutexLocker locker(&m_mutex);
    if (m_problem.isNull() && !isWhole(version))
        m_problem = version.isNull()
                        ? QStringLiteral("It was gone")
                        : QStringLiteral("It held \"%1\"").arg(QString::fromUtf8(version));
}
