#include "gridrig.h"

#include <QLabel>
#include <QSignalSpy>
#include <QTabWidget>
#include <QtTest>

namespace {

using Key = void (ScrGridCtrlDialog::*)();

} // namespace

Q_DECLARE_METATYPE(Key)

// The controls and the keys.
class TestScrGridCtrlDialog : public QObject
{
    Q_OBJECT

private slots:
    void panel_hasItsSizeAndTitle();
    void ranges_areThoseOfTheValues_data();
    void ranges_areThoseOfTheValues();
    void widths_areLimited();
    void spinBoxes_lookAndBehaveAlike_data();
    void spinBoxes_lookAndBehaveAlike();
    void runButtons_areNamedForTheStyleSheet();
    void rules_haveTheirColour();
    void newPanel_showsTheGreyLampAndRed();
    void pageOfTabs_staysInItsPlaceAndOpen();
    void lineState_runsItsSlotTwice();
    void enterInASpinBox_pressesNoButton();

    void getDrawer_disablesSpeedAndGreyAndTheDrawer();
    void advanceSettings_areSwitchedTogether();
    void scrollEnabled_isTheRunAndItsButton();
    void scroll_isTheRunAlone();

    void greyKeys_stepAndWrap_data();
    void greyKeys_stepAndWrap();
    void greyKeys_doNothingWhileTheSliderIsDisabled_data();
    void greyKeys_doNothingWhileTheSliderIsDisabled();
    void oneGreyEdit_isToldOnceAndShown_data();
    void oneGreyEdit_isToldOnceAndShown();
    void sliderAndSpinBox_showTheSameValue();

    void withoutSettings_thePanelWorks();
};

void TestScrGridCtrlDialog::panel_hasItsSizeAndTitle()
{
    const GridRig rig;
    QCOMPARE(rig.panel->minimumSize(), QSize(585, 192));
    QCOMPARE(rig.panel->maximumSize(), QSize(585, 192));
    QCOMPARE(rig.panel->windowTitle(), QStringLiteral("显示屏测试工具-网格"));
}

void TestScrGridCtrlDialog::ranges_areThoseOfTheValues_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("minimum");
    QTest::addColumn<int>("maximum");
    QTest::newRow("grey slider") << QStringLiteral("hScrollBarGrayLevel") << 0 << 255;
    QTest::newRow("grey spin box") << QStringLiteral("labelGrayLevel") << 0 << 255;
    QTest::newRow("speed slider") << QStringLiteral("hScrollBarSpeed") << 1 << 100;
    QTest::newRow("speed spin box") << QStringLiteral("labelSpeed") << 1 << 100;
}

void TestScrGridCtrlDialog::ranges_areThoseOfTheValues()
{
    QFETCH(const QString, name);
    const GridRig rig;
    const auto *widget = rig.panel->findChild<QWidget *>(name);
    QVERIFY(widget);

    QTEST(widget->property("minimum").toInt(), "minimum");
    QTEST(widget->property("maximum").toInt(), "maximum");
}

void TestScrGridCtrlDialog::widths_areLimited()
{
    const GridRig rig;
    rig.panel->updateLanguage();
    for (const char letter : {'H', 'V', 'L', 'R'})
        QCOMPARE(rig.familyButton(QLatin1Char(letter))->maximumWidth(), 60);
    for (const char *name : {"label_2", "label_4"})
        QCOMPARE(rig.child<QLabel>(name)->maximumWidth(), 60);
    QCOMPARE(rig.greySlider()->width(), 230);
    QCOMPARE(rig.speedSlider()->width(), 230);
    QCOMPARE(rig.overlay()->minimumWidth(), 80);
    for (int index = 0; index < 7; ++index)
        QCOMPARE(rig.colorButton(index)->geometry(), QRect(30 + 54 * index, 10, 42, 42));
}

void TestScrGridCtrlDialog::spinBoxes_lookAndBehaveAlike_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"labelGrayLevel", "labelSpeed"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

void TestScrGridCtrlDialog::spinBoxes_lookAndBehaveAlike()
{
    QFETCH(const QString, name);
    const GridRig rig;
    const auto *spinBox = rig.panel->findChild<QSpinBox *>(name);
    QVERIFY(spinBox);

    QCOMPARE(spinBox->contextMenuPolicy(), Qt::NoContextMenu);
    QVERIFY(!spinBox->testAttribute(Qt::WA_MacShowFocusRect));
}

void TestScrGridCtrlDialog::runButtons_areNamedForTheStyleSheet()
{
    const GridRig rig;
    QCOMPARE(rig.pause()->text(), QStringLiteral("开始"));
    QCOMPARE(rig.mixSettings()->text(), QStringLiteral("高级设置"));
    QVERIFY(!rig.child<QPushButton>("pushButtonPause"));
    QVERIFY(!rig.child<QPushButton>("pushButtonSettings"));
}

void TestScrGridCtrlDialog::rules_haveTheirColour()
{
    const GridRig rig;
    for (const char *name : {"label", "label_3", "label_5"}) {
        const auto *rule = rig.child<QLabel>(name);
        QVERIFY(rule);
        QCOMPARE(rule->styleSheet(), QStringLiteral("background:rgb(75,80,87);"));
        QCOMPARE(qMin(rule->width(), rule->height()), 2);
    }
}

