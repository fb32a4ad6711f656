#pragma once

#include <QtGlobal>

class QByteArray;
class QObject;
class QSettings;
class QString;

// The settings file on the disk, which may hold anything when it is opened.
namespace SettingsFile {

// The largest file that is read, in bytes; settings need a few kilobytes.
constexpr qint64 maximumSize = 64 << 20;

// The INI text without the lines that hold a serialized value ("@Variant(...)"), except those
// of a colour: Qt trusts the lengths and depths in them, and one bad byte ends the program.
// Lines that reach into the next one go with them, since the reader would join what is left.
// Text without any such value comes back as it is.
QByteArray withoutSerialized(const QByteArray &text);

// Opens the file in INI format and UTF-8, whatever stands in its place; the caller owns the
// settings, or `parent` does. What the reader would not survive is taken out on the disk first.
// Where that cannot be done, or where reading or saving would wait for ever, a copy is opened
// that ends with the settings: nothing is lost but the saving.
QSettings *open(const QString &path, QObject *parent);

} // namespace SettingsFile
