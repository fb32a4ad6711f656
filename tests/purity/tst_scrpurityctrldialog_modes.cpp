#include "drawcontainer.h"
#include "purityrig.h"

#include <QSignalSpy>
#include <QtTest>

namespace {

QVariantMap automaticMode()
{
    return {{QStringLiteral("AutoTest"), true}};
}

const QString begin = QStringLiteral("开始");
const QString pause = QStringLiteral("暂停");

// An automatic panel with the run going and a grey level set.
void startRun(const PurityRig &rig, int grey)
{
    rig.autoSpinBox()->setValue(grey);
    rig.panel->slot_PauseResume();
}

} // namespace

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
    void automaticMode_tellsTheAutomaticGrey();
    void modeSlots_ignoreFalse();

    void insertInManualMode_switchesToAutomaticAndStartsTheRun();
    void deleteInManualMode_switchesToAutomaticAndStartsTheRun();
    void keysThatStartTheRun_leaveTheDirectionAlone_data();
    void keysThatStartTheRun_leaveTheDirectionAlone();
    void keysInAutomaticMode_onlySetTheDirection();
    void keysInAPausedRun_startNothing();
    void keys_areIgnoredWhileAnotherTestIsSelected_data();
    void keys_areIgnoredWhileAnotherTestIsSelected();
    void keys_areObeyedWhileThisTestIsSelected();
};

void TestScrPurityCtrlDialogModes::modeClick_toAutomaticStartsTheRun()
{
    const PurityRig rig;
    QVERIFY(rig.hasControlsOf(false));
    QSignalSpy started(rig.panel.get(), &ScrPurityCtrlDialog::signal_purityAutoChange);
    rig.click(rig.automatic());

    QVERIFY(rig.hasControlsOf(true));
    QVERIFY(rig.timer());
    QCOMPARE(rig.beginButton()->text(), pause);
    QCOMPARE(started.count(), 1);
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
    QTest::addColumn<bool>("automatic");
    QTest::newRow("manual") << false;
    QTest::newRow("automatic") << true;
}

void TestScrPurityCtrlDialogModes::modeClick_onTheCheckedModeChangesNothing()
{
    QFETCH(const bool, automatic);
    const PurityRig rig({{QStringLiteral("AutoTest"), automatic}});
    if (automatic)
        rig.panel->slot_PauseResume();
    QSignalSpy started(rig.panel.get(), &ScrPurityCtrlDialog::signal_purityAutoChange);
    QSignalSpy grey(rig.panel.get(), &ScrPurityCtrlDialog::signal_greyChanged);
    QSignalSpy manual(rig.panel.get(), &ScrPurityCtrlDialog::signal_switchToMal);
    rig.click(automatic ? rig.automatic() : rig.manual());

    QVERIFY(rig.hasControlsOf(automatic));
    QCOMPARE(bool(rig.timer()), automatic);
    QCOMPARE(started.count() + grey.count() + manual.count(), 0);
}

void TestScrPurityCtrlDialogModes::manualMode_showsTheManualGrey()
{
    PurityRig rig({{QStringLiteral("AutoTest"), true},
                   {QStringLiteral("testWindowBaseColor"), QColor(Qt::cyan)},
                   {QStringLiteral("testPurityGreyLevel"), 100},
                   {QStringLiteral("testAutoScale"), 200}});
    QSignalSpy manual(rig.panel.get(), &ScrPurityCtrlDialog::signal_switchToMal);
    QSignalSpy grey(rig.panel.get(), &ScrPurityCtrlDialog::signal_greyChanged);
    rig.click(rig.manual());

    QCOMPARE(manual.count(), 1);
    QCOMPARE(manual.first().first().toInt(), 100);
    QCOMPARE(grey.count(), 1);
    QCOMPARE(grey.first().first().toString(), QStringLiteral("100"));
    QCOMPARE(rig.shownColor(), qRgb(0, 100, 100));
    QVERIFY(rig.panel->puritySelected);
}

void TestScrPurityCtrlDialogModes::automaticMode_tellsTheAutomaticGrey()
{
    const PurityRig rig(
        {{QStringLiteral("testPurityGreyLevel"), 100}, {QStringLiteral("testAutoScale"), 200}});
    QSignalSpy grey(rig.panel.get(), &ScrPurityCtrlDialog::signal_greyChanged);
    QSignalSpy manual(rig.panel.get(), &ScrPurityCtrlDialog::signal_switchToMal);
    rig.click(rig.automatic());

    QCOMPARE(grey.count(), 1);
    QCOMPARE(grey.first().first().toString(), QStringLiteral("200"));
    QCOMPARE(manual.count(), 0);
}

