#include "purityrig.h"

#include <QLabel>
#include <QSignalSpy>
#include <QtTest>

namespace {

void pressArrow(ScrPurityCtrlDialog &panel, int key)
{
    switch (key) {
    case Qt::Key_Up:
        return panel.slot_keyUpPressed();
    case Qt::Key_Right:
        return panel.slot_keyRightPressed();
    case Qt::Key_Down:
        return panel.slot_keyDownPressed();
    case Qt::Key_Left:
        return panel.slot_keyLeftPressed();
    default:
        qFatal("no arrow");
    }
}

// Every text of the panel, the colours first.
QStringList texts(const PurityRig &rig)
{
    QStringList all;
    for (int index = 0; index < 7; ++index)
        all << rig.colorButton(index)->text();
    for (const char *name : {"label", "label_4", "label_3"})
        all << rig.child<QLabel>(name)->text();
    return all << rig.automatic()->text() << rig.manual()->text() << rig.beginButton()->text();
}

} // namespace

class TestScrPurityCtrlDialog : public QObject
{
    Q_OBJECT

private slots:
    void ranges_areThoseOfTheValues_data();
    void ranges_areThoseOfTheValues();
    void spinBoxes_lookAndBehaveAlike_data();
    void spinBoxes_lookAndBehaveAlike();
    void pauseButton_isNamedForTheStyleSheet();
    void rule_hasItsColour();
    void lamps_startGrey();
    void drawer_isTheSameEachTimeAndStaysAsItIs();

    void greyChange_setsPuritySelected_data();
    void greyChange_setsPuritySelected();

    void arrows_stepTheManualGrey_data();
    void arrows_stepTheManualGrey();
    void oneGreyEdit_isToldOnce_data();
    void oneGreyEdit_isToldOnce();
    void greyEdit_isShown_data();
    void greyEdit_isShown();
    void sliderAndSpinBox_showTheSameValue();

    void language_isAppliedToEveryText();
    void language_thatDoesNotFitIsElided_data();
    void language_thatDoesNotFitIsElided();
    void withoutSettings_thePanelWorks();
};

void TestScrPurityCtrlDialog::ranges_areThoseOfTheValues_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("minimum");
    QTest::addColumn<int>("maximum");
    QTest::newRow("manual slider") << QStringLiteral("hScrollBarScale") << 0 << 255;
    QTest::newRow("manual spin box") << QStringLiteral("spinBoxScale") << 0 << 255;
    QTest::newRow("automatic spin box") << QStringLiteral("spinBoxAutoScale") << 0 << 255;
    QTest::newRow("speed slider") << QStringLiteral("hScrollBarSpeed") << 1 << 100;
    QTest::newRow("speed spin box") << QStringLiteral("spinBoxSpeed") << 1 << 100;
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

void TestScrPurityCtrlDialog::spinBoxes_lookAndBehaveAlike_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"spinBoxScale", "spinBoxAutoScale", "spinBoxSpeed"})
        QTest::newRow(name) << QString::fromLatin1(name);
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

void TestScrPurityCtrlDialog::pauseButton_isNamedForTheStyleSheet()
{
    const PurityRig rig;
    QVERIFY(rig.beginButton());
    QVERIFY(!rig.child<QPushButton>("buttonPauseResume"));
    QCOMPARE(rig.beginButton()->text(), QStringLiteral("开始"));
}

void TestScrPurityCtrlDialog::rule_hasItsColour()
{
    const PurityRig rig;
    QVERIFY(rig.child<QLabel>("label_2"));
    QCOMPARE(rig.child<QLabel>("label_2")->styleSheet(),
             QStringLiteral("background:rgb(75,80,87);"));
}

void TestScrPurityCtrlDialog::lamps_startGrey()
{
    const PurityRig rig;
    QVERIFY(rig.greenLamp()->isHidden());
    QVERIFY(!rig.greyLamp()->isHidden());
}

void TestScrPurityCtrlDialog::drawer_isTheSameEachTimeAndStaysAsItIs()
{
    const PurityRig rig;
    DrawerBase *drawer = rig.panel->getDrawer();
    QVERIFY(drawer->targetWidget == &rig.canvas);

    for (const bool active : {true, false}) {
        drawer->active = active;
        QCOMPARE(rig.panel->getDrawer(), drawer);
        QCOMPARE(drawer->active, active);
    }
}

void TestScrPurityCtrlDialog::greyChange_setsPuritySelected_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"hScrollBarScale", "spinBoxScale", "spinBoxAutoScale"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

void TestScrPurityCtrlDialog::greyChange_setsPuritySelected()
{
    QFETCH(const QString, name);
    const PurityRig rig;
    auto *control = rig.panel->findChild<QWidget *>(name);
    QVERIFY(control && control->setProperty("value", 77));

    QVERIFY(rig.panel->puritySelected);
}

