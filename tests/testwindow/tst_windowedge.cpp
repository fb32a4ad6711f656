#include "rows.h"
#include "windowedge.h"

#include <QWidget>
#include <QtTest>

using namespace WindowEdge;

namespace {

constexpr int margin = 4;
constexpr int topLeft = 5;
constexpr int bottomLeft = 6;
constexpr int topRight = 9;
constexpr int bottomRight = 10;

const SizeRange anySize{QSize(0, 0), QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX)};
const QSize noLimit(100000, 100000);

QRect borders(int left, int top, int right, int bottom)
{
    return QRect(QPoint(left, top), QPoint(right, bottom));
}

const QRect frame = borders(100, 200, 399, 349);

} // namespace

Q_DECLARE_METATYPE(QList<int>)

class TestWindowEdge : public QObject
{
    Q_OBJECT

private slots:
    void at_findsTheBordersNearThePointer_data();
    void at_findsTheBordersNearThePointer();
    void at_isNoneBeyondTheMarginOutside();
    void at_givesTopAndLeftTheLeadOnASmallWindow_data();
    void at_givesTopAndLeftTheLeadOnASmallWindow();
    void cursor_showsTheDirection_data();
    void cursor_showsTheDirection();
    void resized_movesTheBordersToThePointer_data();
    void resized_movesTheBordersToThePointer();
    void resized_handlesTopBeforeBottomAndLeftBeforeRight();
    void resized_atALimitOnlyLeavesIt_data();
    void resized_atALimitOnlyLeavesIt();
    void resized_looksAtEachAxisForItself();
    void resized_betweenTheLimitsReachesThePointer();
    void resized_ignoresAFrameTurnedInsideOut_data();
    void resized_ignoresAFrameTurnedInsideOut();
    void resized_mayShrinkToOnePixel();
    void resized_stopsAtTheLimit_data();
    void resized_stopsAtTheLimit();
};

void TestWindowEdge::at_findsTheBordersNearThePointer_data()
{
    const QList<int> nearLeft{97, 100, 103};
    const QList<int> betweenX{104, 250, 395};
    const QList<int> nearRight{396, 399, 402};
    const QList<int> nearTop{197, 200, 203};
    const QList<int> betweenY{204, 270, 345};
    const QList<int> nearBottom{346, 349, 352};
    const Table<QList<int>, QList<int>, int> row("xs", "ys", "edges");
    row("top left", nearLeft, nearTop, 5);
    row("top", betweenX, nearTop, 1);
    row("top right", nearRight, nearTop, 9);
    row("left", nearLeft, betweenY, 4);
    row("none", betweenX, betweenY, 0);
    row("right", nearRight, betweenY, 8);
    row("bottom left", nearLeft, nearBottom, 6);
    row("bottom", betweenX, nearBottom, 2);
    row("bottom right", nearRight, nearBottom, 10);
}

void TestWindowEdge::at_findsTheBordersNearThePointer()
{
    QFETCH(QList<int>, xs);
    QFETCH(QList<int>, ys);

    for (const int x : qAsConst(xs)) {
        for (const int y : qAsConst(ys))
            QTEST(at(frame, QPoint(x, y), margin), "edges");
    }
}

void TestWindowEdge::at_isNoneBeyondTheMarginOutside()
{
    QCOMPARE(at(frame, QPoint(96, 270), margin), 0);
    QCOMPARE(at(frame, QPoint(403, 270), margin), 0);
    QCOMPARE(at(frame, QPoint(250, 196), margin), 0);
    QCOMPARE(at(frame, QPoint(250, 353), margin), 0);
}

void TestWindowEdge::at_givesTopAndLeftTheLeadOnASmallWindow_data()
{
    const QRect four(10, 20, 4, 4);
    const QRect six(10, 20, 6, 6);
    const Table<QRect, QPoint, int> row("small", "pointer", "edges");
    row("4 px, first pixel", four, {10, 20}, topLeft);
    row("4 px, last pixel", four, {13, 23}, topLeft);
    row("6 px, near both", six, {13, 23}, topLeft);
    row("6 px, near the right only", six, {14, 23}, topRight);
    row("6 px, near the bottom only", six, {13, 24}, bottomLeft);
    row("6 px, last pixel", six, {15, 25}, bottomRight);
    row("low and wide, near both", {10, 20, 300, 6}, {100, 22}, 1);
    row("narrow and high, near both", {10, 20, 6, 300}, {13, 100}, 4);
}