void TestScrGridCtrlDialog::newPanel_showsTheGreyLampAndRed()
{
    const GridRig rig;
    QVERIFY(rig.greenLamp()->isHidden());
    QVERIFY(!rig.greyLamp()->isHidden());
    for (int index = 0; index < 7; ++index) {
        QVERIFY(rig.colorButton(index)->isCheckable());
        QCOMPARE(rig.colorButton(index)->isChecked(), index == 0);
    }
    QCOMPARE(rig.checked(), QString());
    QVERIFY(rig.overlay()->isChecked());
    QCOMPARE(int(rig.panel->colorIndex), 0);
    QCOMPARE(int(rig.panel->lineIndex), 0);
    QVERIFY(!rig.panel->scrollLocked);
    QVERIFY(!rig.panel->pushButtonPauseChecked);
}

void TestScrGridCtrlDialog::pageOfTabs_staysInItsPlaceAndOpen()
{
    Canvas canvas;
    QTabWidget tabs;
    auto *panel = new ScrGridCtrlDialog(&canvas, nullptr, &tabs);
    tabs.addTab(new QWidget, QString());
    tabs.addTab(panel, QString());
    tabs.show();
    tabs.setCurrentIndex(1);
    QVERIFY(panel->isVisible());
    QCOMPARE(panel->pos(), QPoint());

    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QCoreApplication::sendEvent(panel, &escape);
    QVERIFY(panel->isVisible());
    QVERIFY(!escape.isAccepted()); // so that it goes on to the main window
}

// In single mode the second run of the slot leaves what the first one has shown.
void TestScrGridCtrlDialog::lineState_runsItsSlotTwice()
{
    const GridRig rig;
    rig.clickFamilies("V");
    QVERIFY(rig.overlay()->isChecked());
    rig.panel->lineIndex = 0;
    rig.panel->slot_changeLineState();
    QCOMPARE(rig.checked(), QStringLiteral("V"));
    rig.overlay()->setChecked(false);
    rig.panel->slot_changeLineState();
    QCOMPARE(rig.checked(), QStringLiteral("H"));
}

void TestScrGridCtrlDialog::enterInASpinBox_pressesNoButton()
{
    const GridRig rig;
    rig.panel->enableAdvanceSettings();
    rig.panel->show();
    QVERIFY(QTest::qWaitForWindowExposed(rig.panel.get()));
    QSignalSpy aging(rig.aging(), &QPushButton::clicked);
    rig.aging()->setFocus();
    rig.click(rig.aging());
    QCOMPARE(aging.count(), 1);
    rig.greySpinBox()->setFocus();
    QTest::keyClick(rig.greySpinBox(), Qt::Key_Return);

    QCOMPARE(aging.count(), 1);
    QVERIFY(rig.panel->isVisible());
}

// A freshly shown tab paints nothing new until a control is used.
void TestScrGridCtrlDialog::getDrawer_disablesSpeedAndGreyAndTheDrawer()
{
    GridRig rig;
    rig.clickFamilies("H");
    rig.tick();
    QVERIFY(rig.drawer->active);
    QCOMPARE(rig.runControls(), 1);
    for (int times = 0; times < 2; ++times) {
        QVERIFY(rig.panel->getDrawer() == rig.drawer);
        QVERIFY(rig.drawer->targetWidget == &rig.canvas);
        QVERIFY(!rig.drawer->active);
        QCOMPARE(rig.runControls(), 0);
    }
    QVERIFY(rig.mixSettings()->isEnabled());
    rig.tick();
    QVERIFY(!rig.drawer->active);

    rig.click(rig.colorButton(1));
    rig.tick();
    QVERIFY(rig.drawer->active);
}

void TestScrGridCtrlDialog::advanceSettings_areSwitchedTogether()
{
    const GridRig rig;
    rig.mixSettings()->setEnabled(false);
    rig.panel->enableAdvanceSettings();
    QCOMPARE(rig.runControls(), 1);
    QVERIFY(rig.mixSettings()->isEnabled());
    QVERIFY(rig.panel->getScroll());

    rig.panel->disableAdvanceSettings();
    QCOMPARE(rig.runControls(), 0);
    QVERIFY(rig.mixSettings()->isEnabled());
    QVERIFY(rig.panel->getScroll());
    rig.tick();
    QVERIFY(!rig.drawer->active);
}

void TestScrGridCtrlDialog::scrollEnabled_isTheRunAndItsButton()
{
    GridRig rig;
    rig.panel->setScrollEnabled(true);
    QVERIFY(rig.panel->getScroll());
    QVERIFY(rig.panel->getScrollEnabled());
    QVERIFY(rig.pause()->isEnabled());
    QVERIFY(!rig.speedSlider()->isEnabled());
    rig.tick();
    QVERIFY(rig.drawer->active);

    rig.panel->setScrollEnabled(false);
    QVERIFY(!rig.panel->getScroll());
    QVERIFY(!rig.panel->getScrollEnabled());
    QVERIFY(rig.pause()->isEnabled());
    rig.drawer->active = false;
    rig.panel->setScroll(true);
    rig.tick();
    QVERIFY(!rig.drawer->active);
}

