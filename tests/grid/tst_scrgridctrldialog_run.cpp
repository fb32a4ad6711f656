#include "gridrig.h"
#include "mixsetting.h"

#include <QSignalSpy>
#include <QtTest>

namespace {

using Panel = ScrGridCtrlDialog;

// What the operator does in the mix settings as soon as they are open.
template<typename Action>
void inMixSettings(const GridRig &rig, Action action)
{
    int opened = 0;
    QTimer::singleShot(0, rig.panel.get(), [&rig, &opened, action] {
        auto *dialog = rig.panel->findChild<MixSetting *>();
        if (!dialog)
            return;
        ++opened;
        action(*dialog);
        if (dialog->isVisible())
            dialog->close();
    });
    rig.click(rig.mixSettings());
    QCOMPARE(opened, 1);
}

} // namespace

// The timer, its ticks, the tests that they run, and the dialog that says what is shown.
class TestScrGridCtrlDialogRun : public QObject
{
    Q_OBJECT

private slots:
    void timer_keepsThePaceOfModeAndSpeed();
    void timer_ticksAsLongAsThePanelLives();
    void timer_isReplacedByEverySpeedChangeAndStart();
    void timer_survivesTicks();

    void tick_scrollsBlinksAndTellsUpToThePause();
    void tick_withoutAdvance_tellsTheRunAlone();
    void greyRamp_stepsEveryFifthTickAndWraps();
    void pauseButton_pausesAndResumesTheScrollingRun();
    void pauseButton_resumesATest();
    void runSlots_setTheRun();

    void testButton_releasesTheFamiliesAndStarts();
    void lineCount_isThatOfTheSelectedFamilies();
    void mixSettings_confirmedChangeTheTestAndTheFile();
    void mixSettings_closedChangeTheTestButNotTheFile();
};

void TestScrGridCtrlDialogRun::timer_keepsThePaceOfModeAndSpeed()
{
    const GridRig rig;
    QCOMPARE(rig.timer()->interval(), 364);
    rig.speedSlider()->setValue(100);
    QCOMPARE(rig.timer()->interval(), 14);
    rig.click(rig.merged());
    QCOMPARE(rig.timer()->interval(), 160);
    rig.speedSpinBox()->setValue(1);
    QCOMPARE(rig.timer()->interval(), 8080);
    rig.clickFamilies("H");
    QCOMPARE(rig.timer()->interval(), 707);
    rig.click(rig.aging());
    QCOMPARE(rig.timer()->interval(), 8080);
    QVERIFY(rig.timer()->isActive());
}

void TestScrGridCtrlDialogRun::timer_ticksAsLongAsThePanelLives()
{
    GridRig rig({{QStringLiteral("gridSpeed"), 100}});
    const QPointer<QTimer> timer = rig.timer();
    QVERIFY(timer->isActive());
    QVERIFY(!timer->isSingleShot());
    rig.panel->setScroll(true);
    QSignalSpy ticks(rig.panel.get(), &Panel::signal_gridAutoChange);
    QTRY_VERIFY(ticks.count() >= 3);
    rig.close();
    QVERIFY(timer.isNull());
}

void TestScrGridCtrlDialogRun::timer_isReplacedByEverySpeedChangeAndStart()
{
    const GridRig rig;
    const auto isReplaced = [&rig](const auto &action) {
        const QPointer<QTimer> before = rig.timer();
        action();
        return before.isNull() && rig.timer()->isActive();
    };
    QVERIFY(isReplaced([&] { rig.speedSlider()->setValue(77); }));
    QVERIFY(isReplaced([&] { rig.speedSpinBox()->setValue(78); }));
    QVERIFY(isReplaced([&] { rig.clickFamilies("H"); }));
    QVERIFY(isReplaced([&] { rig.click(rig.merged()); }));
    QVERIFY(isReplaced([&] { rig.click(rig.aging()); }));
    QVERIFY(isReplaced([&] { rig.panel->initTimer(3); }));
    QVERIFY(!isReplaced([&] { rig.click(rig.pause()); }));
    QVERIFY(!isReplaced([&] { rig.click(rig.colorButton(3)); }));
    QVERIFY(!isReplaced([&] { rig.greySlider()->setValue(3); }));
}

