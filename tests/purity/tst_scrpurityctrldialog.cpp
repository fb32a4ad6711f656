#include "paneltest.h"
#include "purityrig.h"
#include "rows.h"

#include <QLabel>
#include <QSignalSpy>
#include <QtTest>

class TestScrPurityCtrlDialog : public PanelTest<PurityRig>
{
    Q_OBJECT

protected:
    PanelFacts facts() const override;
    void addEdits() const override;

private slots:
    void ranges_areThoseOfTheValues_data();
    void ranges_areThoseOfTheValues();
    void spinBoxes_lookAndBehaveAlike_data()
    {
        addNames("name", {"spinBoxScale", "spinBoxAutoScale", "spinBoxSpeed"});
    }
    void spinBoxes_lookAndBehaveAlike();
    void form_isNamedAndColouredAsTheStyleSheetNeedsIt();
    void drawer_isTheSameEachTimeAndStaysAsItIs() { QVERIFY(PurityRig().keepsItsDrawer()); }

    void greyEdit_isShownAndSetsPuritySelected_data()
    {
        addNames("name", {"hScrollBarScale", "spinBoxScale", "spinBoxAutoScale"});
    }
    void greyEdit_isShownAndSetsPuritySelected();

    void arrows_stepTheManualGrey_data();
    void arrows_stepTheManualGrey();
    void sliderAndSpinBox_showTheSameValue();

    void automaticSteps_areSavedAtTheEndAlone();
    void greyOfZero_isSaved();
    void withoutSettings_thePanelWorks();
};

PanelFacts TestScrPurityCtrlDialog::facts() const
{
    return {{{QStringLiteral("testPurityGreyLevel"), 255},
             {QStringLiteral("testPuritySpeed"), 50},
             {QStringLiteral("testAutoScale"), 255},
             {QStringLiteral("AutoTest"), false}},
            "testPurityGreyLevel = 100\ntestPuritySpeed = 20\ntestAutoScale = 200\n"
            "AutoTest = false\ntestWindowBaseColor = #00ff00\n",
            {"AutoTest = true\n", "testWindowBaseColor = #ffffff\n", "testPuritySpeed = 0\n"},
            QStringLiteral("红|绿|蓝|白|黄|青|紫|自动|速度|速度|速度|当前灰度|当前灰度|"
                           "运行指示灯|运行指示灯|开始|手动|灰度|灰度|灰度")};
}

void TestScrPurityCtrlDialog::addEdits() const
{
    const char *const grey = "testPurityGreyLevel";
    const char *const speed = "testPuritySpeed";
    const char *const mode = "AutoTest";
    const QByteArray automatic = "AutoTest = true\n";
    const char *const run = "signal_greyChanged(200) signal_purityAutoChange()";
    edit("grey slider", "", "hScrollBarScale", 99, "signal_greyChanged(99)", grey, "99");
    edit("grey spin box", "", "spinBoxScale", 7, "signal_greyChanged(7)", grey, "7");
    edit("speed slider", automatic, "hScrollBarSpeed", 21, "", speed, "21");
    edit("speed spin box", automatic, "spinBoxSpeed", 8, "", speed, "8");
    edit("automatic grey", automatic, "spinBoxAutoScale", 9, "signal_greyChanged(9)",
         "testAutoScale", "9");
    edit("to automatic", "", "radioButtonAuto", {}, run, mode, "true");
    edit("to manual", automatic, "radioButtonMual", {},
         "signal_greyChanged(100) signal_purityAutoChange() signal_switchToMal(100)", mode,
         "false");
    edit("Up", "", "slot_keyUpPressed", {}, "signal_greyChanged(101)", grey, "101");
    edit("Down", "", "slot_keyDownPressed", {}, "signal_greyChanged(99)", grey, "99");
    edit("Left", "", "slot_keyLeftPressed", {}, "signal_greyChanged(99)", grey, "99");
    edit("Right", "", "slot_keyRightPressed", {}, "signal_greyChanged(101)", grey, "101");
    edit("Insert", "", "slot_keyInsertPressed", {}, run, mode, "true");
    edit("Delete", "", "slot_keyDeletePressed", {}, run, mode, "true");
    edit("colour", "", "radioButtonCyan", {},
         "signal_colorChanged(#00ffff) signal_colorChanged(#00ffff)", "testWindowBaseColor",
         "#00ffff");
}

