#include "gridcanvas.h"

#include <QtTest>

#include <functional>

using namespace GridColor;

namespace {

using Operation = std::function<void(GridDrawer &)>;

} // namespace

Q_DECLARE_METATYPE(Operation)

class TestGridDrawer : public QObject
{
    Q_OBJECT

private slots:
    void drawFalse_paintsNothingNotEvenTheBackground();
    void window_isCoveredByAnOpaqueBackground();
    void noFamilies_showTheInvalidBackgroundAtStart();
    void noFamilies_showTheOldColourAfterAToggle();
    void togglingAnyFamily_resetsTheBackground_data();
    void togglingAnyFamily_resetsTheBackground();
    void greyZero_blackensTestColoursOnly();
    void mergedTest_showsEachFamilyThenNothingThenTheFirst();
    void tenScrollSteps_bringTheOffsetBack();
    void distanceZero_doesNotHang();
    void newDrawer_hasTheInitialValues();
    void operations_activateAndRepaint_data();
    void operations_activateAndRepaint();
    void colourChanged_takesTheCurrentGrey();
    void greyOutOfOrder_usesTheBaseColour();
    void setBgColor_waitsForTheNextToggle();
    void setEnabled_leavesTheBackground();
    void disableAll_clearsEveryFamily();
    void disableAll_leavesTheMergedCycle();
};

void TestGridDrawer::drawFalse_paintsNothingNotEvenTheBackground()
{
    GridCanvas grid;
    grid.showRedOnBlue(Horizontal | SlantLeft);
    grid.canvas.setDrawer(&grid.drawer, false);
    QVERIFY(everyPixelIs(grid.painted(), backdrop));
    QCOMPARE(grid.canvas.paintCount(), 1);

    grid.canvas.setDrawer(&grid.drawer, true);
    QCOMPARE(difference(grid.painted(), Horizontal | SlantLeft, 10, 0), QString());
}

void TestGridDrawer::window_isCoveredByAnOpaqueBackground()
{
    Canvas canvas;
    GridDrawer drawer(&canvas);
    canvas.setDrawer(&drawer);
    QVERIFY(canvas.isCovered()); // an invalid colour is black
    drawer.slot_colorChanged(QColor(255, 0, 0, 128));
    drawer.slot_horiToggled(true);
    QVERIFY(canvas.isCovered());
    drawer.slot_changeBgColor(QColor(255, 0, 0, 254));
    QVERIFY(!canvas.isCovered());
}

void TestGridDrawer::noFamilies_showTheInvalidBackgroundAtStart()
{
    GridCanvas grid;
    QVERIFY(everyPixelIs(grid.painted(), QColor().rgba()));
}

void TestGridDrawer::noFamilies_showTheOldColourAfterAToggle()
{
    GridCanvas grid;
    grid.drawer.slot_changeBgColor(Qt::blue);
    grid.drawer.slot_horiToggled(false);
    QVERIFY(everyPixelIs(grid.painted(), black));

    grid.drawer.slot_setBgColor(Qt::red);
    grid.drawer.slot_vertLineToggled(false);
    QVERIFY(everyPixelIs(grid.painted(), red));
}

void TestGridDrawer::togglingAnyFamily_resetsTheBackground_data()
{
    QTest::addColumn<Operation>("toggle");
    QTest::addColumn<int>("shown");

    using Slot = void (GridDrawer::*)(bool);
    const auto addRows = [](const char *name, Slot slot, int family) {
        QTest::addRow("%s on", name)
            << Operation([slot](GridDrawer &drawer) { (drawer.*slot)(true); }) << family;
        QTest::addRow("%s off", name)
            << Operation([slot](GridDrawer &drawer) { (drawer.*slot)(false); }) << 0;
    };
    addRows("horizontal", &GridDrawer::slot_horiToggled, Horizontal);
    addRows("vertical", &GridDrawer::slot_vertLineToggled, Vertical);
    addRows("slant left", &GridDrawer::slot_slantLeftToggled, SlantLeft);
    addRows("slant right", &GridDrawer::slot_slantRightToggled, SlantRight);
}

void TestGridDrawer::togglingAnyFamily_resetsTheBackground()
{
    QFETCH(const Operation, toggle);
    QFETCH(const int, shown);
    GridCanvas grid;
    grid.drawer.slot_colorChanged(Qt::red);
    grid.drawer.slot_setBgColor(Qt::blue);
    grid.drawer.slot_changeBgColor(Qt::green);
    QVERIFY(everyPixelIs(grid.painted(), 0xff00ff00));

    toggle(grid.drawer);
    QCOMPARE(difference(grid.painted(), shown, 10, 0), QString());
}

