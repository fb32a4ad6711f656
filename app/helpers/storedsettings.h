#pragma once

#include <QSettings>
#include <QThread>
#include <QTimer>
#include <QVariantMap>

// The program's settings, held in memory, and a file on the disk that follows them: whatever the
// disk does, no window waits for it, and what cannot be written is tried again until it can.
class StoredSettings : public QSettings
{
    Q_OBJECT

public:
    // `path` is of the file, which nothing is written to before a value changes; without one
    // nothing ever is.
    explicit StoredSettings(const QVariantMap &values, const QString &path = {},
                            QObject *parent = nullptr);
    // Saves.
    ~StoredSettings() override;

    // Returns once the file holds every value, or could not be written.
    void save();

protected:
    bool event(QEvent *event) override;

private:
    static constexpr int retryMs = 1000;

    struct Writer : QThread
    {
        void run() override;

        QString path;
        QVariantMap values;
        bool isDone = true;
    };

    QVariantMap values() const;
    void write();
    void goOn();

    Writer m_writer; // whose members are ours while it does not run
    QTimer m_retry;
    bool m_isDue = false; // a value has changed since the writer took them
};