void TestScrPurityCtrlDialog::ranges_areThoseOfTheValues_data()
{
    const Table<const char *, int, int> row("name", "minimum", "maximum");
    row("manual slider", "hScrollBarScale", 0, 255);
    row("manual spin box", "spinBoxScale", 0, 255);
    row("automatic spin box", "spinBoxAutoScale", 0, 255);
    row("speed slider", "hScrollBarSpeed", 1, 100);
    row("speed spin box", "spinBoxSpeed", 1, 100);
}

void TestScrPurityCtrlDialog::ranges_areThoseOfTheValues()
{
    QFETCH(const QString, name);
    const PurityRig rig;
    const auto *widget = rig.panel->findChild<QWidget *>(name);
    QVERIFY(widget);

    QTEST(widget->property("minimum").toInt(), "minimum");
    QTEST(widget->property("maximum").toInt(), "maximum");
}

void TestScrPurityCtrlDialog::spinBoxes_lookAndBehaveAlike()
{
    QFETCH(const QString, name);
    const PurityRig rig;
    const auto *spinBox = rig.panel->findChild<QSpinBox *>(name);
    QVERIFY(spinBox);

    QCOMPARE(spinBox->minimumHeight(), 20);
    QCOMPARE(spinBox->maximumHeight(), 20);
    QCOMPARE(spinBox->contextMenuPolicy(), Qt::NoContextMenu);
    QVERIFY(!spinBox->testAttribute(Qt::WA_MacShowFocusRect));
}

void TestScrPurityCtrlDialog::form_isNamedAndColouredAsTheStyleSheetNeedsIt()
{
    const PurityRig rig;
    QVERIFY(!rig.child<QPushButton>("buttonPauseResume"));
    QCOMPARE(rig.beginButton()->text(), begin);
    QCOMPARE(rig.child<QLabel>("label_2")->styleSheet(),
             QStringLiteral("background:rgb(75,80,87);"));
    QVERIFY(rig.greenLamp()->isHidden());
    QVERIFY(!rig.greyLamp()->isHidden());
}

void TestScrPurityCtrlDialog::greyEdit_isShownAndSetsPuritySelected()
{
    QFETCH(const QString, name);
    PurityRig rig({{QStringLiteral("testWindowBaseColor"), QColor(Qt::yellow)}});
    auto *control = rig.panel->findChild<QWidget *>(name);
    QVERIFY(control && control->setProperty("value", 200));

    QCOMPARE(rig.shownColor(), qRgb(200, 200, 0));
    QVERIFY(rig.panel->getDrawer()->active);
    QVERIFY(rig.panel->puritySelected);
}

void TestScrPurityCtrlDialog::arrows_stepTheManualGrey_data()
{
    const Table<int, QByteArray, int> row("start", "key", "expected");
    row("Up", 100, "slot_keyUpPressed", 101);
    row("Right", 100, "slot_keyRightPressed", 101);
    row("Down", 100, "slot_keyDownPressed", 99);
    row("Left", 100, "slot_keyLeftPressed", 99);
    row("Up to the maximum", 254, "slot_keyUpPressed", 255);
    row("Down to the minimum", 1, "slot_keyDownPressed", 0);
    row("the Up arrow at grey 255 gives 0", 255, "slot_keyUpPressed", 0);
    row("Right at 255", 255, "slot_keyRightPressed", 0);
    row("the Down arrow at 0 gives 255", 0, "slot_keyDownPressed", 255);
    row("Left at 0", 0, "slot_keyLeftPressed", 255);
}

