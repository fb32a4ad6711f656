#include "hostilefile.h"
#include "longrun.h"
#include "mainwindow.h"
#include "mainwindowrig.h"
#include "startinspection.h"

#include <QCoreApplication>
#include <QFile>
#include <QLoggingCategory>
#include <QtTest>

// Hundreds of settings files that nobody would write, in a long run a hundred thousand, each for a
// start of the program. The program's style sheet is left out of this test, since it takes most of
// a start's time.
class TestHostileSettingsRandom : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void anyFile_startsTheProgram();
    void cleanupTestCase();
};

// Every start makes the platform without windows complain, and the test framework stops its output
// after so many complaints.
void TestHostileSettingsRandom::initTestCase()
{
    QLoggingCategory::setFilterRules(QStringLiteral("default.warning=false"));
}

void TestHostileSettingsRandom::anyFile_startsTheProgram()
{
    const quint32 seed = LongRun::seed(20260517);
    const int files = LongRun::count(500);
    constexpr int filesPerWalk = 100; // a walk through all patterns takes as long as many starts
    qInfo("Seed %u, %d files", seed, files);
    HostileFile hostile(seed);
    qint64 firstMemory = 0;
    for (int number = 0; number < files; ++number) {
        if (number == qMin(filesPerWalk, files - 1)) // with what Qt keeps of every pattern
            firstMemory = LongRun::residentMemory();
        QFile file(MainWindowRig::settingsPath());
        QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write(hostile.next());
        file.close();

        MainWindow window;
        if (number % filesPerWalk == 0)
            stepThrough(window);
        else
            window.updateLanguage();

        // A failure leaves the file behind, to be looked at.
        const QString problem = problemOf(window);
        QVERIFY2(problem.isEmpty(),
                 qPrintable(QStringLiteral("File %1: %2").arg(number).arg(problem)));
    }
    LongRun::report(files, firstMemory, LongRun::residentMemory());
}

void TestHostileSettingsRandom::cleanupTestCase()
{
    if (!QTest::currentTestFailed())
        QFile::remove(MainWindowRig::settingsPath());
}

QTEST_MAIN(TestHostileSettingsRandom)
#include "tst_hostilesettings_random.moc"