void TestScrPurityCtrlDialog::arrows_stepTheManualGrey_data()
{
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("expected");

    QTest::newRow("Up") << 100 << int(Qt::Key_Up) << 101;
    QTest::newRow("Right") << 100 << int(Qt::Key_Right) << 101;
    QTest::newRow("Down") << 100 << int(Qt::Key_Down) << 99;
    QTest::newRow("Left") << 100 << int(Qt::Key_Left) << 99;
    QTest::newRow("Up to the maximum") << 254 << int(Qt::Key_Up) << 255;
    QTest::newRow("Down to the minimum") << 1 << int(Qt::Key_Down) << 0;
    QTest::newRow("the Up arrow at grey 255 gives 0") << 255 << int(Qt::Key_Up) << 0;
    QTest::newRow("Right at 255") << 255 << int(Qt::Key_Right) << 0;
    QTest::newRow("the Down arrow at 0 gives 255") << 0 << int(Qt::Key_Down) << 255;
    QTest::newRow("Left at 0") << 0 << int(Qt::Key_Left) << 255;
}

void TestScrPurityCtrlDialog::arrows_stepTheManualGrey()
{
    QFETCH(const int, start);
    QFETCH(const int, key);
    QFETCH(const int, expected);
    PurityRig rig({{QStringLiteral("testWindowBaseColor"), QColor(Qt::white)}});
    rig.greySlider()->setValue(start);
    QSignalSpy grey(rig.panel.get(), &ScrPurityCtrlDialog::signal_greyChanged);
    rig.panel->puritySelected = false;

    pressArrow(*rig.panel, key);

    QCOMPARE(rig.greySlider()->value(), expected);
    QCOMPARE(rig.greySpinBox()->value(), expected);
    QCOMPARE(rig.shownColor(), qRgb(expected, expected, expected));
    QCOMPARE(grey.count(), 1);
    QCOMPARE(grey.first().first().toString(), QString::number(expected));
    QVERIFY(rig.panel->puritySelected);
}

void TestScrPurityCtrlDialog::oneGreyEdit_isToldOnce_data()
{
    greyChange_setsPuritySelected_data();
}

void TestScrPurityCtrlDialog::oneGreyEdit_isToldOnce()
{
    QFETCH(const QString, name);
    const PurityRig rig;
    QSignalSpy grey(rig.panel.get(), &ScrPurityCtrlDialog::signal_greyChanged);
    auto *control = rig.panel->findChild<QWidget *>(name);
    QVERIFY(control && control->setProperty("value", 42));

    QCOMPARE(grey.count(), 1);
    QCOMPARE(grey.first().first().toString(), QStringLiteral("42"));
}

void TestScrPurityCtrlDialog::greyEdit_isShown_data()
{
    greyChange_setsPuritySelected_data();
}

void TestScrPurityCtrlDialog::greyEdit_isShown()
{
    QFETCH(const QString, name);
    PurityRig rig({{QStringLiteral("testWindowBaseColor"), QColor(Qt::yellow)}});
    auto *control = rig.panel->findChild<QWidget *>(name);
    QVERIFY(control && control->setProperty("value", 200));

    QCOMPARE(rig.shownColor(), qRgb(200, 200, 0));
    QVERIFY(rig.panel->getDrawer()->active);
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

void TestScrPurityCtrlDialog::language_isAppliedToEveryText()
{
    const PurityRig rig;
    const QStringList chinese = texts(rig);
    QCOMPARE(chinese,
             QStringList({QStringLiteral("红"), QStringLiteral("绿"), QStringLiteral("蓝"),
                          QStringLiteral("白"), QStringLiteral("黄"), QStringLiteral("青"),
                          QStringLiteral("紫"), QStringLiteral("当前灰度"), QStringLiteral("速度"),
                          QStringLiteral("灰度"), QStringLiteral("自动"), QStringLiteral("手动"),
                          QStringLiteral("开始")}));
    {
        PurityTranslator translator;
        QVERIFY(QCoreApplication::installTranslator(&translator));
        rig.panel->updateLanguage();
        QCOMPARE(texts(rig).join(QLatin1Char(' ')),
                 QStringLiteral("R G B W Y C P Now Speed Grey Auto Hand Go"));
    }
    rig.panel->updateLanguage();
    QCOMPARE(texts(rig), chinese);
}

void TestScrPurityCtrlDialog::language_thatDoesNotFitIsElided_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("whole");
    const QString rest = QStringLiteral(" and on").repeated(9);
    QTest::newRow("current grey") << QStringLiteral("label") << QStringLiteral("Now") + rest;
    QTest::newRow("grey") << QStringLiteral("label_3") << QStringLiteral("Grey") + rest;
    QTest::newRow("speed") << QStringLiteral("label_4") << QStringLiteral("Speed") + rest;
    QTest::newRow("auto") << QStringLiteral("radioButtonAuto") << QStringLiteral("Auto") + rest;
    QTest::newRow("manual") << QStringLiteral("radioButtonMual") << QStringLiteral("Hand") + rest;
}

void TestScrPurityCtrlDialog::language_thatDoesNotFitIsElided()
{
    QFETCH(const QString, name);
    QFETCH(const QString, whole);
    const PurityRig rig;
    const auto *widget = rig.panel->findChild<QWidget *>(name);
    QVERIFY(widget);
    PurityTranslator translator(true);
    QVERIFY(QCoreApplication::installTranslator(&translator));
    rig.panel->updateLanguage();

    QCOMPARE(widget->toolTip(), whole);
    const QString shown = widget->property("text").toString();
    QVERIFY(shown.endsWith(QChar(0x2026)));
    QVERIFY(whole.startsWith(shown.chopped(1)));
    QVERIFY(widget->fontMetrics().boundingRect(shown).width() <= widget->width());
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
