#include "drawcontainer.h"
#include "gridrig.h"

#include <QtTest>

namespace {

using Panel = ScrGridCtrlDialog;

} // namespace

// The grey ramp that Insert and Delete start.
class TestScrGridCtrlDialogRamp : public QObject
{
    Q_OBJECT

private slots:
    void greyRamp_stepsEveryFifthTick_data();
    void greyRamp_stepsEveryFifthTick();
    void greyRamp_stopsWhenATestIsStarted_data();
    void greyRamp_stopsWhenATestIsStarted();
    void greyRamp_changesDirection();
    void greyRamp_needsARun();
    void greyRamp_needsTheSelectedDrawer();
};

void TestScrGridCtrlDialogRamp::greyRamp_stepsEveryFifthTick_data()
{
    QTest::addColumn<bool>("up");
    QTest::addColumn<int>("start");
    QTest::addColumn<QList<int>>("expected"); // after 4, 5, 9, 10 and 15 ticks
    QTest::newRow("Insert raises") << true << 100 << QList<int>{100, 101, 101, 102, 103};
    QTest::newRow("Insert wraps from 255 to 0") << true << 254 << QList<int>{254, 255, 255, 0, 1};
    QTest::newRow("Delete lowers") << false << 100 << QList<int>{100, 99, 99, 98, 97};
    QTest::newRow("Delete wraps from 0 to 255") << false << 1 << QList<int>{1, 0, 0, 255, 254};
}

void TestScrGridCtrlDialogRamp::greyRamp_stepsEveryFifthTick()
{
    QFETCH(const bool, up);
    QFETCH(const int, start);
    QFETCH(const QList<int>, expected);
    const GridRig rig;
    rig.clickFamilies("H");
    rig.greySlider()->setValue(start);
    if (up)
        rig.panel->slot_keyInsertPressed();
    else
        rig.panel->slot_keyDeletePressed();

    QList<int> levels;
    for (const int ticks : {4, 1, 4, 1, 5}) {
        rig.tick(ticks);
        levels << rig.greySpinBox()->value();
    }
    QCOMPARE(levels, expected);
}

void TestScrGridCtrlDialogRamp::greyRamp_stopsWhenATestIsStarted_data()
{
    QTest::addColumn<bool>("aging");
    QTest::newRow("aging") << true;
    QTest::newRow("merged") << false;
}

void TestScrGridCtrlDialogRamp::greyRamp_stopsWhenATestIsStarted()
{
    QFETCH(const bool, aging);
    const GridRig rig({{QStringLiteral("gridGreyLevel"), 100}});
    for (const auto key : {&Panel::slot_keyInsertPressed, &Panel::slot_keyDeletePressed}) {
        rig.clickFamilies("H");
        (rig.panel.get()->*key)();
        rig.click(aging ? rig.aging() : rig.merged());
        rig.tick(20);
        QCOMPARE(rig.greySpinBox()->value(), 100);
    }
}

void TestScrGridCtrlDialogRamp::greyRamp_changesDirection()
{
    const GridRig rig({{QStringLiteral("gridGreyLevel"), 100}});
    rig.clickFamilies("H");
    rig.panel->slot_keyInsertPressed();
    rig.tick(10);
    QCOMPARE(rig.greySpinBox()->value(), 102);
    rig.panel->slot_keyDeletePressed();
    rig.tick(15);
    QCOMPARE(rig.greySpinBox()->value(), 99);
}

void TestScrGridCtrlDialogRamp::greyRamp_needsARun()
{
    const GridRig rig({{QStringLiteral("gridGreyLevel"), 100}});
    rig.panel->slot_keyInsertPressed();
    rig.clickFamilies("H");
    rig.tick(20);
    QCOMPARE(rig.greySpinBox()->value(), 100);

    rig.panel->slot_keyInsertPressed();
    rig.panel->slot_stopPauseStatus();
    rig.tick(20);
    QCOMPARE(rig.greySpinBox()->value(), 100);
}

void TestScrGridCtrlDialogRamp::greyRamp_needsTheSelectedDrawer()
{
    TestSettings settings({{QStringLiteral("gridGreyLevel"), 100}});
    DrawContainer testWindow;
    ScrGridCtrlDialog panel(&testWindow, settings.get(), nullptr);
    const auto *grey = panel.findChild<QSpinBox *>(QStringLiteral("labelGrayLevel"));
    const auto levelAfterInsert = [&] {
        panel.enableAdvanceSettings();
        panel.slot_keyInsertPressed();
        for (int i = 0; i < 5; ++i)
            panel.slot_TimerOut();
        return grey->value();
    };
    QCOMPARE(levelAfterInsert(), 100);
    testWindow.setDrawer(panel.getDrawer(), false);
    QCOMPARE(levelAfterInsert(), 101);
}

QTEST_MAIN(TestScrGridCtrlDialogRamp)
#include "tst_scrgridctrldialog_ramp.moc"
