#pragma once

#include <QFile>
#include <QtDebug>

/// What scripts/soak.sh tells the programs that it runs, and reads from their output.
namespace LongRun {

/// How much to do: the environment variable TARN_SOAK_COUNT, else \a otherwise; at least 1.
inline int count(int otherwise)
{
    const int count = qEnvironmentVariableIntValue("TARN_SOAK_COUNT");
    return count > 0 ? count : otherwise;
}

/// Where the random numbers begin: the environment variable TARN_SOAK_SEED, else \a otherwise. The
/// same seed and count give the same run.
inline quint32 seed(quint32 otherwise)
{
    bool isNumber = false;
    const uint seed = qEnvironmentVariable("TARN_SOAK_SEED").toUInt(&isNumber);
    return isNumber ? seed : otherwise;
}

/// The resident memory of a process in KiB, of this one without \a processId; 0 where the system
/// has no /proc. \a field may also be "VmHWM", the highest so far.
inline qint64 residentMemory(qint64 processId = 0, const QByteArray &field = "VmRSS")
{
    const QString process = processId ? QString::number(processId) : QStringLiteral("self");
    QFile status(QStringLiteral("/proc/%1/status").arg(process));
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray &line : status.readAll().split('\n')) {
        if (line.startsWith(field + ':'))
            return line.mid(field.size() + 1).simplified().split(' ').first().toLongLong();
    }
    return 0;
}

/// Says how much was done and the resident memory in KiB at its beginning and end: a row of the
/// table, next to the failures and the duration, which the script sees itself.
inline void report(int count, qint64 firstMemory, qint64 lastMemory)
{
    qInfo("Long run: %d done, resident %lld KiB first, %lld KiB last", count, firstMemory,
          lastMemory);
}

} // namespace LongRun