void TestScrGridCtrlDialog::scroll_isTheRunAlone()
{
    const GridRig rig;
    for (const bool on : {true, false}) {
        rig.panel->setScroll(on);
        QCOMPARE(rig.panel->getScroll(), on);
        QCOMPARE(rig.panel->getScrollEnabled(), on);
        QCOMPARE(rig.runControls(), 0);
    }
}

void TestScrGridCtrlDialog::greyKeys_stepAndWrap_data()
{
    QTest::addColumn<int>("start");
    QTest::addColumn<Key>("key");
    QTest::addColumn<int>("expected");
    using Panel = ScrGridCtrlDialog;
    QTest::newRow("Up") << 100 << Key(&Panel::slot_keyUpPressed) << 101;
    QTest::newRow("Right") << 100 << Key(&Panel::slot_keyRightPressed) << 101;
    QTest::newRow("Down") << 100 << Key(&Panel::slot_keyDownPressed) << 99;
    QTest::newRow("Left") << 100 << Key(&Panel::slot_keyLeftPressed) << 99;
    QTest::newRow("at grey 255 the Up key gives 0") << 255 << Key(&Panel::slot_keyUpPressed) << 0;
    QTest::newRow("Right at 255") << 255 << Key(&Panel::slot_keyRightPressed) << 0;
    QTest::newRow("at grey 0 the Down key gives 255")
        << 0 << Key(&Panel::slot_keyDownPressed) << 255;
    QTest::newRow("Left at 0") << 0 << Key(&Panel::slot_keyLeftPressed) << 255;
}

void TestScrGridCtrlDialog::greyKeys_stepAndWrap()
{
    QFETCH(const int, start);
    QFETCH(const Key, key);
    QFETCH(const int, expected);
    GridRig rig;
    rig.clickFamilies("H");
    rig.greySlider()->setValue(start);
    QSignalSpy grey(rig.panel.get(), &ScrGridCtrlDialog::signal_greyChanged);
    (rig.panel.get()->*key)();

    QCOMPARE(rig.greySlider()->value(), expected);
    QCOMPARE(rig.greySpinBox()->value(), expected);
    QCOMPARE(grey.count(), 1);
    QCOMPARE(grey.first().first().toString(), QString::number(expected));
    QCOMPARE(rig.shown().line, qRgb(expected, 0, 0));
}

void TestScrGridCtrlDialog::greyKeys_doNothingWhileTheSliderIsDisabled_data()
{
    greyKeys_stepAndWrap_data();
}

void TestScrGridCtrlDialog::greyKeys_doNothingWhileTheSliderIsDisabled()
{
    QFETCH(const int, start);
    QFETCH(const Key, key);
    const GridRig rig;
    rig.greySlider()->setValue(start);
    QVERIFY(!rig.greySlider()->isEnabled());
    (rig.panel.get()->*key)();

    QCOMPARE(rig.greySlider()->value(), start);
}

void TestScrGridCtrlDialog::oneGreyEdit_isToldOnceAndShown_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"hScrollBarGrayLevel", "labelGrayLevel"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

void TestScrGridCtrlDialog::oneGreyEdit_isToldOnceAndShown()
{
    QFETCH(const QString, name);
    GridRig rig;
    rig.clickFamilies("V");
    rig.panel->getDrawer();
    QSignalSpy grey(rig.panel.get(), &ScrGridCtrlDialog::signal_greyChanged);
    auto *control = rig.panel->findChild<QWidget *>(name);
    QVERIFY(control && control->setProperty("value", 42));

    QCOMPARE(grey.count(), 1);
    QCOMPARE(grey.first().first().toString(), QStringLiteral("42"));
    QCOMPARE(rig.shown().line, qRgb(42, 0, 0));
    QVERIFY(rig.drawer->active);
}

void TestScrGridCtrlDialog::sliderAndSpinBox_showTheSameValue()
{
    const GridRig rig;
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

void TestScrGridCtrlDialog::withoutSettings_thePanelWorks()
{
    Canvas canvas(QSize(41, 41));
    ScrGridCtrlDialog panel(&canvas, nullptr, nullptr);
    canvas.setDrawer(panel.getDrawer());
    panel.slot_changeSelectedGridColor(Qt::blue);
    panel.findChild<QPushButton *>(QStringLiteral("radioButtonHorizontal"))->click();
    QCOMPARE(canvas.painted().pixel(5, 0), qRgb(0, 0, 128));
    panel.slot_TimerOut();
    QCOMPARE(canvas.painted().pixel(5, 1), qRgb(0, 0, 128));
    panel.findChild<QPushButton *>(QStringLiteral("pushButtonMerged"))->click();
    panel.slot_TimerOut();
    QCOMPARE(canvas.painted().pixel(5, 5), qRgb(128, 0, 0));
    panel.updateLanguage();
    panel.saveGridBaseInfo();
}

QTEST_MAIN(TestScrGridCtrlDialog)
#include "tst_scrgridctrldialog.moc"
