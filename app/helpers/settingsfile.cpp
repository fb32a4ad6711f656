#include "settingsfile.h"

#include <QByteArray>
#include <QFile>
#include <QFileInfo>
#include <QList>
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

int digitValue(char digit)
{
    const int letter = std::tolower(static_cast<unsigned char>(digit));
    return letter < 'a' ? letter - '0' : letter - 'a' + 10;
}

bool isOctalDigit(char character)
{
    return character >= '0' && character <= '7';
}

// What the reader makes of the escapes and quotes in INI text. Only what may be part of a
// serialized value's beginning matters here, so characters beyond Latin-1 become a blank.
class Unescaping
{
public:
    // The reader drops byte order marks where a run of characters begins.
    explicit Unescaping(QByteArray text)
        : m_text(text.replace(QByteArrayLiteral("\xef\xbb\xbf"), QByteArray()))
    { }

    QByteArray result()
    {
        m_result.reserve(m_text.size());
        while (m_at < m_text.size()) {
            const char character = m_text.at(m_at++);
            if (character == '\\')
                escape();
            else if (character != '"')
                m_result += character;
        }
        return m_result;
    }

private:
    void escape()
    {
        static constexpr char codes[] = "abfnrtv\"?'\\";
        static constexpr char meanings[] = "\a\b\f\n\r\t\v\"?'\\";
        if (m_at == m_text.size())
            return;
        const char character = m_text.at(m_at);
        if (isOctalDigit(character)) {
            number(8, isOctalDigit);
            return;
        }
        ++m_at;
        if (character == 'x')
            number(16, isHexDigit);
        else if (character == '\n' || character == '\r')
            continueLine(character);
        else if (const char *code = std::strchr(codes, character); code && character)
            m_result += meanings[code - codes];
        // Any other character is dropped with its backslash.
    }

    void continueLine(char lineEnd)
    {
        const char next = m_at < m_text.size() ? m_text.at(m_at) : '\0';
        if (next != lineEnd && (next == '\n' || next == '\r'))
            ++m_at;
    }

    // The reader keeps the lowest 16 bits of a number of any length.
    void number(int base, bool (*isDigit)(char))
    {
        quint16 value = 0;
        const int start = m_at;
        for (; m_at < m_text.size() && isDigit(m_text.at(m_at)); ++m_at) {
            value = static_cast<quint16>(value * base + digitValue(m_text.at(m_at)));
        }
        if (m_at > start)
            m_result += value < 0x100 ? static_cast<char>(value) : ' ';
    }

    const QByteArray m_text;
    int m_at = 0;
    QByteArray m_result;
};

// The beginnings of values that are read by deserializing bytes.
const QByteArray serializedStarts[] = {QByteArrayLiteral("@Variant("),
                                       QByteArrayLiteral("@DateTime(")};

// The one serialized value that the program writes: the type's number, the kind of the
// colour, and five 16-bit channels.
bool isColor(const QByteArray &bytes)
{
    static const QByteArray type("\0\0\0\x43", 4);
    constexpr int colorKinds = 6;
    return bytes.startsWith(type) && bytes.size() == type.size() + 1 + 5 * 2
           && static_cast<uchar>(bytes.at(type.size())) < colorKinds;
}

bool isHarmful(const QByteArray &text)
{
    const QByteArray plain = Unescaping(text).result();
    return std::any_of(std::cbegin(serializedStarts), std::cend(serializedStarts),
                       [&](const QByteArray &start) { return plain.contains(start); });
}

// Whether the line is a key with the value of a colour and nothing else.
bool isColorLine(const QByteArray &line)
{
    const QByteArray &start = serializedStarts[0];
    const QByteArray plain = Unescaping(line.mid(line.indexOf('=') + 1)).result();
    return plain.startsWith(start) && plain.endsWith(')')
           && isColor(plain.mid(start.size(), plain.size() - start.size() - 1));
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
    if (!isHarmful(text))
        return text;
    QByteArray kept;
    QByteArray keptButColors;
    const QList<QByteArray> lines = text.split('\n');
    for (const QByteArray &line : lines) {
        const bool isColor = isColorLine(line);
        if (!isColor && isHarmful(line))
            continue;
        kept += line + '\n';
        if (!isColor)
            keptButColors += line + '\n';
    }
    kept.chop(1);
    return isHarmful(keptButColors) ? QByteArray() : kept;
}

QSettings *SettingsFile::open(const QString &path, QObject *parent)
{
    const QByteArray text = read(path);
    const QByteArray safe = withoutSerialized(text);
    if (isPassable(path) && (safe == text || write(path, safe)))
        return openIni(path, parent);

    const auto place = std::make_shared<QTemporaryDir>();
    const QString copy = place->filePath(QStringLiteral("config.ini"));
    write(copy, safe);
    QSettings *settings = openIni(copy, parent);
    // The settings save once more when they end.
    QObject::connect(settings, &QObject::destroyed, [place] { place->remove(); });
    return settings;
}
