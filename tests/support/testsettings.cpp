#include "testsettings.h"

#include <QFile>

namespace {

void write(const QString &path, const QByteArray &contents)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(contents) != contents.size())
        qFatal("cannot write the settings file");
}

QString fullKey(const QString &key)
{
    const QString group = QStringLiteral("/setting/");
    return key.startsWith(group) ? key : group + key;
}

std::unique_ptr<QSettings> open(const QString &path)
{
    auto settings = std::make_unique<QSettings>(path, QSettings::IniFormat);
    settings->setIniCodec("UTF-8");
    return settings;
}

} // namespace

TestSettings::TestSettings(const QVariantMap &values)
    : m_settings(open(path()))
{
    for (auto value = values.cbegin(); value != values.cend(); ++value)
        m_settings->setValue(fullKey(value.key()), value.value());
    reopen(); // so that they are read as the program reads them
}

TestSettings::TestSettings(const QByteArray &contents)
{
    if (!contents.isNull())
        write(path(), contents);
    m_settings = open(path());
}

QVariantMap TestSettings::stored() const
{
    m_settings->sync();
    QSettings file(path(), QSettings::IniFormat);
    file.setIniCodec("UTF-8");
    file.beginGroup(QStringLiteral("setting"));
    QVariantMap values;
    const QStringList keys = file.allKeys();
    for (const QString &key : keys)
        values[key] = file.value(key);
    return values;
}

QByteArray TestSettings::bytes() const
{
    QFile file(path());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QVariant TestSettings::onDisk(const QString &key) const
{
    // A copy, because Qt shares what is pending among all settings objects of one file.
    const QTemporaryDir folder;
    const QString copy = folder.filePath(QStringLiteral("copy.ini"));
    write(copy, bytes());
    return open(copy)->value(fullKey(key));
}

void TestSettings::reopen()
{
    m_settings.reset();
    m_settings = open(path());
}
