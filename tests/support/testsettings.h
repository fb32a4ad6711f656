#pragma once

#include <QSettings>
#include <QTemporaryDir>
#include <QVariantMap>

#include <memory>

// A settings file of the program's kind in a scratch folder of its own.
class TestSettings
{
public:
    // Keys with or without "/setting/" in front of them.
    explicit TestSettings(const QVariantMap &values = {});

    QSettings *get() { return m_settings.get(); }
    QSettings *operator->() { return m_settings.get(); }
    QString path() const { return m_folder.filePath(QStringLiteral("config.ini")); }

    // What the file holds after everything pending has been written.
    QVariantMap stored();

    // As after a restart: the file is read afresh.
    void reopen();

private:
    QTemporaryDir m_folder;
    std::unique_ptr<QSettings> m_settings;
};