void TestScrGridCtrlDialogRun::timer_survivesTicks()
{
    for (int modes = 0; modes < 4; ++modes) {
        const GridRig rig({{QStringLiteral("gridIsOldTest"), modes % 2 == 1},
                           {QStringLiteral("gridIsMix"), modes / 2 == 1},
                           {QStringLiteral("gridHorizontalChecked"), true}});
        rig.panel->enableAdvanceSettings();
        rig.panel->slot_keyInsertPressed();
        const QPointer<QTimer> timer = rig.timer();
        rig.tick(40);
        rig.click(rig.pause());
        rig.tick(2);
        QVERIFY(rig.timer() == timer);
    }
}

void TestScrGridCtrlDialogRun::tick_scrollsBlinksAndTellsUpToThePause()
{
    GridRig rig({{QStringLiteral("gridGreyLevel"), 70}});
    rig.clickFamilies("V");
    QCOMPARE(rig.pause()->text(), QStringLiteral("开始"));
    rig.emitted();
    for (int step = 1; step <= 12; ++step) {
        rig.drawer->active = false;
        rig.tick();
        QCOMPARE(rig.shown().offset, step % 10);
        QVERIFY(rig.drawer->active);
        QCOMPARE(rig.greenLamp()->isHidden(), step % 2 == 0);
        QCOMPARE(rig.greyLamp()->isHidden(), step % 2 == 1);
        QCOMPARE(rig.pause()->text(), QStringLiteral("暂停"));
        QCOMPARE(rig.emitted(), QStringLiteral("signal_greyChanged(70) signal_gridAutoChange()"));
    }
    rig.panel->slot_stopPauseStatus();
    QCOMPARE(rig.pause()->text(), QStringLiteral("暂停"));
    for (int step = 0; step < 3; ++step) {
        rig.tick();
        QVERIFY(!rig.greenLamp()->isHidden());
        QVERIFY(rig.greyLamp()->isHidden());
        QCOMPARE(rig.pause()->text(), QStringLiteral("开始"));
        QCOMPARE(rig.shown().offset, 2);
    }
    QCOMPARE(rig.emitted(), QString());
}

void TestScrGridCtrlDialogRun::tick_withoutAdvance_tellsTheRunAlone()
{
    GridRig rig;
    rig.clickFamilies("V");
    rig.panel->getDrawer();
    rig.emitted();
    rig.tick(2);
    QCOMPARE(rig.shown().offset, 0);
    QVERIFY(!rig.drawer->active);
    QVERIFY(rig.greenLamp()->isHidden());
    QCOMPARE(rig.emitted(), QStringLiteral("signal_gridAutoChange() signal_gridAutoChange()"));
    QCOMPARE(rig.pause()->text(), QStringLiteral("暂停"));
}

void TestScrGridCtrlDialogRun::greyRamp_stepsEveryFifthTickAndWraps()
{
    const GridRig rig;
    const auto levels = [&rig] { // after 4, 5, 9, 10 and 15 ticks
        QList<int> found;
        for (const int ticks : {4, 1, 4, 1, 5}) {
            rig.tick(ticks);
            found << rig.greySpinBox()->value();
        }
        return found;
    };
    rig.clickFamilies("H");
    rig.greySlider()->setValue(254);
    rig.panel->slot_keyInsertPressed();
    QCOMPARE(levels(), (QList<int>{254, 255, 255, 0, 1}));
    rig.panel->slot_keyDeletePressed();
    QCOMPARE(levels(), (QList<int>{1, 0, 0, 255, 254}));
    rig.click(rig.aging());
    QCOMPARE(levels(), (QList<int>{254, 254, 254, 254, 254}));
}

void TestScrGridCtrlDialogRun::pauseButton_pausesAndResumesTheScrollingRun()
{
    GridRig rig;
    rig.clickFamilies("V");
    rig.tick();
    rig.click(rig.pause());
    QVERIFY(!rig.panel->getScroll());
    QCOMPARE(rig.pause()->text(), QStringLiteral("暂停"));
    rig.tick();
    QCOMPARE(rig.shown().offset, 1);
    for (int times = 0; times < 2; ++times) { // as long as it says that a click starts the run
        const QPointer<QTimer> before = rig.timer();
        rig.click(rig.pause());
        QVERIFY(rig.panel->getScroll());
        QVERIFY(before.isNull()); // the families were pressed again
        QCOMPARE(rig.checked(), QStringLiteral("V"));
    }
    rig.tick();
    QCOMPARE(rig.shown().offset, 2);
    QCOMPARE(rig.shown().families, QStringLiteral("V"));
}

