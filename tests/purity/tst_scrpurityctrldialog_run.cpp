#include "dictionary.h"
#include "purityrig.h"
#include "rows.h"

#include <QtTest>

namespace {

bool isShown(const QWidget *lamp, const QWidget *other)
{
    return !lamp->isHidden() && other->isHidden();
}

} // namespace

class TestScrPurityCtrlDialogRun : public QObject
{
    Q_OBJECT

private slots:
    void speed100_ticksEvery100Ms_speed1Every10S_data();
    void speed100_ticksEvery100Ms_speed1Every10S();
    void speedChange_replacesTheTimer();
    void speedChange_inManualModeOrAfterAPauseStartsNothing();
    void speedChange_startsARestoredAutomaticRun();
    void run_stepsByItself();

    void tick_grey255WithStepUpGoesTo0_grey0WithStepDownTo255_data();
    void tick_grey255WithStepUpGoesTo0_grey0WithStepDownTo255();
    void tick_withoutADirectionKeepsTheGrey();
    void tick_paintsTheGreyAndTellsIt();
    void tick_blinksUpToThePause();
    void tick_namesTheButtonPause();

    void pauseButton_pausesAndResumes();
    void pause_turnsTheDirectionUpward();
    void stop_endsTheRunAndKeepsTheDirection();
    void stop_withoutATimerChangesNothing();
    void language_keepsTheMeaningOfThePauseButton();
};

void TestScrPurityCtrlDialogRun::speed100_ticksEvery100Ms_speed1Every10S_data()
{
    const Table<int, int> row("speed", "interval");
    row("speed 1", 1, 10000);
    row("speed 2", 2, 9900);
    row("speed 50", 50, 5100);
    row("speed 99", 99, 200);
    row("speed 100", 100, 100);
}

void TestScrPurityCtrlDialogRun::speed100_ticksEvery100Ms_speed1Every10S()
{
    QFETCH(const int, speed);
    QFETCH(const int, interval);
    const PurityRig rig({{QStringLiteral("testPuritySpeed"), speed}});
    rig.click(rig.automatic());

    QVERIFY(rig.timer());
    QCOMPARE(rig.timer()->interval(), interval);
    QVERIFY(!rig.timer()->isSingleShot());

    // As well when the speed is changed while the run goes on.
    rig.speedSpinBox()->setValue(speed == 40 ? 41 : 40);
    rig.speedSpinBox()->setValue(speed);
    QCOMPARE(rig.timer()->interval(), interval);
}

void TestScrPurityCtrlDialogRun::speedChange_replacesTheTimer()
{
    const PurityRig rig(automaticMode());
    rig.startRun(50);
    for (const int speed : {10, 90, 30})
        rig.speedSlider()->setValue(speed);

    QVERIFY(rig.timer());
    QCOMPARE(rig.timer()->interval(), 7100);
    QCOMPARE(rig.beginButton()->text(), pause);
    QTRY_COMPARE(rig.panel->findChildren<QTimer *>(QString(), Qt::FindDirectChildrenOnly).size(),
                 1);
}

void TestScrPurityCtrlDialogRun::speedChange_inManualModeOrAfterAPauseStartsNothing()
{
    for (const bool automatic : {true, false}) { // which is paused
        const PurityRig rig({{QStringLiteral("AutoTest"), automatic}});
        if (automatic) {
            rig.startRun(50);
            rig.panel->slot_PauseResume();
        }
        rig.speedSpinBox()->setValue(99);
        rig.panel->slot_SpeedChanged(98);

        QVERIFY(!rig.timer());
        QCOMPARE(rig.beginButton()->text(), begin);
    }
}

void TestScrPurityCtrlDialogRun::speedChange_startsARestoredAutomaticRun()
{
    const PurityRig rig(automaticMode());
    QVERIFY(!rig.timer());
    rig.speedSpinBox()->setValue(99);

    QVERIFY(rig.timer());
    QCOMPARE(rig.timer()->interval(), 200);
    QCOMPARE(rig.beginButton()->text(), pause);
}

void TestScrPurityCtrlDialogRun::run_stepsByItself()
{
    const PurityRig rig({{QStringLiteral("AutoTest"), true},
                         {QStringLiteral("testPuritySpeed"), 100},
                         {QStringLiteral("testAutoScale"), 50}});
    rig.panel->slot_keyInsertPressed();
    rig.panel->slot_PauseResume();
    QCOMPARE(rig.autoSpinBox()->value(), 50);
    QTRY_COMPARE(rig.autoSpinBox()->value(), 53);
}

void TestScrPurityCtrlDialogRun::tick_grey255WithStepUpGoesTo0_grey0WithStepDownTo255_data()
{
    const Table<bool, int, int> row("up", "start", "expected");
    row("255 up", true, 255, 0);
    row("254 up", true, 254, 255);
    row("0 up", true, 0, 1);
    row("0 down", false, 0, 255);
    row("1 down", false, 1, 0);
    row("255 down", false, 255, 254);
}

void TestScrPurityCtrlDialogRun::tick_grey255WithStepUpGoesTo0_grey0WithStepDownTo255()
{
    QFETCH(const bool, up);
    QFETCH(const int, start);
    QFETCH(const int, expected);
    PurityRig rig({{QStringLiteral("AutoTest"), true},
                   {QStringLiteral("testWindowBaseColor"), QColor(Qt::white)}});
    rig.startRun(start);
    up ? rig.panel->slot_keyInsertPressed() : rig.panel->slot_keyDeletePressed();

    QCOMPARE(rig.tick(), expected);
    QCOMPARE(rig.shownColor(), qRgb(expected, expected, expected));
}

