#include "savesoon.h"

#include <QElapsedTimer>
#include <QtTest>

class TestSaveSoon : public QObject
{
    Q_OBJECT

private slots:
    void delay_isLessThanASecond() { QVERIFY(SaveSoon::delayMs < 1000); }
    void changesTogether_areOneSaveLater();
    void endlessChanges_doNotPutTheSaveOff();
    void changeWhileSaving_isSavedToo();
    void changesWhileHeld_areNotSaved();
    void destroyedHelper_doesNotSave();
};

void TestSaveSoon::changesTogether_areOneSaveLater()
{
    int saves = 0;
    SaveSoon saveSoon([&] { ++saves; }, nullptr);
    QVERIFY(!saveSoon.isDue());
    for (int change = 0; change < 1000; ++change)
        saveSoon.schedule();
    QVERIFY(saveSoon.isDue());
    QCOMPARE(saves, 0);
    QTRY_COMPARE(saves, 1);
    QVERIFY(!saveSoon.isDue());
}

void TestSaveSoon::endlessChanges_doNotPutTheSaveOff()
{
    int saves = 0;
    SaveSoon saveSoon([&] { ++saves; }, nullptr);
    QTimer changes;
    connect(&changes, &QTimer::timeout, &saveSoon, &SaveSoon::schedule);
    changes.start(20);
    QElapsedTimer timer;
    timer.start();
    // With twice the delay nobody has to be punctual.
    QTRY_VERIFY_WITH_TIMEOUT(saves >= 3, 6 * SaveSoon::delayMs + 500);
    // And they are still few.
    QVERIFY(timer.elapsed() >= 3 * SaveSoon::delayMs - 100);
}

void TestSaveSoon::changeWhileSaving_isSavedToo()
{
    int saves = 0;
    SaveSoon *helper = nullptr;
    SaveSoon saveSoon(
        [&] {
            if (++saves == 1)
                helper->schedule();
        },
        nullptr);
    helper = &saveSoon;
    saveSoon.schedule();
    QTRY_COMPARE(saves, 2);
    QVERIFY(!saveSoon.isDue());
}

void TestSaveSoon::changesWhileHeld_areNotSaved()
{
    SaveSoon saveSoon([] {}, nullptr);
    {
        const auto hold = saveSoon.hold();
        {
            const auto inner = saveSoon.hold();
        }
        QVERIFY(saveSoon.isHeld());
        saveSoon.schedule();
        QVERIFY(!saveSoon.isDue());
    }
    QVERIFY(!saveSoon.isHeld());
    saveSoon.schedule();
    QVERIFY(saveSoon.isDue());
}

void TestSaveSoon::destroyedHelper_doesNotSave()
{
    int saves = 0;
    {
        QObject owner;
        auto *saveSoon = new SaveSoon([&] { ++saves; }, &owner);
        saveSoon->schedule();
        QVERIFY(saveSoon->isDue());
    }
    // Another one that is scheduled now would come later.
    int later = 0;
    SaveSoon other([&] { ++later; }, nullptr);
    other.schedule();
    QTRY_COMPARE(later, 1);
    QCOMPARE(saves, 0);
}

QTEST_GUILESS_MAIN(TestSaveSoon)
#include "tst_savesoon.moc"
