#include "rows.h"
#include "settingsfile.h"

#include <QColor>
#include <QDir>
#include <QFile>
#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

namespace {

const QByteArray pen("@Variant(\\0\\0\\0M\\x1\\0\\0\\0)");
const QByteArray color("@Variant(\\0\\0\\0\\x43\\x1\\xff\\xff\\x12\\x12\\0\\0\\xff\\xff\\0\\0)");

} // namespace

// Opening the settings file, whatever stands in its place.
class TestSettingsFile : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void harmlessLines_takesOutWhatQtWouldTrust_data();
    void harmlessLines_takesOutWhatQtWouldTrust();
    void harmlessLines_leavesTheRestAsItIs_data();
    void harmlessLines_leavesTheRestAsItIs();
    void open_readsWhatTheProgramWrote();
    void open_takesHarmfulValuesOutOnTheDisk();
    void open_whereSavingWouldWait_readsAndSavesNothing_data();
    void open_whereSavingWouldWait_readsAndSavesNothing();
    void open_aCopyEndsWithTheSettings();
    void open_aFileTooLarge_startsEmpty();

private:
    QString path() const { return m_place->filePath(QStringLiteral("config.ini")); }
    void write(const QByteArray &text);
    QByteArray read() const;

    std::unique_ptr<QTemporaryDir> m_place;
};

void TestSettingsFile::init()
{
    m_place = std::make_unique<QTemporaryDir>();
}

void TestSettingsFile::write(const QByteArray &text)
{
    QFile file(path());
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(text), qint64(text.size()));
}

QByteArray TestSettingsFile::read() const
{
    QFile file(path());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void TestSettingsFile::harmlessLines_takesOutWhatQtWouldTrust_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QByteArray>("expected");

    const auto row = [](const char *name, const QByteArray &value) {
        QTest::newRow(name) << "[setting]\na=1\nb=" + value + "\nc=2\n"
                            << QByteArray("[setting]\na=1\nc=2\n");
    };
    row("pen", pen);
    row("date", "@DateTime(\\0\\0)");
    row("colour that is cut off", color.left(40) + ')');
    row("colour with more behind it", color.left(color.size() - 1) + "\\0)");
    row("colour of no kind", QByteArray(color).replace("\\x43\\x1", "\\x43\\x7"));
    row("colour with a number of many digits", QByteArray(color).replace("\\x12", "\\x112"));
    row("colours in a list", color + ", " + color);
    row("behind a colour and a zero", color + QByteArray(1, '\0') + ", " + pen);
    row("in a list", "1, " + pen);
    row("in quotes", "\"@Variant(\\0)\"");
    row("sign by its number", "\\x40Variant()");
    row("before a colour, continued", "\\\n@Variant(\\0\\0\\0\\x9\\x7f);=" + color);
    row("before a colour and a carriage return", "\\\n@Variant(\\0\\0\\0\\x9\\x7f)\rb=" + color);
    row("in quotes that stay open", "\"a\n@Variant(\\0)\"");
    QTest::newRow("a line before it goes on")
        << QByteArray("a=1\\\nb=2\nc=" + pen + "\nd=\"3\ne=4") << QByteArray("b=2\ne=4");
}

void TestSettingsFile::harmlessLines_takesOutWhatQtWouldTrust()
{
    QFETCH(QByteArray, text);
    QTEST(SettingsFile::harmlessLines(text), "expected");
}

void TestSettingsFile::harmlessLines_leavesTheRestAsItIs_data()
{
    const Table<QByteArray> row("text");
    row("empty", QByteArray());
    row("numbers", "[setting]\na=1\nb=-2");
    row("colours", "[setting]\na=" + color + "\nb=" + color + '\n');
    row("quoted colour", "[setting]\na=\"" + color + "\"\n");
    row("quoted number", "a=\"1\"\nb=\"\"");
    row("lines of another system", "[setting]\r\na=1\r\nb=" + color + "\r\nc=2\r\n");
    row("zeros", QByteArray(100, '\0'));
}

void TestSettingsFile::harmlessLines_leavesTheRestAsItIs()
{
    QFETCH(QByteArray, text);
    QCOMPARE(SettingsFile::harmlessLines(text), text);
}

