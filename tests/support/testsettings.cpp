#include "testsettings.h"

namespace {

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
    m_settings->sync();
}

QVariantMap TestSettings::stored()
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

void TestSettings::reopen()
{
    m_settings.reset();
    m_settings = open(path());
}
