#include "settingsfile.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QList>
#include <QLockFile>
#include <QRegularExpression>
#include <QSaveFile>
#include <QSettings>
#include <QSysInfo>
#include <QTemporaryFile>

namespace {

// A colour as Qt writes it, the one serialized value of the program: the type's number, the kind
// of the colour, and five channels of two bytes. A comma would begin another value, but for quotes.
QString colorLine()
{
    const QString byte = QStringLiteral(
        R"re((?:\\(?:x[0-9a-f]{1,2}|0)(?![0-9A-Fa-f])|\\[abfnrtv"\\]|[ !#-\[\]-~]))re");
    return QStringLiteral(R"re([\w%.-]+=("|(?!.*[,;]))@Variant\(\\0\\0\\0\\x43\\(?:0|x[1-5]))re")
           + QStringLiteral(R"re((?![0-9A-Fa-f])%1{10}\)\1)re").arg(byte);
}

// No serialized value and no escape, which may hide one, and no quotes that reach into the next.
QString plainLine()
{
    return QStringLiteral(R"re((?:[^@\\"\r]++|"[^@\\"\r]*+")*+)re");
}

QByteArray read(const QString &path)
{
    QFile file(path);
    if (!QFileInfo(path).isFile() || file.size() > SettingsFile::maximumSize
        || !file.open(QIODevice::ReadOnly))
        return {};
    return file.readAll();
}

bool replace(const QString &path, const QByteArray &text)
{
    QSaveFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size() && file.commit();
}

// Whether neither reading nor saving waits for ever: a pipe never ends, and a lock that is no
// file is never given up.
bool isPassable(const QString &path)
{
    const QFileInfo file(path);
    const QFileInfo lock(path + QStringLiteral(".lock"));
    const bool isFile = !file.exists() || file.isFile() || file.isDir();
    return isFile && file.size() <= SettingsFile::maximumSize && (!lock.exists() || lock.isFile());
}

// A disk that was read-only at that moment has kept a lock of ours, or one without a name, and Qt
// would wait half a minute for whoever holds it.
void removeOwnLock(const QString &path)
{
    const QString lock = path + QStringLiteral(".lock");
    qint64 process = 0;
    QString host;
    QString program;
    const bool isNamed = QLockFile(lock).getLockInfo(&process, &host, &program);
    if (!isNamed
        || (process == QCoreApplication::applicationPid() && host == QSysInfo::machineHostName()))
        QFile::remove(lock);
}

QVariantMap parsed(const QString &path)
{
    QSettings file(path, QSettings::IniFormat);
    file.setIniCodec("UTF-8");
    QVariantMap values;
    const QStringList keys = file.allKeys();
    for (const QString &key : keys)
        values.insert(key, file.value(key));
    return values;
}

} // namespace

QByteArray SettingsFile::harmlessLines(const QByteArray &text)
{
    static const QRegularExpression harmless(
        QStringLiteral("^(?:%1|%2)\r?$").arg(colorLine(), plainLine()));
    QByteArray kept;
    const QList<QByteArray> lines = text.split('\n');
    for (const QByteArray &line : lines) {
        if (harmless.match(QLatin1String(line.constData(), line.size())).hasMatch())
            kept += line + '\n';
    }
    kept.chop(1); // after the last line there was none
    return kept;
}

QVariantMap SettingsFile::values(const QString &path)
{
    const QByteArray text = read(path);
    const QByteArray harmless = harmlessLines(text);
    if (harmless == text && isPassable(path))
        return parsed(path);
    QTemporaryFile copy;
    const bool isCopied = copy.open() && copy.write(harmless) == harmless.size() && copy.flush();
    if (isCopied)
        return parsed(copy.fileName());
    return harmless != text && replace(path, harmless) ? parsed(path) : QVariantMap();
}

bool SettingsFile::write(const QString &path, const QVariantMap &values)
{
    const QByteArray text = read(path);
    const QByteArray harmless = harmlessLines(text);
    if (!isPassable(path) || (harmless != text && !replace(path, harmless)))
        return false;
    removeOwnLock(path);
    QSettings file(path, QSettings::IniFormat);
    file.setIniCodec("UTF-8");
    for (auto value = values.cbegin(); value != values.cend(); ++value)
        file.setValue(value.key(), value.value());
    file.sync();
    return file.status() == QSettings::NoError;
}