void TestGridDrawer::greyZero_blackensTestColoursOnly()
{
    GridCanvas grid;
    grid.showRedOnBlue(Horizontal);
    grid.drawer.slot_changeGrayScale(0);
    QCOMPARE(grid.painted().pixel(3, 10), black);

    grid.drawer.slot_colorChanged(QColor(200, 100, 50));
    QCOMPARE(grid.painted().pixel(3, 10), qRgb(200, 100, 50));
    grid.drawer.slot_changeGrayScale(0);
    QCOMPARE(grid.painted().pixel(3, 10), qRgb(200, 100, 50));
}

void TestGridDrawer::mergedTest_showsEachFamilyThenNothingThenTheFirst()
{
    GridCanvas grid;
    grid.showRedOnBlue(EveryFamily);
    const int shown[] = {Horizontal, Vertical, SlantLeft, SlantRight, 0, Horizontal};
    for (int step = 0; step < 6; ++step) {
        const QByteArray line = "MergedTest index=[" + QByteArray::number(step % 5) + "]";
        QTest::ignoreMessage(QtDebugMsg, line.constData());
        grid.drawer.mergedTest();
        QCOMPARE(difference(grid.painted(), shown[step], 10, 0), QString());
    }
}

void TestGridDrawer::tenScrollSteps_bringTheOffsetBack()
{
    const int families = Horizontal | Vertical;
    GridCanvas grid;
    grid.showRedOnBlue(families);
    for (int step = 0; step <= 10; ++step) {
        QCOMPARE(difference(grid.painted(), families, 10, step % 10), QString());
        grid.drawer.scrollLines();
    }
}

void TestGridDrawer::distanceZero_doesNotHang()
{
    for (const int distance : {0, -7}) {
        GridCanvas grid;
        grid.showRedOnBlue(EveryFamily);
        grid.scroll(2);
        grid.drawer.slot_changeDistance(distance);
        QVERIFY(everyPixelIs(grid.painted(), blue));
        grid.drawer.scrollLines();
        grid.drawer.slot_ScrollLines();
        QVERIFY(everyPixelIs(grid.painted(), blue));

        grid.drawer.slot_changeDistance(10);
        QCOMPARE(difference(grid.painted(), EveryFamily, 10, 2), QString());
    }
}

void TestGridDrawer::newDrawer_hasTheInitialValues()
{
    const GridCanvas grid;
    QVERIFY(!grid.drawer.active);
    QVERIFY(grid.drawer.targetWidget == &grid.canvas);
    QVERIFY(!grid.drawer.parent());
    QCOMPARE(grid.drawer.metaObject()->className(), "DrawerBase");
    QCOMPARE(grid.drawer.getLineDistance(), 10);
    QCOMPARE(grid.drawer.getPix(), 1);
    QCOMPARE(grid.drawer.getOldColor(), QColor(Qt::black));
}

void TestGridDrawer::operations_activateAndRepaint_data()
{
    QTest::addColumn<Operation>("operation");
    QTest::addColumn<bool>("activates");
    QTest::addColumn<bool>("repaints");

    const auto addRow = [](const char *name, const Operation &operation, bool activates,
                           bool repaints) {
        QTest::newRow(name) << operation << activates << repaints;
    };
    using Drawer = GridDrawer;
    const QColor color(Qt::cyan);
    addRow(
        "slot_colorChanged", [=](Drawer &d) { d.slot_colorChanged(color); }, false, true);
    addRow(
        "slot_changeGrayScale", [](Drawer &d) { d.slot_changeGrayScale(9); }, true, true);
    addRow(
        "slot_horiToggled", [](Drawer &d) { d.slot_horiToggled(true); }, false, true);
    addRow(
        "slot_vertLineToggled", [](Drawer &d) { d.slot_vertLineToggled(true); }, false, true);
    addRow(
        "slot_slantLeftToggled", [](Drawer &d) { d.slot_slantLeftToggled(true); }, false, true);
    addRow(
        "slot_slantRightToggled", [](Drawer &d) { d.slot_slantRightToggled(true); }, false, true);
    addRow(
        "setHoriLinesEnabled", [](Drawer &d) { d.setHoriLinesEnabled(true); }, false, false);
    addRow(
        "setVertLinesEnabled", [](Drawer &d) { d.setVertLinesEnabled(true); }, false, false);
    addRow(
        "setSlantLeftLinesEnabled", [](Drawer &d) { d.setSlantLeftLinesEnabled(true); }, false,
        false);
    addRow(
        "setSlantRightLinesEnabled", [](Drawer &d) { d.setSlantRightLinesEnabled(true); }, false,
        false);
    addRow(
        "disableAll", [](Drawer &d) { d.disableAll(); }, false, false);
    addRow(
        "slot_changeBgColor", [=](Drawer &d) { d.slot_changeBgColor(color); }, true, true);
    addRow(
        "slot_setBgColor", [=](Drawer &d) { d.slot_setBgColor(color); }, false, false);
    addRow(
        "slot_changePix", [](Drawer &d) { d.slot_changePix(4); }, true, true);
    addRow(
        "slot_changeDistance", [](Drawer &d) { d.slot_changeDistance(4); }, true, true);
    addRow(
        "scrollLines", [](Drawer &d) { d.scrollLines(); }, true, true);
    addRow(
        "slot_ScrollLines", [](Drawer &d) { d.slot_ScrollLines(); }, false, true);
    addRow(
        "mergedTest", [](Drawer &d) { d.mergedTest(); }, true, true);
}

