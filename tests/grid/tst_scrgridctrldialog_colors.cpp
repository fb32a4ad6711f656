#include "gridrig.h"

#include <QSignalSpy>
#include <QtTest>

namespace {

QColor baseColor(const GridRig &rig)
{
    return rig.settings->value(QStringLiteral("/setting/testWindowBaseColor")).value<QColor>();
}

} // namespace

// The choice of the line colour, here and in the other panels.
class TestScrGridCtrlDialogColors : public QObject
{
    Q_OBJECT

private slots:
    void colourClick_selectsIt_data();
    void colourClick_selectsIt();
    void colourClick_isToldForTheCheckAndForTheClick();
    void colourClick_onTheCheckedColourIsToldOnce();
    void colourChoice_keepsModeAndTimer();
    void colourChoice_aloneDoesNotActivateTheDrawer();
    void sharedColour_checksItsButton_data();
    void sharedColour_checksItsButton();
    void sharedColour_thatIsCheckedAlreadyIsOnlyStored();
    void sharedColour_outsideTheSevenIsIgnored_data();
    void sharedColour_outsideTheSevenIsIgnored();
    void colourDuringAPausedAgingTest_isTheBackgroundAtOnce();
    void colourDuringARunningAgingTest_isOverriddenByTheNextTick();
    void colourOutsideAnAgingTest_leavesTheBackground();
};

void TestScrGridCtrlDialogColors::colourClick_selectsIt_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QColor>("color");
    const Qt::GlobalColor colors[] = {Qt::red,    Qt::green, Qt::blue,   Qt::white,
                                      Qt::yellow, Qt::cyan,  Qt::magenta};
    for (int index = 0; index < 7; ++index)
        QTest::addRow("%d", index) << index << QColor(colors[index]);
}

void TestScrGridCtrlDialogColors::colourClick_selectsIt()
{
    QFETCH(const int, index);
    QFETCH(const QColor, color);
    GridRig rig;
    rig.clickFamilies("H");
    rig.panel->slot_stopPauseStatus();
    rig.panel->getDrawer();
    rig.click(rig.colorButton(index));

    QCOMPARE(int(rig.panel->colorIndex), index);
    for (int other = 0; other < 7; ++other)
        QCOMPARE(rig.colorButton(other)->isChecked(), other == index);
    QCOMPARE(baseColor(rig), color);
    QCOMPARE(rig.runControls(), 1);
    QVERIFY(rig.panel->getScroll());
    QCOMPARE(rig.shown().line, color.rgba());
    QCOMPARE(rig.shown().background, qRgb(0, 0, 0));
}

void TestScrGridCtrlDialogColors::colourClick_isToldForTheCheckAndForTheClick()
{
    const GridRig rig;
    QSignalSpy told(rig.panel.get(), &ScrGridCtrlDialog::signal_colorChanged);
    rig.click(rig.colorButton(5));

    QCOMPARE(told.count(), 2);
    QCOMPARE(told.at(0).first().value<QColor>(), QColor(Qt::cyan));
    QCOMPARE(told.at(1).first().value<QColor>(), QColor(Qt::cyan));
}

void TestScrGridCtrlDialogColors::colourClick_onTheCheckedColourIsToldOnce()
{
    const GridRig rig;
    QSignalSpy told(rig.panel.get(), &ScrGridCtrlDialog::signal_colorChanged);
    rig.click(rig.colorButton(0));

    QCOMPARE(told.count(), 1);
    QCOMPARE(rig.runControls(), 1);
}

void TestScrGridCtrlDialogColors::colourChoice_keepsModeAndTimer()
{
    const GridRig rig;
    rig.click(rig.merged());
    rig.panel->slot_stopPauseStatus();
    const QTimer *timer = rig.timer();
    rig.click(rig.colorButton(2));

    QCOMPARE(rig.mode(), QStringLiteral("merged"));
    QVERIFY(rig.panel->getScroll());
    QVERIFY(rig.timer() == timer);
}

void TestScrGridCtrlDialogColors::colourChoice_aloneDoesNotActivateTheDrawer()
{
    const GridRig rig;
    rig.click(rig.colorButton(2));
    QVERIFY(!rig.drawer->active);
    rig.tick();
    QVERIFY(rig.drawer->active);
}

void TestScrGridCtrlDialogColors::sharedColour_checksItsButton_data()
{
    colourClick_selectsIt_data();
}

