#include "hostilefile.h"
#include "mainwindow.h"
#include "mainwindowrig.h"
#include "startinspection.h"

#include <QCoreApplication>
#include <QFile>
#include <QtTest>

// Hundreds, and with sanitizers thousands, of settings files that nobody would write, each for a
// start of the program. The program's style sheet is left out of this test, since it takes most of
// a start's time.
class TestHostileSettingsRandom : public QObject
{
    Q_OBJECT

private slots:
    void anyFile_startsTheProgram();
    void cleanupTestCase();
};

void TestHostileSettingsRandom::anyFile_startsTheProgram()
{
    constexpr quint32 seed = 20260517;
    constexpr int files = TARN_HOSTILE_FILES;
    constexpr int filesPerWalk = 100; // a walk through all patterns takes as long as many starts
    HostileFile hostile(seed);
    for (int number = 0; number < files; ++number) {
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
}

void TestHostileSettingsRandom::cleanupTestCase()
{
    if (!QTest::currentTestFailed())
        QFile::remove(MainWindowRig::settingsPath());
}

QTEST_MAIN(TestHostileSettingsRandom)
#include "tst_hostilesettings_random.moc"
