#include "gridcanvas.h"
#include "rows.h"

#include <QtTest>

using namespace GridColor;

namespace {

using Operation = void (*)(GridDrawer &);

} // namespace

Q_DECLARE_METATYPE(Operation)

class TestGridDrawer : public QObject
{
    Q_OBJECT

private slots:
    void drawFalse_paintsNothingNotEvenTheBackground();
    void window_isCoveredByAnOpaqueBackground();
    void noFamilies_showTheBackground();
    void togglingAnyFamily_resetsTheBackground();
    void grey_dimsPureColoursOnly();
    void mergedTest_showsEachFamilyThenNothingThenTheFirst();
    void scrolling_movesEveryFamilyAndBringsTheOffsetBack();
    void distanceZero_doesNotHang();
    void newDrawer_hasTheInitialValues();
    void operations_activateAndRepaint_data();
    void operations_activateAndRepaint();
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

void TestGridDrawer::noFamilies_showTheBackground()
{
    GridCanvas grid;
    QVERIFY(everyPixelIs(grid.painted(), QColor().rgba()));
    grid.drawer.slot_changeBgColor(Qt::blue);
    QVERIFY(everyPixelIs(grid.painted(), blue));
    grid.drawer.slot_horiToggled(false);
    QVERIFY(everyPixelIs(grid.painted(), black));

    grid.drawer.slot_setBgColor(Qt::red);
    QCOMPARE(grid.drawer.getOldColor(), QColor(Qt::red));
    QVERIFY(everyPixelIs(grid.painted(), black)); // up to the next toggle
    grid.drawer.slot_slantRightToggled(false);
    QVERIFY(everyPixelIs(grid.painted(), red));
}

void TestGridDrawer::togglingAnyFamily_resetsTheBackground()
{
    const std::pair<void (GridDrawer::*)(bool), int> toggles[] = {
        {&GridDrawer::slot_horiToggled, Horizontal},
        {&GridDrawer::slot_vertLineToggled, Vertical},
        {&GridDrawer::slot_slantLeftToggled, SlantLeft},
        {&GridDrawer::slot_slantRightToggled, SlantRight}};
    GridCanvas grid;
    grid.drawer.slot_colorChanged(Qt::red);
    grid.drawer.slot_setBgColor(Qt::blue);
    for (const auto &[toggle, family] : toggles) {
        for (const bool on : {true, false}) {
            grid.drawer.slot_changeBgColor(Qt::green);
            (grid.drawer.*toggle)(on);
            QCOMPARE(difference(grid.painted(), on ? family : 0, 10, 0), QString());
        }
    }
}

void TestGridDrawer::grey_dimsPureColoursOnly()
{
    GridCanvas grid;
    grid.showRedOnBlue(Horizontal);
    const auto line = [&grid] { return grid.painted().pixel(3, 10); };
    grid.drawer.slot_changeGrayScale(0);
    QCOMPARE(line(), black);
    grid.drawer.slot_changeGrayScale(200);
    QCOMPARE(line(), qRgb(200, 0, 0));
    QCOMPARE(grid.drawer.dimmed(Qt::white), QColor(200, 200, 200));
    grid.drawer.slot_colorChanged(Qt::yellow);
    QCOMPARE(line(), qRgb(200, 200, 0));

    grid.drawer.slot_colorChanged(QColor(200, 100, 50));
    QCOMPARE(line(), qRgb(200, 100, 50));
    grid.drawer.slot_changeGrayScale(0);
    QCOMPARE(line(), qRgb(200, 100, 50));
}

void TestGridDrawer::mergedTest_showsEachFamilyThenNothingThenTheFirst()
{
    GridCanvas grid;
    grid.showRedOnBlue(EveryFamily);
    QCOMPARE(difference(grid.painted(), EveryFamily, 10, 0), QString());
    const int shown[] = {Horizontal, Vertical, SlantLeft, SlantRight, 0, Horizontal};
    for (int step = 0; step < 6; ++step) {
        const QByteArray line = "MergedTest index=[" + QByteArray::number(step % 5) + "]";
        QTest::ignoreMessage(QtDebugMsg, line.constData());
        grid.drawer.mergedTest();
        QCOMPARE(difference(grid.painted(), shown[step], 10, 0), QString());
        grid.drawer.disableAll(); // which leaves the cycle
        QVERIFY(everyPixelIs(grid.painted(), blue));
    }
}

void TestGridDrawer::scrolling_movesEveryFamilyAndBringsTheOffsetBack()
{
    GridCanvas grid(QSize(80, 70));
    for (const int families : {Horizontal, Vertical, SlantLeft, SlantRight, EveryFamily}) {
        grid.showRedOnBlue(families);
        for (int step = 0; step < 10; ++step) {
            QCOMPARE(difference(grid.painted(), families, 10, step), QString());
            if (step % 2 == 0)
                grid.drawer.scrollLines();
            else
                grid.drawer.slot_ScrollLines();
        }
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
    using Drawer = GridDrawer;
    const Table<Operation, bool, bool> row("operation", "activates", "repaints");
    row(
        "slot_colorChanged", [](Drawer &d) { d.slot_colorChanged(Qt::cyan); }, false, true);
    row(
        "slot_changeGrayScale", [](Drawer &d) { d.slot_changeGrayScale(9); }, true, true);
    row(
        "slot_horiToggled", [](Drawer &d) { d.slot_horiToggled(true); }, false, true);
    row(
        "slot_vertLineToggled", [](Drawer &d) { d.slot_vertLineToggled(true); }, false, true);
    row(
        "slot_slantLeftToggled", [](Drawer &d) { d.slot_slantLeftToggled(true); }, false, true);
    row(
        "slot_slantRightToggled", [](Drawer &d) { d.slot_slantRightToggled(true); }, false, true);
    row(
        "setHoriLinesEnabled", [](Drawer &d) { d.setHoriLinesEnabled(true); }, false, false);
    row(
        "setVertLinesEnabled", [](Drawer &d) { d.setVertLinesEnabled(true); }, false, false);
    row(
        "setSlantLeftLinesEnabled", [](Drawer &d) { d.setSlantLeftLinesEnabled(true); }, false,
        false);
    row(
        "setSlantRightLinesEnabled", [](Drawer &d) { d.setSlantRightLinesEnabled(true); }, false,
        false);
    row(
        "disableAll", [](Drawer &d) { d.disableAll(); }, false, false);
    row(
        "slot_changeBgColor", [](Drawer &d) { d.slot_changeBgColor(Qt::cyan); }, true, true);
    row(
        "slot_setBgColor", [](Drawer &d) { d.slot_setBgColor(Qt::cyan); }, false, false);
    row(
        "slot_changePix", [](Drawer &d) { d.slot_changePix(4); }, true, true);
    row(
        "slot_changeDistance", [](Drawer &d) { d.slot_changeDistance(4); }, true, true);
    row(
        "scrollLines", [](Drawer &d) { d.scrollLines(); }, true, true);
    row(
        "slot_ScrollLines", [](Drawer &d) { d.slot_ScrollLines(); }, false, true);
    row(
        "mergedTest", [](Drawer &d) { d.mergedTest(); }, true, true);
}

void TestGridDrawer::operations_activateAndRepaint()
{
    QFETCH(const Operation, operation);
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
    QTEST(grid.drawer.active, "activates");
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

QTEST_MAIN(TestGridDrawer)
#include "tst_griddrawer.moc"