void TestScrGridCtrlDialogColors::sharedColour_checksItsButton()
{
    QFETCH(const int, index);
    QFETCH(const QColor, color);
    GridRig rig;
    rig.click(rig.colorButton((index + 1) % 7));
    rig.panel->getDrawer();
    QSignalSpy told(rig.panel.get(), &ScrGridCtrlDialog::signal_colorChanged);
    rig.panel->slot_changeSelectedGridColor(color);

    QVERIFY(rig.colorButton(index)->isChecked());
    QCOMPARE(int(rig.panel->colorIndex), index);
    QCOMPARE(baseColor(rig), color);
    QCOMPARE(told.count(), 1);
    QCOMPARE(rig.runControls(), 1);
}

void TestScrGridCtrlDialogColors::sharedColour_thatIsCheckedAlreadyIsOnlyStored()
{
    const GridRig rig;
    rig.click(rig.colorButton(1));
    rig.panel->getDrawer();
    QSignalSpy told(rig.panel.get(), &ScrGridCtrlDialog::signal_colorChanged);
    rig.settings->setValue(QStringLiteral("/setting/testWindowBaseColor"), QColor(Qt::red));
    rig.panel->slot_changeSelectedGridColor(Qt::green);

    QCOMPARE(told.count(), 0);
    QCOMPARE(rig.runControls(), 0);
    QCOMPARE(baseColor(rig), QColor(Qt::green));
}

void TestScrGridCtrlDialogColors::sharedColour_outsideTheSevenIsIgnored_data()
{
    QTest::addColumn<QColor>("color");
    QTest::newRow("invalid") << QColor();
    QTest::newRow("black") << QColor(Qt::black);
    QTest::newRow("nearly red") << QColor(254, 0, 0);
    QTest::newRow("translucent red") << QColor(255, 0, 0, 128);
    QTest::newRow("red of another model") << QColor(Qt::red).toHsv();
}

void TestScrGridCtrlDialogColors::sharedColour_outsideTheSevenIsIgnored()
{
    QFETCH(const QColor, color);
    GridRig rig;
    rig.click(rig.colorButton(1));
    rig.panel->getDrawer();
    rig.panel->slot_changeSelectedGridColor(color);

    QVERIFY(rig.colorButton(1)->isChecked());
    QCOMPARE(int(rig.panel->colorIndex), 1);
    QCOMPARE(baseColor(rig), QColor(Qt::green));
    QCOMPARE(rig.runControls(), 0);
}

void TestScrGridCtrlDialogColors::colourDuringAPausedAgingTest_isTheBackgroundAtOnce()
{
    GridRig rig;
    rig.greySlider()->setValue(100);
    rig.click(rig.aging());
    rig.tick();
    rig.panel->slot_stopPauseStatus();
    rig.click(rig.colorButton(4));

    QCOMPARE(rig.shown().background, qRgb(100, 100, 0));
    QCOMPARE(rig.shown().families, QString());
    QCOMPARE(rig.mode(), QStringLiteral("aging"));
    QVERIFY(rig.panel->getScroll());

    rig.panel->slot_stopPauseStatus();
    rig.panel->slot_colorChanged(QColor(1, 2, 3));
    QCOMPARE(rig.shown().background, qRgb(1, 2, 3));
}

void TestScrGridCtrlDialogColors::colourDuringARunningAgingTest_isOverriddenByTheNextTick()
{
    GridRig rig;
    rig.click(rig.aging());
    rig.tick();
    QCOMPARE(rig.shown().background, qRgb(255, 0, 0));
    rig.click(rig.colorButton(5));
    QCOMPARE(rig.shown().background, qRgb(255, 0, 0));
    rig.tick();
    QCOMPARE(rig.shown().background, qRgb(0, 255, 0));
}

void TestScrGridCtrlDialogColors::colourOutsideAnAgingTest_leavesTheBackground()
{
    GridRig rig;
    rig.clickFamilies("H");
    rig.panel->slot_stopPauseStatus();
    rig.panel->slot_colorChanged(Qt::blue);
    QCOMPARE(rig.shown().background, qRgb(0, 0, 0));

    rig.click(rig.merged());
    rig.tick();
    rig.panel->slot_stopPauseStatus();
    rig.panel->slot_colorChanged(Qt::blue);
    QCOMPARE(rig.shown().background, qRgb(255, 0, 0));
}

QTEST_MAIN(TestScrGridCtrlDialogColors)
#include "tst_scrgridctrldialog_colors.moc"
