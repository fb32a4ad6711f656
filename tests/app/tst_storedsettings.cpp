#include "settingsfile.h"
#include "storedsettings.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

namespace {

const QString keyX = QStringLiteral("setting/x");
const QString keyY = QStringLiteral("setting/y");

} // namespace

// Settings that live in memory, and the file that follows them.
class TestStoredSettings : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_place = std::make_unique<QTemporaryDir>(); }

    void values_areThereAndWriteNothing();
    void change_isWrittenByItself();
    void everyChangeUntilTheEnd_isWritten();
    void save_returnsWhenEverythingIsWritten();
    void fileThatTakesNothing_getsAllOnceItDoes();
    void whatIsWritten_isNotWrittenAgain();
    void fileOfAnotherProgram_getsAllAgain_data();
    void fileOfAnotherProgram_getsAllAgain();
    void settingsWithoutAFile_writeNothing();
    void settingsOfOneFile_shareNoValues();
    void programThatIsTakenAway_getsNothingInItsPlace();

private:
    QString path() const { return m_place->filePath(QStringLiteral("config.ini")); }
    void failOnce(StoredSettings &settings, const QString &file);
    QVariantMap stored() const { return SettingsFile::values(path()); }

    std::unique_ptr<QTemporaryDir> m_place;
};

void TestStoredSettings::values_areThereAndWriteNothing()
{
    {
        const StoredSettings settings({{keyX, 1}}, path());
        QCOMPARE(settings.value(QLatin1Char('/') + keyX).toInt(), 1);
        QCoreApplication::processEvents();
    }
    QVERIFY(QDir(m_place->path()).isEmpty());
}

void TestStoredSettings::change_isWrittenByItself()
{
    StoredSettings settings({{keyX, 1}, {keyY, 1}}, path());
    for (const int value : {2, 3}) {
        settings.setValue(keyX, value);
        QTRY_COMPARE(stored().value(keyX).toInt(), value);
        QCOMPARE(stored().value(keyY).toInt(), 1);
    }
}

void TestStoredSettings::everyChangeUntilTheEnd_isWritten()
{
    constexpr int last = 200;
    {
        StoredSettings settings({}, path());
        for (int value = 0; value <= last; ++value) {
            settings.setValue(keyX, value);
            QCoreApplication::processEvents(); // so that some are written, and some on their way
        }
        QTRY_COMPARE(stored().value(keyX).toInt(), last);
        settings.setValue(keyY, last);
    }
    QCOMPARE(stored().value(keyY).toInt(), last);
    QCOMPARE(stored().value(keyX).toInt(), last);
}

void TestStoredSettings::save_returnsWhenEverythingIsWritten()
{
    StoredSettings settings({}, path());
    settings.setValue(keyX, 1);
    settings.save();
    QCOMPARE(stored().value(keyX).toInt(), 1);
    settings.setValue(keyX, 2);
    QCoreApplication::processEvents();
    settings.setValue(keyX, 3);
    settings.save();
    QCOMPARE(stored().value(keyX).toInt(), 3);
}

// A folder is in the place of the file while the settings are saved.
void TestStoredSettings::failOnce(StoredSettings &settings, const QString &file)
{
    QVERIFY(QDir().mkdir(file));
    settings.setValue(keyX, 2);
    settings.save();
    QVERIFY(SettingsFile::values(file).isEmpty());
    QVERIFY(QDir().rmdir(file));
}

void TestStoredSettings::fileThatTakesNothing_getsAllOnceItDoes()
{
    StoredSettings settings({{keyY, 1}}, path());
    failOnce(settings, path());
    QTRY_COMPARE(stored().value(keyX).toInt(), 2);
    QCOMPARE(stored().value(keyY).toInt(), 1);

    QVERIFY(QFile::remove(path())); // a further try would bring it back, before another's first
    const QString another = m_place->filePath(QStringLiteral("another.ini"));
    StoredSettings later({}, another);
    failOnce(later, another);
    QTRY_COMPARE(SettingsFile::values(another).value(keyX).toInt(), 2);
    QVERIFY(stored().isEmpty());
}

void TestStoredSettings::whatIsWritten_isNotWrittenAgain()
{
    StoredSettings settings({}, path());
    settings.setValue(keyX, 1);
    QTRY_COMPARE(stored().value(keyX).toInt(), 1);
    QVERIFY(QFile::remove(path()));

    const QString another = m_place->filePath(QStringLiteral("another.ini"));
    StoredSettings later({}, another);
    later.setValue(keyX, 1);
    QTRY_COMPARE(SettingsFile::values(another).value(keyX).toInt(), 1);
    QVERIFY(stored().isEmpty());
}

void TestStoredSettings::fileOfAnotherProgram_getsAllAgain_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("none") << QByteArray();
    QTest::newRow("another") << QByteArray("[setting]\nx=7\nz=7\n");
    QTest::newRow("no settings") << QByteArray("\x7f"
                                               "ELF\0\xff=\n[",
                                               9);
}

void TestStoredSettings::fileOfAnotherProgram_getsAllAgain()
{
    QFETCH(const QByteArray, content);
    StoredSettings settings({{keyX, 1}, {keyY, 1}}, path());
    settings.setValue(keyX, 2);
    settings.save();
    QFile file(path());
    if (content.isNull())
        QVERIFY(file.remove());
    else
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
    file.close();
    settings.setValue(keyY, 2);
    QTRY_COMPARE(stored().value(keyY).toInt(), 2);
    QCOMPARE(stored().value(keyX).toInt(), 2);
}

void TestStoredSettings::settingsWithoutAFile_writeNothing()
{
    const QStringList files = QDir().entryList();
    StoredSettings settings({{keyX, 1}});
    settings.setValue(keyX, 2);
    settings.save();
    QCOMPARE(settings.value(keyX).toInt(), 2);
    QCOMPARE(QDir().entryList(), files);
}

void TestStoredSettings::settingsOfOneFile_shareNoValues()
{
    StoredSettings first({}, path());
    const StoredSettings second({{keyY, 2}}, path());
    first.setValue(keyX, 1);
    QVERIFY(!second.contains(keyX));
    QVERIFY(!first.contains(keyY));
}

// As an update does while the program runs.
void TestStoredSettings::programThatIsTakenAway_getsNothingInItsPlace()
{
    const QString program = QCoreApplication::applicationFilePath();
    const QString away = program + QStringLiteral(".away");
    StoredSettings settings({}, path());
    QVERIFY(QFile::rename(program, away));
    settings.setValue(keyX, 1);
    settings.save();
    const bool isThere = QFileInfo::exists(program);
    QDir(program).removeRecursively();
    QVERIFY(QFile::rename(away, program));
    QVERIFY(!isThere);
    QCOMPARE(stored().value(keyX).toInt(), 1);
}

QTEST_GUILESS_MAIN(TestStoredSettings)
#include "tst_storedsettings.moc"
