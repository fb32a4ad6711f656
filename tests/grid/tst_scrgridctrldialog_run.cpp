#include "gridrig.h"

#include <QSignalSpy>
#include <QtTest>

namespace {

using Panel = ScrGridCtrlDialog;

QStringList colorNames(const QSignalSpy &spy)
{
    QStringList names;
    for (const QList<QVariant> &emission : spy)
        names << emission.first().value<QColor>().name();
    return names;
}

} // namespace

// The timer, one tick, the pause and the aging test.
class TestScrGridCtrlDialogRun : public QObject
{
    Q_OBJECT

private slots:
    void interval_isThatOfModeAndSpeed_data();
    void interval_isThatOfModeAndSpeed();
    void timer_repeatsAndTicksFromConstructionOn();
    void timer_isReplacedByEverySpeedChangeAndStart();
    void timer_survivesTicksInEveryMode_data();
    void timer_survivesTicksInEveryMode();
    void timer_goesWithThePanel();

    void tick_whileRunning_scrollsBlinksAndTells();
    void tick_whilePaused_showsTheGreenLampAndTheStartText();
    void tick_withoutAdvance_neitherScrollsNorTellsTheGreyButTheRun();
    void pauseButton_pausesAndResumesTheScrollingRun();
    void pauseButton_pressesTheFamiliesAgain();
    void pauseButton_resumesATest_data();
    void pauseButton_resumesATest();
    void stopSlots_setTheRun();
    void testSlots_startTheRun();

    void agingTest_showsRedGreenBlueWhiteAndRedAgain();
    void agingTest_isDimmedByTheGreySlider();
    void agingTest_startReleasesTheFamilies();
    void agingTest_goesOnWhereItStopped();
};

void TestScrGridCtrlDialogRun::interval_isThatOfModeAndSpeed_data()
{
    QTest::addColumn<QString>("mode");
    QTest::addColumn<int>("speed");
    QTest::addColumn<int>("expected");
    const auto row = [](const char *mode, int speed, int expected) {
        QTest::addRow("%s %d", mode, speed) << QString::fromLatin1(mode) << speed << expected;
    };
    row("scrolling", 1, 707);
    row("scrolling", 50, 364);
    row("scrolling", 100, 14);
    row("aging", 1, 8080);
    row("aging", 50, 4160);
    row("aging", 100, 160);
    row("merged", 1, 8080);
    row("merged", 50, 4160);
    row("merged", 100, 160);
}

void TestScrGridCtrlDialogRun::interval_isThatOfModeAndSpeed()
{
    QFETCH(const QString, mode);
    QFETCH(const int, speed);
    QFETCH(const int, expected);
    const GridRig rig;
    if (mode == QStringLiteral("aging"))
        rig.click(rig.aging());
    if (mode == QStringLiteral("merged"))
        rig.click(rig.merged());
    QCOMPARE(rig.mode(), mode);
    rig.speedSlider()->setValue(99); // so that each of the speeds is a change
    rig.speedSpinBox()->setValue(speed);

    QCOMPARE(rig.interval(), expected);
    QVERIFY(rig.timer()->isActive());
}