void TestWindowEdge::at_givesTopAndLeftTheLeadOnASmallWindow()
{
    QFETCH(QRect, small);
    QFETCH(QPoint, pointer);

    QTEST(at(small, pointer, margin), "edges");
}

void TestWindowEdge::cursor_showsTheDirection_data()
{
    const Table<int, Qt::CursorShape> row("edges", "shape");
    row("none", 0, Qt::ArrowCursor);
    row("top", 1, Qt::SizeVerCursor);
    row("bottom", 2, Qt::SizeVerCursor);
    row("left", 4, Qt::SizeHorCursor);
    row("top left", topLeft, Qt::SizeFDiagCursor);
    row("bottom left", bottomLeft, Qt::SizeBDiagCursor);
    row("right", 8, Qt::SizeHorCursor);
    row("top right", topRight, Qt::SizeBDiagCursor);
    row("bottom right", bottomRight, Qt::SizeFDiagCursor);
}

void TestWindowEdge::cursor_showsTheDirection()
{
    QFETCH(int, edges);
    QTEST(WindowEdge::cursor(edges), "shape");
}

void TestWindowEdge::resized_movesTheBordersToThePointer_data()
{
    const Table<int, QPoint, QRect> row("edges", "pointer", "result");
    row("top, down", 1, {0, 220}, borders(100, 220, 399, 349));
    row("top, up", 1, {0, 190}, borders(100, 190, 399, 349));
    row("bottom, down", 2, {0, 360}, borders(100, 200, 399, 360));
    row("bottom, up", 2, {0, 300}, borders(100, 200, 399, 300));
    row("left, out", 4, {-20, 0}, borders(-20, 200, 399, 349));
    row("left, in", 4, {120, 0}, borders(120, 200, 399, 349));
    row("right, out", 8, {500, 0}, borders(100, 200, 500, 349));
    row("right, in", 8, {380, 0}, borders(100, 200, 380, 349));
    row("top left", topLeft, {90, 190}, borders(90, 190, 399, 349));
    row("top right", topRight, {410, 190}, borders(100, 190, 410, 349));
    row("bottom left", bottomLeft, {90, 360}, borders(90, 200, 399, 360));
    row("bottom right", bottomRight, {410, 360}, borders(100, 200, 410, 360));
    row("none", 0, {410, 360}, frame);
}

void TestWindowEdge::resized_movesTheBordersToThePointer()
{
    QFETCH(int, edges);
    QFETCH(QPoint, pointer);

    QTEST(resized(frame, edges, pointer, anySize, noLimit), "result");
}

void TestWindowEdge::resized_handlesTopBeforeBottomAndLeftBeforeRight()
{
    // The borders of an axis exclude each other.
    QCOMPARE(resized(frame, Top | Bottom, QPoint(0, 220), anySize, noLimit),
             borders(100, 220, 399, 349));
    QCOMPARE(resized(frame, Left | Right, QPoint(120, 0), anySize, noLimit),
             borders(120, 200, 399, 349));
}

void TestWindowEdge::resized_atALimitOnlyLeavesIt_data()
{
    const Table<int, QPoint, QPoint, QRect, QRect> row("edges", "outwards", "inwards", "larger",
                                                       "smaller");
    row("top", 1, {0, 199}, {0, 201}, borders(100, 199, 399, 349), borders(100, 201, 399, 349));
    row("bottom", 2, {0, 350}, {0, 348}, borders(100, 200, 399, 350), borders(100, 200, 399, 348));
    row("left", 4, {99, 0}, {101, 0}, borders(99, 200, 399, 349), borders(101, 200, 399, 349));
    row("right", 8, {400, 0}, {398, 0}, borders(100, 200, 400, 349), borders(100, 200, 398, 349));
}

