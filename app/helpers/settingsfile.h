#pragma once

#include <QVariantMap>

class QByteArray;
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

// The values of the file in INI format and UTF-8, whatever stands in its place; without those that
// the reader would not survive, which are taken out of the file only where there is no room for a
// copy of it, and none where reading would wait for ever.
QVariantMap values(const QString &path);

// Writes them into the file in one step, beside what else is in it; what the reader would not
// survive is taken out in a step before. False where that cannot be done, or would wait for ever.
bool write(const QString &path, const QVariantMap &values);

} // namespace SettingsFile
