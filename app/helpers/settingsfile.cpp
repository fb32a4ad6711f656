#include "settingsfile.h"

#include <QByteArray>
#include <QFile>
#include <QFileInfo>
#include <QList>
#include <QRegularExpression>
#include <QSaveFile>
#include <QSettings>
#include <QTemporaryDir>

#include <algorithm>
#include <cctype>
#include <cstring>
#include <memory>

namespace {

bool isHexDigit(char character)
{
    return std::isxdigit(static_cast<unsigned char>(character)) != 0;
}

bool isOctalDigit(char character)
{
    return character >= '0' && character <= '7';
}

int digitValue(char digit)
{
    const int letter = std::tolower(static_cast<unsigned char>(digit));
    return letter < 'a' ? letter - '0' : letter - 'a' + 10;
}

// One character of INI text as its reader takes it: plain, or an escape.
struct Character
{
    int value; // below 0 when nothing comes of it
    int end; // of it, in the text
    bool isEscaped;
};

Character characterAt(const QByteArray &text, int at)
{
    if (text.at(at) != '\\')
        return {static_cast<uchar>(text.at(at)), at + 1, false};
    const bool isHex = text.mid(at + 1, 1) == "x";
    const int start = isHex ? at + 2 : at + 1;
    int end = start;
    quint16 number = 0; // the reader keeps the lowest 16 bits of a number of any length
    while (end < text.size() && (isHex ? isHexDigit : isOctalDigit)(text.at(end)))
        number = static_cast<quint16>(number * (isHex ? 16 : 8) + digitValue(text.at(end++)));
    if (end > start)
        return {number, end, true};
    static const QByteArray codes = QByteArrayLiteral("abfnrtv\"?'\\");
    static const QByteArray meanings = QByteArrayLiteral("\a\b\f\n\r\t\v\"?'\\");
    const int code = isHex || start == text.size() ? -1 : codes.indexOf(text.at(start));
    return {code < 0 ? -1 : meanings.at(code), qMin(start + (isHex ? 0 : 1), text.size()), true};
}

// The one serialized value that the program writes: the type's number, the kind of the colour,
// and five 16-bit channels.
bool isColor(const QByteArray &bytes)
{
    static const QByteArray type("\0\0\0\x43", 4);
    constexpr int colorKinds = 6;
    return bytes.startsWith(type) && bytes.size() == type.size() + 1 + 5 * 2
           && static_cast<uchar>(bytes.at(type.size())) < colorKinds;
}

// Whether the line is a key with the value of a colour and nothing else, spelled as Qt spells it.
bool isColorLine(const QByteArray &line)
{
    static const QRegularExpression form(QStringLiteral(
        R"re(^[ \t]*[\w%.-]+[ \t]*=[ \t]*("?)@Variant\(((?:[ !#-\[\]-~]|\\[ -~])*)\)\1[ \t]*\r?$)re"));
    const QRegularExpressionMatch match = form.match(QString::fromLatin1(line));
    if (!match.hasMatch())
        return false;
    const QByteArray spelled = match.captured(2).toLatin1();
    const bool isQuoted = !match.captured(1).isEmpty();
    QByteArray bytes;
    for (int at = 0; at < spelled.size();) {
        const Character character = characterAt(spelled, at);
        const bool isSeparator = !character.isEscaped && std::strchr(",;", character.value);
        if (character.value < 0 || character.value > 0xff || (isSeparator && !isQuoted))
            return false;
        bytes += static_cast<char>(character.value);
        at = character.end;
    }
    return isColor(bytes);
}

// Whether the line may begin a serialized value: "@Variant(" or "@DateTime(". What the reader
// leaves out in between, such as quotes, is not looked into.
bool hasSerialized(const QByteArray &line)
{
    for (int at = 0; at < line.size();) {
        const Character character = characterAt(line, at);
        at = character.end;
        if (character.value != '@')
            continue;
        const char next = at < line.size() ? line.at(at) : '\0';
        const bool isOrdinary = next > ' ' && next < '\x7f' && !std::strchr("\"\\,;VD", next);
        if (!isOrdinary)
            return true;
    }
    return false;
}

// Whether the line ends where it seems to: no quotes and no backslash reach over its end.
bool isComplete(const QByteArray &line)
{
    bool isQuoted = false;
    for (int at = 0; at < line.size(); ++at) {
        const char character = line.at(at);
        if (character == '\\')
            ++at;
        else if (character == '"')
            isQuoted = !isQuoted;
        else if (character == '\r' && at != line.size() - 1)
            return false;
        if (at >= line.size() || (character == '\\' && line.at(at) == '\r'))
            return false;
    }
    return !isQuoted;
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

QByteArray SettingsFile::withoutSerialized(const QByteArray &text)
{
    if (!hasSerialized(text))
        return text;
    QByteArray kept;
    const QList<QByteArray> lines = text.split('\n');
    for (const QByteArray &line : lines) {
        if (isColorLine(line) || (isComplete(line) && !hasSerialized(line)))
            kept += line + '\n';
    }
    kept.chop(1); // after the last line there was none
    return kept;
}

QSettings *SettingsFile::open(const QString &path, QObject *parent)
{
    const QByteArray text = read(path);
    const QByteArray safe = withoutSerialized(text);
    if (isPassable(path) && (safe == text || write(path, safe)))
        return openIni(path, parent);

    const auto place = std::make_shared<QTemporaryDir>();
    // Below a file nothing can be read or written.
    const QString copy = place->isValid() ? place->filePath(QStringLiteral("config.ini"))
                                          : path + QStringLiteral("/none");
    write(copy, safe);
    QSettings *settings = openIni(copy, parent);
    // The settings save once more when they end.
    QObject::connect(settings, &QObject::destroyed, [place] { place->remove(); });
    return settings;
}