void TestScrPurityCtrlDialogRun::tick_withoutADirectionKeepsTheGrey()
{
    PurityRig rig({{QStringLiteral("AutoTest"), true},
                   {QStringLiteral("testWindowBaseColor"), QColor(Qt::green)},
                   {QStringLiteral("testAutoScale"), 50}});
    rig.panel->slot_PauseResume();
    rig.panel->getDrawer()->active = false;

    QCOMPARE(rig.tick(), 50);
    // Still, the tick shows it.
    QVERIFY(rig.panel->getDrawer()->active);
    QCOMPARE(rig.shownColor(), qRgb(0, 50, 0));
}

void TestScrPurityCtrlDialogRun::tick_paintsTheGreyAndTellsIt()
{
    PurityRig rig({{QStringLiteral("AutoTest"), true},
                   {QStringLiteral("testWindowBaseColor"), QColor(Qt::red)}});
    rig.startRun(120);
    rig.panel->slot_keyInsertPressed();
    rig.panel->puritySelected = false;
    rig.emitted();
    rig.panel->slot_AutoTimerFinished();

    QCOMPARE(rig.shownColor(), qRgb(121, 0, 0));
    QCOMPARE(rig.emitted(), QStringLiteral("signal_greyChanged(121)"));
    QVERIFY(rig.panel->puritySelected);
    QCOMPARE(rig.greySpinBox()->value(), 255);
}

void TestScrPurityCtrlDialogRun::tick_blinksUpToThePause()
{
    const PurityRig rig(automaticMode());
    rig.startRun(50);
    QVERIFY(isShown(rig.greyLamp(), rig.greenLamp()));
    rig.panel->slot_AutoTimerFinished();
    QVERIFY(isShown(rig.greenLamp(), rig.greyLamp()));
    rig.panel->slot_AutoTimerFinished();
    QVERIFY(isShown(rig.greyLamp(), rig.greenLamp()));
    rig.panel->slot_AutoTimerFinished();
    rig.panel->slot_PauseResume();
    QVERIFY(isShown(rig.greyLamp(), rig.greenLamp()));
}

void TestScrPurityCtrlDialogRun::tick_namesTheButtonPause()
{
    const PurityRig rig(automaticMode());
    QCOMPARE(rig.beginButton()->text(), begin);
    rig.panel->slot_AutoTimerFinished();
    QCOMPARE(rig.beginButton()->text(), pause);
}

void TestScrPurityCtrlDialogRun::pauseButton_pausesAndResumes()
{
    const PurityRig rig(automaticMode());
    for (int times = 0; times < 2; ++times) {
        rig.click(rig.beginButton());
        QVERIFY(rig.timer());
        QCOMPARE(rig.timer()->interval(), 5100);
        QCOMPARE(rig.beginButton()->text(), pause);
        QCOMPARE(rig.emitted(), QStringLiteral("signal_purityAutoChange()"));

        rig.click(rig.beginButton());
        QVERIFY(!rig.timer());
        QCOMPARE(rig.beginButton()->text(), begin);
        QCOMPARE(rig.emitted(), QString());
    }
}

void TestScrPurityCtrlDialogRun::pause_turnsTheDirectionUpward()
{
    const PurityRig rig(automaticMode());
    rig.startRun(50);
    rig.panel->slot_keyDeletePressed();
    QCOMPARE(rig.tick(), 49);
    rig.panel->slot_PauseResume();
    rig.panel->slot_PauseResume();
    QCOMPARE(rig.tick(), 50);
}

void TestScrPurityCtrlDialogRun::stop_endsTheRunAndKeepsTheDirection()
{
    const PurityRig rig(automaticMode());
    rig.startRun(50);
    rig.panel->slot_keyDeletePressed();
    QCOMPARE(rig.tick(), 49);
    QVERIFY(isShown(rig.greenLamp(), rig.greyLamp()));
    rig.panel->slot_stopChangeGrey();

    QVERIFY(!rig.timer());
    QCOMPARE(rig.beginButton()->text(), begin);
    QVERIFY(isShown(rig.greyLamp(), rig.greenLamp()));
    QVERIFY(rig.automatic()->isChecked());
    // The run is off, so a speed does not start it.
    rig.speedSpinBox()->setValue(99);
    QVERIFY(!rig.timer());

    rig.panel->slot_PauseResume();
    QCOMPARE(rig.tick(), 48);
}

void TestScrPurityCtrlDialogRun::stop_withoutATimerChangesNothing()
{
    const PurityRig rig(automaticMode());
    rig.panel->slot_stopChangeGrey();
    QCOMPARE(rig.beginButton()->text(), begin);
    // The restored mode still waits for its first speed change.
    rig.speedSpinBox()->setValue(99);
    QVERIFY(rig.timer());
}

void TestScrPurityCtrlDialogRun::language_keepsTheMeaningOfThePauseButton()
{
    const PurityRig rig(automaticMode());
    rig.startRun(50);
    {
        const Dictionary marked(QStringLiteral("!"));
        rig.panel->updateLanguage();
        QCOMPARE(rig.beginButton()->text(), pause + QLatin1Char('!'));

        rig.panel->slot_PauseResume();
        QCOMPARE(rig.beginButton()->text(), begin + QLatin1Char('!'));
        rig.panel->updateLanguage();
        QCOMPARE(rig.beginButton()->text(), begin + QLatin1Char('!'));
        rig.panel->slot_PauseResume();
        QCOMPARE(rig.beginButton()->text(), pause + QLatin1Char('!'));
    }
    rig.panel->updateLanguage();
    QCOMPARE(rig.beginButton()->text(), pause);
}

QTEST_MAIN(TestScrPurityCtrlDialogRun)
#include "tst_scrpurityctrldialog_run.moc"
