#include "settingsfile.h"

#include <QByteArray>
#include <QFile>
#include <QFileInfo>
#include <QList>
#include <QRegularExpression>
#include <QSaveFile>
#include <QSettings>
#include <QTemporaryDir>

#include <memory>

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

bool write(const QString &path, const QByteArray &text)
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

QSettings *openIni(const QString &path, QObject *parent)
{
    auto *settings = new QSettings(path, QSettings::IniFormat, parent);
    settings->setIniCodec("UTF-8");
    return settings;
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

QSettings *SettingsFile::open(const QString &path, QObject *parent)
{
    const QByteArray text = read(path);
    const QByteArray safe = harmlessLines(text);
    if (isPassable(path) && (safe == text || write(path, safe)))
        return openIni(path, parent);
    return openCopy(path, parent);
}

QSettings *SettingsFile::openCopy(const QString &path, QObject *parent)
{
    const auto place = std::make_shared<QTemporaryDir>();
    // Below a file nothing can be read or written.
    const QString copy = place->isValid() ? place->filePath(QStringLiteral("config.ini"))
                                          : path + QStringLiteral("/none");
    write(copy, harmlessLines(read(path)));
    QSettings *settings = openIni(copy, parent);
    // The settings save once more when they end.
    QObject::connect(settings, &QObject::destroyed, [place] { place->remove(); });
    return settings;
}