void TestWindowEdge::resized_atALimitOnlyLeavesIt()
{
    QFETCH(int, edges);
    QFETCH(QPoint, outwards);
    QFETCH(QPoint, inwards);
    const SizeRange atTheMaximum{QSize(0, 0), frame.size()};
    const SizeRange atTheMinimum{frame.size(), QSize(5000, 5000)};

    QCOMPARE(resized(frame, edges, outwards, atTheMaximum, noLimit), frame);
    QTEST(resized(frame, edges, inwards, atTheMaximum, noLimit), "smaller");
    QCOMPARE(resized(frame, edges, inwards, atTheMinimum, noLimit), frame);
    QTEST(resized(frame, edges, outwards, atTheMinimum, noLimit), "larger");
}

void TestWindowEdge::resized_looksAtEachAxisForItself()
{
    // The width stands at its maximum, the height is free.
    const SizeRange range{QSize(0, 0), QSize(frame.width(), 5000)};

    QCOMPARE(resized(frame, bottomRight, QPoint(450, 360), range, noLimit),
             borders(100, 200, 399, 360));
}

void TestWindowEdge::resized_betweenTheLimitsReachesThePointer()
{
    const SizeRange range{frame.size() - QSize(10, 10), frame.size() + QSize(10, 10)};

    QCOMPARE(resized(frame, topLeft, QPoint(109, 209), range, noLimit),
             borders(109, 209, 399, 349));
    QCOMPARE(resized(frame, bottomRight, QPoint(409, 359), range, noLimit),
             borders(100, 200, 409, 359));
}

void TestWindowEdge::resized_ignoresAFrameTurnedInsideOut_data()
{
    const Table<int, QPoint> row("edges", "pointer");
    row("top below bottom", 1, {0, 350});
    row("bottom above top", 2, {0, 199});
    row("left beyond right", 4, {400, 0});
    row("right beyond left", 8, {99, 0});
    row("one axis of two", topLeft, {400, 220});
    row("the other axis of two", bottomRight, {420, 150});
}

void TestWindowEdge::resized_ignoresAFrameTurnedInsideOut()
{
    QFETCH(int, edges);
    QFETCH(QPoint, pointer);

    QCOMPARE(resized(frame, edges, pointer, anySize, noLimit), frame);
}

void TestWindowEdge::resized_mayShrinkToOnePixel()
{
    QCOMPARE(resized(frame, topLeft, QPoint(399, 349), anySize, noLimit), QRect(399, 349, 1, 1));
    QCOMPARE(resized(frame, bottomRight, QPoint(100, 200), anySize, noLimit),
             QRect(100, 200, 1, 1));
}

void TestWindowEdge::resized_stopsAtTheLimit_data()
{
    const Table<int, QPoint, QSize, QRect> row("edges", "pointer", "limit", "result");
    row("right", 8, {900, 0}, {400, 400}, borders(100, 200, 500, 349));
    for (const int beyond : {0, 1, 2})
        QTest::addRow("right, %d beyond", beyond)
            << 8 << QPoint(500 + beyond, 0) << QSize(400, 400) << borders(100, 200, 500, 349);
    row("right, one below", 8, {499, 0}, {400, 400}, borders(100, 200, 499, 349));
    row("bottom", 2, {0, 900}, {400, 400}, borders(100, 200, 399, 600));
    // The cut is at the right and the bottom, whichever border was dragged.
    row("left", 4, {-500, 0}, {400, 400}, borders(-500, 200, -100, 349));
    row("top", 1, {0, -500}, {400, 400}, borders(100, -500, 399, -100));
    row("the axis that was not dragged", 8, {390, 0}, {400, 100}, borders(100, 200, 390, 300));
}

void TestWindowEdge::resized_stopsAtTheLimit()
{
    QFETCH(int, edges);
    QFETCH(QPoint, pointer);
    QFETCH(QSize, limit);

    QTEST(resized(frame, edges, pointer, anySize, limit), "result");
}

QTEST_MAIN(TestWindowEdge)
#include "tst_windowedge.moc"