void TestGridDrawer::operations_activateAndRepaint()
{
    QFETCH(const Operation, operation);
    QFETCH(const bool, activates);
    QFETCH(const bool, repaints);
    GridCanvas grid;
    grid.canvas.show();
    QVERIFY(QTest::qWaitForWindowExposed(&grid.canvas));
    QTRY_VERIFY(grid.canvas.paintCount() > 0);
    Canvas witness; // asked for a repaint later, so painted later
    witness.show();
    QVERIFY(QTest::qWaitForWindowExposed(&witness));
    QTRY_VERIFY(witness.paintCount() > 0);
    const int before = grid.canvas.paintCount();
    const int witnessBefore = witness.paintCount();

    operation(grid.drawer);
    QCOMPARE(grid.drawer.active, activates);
    QCOMPARE(grid.canvas.paintCount(), before);
    witness.update();
    QTRY_VERIFY(witness.paintCount() > witnessBefore);
    if (repaints)
        QTRY_VERIFY(grid.canvas.paintCount() > before);
    else
        QCOMPARE(grid.canvas.paintCount(), before);

    grid.drawer.active = true;
    operation(grid.drawer);
    QVERIFY(grid.drawer.active);
}

void TestGridDrawer::colourChanged_takesTheCurrentGrey()
{
    GridCanvas grid;
    grid.showRedOnBlue(Horizontal);
    grid.drawer.slot_changeGrayScale(77);
    grid.drawer.slot_colorChanged(Qt::yellow);
    QCOMPARE(grid.painted().pixel(3, 10), qRgb(77, 77, 0));
}

void TestGridDrawer::greyOutOfOrder_usesTheBaseColour()
{
    GridCanvas grid;
    grid.showRedOnBlue(Horizontal);
    grid.drawer.slot_changeGrayScale(0);
    grid.drawer.slot_changeGrayScale(200);
    QCOMPARE(grid.painted().pixel(3, 10), qRgb(200, 0, 0));
}

void TestGridDrawer::setBgColor_waitsForTheNextToggle()
{
    GridCanvas grid;
    grid.drawer.slot_changeBgColor(Qt::red);
    grid.drawer.slot_setBgColor(Qt::blue);
    QCOMPARE(grid.drawer.getOldColor(), QColor(Qt::blue));
    QVERIFY(everyPixelIs(grid.painted(), red));
    grid.drawer.slot_slantRightToggled(false);
    QVERIFY(everyPixelIs(grid.painted(), blue));
}

void TestGridDrawer::setEnabled_leavesTheBackground()
{
    GridCanvas grid(QSize(80, 70));
    for (const int family : {Horizontal, Vertical, SlantLeft, SlantRight}) {
        grid.showRedOnBlue(family);
        QCOMPARE(difference(grid.painted(), family, 10, 0), QString());
    }
}

void TestGridDrawer::disableAll_clearsEveryFamily()
{
    GridCanvas grid;
    grid.showRedOnBlue(EveryFamily);
    QCOMPARE(difference(grid.painted(), EveryFamily, 10, 0), QString());
    grid.drawer.disableAll();
    QVERIFY(everyPixelIs(grid.painted(), blue));
}

void TestGridDrawer::disableAll_leavesTheMergedCycle()
{
    GridCanvas grid;
    grid.showRedOnBlue(0);
    QTest::ignoreMessage(QtDebugMsg, "MergedTest index=[0]");
    grid.drawer.mergedTest();
    grid.drawer.disableAll();
    QTest::ignoreMessage(QtDebugMsg, "MergedTest index=[1]");
    grid.drawer.mergedTest();
    QCOMPARE(difference(grid.painted(), Vertical, 10, 0), QString());
}

QTEST_MAIN(TestGridDrawer)
#include "tst_griddrawer.moc"