// Every colour that Qt can write, in Qt's own words.
void TestSettingsFile::open_readsWhatTheProgramWrote()
{
    QVariantMap written{{QStringLiteral("setting/text"), QStringLiteral("宽度, =")},
                        {QStringLiteral("setting/number"), QStringLiteral("-12")}};
    constexpr int kinds = QColor::ExtendedRgb + 1;
    for (int number = 0; number < 256 * kinds; ++number) {
        const QColor color(number % 256, 255 - number % 256, number * 7 % 256, number * 3 % 256);
        written.insert(QStringLiteral("setting/color%1").arg(number),
                       color.convertTo(QColor::Spec(number % kinds)));
    }
    {
        const std::unique_ptr<QSettings> settings(SettingsFile::open(path(), nullptr));
        for (auto value = written.cbegin(); value != written.cend(); ++value)
            settings->setValue(value.key(), value.value());
    }
    const QByteArray text = read();
    QVERIFY(text.contains("@Variant("));

    const std::unique_ptr<QSettings> settings(SettingsFile::open(path(), nullptr));
    QCOMPARE(settings->allKeys().count(), written.count());
    for (auto value = written.cbegin(); value != written.cend(); ++value)
        QCOMPARE(settings->value(value.key()), value.value());
    QCOMPARE(read(), text);
}

void TestSettingsFile::open_takesHarmfulValuesOutOnTheDisk()
{
    write("[setting]\nx=12\nbad=" + pen + "\ncolor=" + color + '\n');
    const std::unique_ptr<QSettings> settings(SettingsFile::open(path(), nullptr));

    QCOMPARE(settings->fileName(), path());
    QCOMPARE(read(), "[setting]\nx=12\ncolor=" + color + '\n');
    QCOMPARE(settings->value(QStringLiteral("setting/x")).toInt(), 12);
    QCOMPARE(settings->value(QStringLiteral("setting/color")).value<QColor>(),
             QColor::fromRgba64(0x1212, 0, 0xffff));
}

void TestSettingsFile::open_whereSavingWouldWait_readsAndSavesNothing_data()
{
    addRows<bool>("isPipe",
                  {{"a pipe in the file's place", true}, {"a folder in the lock's place", false}});
}

void TestSettingsFile::open_whereSavingWouldWait_readsAndSavesNothing()
{
    QFETCH(bool, isPipe);
    const QByteArray text("[setting]\nx=12\n");
    if (isPipe) {
#ifdef Q_OS_UNIX
        QCOMPARE(mkfifo(QFile::encodeName(path()).constData(), 0600), 0);
#else
        QSKIP("There are no pipes in folders here.");
#endif
    } else {
        write(text);
        QVERIFY(QDir().mkdir(path() + QStringLiteral(".lock")));
    }
    const std::unique_ptr<QSettings> settings(SettingsFile::open(path(), nullptr));

    QCOMPARE(settings->value(QStringLiteral("setting/x")).toInt(), isPipe ? 0 : 12);
    settings->setValue(QStringLiteral("setting/x"), 13);
    settings->sync();
    QCOMPARE(settings->value(QStringLiteral("setting/x")).toInt(), 13);
    if (!isPipe)
        QCOMPARE(read(), text);
}

void TestSettingsFile::open_aCopyEndsWithTheSettings()
{
    QVERIFY(QDir().mkdir(path() + QStringLiteral(".lock")));
    std::unique_ptr<QSettings> settings(SettingsFile::open(path(), nullptr));
    settings->setValue(QStringLiteral("setting/x"), 13);
    const QString folder = QFileInfo(settings->fileName()).path();
    QVERIFY(folder != m_place->path());
    QVERIFY(QDir(folder).exists());

    settings.reset();

    QVERIFY(!QDir(folder).exists());
}

void TestSettingsFile::open_aFileTooLarge_startsEmpty()
{
    write("[setting]\nx=12\n");
    QFile file(path());
    QVERIFY(file.resize(SettingsFile::maximumSize + 1));

    const std::unique_ptr<QSettings> settings(SettingsFile::open(path(), nullptr));

    QVERIFY(settings->allKeys().isEmpty());
    QCOMPARE(file.size(), SettingsFile::maximumSize + 1);
}

QTEST_GUILESS_MAIN(TestSettingsFile)
#include "tst_settingsfile.moc"
