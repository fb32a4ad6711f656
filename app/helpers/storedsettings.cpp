#include "storedsettings.h"

#include "settingsfile.h"

#include <QCoreApplication>
#include <QEvent>
#include <QUuid>

namespace {

// Among the compiled-in resources, where nothing can be written, and no disk is asked.
QString nowhere()
{
    return QStringLiteral(":/") + QUuid::createUuid().toString();
}

} // namespace

// Qt's own saving would hold the windows up, and reads what another program has left there.
StoredSettings::StoredSettings(const QVariantMap &values, const QString &path, QObject *parent)
    : QSettings(nowhere(), QSettings::IniFormat, parent)
{
    for (auto value = values.cbegin(); value != values.cend(); ++value)
        setValue(value.key(), value.value());
    QCoreApplication::sendPostedEvents(this, QEvent::UpdateRequest);
    m_isDue = false;
    m_writer.path = path;
    m_retry.setSingleShot(true);
    m_retry.setInterval(retryMs);
    connect(&m_retry, &QTimer::timeout, this, &StoredSettings::write);
    connect(&m_writer, &QThread::finished, this, &StoredSettings::goOn);
}

StoredSettings::~StoredSettings()
{
    save();
}

void StoredSettings::save()
{
    QCoreApplication::sendPostedEvents(this, QEvent::UpdateRequest); // about the last changes
    m_writer.wait();
    if (m_isDue || !m_writer.isDone)
        write();
    m_writer.wait();
}

bool StoredSettings::event(QEvent *event)
{
    if (event->type() == QEvent::UpdateRequest) {
        m_isDue = true;
        write();
    }
    return QSettings::event(event);
}

QVariantMap StoredSettings::values() const
{
    QVariantMap values;
    const QStringList keys = allKeys();
    for (const QString &key : keys)
        values.insert(key, value(key));
    return values;
}

void StoredSettings::write()
{
    if (m_writer.path.isEmpty() || m_writer.isRunning())
        return;
    m_isDue = false;
    m_writer.values = values();
    m_writer.start();
}

void StoredSettings::goOn()
{
    if (m_writer.isRunning()) // again already
        return;
    if (m_isDue)
        write();
    else if (!m_writer.isDone)
        m_retry.start();
}

void StoredSettings::Writer::run()
{
    isDone = SettingsFile::write(path, values);
}
