#include "rows.h"
#include "settingsfile.h"

#include <QColor>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QLockFile>
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

// Reading and writing the settings file, whatever stands in its place.
class TestSettingsFile : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_place = std::make_unique<QTemporaryDir>(); }

    void harmlessLines_takesOutWhatQtWouldTrust_data();
    void harmlessLines_takesOutWhatQtWouldTrust();
    void harmlessLines_leavesTheRestAsItIs_data();
    void harmlessLines_leavesTheRestAsItIs();
    void values_areReadAsTheyWereWritten();
    void values_areReadWithoutTheHarmfulOnes();
    void values_needNoTemporaryFolder();
    void write_takesHarmfulValuesOut();
    void write_leavesWhatElseIsThere();
    void write_waitsForNoLockOfThisProgram_data();
    void write_waitsForNoLockOfThisProgram();
    void whereReadingOrSavingWouldWait_nothingIsSaved_data();
    void whereReadingOrSavingWouldWait_nothingIsSaved();
    void fileThatIsTooLarge_isNeitherReadNorWritten();

private:
    QString path() const { return m_place->filePath(QStringLiteral("config.ini")); }
    void write(const QByteArray &text);
    QByteArray read() const;

    std::unique_ptr<QTemporaryDir> m_place;
};

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
void TestSettingsFile::values_areReadAsTheyWereWritten()
{
    QVariantMap written{{QStringLiteral("setting/text"), QStringLiteral("宽度, =")},
                        {QStringLiteral("setting/number"), QStringLiteral("-12")}};
    constexpr int kinds = QColor::ExtendedRgb + 1;
    for (int number = 0; number < 256 * kinds; ++number) {
        const QColor color(number % 256, 255 - number % 256, number * 7 % 256, number * 3 % 256);
        written.insert(QStringLiteral("setting/color%1").arg(number),
                       color.convertTo(QColor::Spec(number % kinds)));
    }
    QVERIFY(SettingsFile::write(path(), written));
    QVERIFY(read().contains("@Variant("));
    QCOMPARE(SettingsFile::harmlessLines(read()), read());
    QCOMPARE(SettingsFile::values(path()), written);
}

void TestSettingsFile::values_areReadWithoutTheHarmfulOnes()
{
    const QByteArray text = "[setting]\nx=12\nbad=" + pen + "\ncolor=" + color + '\n';
    write(text);
    const QVariantMap values = SettingsFile::values(path());
    QCOMPARE(values.keys(),
             QStringList({QStringLiteral("setting/color"), QStringLiteral("setting/x")}));
    QCOMPARE(values.value(QStringLiteral("setting/x")).toInt(), 12);
    QCOMPARE(values.value(QStringLiteral("setting/color")).value<QColor>(),
             QColor::fromRgba64(0x1212, 0, 0xffff));
    QCOMPARE(read(), text);
}

void TestSettingsFile::values_needNoTemporaryFolder()
{
#ifdef Q_OS_UNIX
    write("[setting]\nx=12\nbad=" + pen + '\n');
    const QByteArray before = qgetenv("TMPDIR");
    qputenv("TMPDIR", QFile::encodeName(path())); // which is no folder
    const QVariantMap values = SettingsFile::values(path());
    qputenv("TMPDIR", before);
    QCOMPARE(values, QVariantMap({{QStringLiteral("setting/x"), QStringLiteral("12")}}));
#else
    QSKIP("The folder has another name.");
#endif
}

void TestSettingsFile::write_takesHarmfulValuesOut()
{
    write("[setting]\nbad=@Variant(" + QByteArray(R"(\0\0\0\x9\0\0\0\x1)").repeated(100000)
          + ")\n");
    QVERIFY(SettingsFile::write(path(), {{QStringLiteral("setting/x"), 12}}));
    QCOMPARE(read(), QByteArray("[setting]\nx=12\n"));
}

void TestSettingsFile::write_leavesWhatElseIsThere()
{
    write("[setting]\nx=11\ny=1\n");
    QVERIFY(SettingsFile::write(path(), {{QStringLiteral("setting/x"), 12}}));
    QCOMPARE(read(), QByteArray("[setting]\nx=12\ny=1\n"));
}

void TestSettingsFile::write_waitsForNoLockOfThisProgram_data()
{
    addRows<bool>("isNamed", {{"of this program", true}, {"of nobody", false}});
}

void TestSettingsFile::write_waitsForNoLockOfThisProgram()
{
    QFETCH(bool, isNamed);
    const QString path = this->path() + QStringLiteral(".lock");
    QLockFile lock(path);
    QVERIFY(lock.lock());
    if (!isNamed)
        QVERIFY(QFile::resize(path, 0));
    QElapsedTimer elapsed;
    elapsed.start();
    QVERIFY(SettingsFile::write(this->path(), {{QStringLiteral("setting/x"), 12}}));
    QVERIFY2(elapsed.elapsed() < 5000, qPrintable(QString::number(elapsed.elapsed())));
    QCOMPARE(read(), QByteArray("[setting]\nx=12\n"));
}

void TestSettingsFile::whereReadingOrSavingWouldWait_nothingIsSaved_data()
{
    addRows<bool>("isPipe",
                  {{"a pipe in the file's place", true}, {"a folder in the lock's place", false}});
}

void TestSettingsFile::whereReadingOrSavingWouldWait_nothingIsSaved()
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
    const QString key = QStringLiteral("setting/x");
    QCOMPARE(SettingsFile::values(path()).value(key).toInt(), isPipe ? 0 : 12);
    QVERIFY(!SettingsFile::write(path(), {{key, 13}}));
    if (!isPipe)
        QCOMPARE(read(), text);
}

void TestSettingsFile::fileThatIsTooLarge_isNeitherReadNorWritten()
{
    write("[setting]\nx=12\n");
    QFile file(path());
    QVERIFY(file.resize(SettingsFile::maximumSize + 1));

    QVERIFY(SettingsFile::values(path()).isEmpty());
    QVERIFY(!SettingsFile::write(path(), {{QStringLiteral("setting/x"), 13}}));
    QCOMPARE(file.size(), SettingsFile::maximumSize + 1);
}

QTEST_GUILESS_MAIN(TestSettingsFile)
#include "tst_settingsfile.moc"
