#include "savesoon.h"

#include <QElapsedTimer>
#include <QtTest>

namespace {

// What passes after which an outstanding save has long been made.
constexpr int longTimeMs = 2 * SaveSoon::delayMs;

bool longTimeAfter(const QElapsedTimer &timer)
{
    return timer.hasExpired(longTimeMs);
}

} // namespace

class TestSaveSoon : public QObject
{
    Q_OBJECT

private slots:
    void delay_isLessThanASecond();
    void newHelper_savesNothing();
    void change_isSavedLater();
    void changesTogether_areOneSave();
    void endlessChanges_doNotPutTheSaveOff();
    void changeAfterASave_isSavedToo();
    void changeWhileSaving_isSavedToo();
    void changesWhileHeld_areNotSaved();
    void destroyedHelper_doesNotSave();
};

void TestSaveSoon::delay_isLessThanASecond()
{
    QVERIFY(SaveSoon::delayMs < 1000);
}

void TestSaveSoon::newHelper_savesNothing()
{
    int saves = 0;
    const SaveSoon saveSoon([&] { ++saves; }, nullptr);
    QVERIFY(!saveSoon.isDue());
    QElapsedTimer timer;
    timer.start();
    QTRY_VERIFY(longTimeAfter(timer));
    QCOMPARE(saves, 0);
}

void TestSaveSoon::change_isSavedLater()
{
    int saves = 0;
    SaveSoon saveSoon([&] { ++saves; }, nullptr);
    saveSoon.schedule();
    QVERIFY(saveSoon.isDue());
    QCOMPARE(saves, 0);
    QTRY_COMPARE(saves, 1);
    QVERIFY(!saveSoon.isDue());
}

void TestSaveSoon::changesTogether_areOneSave()
{
    int saves = 0;
    SaveSoon saveSoon([&] { ++saves; }, nullptr);
    for (int change = 0; change < 1000; ++change)
        saveSoon.schedule();
    QElapsedTimer timer;
    timer.start();
    QTRY_VERIFY(longTimeAfter(timer));
    QCOMPARE(saves, 1);
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

void TestSaveSoon::changeAfterASave_isSavedToo()
{
    int saves = 0;
    SaveSoon saveSoon([&] { ++saves; }, nullptr);
    saveSoon.schedule();
    QTRY_COMPARE(saves, 1);
    saveSoon.schedule();
    QVERIFY(saveSoon.isDue());
    QTRY_COMPARE(saves, 2);
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
    QElapsedTimer timer;
    timer.start();
    QTRY_VERIFY(longTimeAfter(timer));
    QCOMPARE(saves, 0);
}

QTEST_GUILESS_MAIN(TestSaveSoon)
#include "tst_savesoon.moc"
