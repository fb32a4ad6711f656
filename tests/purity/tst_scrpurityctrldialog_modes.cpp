#include "drawcontainer.h"
#include "purityrig.h"
#include "rows.h"

#include <QSignalSpy>
#include <QtTest>

class TestScrPurityCtrlDialogModes : public QObject
{
    Q_OBJECT

private slots:
    void modeClick_toAutomaticStartsTheRun();
    void modeClick_toManualStopsTheRun();
    void modeClick_fromAPausedRunLeavesNoTimer();
    void modeClick_onTheCheckedModeChangesNothing_data();
    void modeClick_onTheCheckedModeChangesNothing();
    void manualMode_showsTheManualGrey();
    void modeSlots_ignoreFalse();

    void keysInManualMode_switchToAutomaticAndStartTheRun();
    void keysThatStartTheRun_leaveTheDirectionAlone_data();
    void keysThatStartTheRun_leaveTheDirectionAlone();
    void keysInAutomaticMode_onlySetTheDirection();
    void keysInAPausedRun_startNothing();
    void keys_areIgnoredWhileAnotherTestIsSelected_data();
    void keys_areIgnoredWhileAnotherTestIsSelected();
};

void TestScrPurityCtrlDialogModes::modeClick_toAutomaticStartsTheRun()
{
    const PurityRig rig;
    QVERIFY(rig.hasControlsOf(false));
    rig.click(rig.automatic());

    QVERIFY(rig.hasControlsOf(true));
    QVERIFY(rig.timer());
    QCOMPARE(rig.beginButton()->text(), pause);
    QVERIFY(rig.emitted().endsWith(QStringLiteral(" signal_purityAutoChange()")));
}

void TestScrPurityCtrlDialogModes::modeClick_toManualStopsTheRun()
{
    const PurityRig rig;
    rig.click(rig.automatic());
    QVERIFY(rig.timer());
    rig.click(rig.manual());

    QVERIFY(rig.hasControlsOf(false));
    QVERIFY(!rig.timer());
    QCOMPARE(rig.beginButton()->text(), begin);
    QTRY_VERIFY(rig.panel->findChildren<QTimer *>(QString(), Qt::FindDirectChildrenOnly).isEmpty());
}

void TestScrPurityCtrlDialogModes::modeClick_fromAPausedRunLeavesNoTimer()
{
    const PurityRig rig(automaticMode());
    rig.click(rig.manual());

    QVERIFY(rig.hasControlsOf(false));
    QVERIFY(!rig.timer());
    QCOMPARE(rig.beginButton()->text(), begin);
}

void TestScrPurityCtrlDialogModes::modeClick_onTheCheckedModeChangesNothing_data()
{
    addRows<bool>("automatic", {{"manual", false}, {"automatic", true}});
}

void TestScrPurityCtrlDialogModes::modeClick_onTheCheckedModeChangesNothing()
{
    QFETCH(const bool, automatic);
    const PurityRig rig({{QStringLiteral("AutoTest"), automatic}});
    if (automatic)
        rig.panel->slot_PauseResume();
    rig.emitted();
    rig.click(automatic ? rig.automatic() : rig.manual());

    QVERIFY(rig.hasControlsOf(automatic));
    QCOMPARE(bool(rig.timer()), automatic);
    QCOMPARE(rig.emitted(), QString());
}

void TestScrPurityCtrlDialogModes::manualMode_showsTheManualGrey()
{
    PurityRig rig({{QStringLiteral("AutoTest"), true},
                   {QStringLiteral("testWindowBaseColor"), QColor(Qt::cyan)},
                   {QStringLiteral("testPurityGreyLevel"), 100},
                   {QStringLiteral("testAutoScale"), 200}});
    rig.click(rig.manual()); // the table of edits says what is told
    QCOMPARE(rig.shownColor(), qRgb(0, 100, 100));
    QVERIFY(rig.panel->puritySelected);
}

void TestScrPurityCtrlDialogModes::modeSlots_ignoreFalse()
{
    const PurityRig rig;
    rig.panel->slot_AutoPushed(false);
    QVERIFY(rig.hasControlsOf(false));
    rig.click(rig.automatic());
    rig.emitted();
    rig.panel->slot_MalPushed(false);

    QVERIFY(rig.hasControlsOf(true));
    QVERIFY(rig.timer());
    QCOMPARE(rig.emitted(), QString());
}