void TestScrPurityCtrlDialog::arrows_stepTheManualGrey()
{
    QFETCH(const int, start);
    QFETCH(const QByteArray, key);
    QFETCH(const int, expected);
    PurityRig rig({{QStringLiteral("testWindowBaseColor"), QColor(Qt::white)}});
    rig.greySlider()->setValue(start);
    rig.emitted();
    rig.panel->puritySelected = false;

    QVERIFY(QMetaObject::invokeMethod(rig.panel.get(), key));

    QCOMPARE(rig.greySlider()->value(), expected);
    QCOMPARE(rig.greySpinBox()->value(), expected);
    QCOMPARE(rig.shownColor(), qRgb(expected, expected, expected));
    QCOMPARE(rig.emitted(), QStringLiteral("signal_greyChanged(%1)").arg(expected));
    QVERIFY(rig.panel->puritySelected);
}

void TestScrPurityCtrlDialog::sliderAndSpinBox_showTheSameValue()
{
    const PurityRig rig;
    rig.greySlider()->setValue(11);
    QCOMPARE(rig.greySpinBox()->value(), 11);
    rig.greySpinBox()->setValue(22);
    QCOMPARE(rig.greySlider()->value(), 22);
    rig.speedSlider()->setValue(33);
    QCOMPARE(rig.speedSpinBox()->value(), 33);
    rig.speedSpinBox()->setValue(44);
    QCOMPARE(rig.speedSlider()->value(), 44);
    QCOMPARE(rig.greySlider()->value(), 22);
}

void TestScrPurityCtrlDialog::automaticSteps_areSavedAtTheEndAlone()
{
    PurityRig rig({{QStringLiteral("AutoTest"), true}, {QStringLiteral("testAutoScale"), 200}});
    rig.panel->slot_keyInsertPressed();
    for (int expected = 201; expected <= 210; ++expected)
        QCOMPARE(rig.tick(), expected);
    QVERIFY(!rig.isSaveDue());

    rig.close();
    QCOMPARE(rig.settings.stored().value(QStringLiteral("testAutoScale")).toInt(), 210);
}

// Though it is read as 255.
void TestScrPurityCtrlDialog::greyOfZero_isSaved()
{
    PurityRig rig;
    rig.greySlider()->setValue(0);
    QVERIFY(rig.isSaveDue());
    rig.close();
    QCOMPARE(rig.settings.stored().value(QStringLiteral("testPurityGreyLevel")).toString(),
             QStringLiteral("0"));
}

void TestScrPurityCtrlDialog::withoutSettings_thePanelWorks()
{
    Canvas canvas;
    ScrPurityCtrlDialog panel(&canvas, nullptr, nullptr);
    canvas.setDrawer(panel.getDrawer());
    QVERIFY(!panel.findChild<QSlider *>(QStringLiteral("hScrollBarSpeed"))->isEnabled());
    QSignalSpy grey(&panel, &ScrPurityCtrlDialog::signal_greyChanged);
    panel.slot_changeSelectedPurityColor(Qt::blue);
    panel.findChild<QSlider *>(QStringLiteral("hScrollBarScale"))->setValue(60);
    QCOMPARE(canvas.painted().pixel(0, 0), qRgb(0, 0, 60));
    QCOMPARE(grey.last().first().toString(), QStringLiteral("60"));

    panel.slot_keyInsertPressed();
    panel.slot_keyInsertPressed();
    const auto *autoGrey = panel.findChild<QSpinBox *>(QStringLiteral("spinBoxAutoScale"));
    const int before = autoGrey->value();
    panel.slot_AutoTimerFinished();
    QCOMPARE(autoGrey->value(), (before + 1) % 256);
    panel.saveScrPurityInfo();
    panel.updateLanguage();
}

QTEST_MAIN(TestScrPurityCtrlDialog)
#include "tst_scrpurityctrldialog.moc"
