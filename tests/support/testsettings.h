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
    // The file holds exactly these bytes; there is none for null.
    explicit TestSettings(const QByteArray &contents);

    QSettings *get() const { return m_settings.get(); }
    QSettings *operator->() const { return m_settings.get(); }
    QString path() const { return m_folder.filePath(QStringLiteral("config.ini")); }

    // What the file holds after everything pending has been written.
    QVariantMap stored() const;

    // What the file holds at this moment, nothing pending included. The key is without
    // "/setting/".
    QByteArray bytes() const;
    QVariant onDisk(const QString &key) const;

    // As after a restart: the file is read afresh.
    void reopen();

private:
    QTemporaryDir m_folder;
    std::unique_ptr<QSettings> m_settings;
};
