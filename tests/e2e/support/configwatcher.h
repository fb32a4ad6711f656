#pragma once

#include <QMutex>
#include <QString>
#include <QThread>

#include <atomic>

/// Reads a settings file over and over from its making to its end, as another program may at any
/// moment, and remembers what no reader should ever see.
class ConfigWatcher : public QThread
{
public:
    explicit ConfigWatcher(const QString &path);
    ~ConfigWatcher() override;

    /// Whether there is the one section, with a key and a value in each line.
    static bool isWhole(const QByteArray &text);
    static QByteArray text(const QString &path);

    /// Versions seen so far, each unlike the one before it.
    int versionCount() const { return m_versionCount; }
    /// The first version that was not whole, or that the file was gone; null if neither.
    QString problem() const;

protected:
    void run() override;

private:
    void look(const QByteArray &version);

    const QString m_path;
    QByteArray m_version;
    std::atomic_int m_versionCount{0};
    mutable QMutex m_mutex; // of m_problem
    QString m_problem;
};