void TestScrPurityCtrlDialogModes::keysInManualMode_switchToAutomaticAndStartTheRun()
{
    for (const bool insert : {true, false}) {
        const PurityRig rig({{QStringLiteral("testPuritySpeed"), insert ? 80 : 1}});
        insert ? rig.panel->slot_keyInsertPressed() : rig.panel->slot_keyDeletePressed();

        QVERIFY(rig.hasControlsOf(true));
        QVERIFY(rig.timer());
        QCOMPARE(rig.timer()->interval(), insert ? 2100 : 10000);
        QCOMPARE(rig.beginButton()->text(), pause);
    }
}

void TestScrPurityCtrlDialogModes::keysThatStartTheRun_leaveTheDirectionAlone_data()
{
    addRows<bool>("insert", {{"Insert", true}, {"Delete", false}});
}

void TestScrPurityCtrlDialogModes::keysThatStartTheRun_leaveTheDirectionAlone()
{
    QFETCH(const bool, insert);
    const PurityRig rig({{QStringLiteral("testAutoScale"), 50}});
    const auto press = [&] {
        insert ? rig.panel->slot_keyInsertPressed() : rig.panel->slot_keyDeletePressed();
    };
    press();
    QCOMPARE(rig.tick(), 50);
    // Leaving a run for manual mode pauses it, which turns the direction upward.
    rig.click(rig.manual());
    press();
    QCOMPARE(rig.tick(), 51);
}

void TestScrPurityCtrlDialogModes::keysInAutomaticMode_onlySetTheDirection()
{
    const PurityRig rig(automaticMode());
    rig.startRun(50);
    const QTimer *timer = rig.timer();
    rig.emitted();
    rig.panel->slot_keyDeletePressed();
    QCOMPARE(rig.tick(), 49);
    QCOMPARE(rig.tick(), 48);
    rig.panel->slot_keyInsertPressed();
    QCOMPARE(rig.tick(), 49);
    rig.panel->slot_keyDeletePressed();
    QCOMPARE(rig.tick(), 48);

    QCOMPARE(rig.timer(), timer);
    QVERIFY(!rig.emitted().contains(QStringLiteral("signal_purityAutoChange")));
}

void TestScrPurityCtrlDialogModes::keysInAPausedRun_startNothing()
{
    const PurityRig rig(automaticMode());
    rig.panel->slot_keyInsertPressed();
    rig.panel->slot_keyDeletePressed();

    QVERIFY(!rig.timer());
    QCOMPARE(rig.beginButton()->text(), begin);
    QCOMPARE(rig.emitted(), QString());
}

void TestScrPurityCtrlDialogModes::keys_areIgnoredWhileAnotherTestIsSelected_data()
{
    keysThatStartTheRun_leaveTheDirectionAlone_data();
}

void TestScrPurityCtrlDialogModes::keys_areIgnoredWhileAnotherTestIsSelected()
{
    QFETCH(const bool, insert);
    TestSettings settings({{QStringLiteral("testAutoScale"), 50}});
    DrawContainer testWindow;
    ScrPurity otherTest(&testWindow);
    ScrPurityCtrlDialog panel(&testWindow, settings.get(), nullptr);
    const auto press = [&](bool isInsert) {
        isInsert ? panel.slot_keyInsertPressed() : panel.slot_keyDeletePressed();
    };
    QSignalSpy started(&panel, &ScrPurityCtrlDialog::signal_purityAutoChange);
    testWindow.setDrawer(&otherTest, false);
    press(insert);
    QVERIFY(panel.findChild<QRadioButton *>(QStringLiteral("radioButtonMual"))->isChecked());
    QVERIFY(!panel.findChild<QTimer *>(QString(), Qt::FindDirectChildrenOnly));
    QCOMPARE(started.count(), 0);

    // Nor does the key turn a run around. The panel's own is selected but not shown, as after a
    // tab change.
    testWindow.setDrawer(panel.getDrawer(), false);
    press(!insert);
    QVERIFY(panel.findChild<QRadioButton *>(QStringLiteral("radioButtonAuto"))->isChecked());
    QVERIFY(panel.findChild<QTimer *>(QString(), Qt::FindDirectChildrenOnly));
    press(!insert);
    testWindow.setDrawer(&otherTest, true);
    press(insert);
    panel.slot_AutoTimerFinished();
    QCOMPARE(panel.findChild<QSpinBox *>(QStringLiteral("spinBoxAutoScale"))->value(),
             insert ? 49 : 51);
}

QTEST_MAIN(TestScrPurityCtrlDialogModes)
#include "tst_scrpurityctrldialog_modes.moc"
