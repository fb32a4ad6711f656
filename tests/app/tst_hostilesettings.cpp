#include "drawcontainer.h"
#include "mainwindowrig.h"
#include "permissions.h"
#include "rows.h"
#include "startinspection.h"

#include <QDir>
#include <QFile>
#include <QSettings>
#include <QSpinBox>
#include <QtTest>

#include <random>

namespace {

constexpr quint32 seed = 20260517;

// Bytes of every value, the same in every run.
QByteArray garbage(int size)
{
    std::mt19937 random(seed);
    QByteArray bytes(size, '\0');
    for (char &byte : bytes)
        byte = static_cast<char>(random() & 0xff);
    return bytes;
}

// Whatever stands there: a file, a link or a folder.
void removeAll(const QString &path)
{
    if (!QFile::remove(path))
        QDir(path).removeRecursively();
}

void writeFile(const QByteArray &content)
{
    QFile file(MainWindowRig::settingsPath());
    QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    QCOMPARE(file.write(content), qint64(content.size()));
}

QByteArray readFile()
{
    QFile file(MainWindowRig::settingsPath());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void moveTo(MainWindow &window, int x)
{
    window.findChild<QSpinBox *>(QStringLiteral("spinBoxX"))->setValue(x);
}

} // namespace

// The program's start with a settings file that nobody would write.
class TestHostileSettings : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void strangeFile_startsWithDefaults_data();
    void strangeFile_startsWithDefaults();
    void readOnlyFileInAReadOnlyFolder_isReadAndLeftAlone();
    void readOnlyFolder_losesNothingButTheSaving();
    void unwritablePlace_losesNothingButTheSaving_data();
    void unwritablePlace_losesNothingButTheSaving();
    void longFile_startsWithItsValues();
};

void TestHostileSettings::init()
{
    removeAll(MainWindowRig::settingsPath());
    // What could not be saved is still waiting for its file.
    QSettings settings(MainWindowRig::settingsPath(), QSettings::IniFormat);
    settings.clear();
    settings.sync();
    removeAll(MainWindowRig::settingsPath());
}

void TestHostileSettings::cleanup()
{
    // A failure leaves the file behind, to be looked at.
    if (!QTest::currentTestFailed())
        init();
}

void TestHostileSettings::strangeFile_startsWithDefaults_data()
{
    const Table<bool, QByteArray> row("exists", "content");
    row("missing", false, QByteArray());
    row("empty", true, QByteArray());
    row("zeros", true, QByteArray(4096, '\0'));
    row("megabytes of garbage", true, garbage(4 << 20));
    row("a line of megabytes", true, QByteArray(4 << 20, 'x'));
    row("megabytes of sections", true, QByteArray("[a]\n").repeated(1 << 20));
    row("a section that does not end", true, "[setting");
    row("half a character", true, "[setting]\ncurrentTabIndex=\xe5\xae");
}

void TestHostileSettings::strangeFile_startsWithDefaults()
{
    QFETCH(bool, exists);
    QFETCH(QByteArray, content);
    if (exists)
        writeFile(content);

    MainWindow window;
    stepThrough(window);

    QCOMPARE(problemOf(window), QString());
    QCOMPARE(MainWindowRig::testWindow()->geometry(), QRect(0, 0, 256, 256));
    QVERIFY(MainWindowRig::testWindow()->isVisible());
}

void TestHostileSettings::readOnlyFileInAReadOnlyFolder_isReadAndLeftAlone()
{
    const QByteArray content("[setting]\ntestWindowPointX=33\n");
    writeFile(content);
    const ReadOnly file(MainWindowRig::settingsPath(), {});
    const ReadOnly folder(QCoreApplication::applicationDirPath(), QFileDevice::ExeOwner);
    const OrdinaryRights rights;
    QVERIFY(!QFile(MainWindowRig::settingsPath()).open(QIODevice::ReadWrite));
    {
        MainWindow window;
        QCOMPARE(problemOf(window), QString());
        QCOMPARE(MainWindowRig::testWindow()->x(), 33);

        moveTo(window, 44);
        QCOMPARE(MainWindowRig::testWindow()->x(), 44);
        window.saveSettings();
        stepThrough(window);
    }
    QCOMPARE(readFile(), content);
}

// The folder alone: there is no file, and none can be made.
void TestHostileSettings::readOnlyFolder_losesNothingButTheSaving()
{
    const ReadOnly folder(QCoreApplication::applicationDirPath(), QFileDevice::ExeOwner);
    const OrdinaryRights rights;
    MainWindow window;
    QCOMPARE(problemOf(window), QString());

    moveTo(window, 44);
    window.saveSettings();
    stepThrough(window);
    QCOMPARE(MainWindowRig::testWindow()->geometry(), QRect(44, 0, 256, 256));
    QVERIFY(!QFile::exists(MainWindowRig::settingsPath()));
}

void TestHostileSettings::unwritablePlace_losesNothingButTheSaving_data()
{
    QTest::addColumn<QString>("target"); // of a link; none for a folder

    QTest::newRow("a folder") << QString();
    QTest::newRow("a dangling link") << QStringLiteral("/nowhere/config.ini");
    QTest::newRow("a link into a file") << QStringLiteral("/dev/null/config.ini");
    QTest::newRow("a link to itself") << MainWindowRig::settingsPath();
}

void TestHostileSettings::unwritablePlace_losesNothingButTheSaving()
{
    QFETCH(QString, target);
    const QString path = MainWindowRig::settingsPath();
    if (target.isEmpty())
        QVERIFY(QDir().mkpath(path + QStringLiteral("/occupied")));
    else
        QVERIFY(QFile::link(target, path));

    MainWindow window;
    QCOMPARE(problemOf(window), QString());
    QCOMPARE(MainWindowRig::testWindow()->geometry(), QRect(0, 0, 256, 256));

    moveTo(window, 44);
    window.saveSettings();
    stepThrough(window);
    QCOMPARE(problemOf(window), QString());
    QCOMPARE(MainWindowRig::testWindow()->geometry(), QRect(44, 0, 256, 256));
}

void TestHostileSettings::longFile_startsWithItsValues()
{
    QByteArray content("[setting]\n");
    for (int line = 0; line < 100000; ++line)
        content += "filler" + QByteArray::number(line) + "=0123456789012345678901234567890\n";
    content += "testWindowPointX=33\n";
    QVERIFY(content.size() > 4 << 20);
    writeFile(content);

    const MainWindow window;

    QCOMPARE(MainWindowRig::testWindow()->geometry(), QRect(33, 0, 256, 256));
}

QTEST_MAIN(TestHostileSettings)
#include "tst_hostilesettings.moc"