void TestScrGridCtrlDialogRun::pauseButton_resumesATest()
{
    for (const bool aging : {true, false}) {
        GridRig rig;
        rig.click(rig.test(aging));
        QCOMPARE(rig.nextShown(2), QStringLiteral("#ff0000 #00ff00"));
        rig.click(rig.pause());
        QCOMPARE(rig.nextShown(2), QStringLiteral("#00ff00 #00ff00"));
        const QTimer *timer = rig.timer();
        rig.click(rig.pause());
        QCOMPARE(rig.nextShown(), QStringLiteral("#0000ff"));
        QVERIFY(rig.timer() == timer);
    }
}

void TestScrGridCtrlDialogRun::runSlots_setTheRun()
{
    const GridRig rig;
    for (const auto slot :
         {&Panel::slot_stopStartPauseStatus, &Panel::slot_mixTest, &Panel::slot_OldTest}) {
        (rig.panel.get()->*slot)();
        QVERIFY(rig.panel->getScroll());
        rig.panel->slot_stopPauseStatus();
        QVERIFY(!rig.panel->getScroll());
        QCOMPARE(rig.runControls(), 0);
    }
}

void TestScrGridCtrlDialogRun::testButton_releasesTheFamiliesAndStarts()
{
    for (const bool aging : {true, false}) {
        GridRig rig({{QStringLiteral("gridSpeed"), 100}, {QStringLiteral("gridGreyLevel"), 60}});
        rig.clickFamilies("HR");
        rig.panel->slot_stopPauseStatus();
        rig.panel->getDrawer();
        rig.click(rig.test(aging));

        QCOMPARE(rig.checked(), QString());
        QCOMPARE(rig.pressed(), QString());
        QCOMPARE(rig.shown().families, QString());
        QCOMPARE(rig.mode(), aging ? QStringLiteral("aging") : QStringLiteral("merged"));
        QCOMPARE(rig.pause()->text(), QStringLiteral("暂停"));
        QCOMPARE(rig.timer()->interval(), 160);
        QCOMPARE(rig.runControls(), 1);
        QVERIFY(rig.panel->getScroll());
        rig.emitted();
        QCOMPARE(rig.nextShown(), QStringLiteral("#3c0000"));
        QCOMPARE(rig.emitted(),
                 QStringLiteral("signal_oldMixColorChanged(#ff0000) signal_greyChanged(60) "
                                "signal_gridAutoChange()"));
    }
}

void TestScrGridCtrlDialogRun::lineCount_isThatOfTheSelectedFamilies()
{
    QCOMPARE(GridRig({{QStringLiteral("checkBoxV"), true}}).panel->getSelectedHVLRCount(), 3);
}

void TestScrGridCtrlDialogRun::mixSettings_confirmedChangeTheTestAndTheFile()
{
    GridRig rig;
    inMixSettings(rig, [](MixSetting &dialog) {
        QVERIFY(dialog.isModal());
        dialog.slot_pushButtonClear();
        dialog.findChild<QCheckBox *>(QStringLiteral("checkBoxGreen"))->setChecked(true);
        dialog.findChild<QCheckBox *>(QStringLiteral("checkBoxSR"))->setChecked(true);
        dialog.slot_pushButtonOK();
    });
    QVERIFY(!rig.panel->findChild<MixSetting *>());
    for (int start = 0; start < 2; ++start) {
        rig.click(rig.merged());
        QCOMPARE(rig.nextShown(3), QStringLiteral("#00ff00 R #00ff00"));
        rig.restart();
    }
}

void TestScrGridCtrlDialogRun::mixSettings_closedChangeTheTestButNotTheFile()
{
    GridRig rig;
    rig.click(rig.merged());
    QCOMPARE(rig.nextShown(2), QStringLiteral("#ff0000 #00ff00"));
    inMixSettings(rig, [](MixSetting &dialog) {
        dialog.slot_pushButtonClear();
        dialog.findChild<QCheckBox *>(QStringLiteral("checkBoxBlue"))->setChecked(true);
        dialog.close();
    });
    rig.tick(); // the step that the shorter cycle ends with
    QCOMPARE(rig.nextShown(2), QStringLiteral("#0000ff #0000ff"));
    QVERIFY(!rig.settings->contains(QStringLiteral("/setting/checkBoxRed")));
    rig.restart();
    rig.click(rig.merged());
    QCOMPARE(rig.nextShown(2), QStringLiteral("#ff0000 #00ff00"));
}

QTEST_MAIN(TestScrGridCtrlDialogRun)
#include "tst_scrgridctrldialog_run.moc"