void TestScrGridCtrlDialogRun::timer_repeatsAndTicksFromConstructionOn()
{
    const GridRig rig({{QStringLiteral("gridSpeed"), 100}});
    QVERIFY(rig.timer()->isActive());
    QVERIFY(!rig.timer()->isSingleShot());
    QVERIFY(rig.timer()->parent() == rig.panel.get());
    rig.panel->setScroll(true);
    QSignalSpy ticks(rig.panel.get(), &Panel::signal_gridAutoChange);

    QTRY_VERIFY_WITH_TIMEOUT(ticks.count() >= 3, 5000);
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

void TestScrGridCtrlDialogRun::timer_survivesTicksInEveryMode_data()
{
    QTest::addColumn<bool>("aging");
    QTest::addColumn<bool>("merged");
    QTest::newRow("scrolling") << false << false;
    QTest::newRow("aging") << true << false;
    QTest::newRow("merged") << false << true;
    QTest::newRow("both, as a settings file may say") << true << true;
}

void TestScrGridCtrlDialogRun::timer_survivesTicksInEveryMode()
{
    QFETCH(const bool, aging);
    QFETCH(const bool, merged);
    const GridRig rig({{QStringLiteral("gridIsOldTest"), aging},
                       {QStringLiteral("gridIsMix"), merged},
                       {QStringLiteral("gridHorizontalChecked"), true}});
    rig.panel->enableAdvanceSettings();
    rig.panel->slot_keyInsertPressed();
    const QPointer<QTimer> timer = rig.timer();
    rig.tick(40);
    rig.click(rig.pause());
    rig.tick(2);

    QVERIFY(rig.timer() == timer);
}

void TestScrGridCtrlDialogRun::timer_goesWithThePanel()
{
    GridRig rig({{QStringLiteral("gridSpeed"), 100}});
    const QPointer<QTimer> timer = rig.timer();
    rig.canvas.setDrawer(nullptr);
    rig.panel.reset();

    QVERIFY(timer.isNull());
}

void TestScrGridCtrlDialogRun::tick_whileRunning_scrollsBlinksAndTells()
{
    GridRig rig({{QStringLiteral("gridGreyLevel"), 70}});
    rig.clickFamilies("V");
    QCOMPARE(rig.pause()->text(), QStringLiteral("开始"));
    QSignalSpy run(rig.panel.get(), &Panel::signal_gridAutoChange);
    QSignalSpy grey(rig.panel.get(), &Panel::signal_greyChanged);
    for (int step = 1; step <= 12; ++step) {
        rig.drawer->active = false;
        rig.tick();
        QCOMPARE(rig.shown().offset, step % 10);
        QVERIFY(rig.drawer->active);
        QCOMPARE(rig.greenLamp()->isHidden(), step % 2 == 0);
        QCOMPARE(rig.greyLamp()->isHidden(), step % 2 == 1);
        QCOMPARE(rig.pause()->text(), QStringLiteral("暂停"));
        QCOMPARE(run.count(), step);
        QCOMPARE(grey.count(), step);
        QCOMPARE(grey.last().first().toString(), QStringLiteral("70"));
    }
}

void TestScrGridCtrlDialogRun::tick_whilePaused_showsTheGreenLampAndTheStartText()
{
    GridRig rig;
    rig.clickFamilies("V");
    rig.tick(2);
    rig.panel->slot_stopPauseStatus();
    QCOMPARE(rig.pause()->text(), QStringLiteral("暂停"));
    QSignalSpy run(rig.panel.get(), &Panel::signal_gridAutoChange);
    QSignalSpy grey(rig.panel.get(), &Panel::signal_greyChanged);
    for (int step = 0; step < 3; ++step) {
        rig.tick();
        QVERIFY(!rig.greenLamp()->isHidden());
        QVERIFY(rig.greyLamp()->isHidden());
        QCOMPARE(rig.pause()->text(), QStringLiteral("开始"));
        QCOMPARE(rig.shown().offset, 2);
    }
    QCOMPARE(run.count(), 0);
    QCOMPARE(grey.count(), 0);
}

void TestScrGridCtrlDialogRun::tick_withoutAdvance_neitherScrollsNorTellsTheGreyButTheRun()
{
    GridRig rig;
    rig.clickFamilies("V");
    rig.panel->getDrawer();
    QSignalSpy run(rig.panel.get(), &Panel::signal_gridAutoChange);
    QSignalSpy grey(rig.panel.get(), &Panel::signal_greyChanged);
    rig.tick(3);
    QCOMPARE(rig.shown().offset, 0);
    QVERIFY(!rig.drawer->active);
    QVERIFY(rig.greenLamp()->isHidden());
    QCOMPARE(grey.count(), 0);
    QCOMPARE(run.count(), 3);
    QCOMPARE(rig.pause()->text(), QStringLiteral("暂停"));

    rig.panel->slot_stopPauseStatus();
    rig.tick();
    QCOMPARE(run.count(), 3);
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

    rig.click(rig.pause());
    QVERIFY(rig.panel->getScroll());
    QCOMPARE(rig.checked(), QStringLiteral("V"));
    rig.tick();
    QCOMPARE(rig.shown().offset, 2);
    QCOMPARE(rig.shown().families, QStringLiteral("V"));
}

// As long as the button says that a click starts the run, it does.
void TestScrGridCtrlDialogRun::pauseButton_pressesTheFamiliesAgain()
{
    const GridRig rig({{QStringLiteral("gridSpeed"), 100}});
    rig.clickFamilies("V");
    QCOMPARE(rig.pause()->text(), QStringLiteral("开始"));
    const QPointer<QTimer> before = rig.timer();
    rig.click(rig.pause());

    QVERIFY(rig.panel->getScroll());
    QVERIFY(before.isNull());
    QCOMPARE(rig.checked(), QStringLiteral("V"));
}

void TestScrGridCtrlDialogRun::pauseButton_resumesATest_data()
{
    QTest::addColumn<bool>("aging");
    QTest::newRow("aging") << true;
    QTest::newRow("merged") << false;
}

void TestScrGridCtrlDialogRun::pauseButton_resumesATest()
{
    QFETCH(const bool, aging);
    GridRig rig;
    rig.click(aging ? rig.aging() : rig.merged());
    rig.tick(2);
    QCOMPARE(rig.shown().background, qRgb(0, 255, 0));
    rig.click(rig.pause());
    rig.tick(3);
    QCOMPARE(rig.shown().background, qRgb(0, 255, 0));
    const QTimer *timer = rig.timer();
    rig.click(rig.pause());
    rig.tick();

    QCOMPARE(rig.shown().background, qRgb(0, 0, 255));
    QCOMPARE(rig.mode(), aging ? QStringLiteral("aging") : QStringLiteral("merged"));
    QVERIFY(rig.timer() == timer);
}

void TestScrGridCtrlDialogRun::stopSlots_setTheRun()
{
    const GridRig rig;
    rig.panel->slot_stopStartPauseStatus();
    QVERIFY(rig.panel->getScroll());
    rig.panel->slot_stopPauseStatus();
    QVERIFY(!rig.panel->getScroll());
    QCOMPARE(rig.runControls(), 0);
}

void TestScrGridCtrlDialogRun::testSlots_startTheRun()
{
    const GridRig rig;
    for (const auto slot : {&ScrGridCtrlDialog::slot_mixTest, &ScrGridCtrlDialog::slot_OldTest}) {
        rig.panel->slot_stopPauseStatus();
        (rig.panel.get()->*slot)();
        QVERIFY(rig.panel->getScroll());
    }
}

void TestScrGridCtrlDialogRun::agingTest_showsRedGreenBlueWhiteAndRedAgain()
{
    GridRig rig;
    rig.clickFamilies("HV");
    rig.click(rig.aging());
    QSignalSpy colors(rig.panel.get(), &Panel::signal_oldMixColorChanged);
    QList<QRgb> shown;
    for (int step = 0; step < 9; ++step) {
        rig.tick();
        QCOMPARE(rig.shown().families, QString());
        shown << rig.shown().background;
    }
    const QRgb red = qRgb(255, 0, 0);
    const QRgb green = qRgb(0, 255, 0);
    const QRgb blue = qRgb(0, 0, 255);
    const QRgb white = qRgb(255, 255, 255);
    QCOMPARE(shown, (QList<QRgb>{red, green, blue, white, red, green, blue, white, red}));
    QCOMPARE(colorNames(colors).mid(0, 5).join(QLatin1Char(' ')),
             QStringLiteral("#ff0000 #00ff00 #0000ff #ffffff #ff0000"));
    QCOMPARE(colors.count(), 9);
}

void TestScrGridCtrlDialogRun::agingTest_isDimmedByTheGreySlider()
{
    GridRig rig;
    rig.greySlider()->setValue(60);
    rig.click(rig.aging());
    QSignalSpy colors(rig.panel.get(), &Panel::signal_oldMixColorChanged);
    rig.tick();

    QCOMPARE(rig.shown().background, qRgb(60, 0, 0));
    QCOMPARE(colorNames(colors).constFirst(), QStringLiteral("#ff0000"));
}

void TestScrGridCtrlDialogRun::agingTest_startReleasesTheFamilies()
{
    GridRig rig({{QStringLiteral("gridSpeed"), 100}});
    rig.clickFamilies("HL");
    rig.panel->slot_stopPauseStatus();
    rig.panel->getDrawer();
    rig.click(rig.aging());

    QCOMPARE(rig.checked(), QString());
    QCOMPARE(rig.pressed(), QString());
    QCOMPARE(rig.mode(), QStringLiteral("aging"));
    QCOMPARE(rig.pause()->text(), QStringLiteral("暂停"));
    QCOMPARE(rig.interval(), 160);
    QCOMPARE(rig.runControls(), 1);
    QVERIFY(rig.panel->getScroll());
}

void TestScrGridCtrlDialogRun::agingTest_goesOnWhereItStopped()
{
    GridRig rig;
    rig.click(rig.aging());
    rig.tick(2);
    rig.clickFamilies("H");
    rig.tick();
    rig.click(rig.aging());
    rig.tick();

    QCOMPARE(rig.shown().background, qRgb(0, 0, 255));
}

QTEST_MAIN(TestScrGridCtrlDialogRun)
#include "tst_scrgridctrldialog_run.moc"
