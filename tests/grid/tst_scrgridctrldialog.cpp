#include "dictionary.h"
#include "gridrig.h"

#include <QLabel>
#include <QSignalSpy>
#include <QTabWidget>
#include <QtTest>

namespace {

using Panel = ScrGridCtrlDialog;
using Key = void (Panel::*)();

} // namespace

// The controls, the keys and the texts.
class TestScrGridCtrlDialog : public QObject
{
    Q_OBJECT

private slots:
    void form_isAsItsControlsNeedIt();
    void slidersAndSpinBoxes_areAlike();
    void newPanel_showsTheGreyLampAndRed();
    void pageOfTabs_staysInItsPlaceAndOpen();
    void enterInASpinBox_pressesNoButton();
    void language_resetsTheStartTextUpToTheNextStep();
    void withoutSettings_thePanelWorks();

    void getDrawer_disablesSpeedAndGreyAndTheDrawer();
    void advanceSettings_areSwitchedTogether();
    void scrollEnabled_isTheRunAndItsButton();
    void greyKeys_stepAndWrap();
    void oneGreyEdit_isToldOnceAndShown();
};

void TestScrGridCtrlDialog::form_isAsItsControlsNeedIt()
{
    const GridRig rig;
    rig.panel->updateLanguage();
    QCOMPARE(rig.panel->minimumSize(), QSize(585, 192));
    QCOMPARE(rig.panel->maximumSize(), QSize(585, 192));
    QCOMPARE(rig.panel->windowTitle(), QStringLiteral("显示屏测试工具-网格"));
    for (const char letter : {'H', 'V', 'L', 'R'})
        QCOMPARE(rig.familyButton(letter)->maximumWidth(), 60);
    for (const char *name : {"label_2", "label_4"})
        QCOMPARE(rig.child<QLabel>(name)->maximumWidth(), 60);
    for (const char *name : {"label", "label_3", "label_5"}) {
        const auto *rule = rig.child<QLabel>(name);
        QCOMPARE(rule->styleSheet(), QStringLiteral("background:rgb(75,80,87);"));
        QCOMPARE(qMin(rule->width(), rule->height()), 2);
    }
    QCOMPARE(rig.overlay()->minimumWidth(), 80);
    for (int index = 0; index < colorCount; ++index)
        QCOMPARE(rig.colorButton(index)->geometry(), QRect(30 + 54 * index, 10, 42, 42));
}

void TestScrGridCtrlDialog::slidersAndSpinBoxes_areAlike()
{
    const GridRig rig;
    const std::tuple<QSlider *, QSpinBox *, int, int> pairs[] = {
        {rig.greySlider(), rig.greySpinBox(), 0, 255},
        {rig.speedSlider(), rig.speedSpinBox(), 1, 100},
    };
    for (const auto &[slider, spinBox, minimum, maximum] : pairs) {
        QCOMPARE(slider->width(), 230);
        QCOMPARE(spinBox->contextMenuPolicy(), Qt::NoContextMenu);
        QVERIFY(!spinBox->testAttribute(Qt::WA_MacShowFocusRect));
        QCOMPARE(slider->minimum(), minimum);
        QCOMPARE(slider->maximum(), maximum);
        QCOMPARE(spinBox->minimum(), minimum);
        QCOMPARE(spinBox->maximum(), maximum);
        slider->setValue(11);
        QCOMPARE(spinBox->value(), 11);
        spinBox->setValue(22);
        QCOMPARE(slider->value(), 22);
    }
    QCOMPARE(rig.greySlider()->value(), 22);
}

void TestScrGridCtrlDialog::newPanel_showsTheGreyLampAndRed()
{
    const GridRig rig;
    QVERIFY(rig.greenLamp()->isHidden());
    QVERIFY(!rig.greyLamp()->isHidden());
    for (int index = 0; index < colorCount; ++index)
        QVERIFY(rig.colorButton(index)->isCheckable());
    QCOMPARE(rig.checkedColor(), 0);
    QVERIFY(!rig.panel->scrollLocked);
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

void TestScrGridCtrlDialog::language_resetsTheStartTextUpToTheNextStep()
{
    const GridRig rig;
    rig.clickFamilies("H");
    rig.tick();
    const Dictionary marked(QStringLiteral("!"));
    rig.panel->updateLanguage(); // the start text even while running
    QCOMPARE(rig.pause()->text(), QStringLiteral("开始!"));
    QCOMPARE(rig.panel->windowTitle(), QStringLiteral("显示屏测试工具-网格!"));
    rig.tick();
    QCOMPARE(rig.pause()->text(), QStringLiteral("暂停!"));
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
    for (const bool on : {true, false}) { // the run alone
        rig.panel->setScroll(on);
        QCOMPARE(rig.panel->getScroll(), on);
        QCOMPARE(rig.panel->getScrollEnabled(), on);
        QCOMPARE(rig.runControls(), 0);
    }
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

void TestScrGridCtrlDialog::greyKeys_stepAndWrap()
{
    const std::pair<Key, int> keys[] = {{&Panel::slot_keyUpPressed, 1},
                                        {&Panel::slot_keyRightPressed, 1},
                                        {&Panel::slot_keyDownPressed, -1},
                                        {&Panel::slot_keyLeftPressed, -1}};
    for (const auto &[key, by] : keys) {
        for (const int start : {0, 100, 255}) {
            GridRig rig;
            rig.greySlider()->setValue(start);
            (rig.panel.get()->*key)(); // while the slider is disabled
            QCOMPARE(rig.greySlider()->value(), start);

            rig.clickFamilies("H");
            rig.emitted();
            (rig.panel.get()->*key)();
            const int expected = (start + by) & 255;
            QCOMPARE(rig.greySpinBox()->value(), expected);
            QCOMPARE(rig.emitted(), QStringLiteral("signal_greyChanged(%1)").arg(expected));
            QCOMPARE(rig.shown().line, qRgb(expected, 0, 0));
        }
    }
}

void TestScrGridCtrlDialog::oneGreyEdit_isToldOnceAndShown()
{
    for (const char *name : {"hScrollBarGrayLevel", "labelGrayLevel"}) {
        GridRig rig;
        rig.clickFamilies("V");
        rig.panel->getDrawer();
        rig.emitted();
        QVERIFY(rig.child<QWidget>(name)->setProperty("value", 42));
        QCOMPARE(rig.emitted(), QStringLiteral("signal_greyChanged(42)"));
        QCOMPARE(rig.shown().line, qRgb(42, 0, 0));
        QVERIFY(rig.drawer->active);
    }
}

QTEST_MAIN(TestScrGridCtrlDialog)
#include "tst_scrgridctrldialog.moc"
