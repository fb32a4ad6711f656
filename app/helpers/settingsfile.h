#pragma once

#include <QtGlobal>

class QByteArray;
class QObject;
class QSettings;
class QString;

// The settings file on the disk, which may hold anything when it is opened.
namespace SettingsFile {

// The largest file that is read, in bytes; settings need a few kilobytes.
constexpr qint64 maximumSize = 8 << 20;

// The lines of the INI text that the reader survives. Those with a serialized value
// ("@Variant(...)") go, except colours: Qt trusts the lengths and depths in them, and one bad
// byte ends the program. So do those with an escape or open quotes, which may hide such a value
// or join a line with the next; the program writes none.
QByteArray harmlessLines(const QByteArray &text);

// Opens the file in INI format and UTF-8, whatever stands in its place; the caller owns the
// settings, or `parent` does. What the reader would not survive is taken out on the disk first.
// Where that cannot be done, or where reading or saving would wait for ever, a copy is opened
// that ends with the settings: nothing is lost but the saving.
QSettings *open(const QString &path, QObject *parent);

// The same with a copy in any case; of nothing where there is no file.
QSettings *openCopy(const QString &path, QObject *parent);

} // namespace SettingsFile