void TestScrPurityCtrlDialogModes::modeSlots_ignoreFalse()
{
    const PurityRig rig;
    QSignalSpy grey(rig.panel.get(), &ScrPurityCtrlDialog::signal_greyChanged);
    rig.panel->slot_AutoPushed(false);
    QVERIFY(rig.hasControlsOf(false));
    rig.click(rig.automatic());
    grey.clear();
    rig.panel->slot_MalPushed(false);

    QVERIFY(rig.hasControlsOf(true));
    QVERIFY(rig.timer());
    QCOMPARE(grey.count(), 0);
}

void TestScrPurityCtrlDialogModes::insertInManualMode_switchesToAutomaticAndStartsTheRun()
{
    const PurityRig rig({{QStringLiteral("testPuritySpeed"), 80}});
    QSignalSpy started(rig.panel.get(), &ScrPurityCtrlDialog::signal_purityAutoChange);
    rig.panel->slot_keyInsertPressed();

    QVERIFY(rig.hasControlsOf(true));
    QVERIFY(rig.timer());
    QCOMPARE(rig.timer()->interval(), 2100);
    QCOMPARE(rig.beginButton()->text(), pause);
    QVERIFY(started.count() >= 1);
}

void TestScrPurityCtrlDialogModes::deleteInManualMode_switchesToAutomaticAndStartsTheRun()
{
    const PurityRig rig({{QStringLiteral("testPuritySpeed"), 1}});
    QSignalSpy started(rig.panel.get(), &ScrPurityCtrlDialog::signal_purityAutoChange);
    rig.panel->slot_keyDeletePressed();

    QVERIFY(rig.hasControlsOf(true));
    QVERIFY(rig.timer());
    QCOMPARE(rig.timer()->interval(), 10000);
    QCOMPARE(rig.beginButton()->text(), pause);
    QVERIFY(started.count() >= 1);
}

void TestScrPurityCtrlDialogModes::keysThatStartTheRun_leaveTheDirectionAlone_data()
{
    QTest::addColumn<bool>("insert");
    QTest::newRow("Insert") << true;
    QTest::newRow("Delete") << false;
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
    startRun(rig, 50);
    const QTimer *timer = rig.timer();
    QSignalSpy started(rig.panel.get(), &ScrPurityCtrlDialog::signal_purityAutoChange);
    rig.panel->slot_keyDeletePressed();
    QCOMPARE(rig.tick(), 49);
    QCOMPARE(rig.tick(), 48);
    rig.panel->slot_keyInsertPressed();
    QCOMPARE(rig.tick(), 49);
    rig.panel->slot_keyDeletePressed();
    QCOMPARE(rig.tick(), 48);

    QCOMPARE(rig.timer(), timer);
    QCOMPARE(started.count(), 0);
}

void TestScrPurityCtrlDialogModes::keysInAPausedRun_startNothing()
{
    const PurityRig rig(automaticMode());
    QSignalSpy started(rig.panel.get(), &ScrPurityCtrlDialog::signal_purityAutoChange);
    rig.panel->slot_keyInsertPressed();
    rig.panel->slot_keyDeletePressed();

    QVERIFY(!rig.timer());
    QCOMPARE(rig.beginButton()->text(), begin);
    QCOMPARE(started.count(), 0);
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

    // Nor does the key turn a run around.
    testWindow.setDrawer(panel.getDrawer(), false);
    press(!insert);
    press(!insert);
    testWindow.setDrawer(&otherTest, true);
    press(insert);
    panel.slot_AutoTimerFinished();
    QCOMPARE(panel.findChild<QSpinBox *>(QStringLiteral("spinBoxAutoScale"))->value(),
             insert ? 49 : 51);
}

void TestScrPurityCtrlDialogModes::keys_areObeyedWhileThisTestIsSelected()
{
    DrawContainer testWindow;
    TestSettings settings;
    ScrPurityCtrlDialog panel(&testWindow, settings.get(), nullptr);
    // Selected but not shown, as after a tab change.
    testWindow.setDrawer(panel.getDrawer(), false);
    panel.slot_keyDeletePressed();

    QVERIFY(panel.findChild<QRadioButton *>(QStringLiteral("radioButtonAuto"))->isChecked());
    QVERIFY(panel.findChild<QTimer *>(QString(), Qt::FindDirectChildrenOnly));
}

QTEST_MAIN(TestScrPurityCtrlDialogModes)
#include "tst_scrpurityctrldialog_modes.moc"
