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
    void resized_atTheMaximumOnlyShrinks_data();
    void resized_atTheMaximumOnlyShrinks();
    void resized_atTheMinimumOnlyGrows_data();
    void resized_atTheMinimumOnlyGrows();
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
    QTest::addColumn<QList<int>>("xs");
    QTest::addColumn<QList<int>>("ys");
    QTest::addColumn<int>("edges");
    const QList<int> nearLeft{97, 100, 103};
    const QList<int> betweenX{104, 250, 395};
    const QList<int> nearRight{396, 399, 402};
    const QList<int> nearTop{197, 200, 203};
    const QList<int> betweenY{204, 270, 345};
    const QList<int> nearBottom{346, 349, 352};

    QTest::newRow("top left") << nearLeft << nearTop << 5;
    QTest::newRow("top") << betweenX << nearTop << 1;
    QTest::newRow("top right") << nearRight << nearTop << 9;
    QTest::newRow("left") << nearLeft << betweenY << 4;
    QTest::newRow("none") << betweenX << betweenY << 0;
    QTest::newRow("right") << nearRight << betweenY << 8;
    QTest::newRow("bottom left") << nearLeft << nearBottom << 6;
    QTest::newRow("bottom") << betweenX << nearBottom << 2;
    QTest::newRow("bottom right") << nearRight << nearBottom << 10;
}

void TestWindowEdge::at_findsTheBordersNearThePointer()
{
    QFETCH(QList<int>, xs);
    QFETCH(QList<int>, ys);
    QFETCH(int, edges);

    for (const int x : qAsConst(xs)) {
        for (const int y : qAsConst(ys))
            QCOMPARE(at(frame, QPoint(x, y), margin), edges);
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
    QTest::addColumn<QRect>("small");
    QTest::addColumn<QPoint>("pointer");
    QTest::addColumn<int>("edges");
    const QRect four(10, 20, 4, 4);
    const QRect six(10, 20, 6, 6);

    QTest::newRow("4 px, first pixel") << four << QPoint(10, 20) << topLeft;
    QTest::newRow("4 px, last pixel") << four << QPoint(13, 23) << topLeft;
    QTest::newRow("6 px, near both") << six << QPoint(13, 23) << topLeft;
    QTest::newRow("6 px, near the right only") << six << QPoint(14, 23) << topRight;
    QTest::newRow("6 px, near the bottom only") << six << QPoint(13, 24) << bottomLeft;
    QTest::newRow("6 px, last pixel") << six << QPoint(15, 25) << bottomRight;
    QTest::newRow("low and wide, near both") << QRect(10, 20, 300, 6) << QPoint(100, 22) << 1;
    QTest::newRow("narrow and high, near both") << QRect(10, 20, 6, 300) << QPoint(13, 100) << 4;
}

void TestWindowEdge::at_givesTopAndLeftTheLeadOnASmallWindow()
{
    QFETCH(QRect, small);
    QFETCH(QPoint, pointer);
    QFETCH(int, edges);

    QCOMPARE(at(small, pointer, margin), edges);
}

void TestWindowEdge::cursor_showsTheDirection_data()
{
    QTest::addColumn<int>("edges");
    QTest::addColumn<Qt::CursorShape>("shape");

    QTest::newRow("none") << 0 << Qt::ArrowCursor;
    QTest::newRow("top") << 1 << Qt::SizeVerCursor;
    QTest::newRow("bottom") << 2 << Qt::SizeVerCursor;
    QTest::newRow("left") << 4 << Qt::SizeHorCursor;
    QTest::newRow("top left") << topLeft << Qt::SizeFDiagCursor;
    QTest::newRow("bottom left") << bottomLeft << Qt::SizeBDiagCursor;
    QTest::newRow("right") << 8 << Qt::SizeHorCursor;
    QTest::newRow("top right") << topRight << Qt::SizeBDiagCursor;
    QTest::newRow("bottom right") << bottomRight << Qt::SizeFDiagCursor;
}

void TestWindowEdge::cursor_showsTheDirection()
{
    QFETCH(int, edges);
    QTEST(WindowEdge::cursor(edges), "shape");
}

void TestWindowEdge::resized_movesTheBordersToThePointer_data()
{
    QTest::addColumn<int>("edges");
    QTest::addColumn<QPoint>("pointer");
    QTest::addColumn<QRect>("result");

    QTest::newRow("top, down") << 1 << QPoint(0, 220) << borders(100, 220, 399, 349);
    QTest::newRow("top, up") << 1 << QPoint(0, 190) << borders(100, 190, 399, 349);
    QTest::newRow("bottom, down") << 2 << QPoint(0, 360) << borders(100, 200, 399, 360);
    QTest::newRow("bottom, up") << 2 << QPoint(0, 300) << borders(100, 200, 399, 300);
    QTest::newRow("left, out") << 4 << QPoint(-20, 0) << borders(-20, 200, 399, 349);
    QTest::newRow("left, in") << 4 << QPoint(120, 0) << borders(120, 200, 399, 349);
    QTest::newRow("right, out") << 8 << QPoint(500, 0) << borders(100, 200, 500, 349);
    QTest::newRow("right, in") << 8 << QPoint(380, 0) << borders(100, 200, 380, 349);
    QTest::newRow("top left") << topLeft << QPoint(90, 190) << borders(90, 190, 399, 349);
    QTest::newRow("top right") << topRight << QPoint(410, 190) << borders(100, 190, 410, 349);
    QTest::newRow("bottom left") << bottomLeft << QPoint(90, 360) << borders(90, 200, 399, 360);
    QTest::newRow("bottom right") << bottomRight << QPoint(410, 360) << borders(100, 200, 410, 360);
    QTest::newRow("none") << 0 << QPoint(410, 360) << frame;
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

void TestWindowEdge::resized_atTheMaximumOnlyShrinks_data()
{
    QTest::addColumn<int>("edges");
    QTest::addColumn<QPoint>("outwards");
    QTest::addColumn<QPoint>("inwards");
    QTest::addColumn<QRect>("smaller");

    QTest::newRow("top") << 1 << QPoint(0, 199) << QPoint(0, 201) << borders(100, 201, 399, 349);
    QTest::newRow("bottom") << 2 << QPoint(0, 350) << QPoint(0, 348) << borders(100, 200, 399, 348);
    QTest::newRow("left") << 4 << QPoint(99, 0) << QPoint(101, 0) << borders(101, 200, 399, 349);
    QTest::newRow("right") << 8 << QPoint(400, 0) << QPoint(398, 0) << borders(100, 200, 398, 349);
}

void TestWindowEdge::resized_atTheMaximumOnlyShrinks()
{
    QFETCH(int, edges);
    QFETCH(QPoint, outwards);
    QFETCH(QPoint, inwards);
    const SizeRange range{QSize(0, 0), frame.size()};

    QCOMPARE(resized(frame, edges, outwards, range, noLimit), frame);
    QTEST(resized(frame, edges, inwards, range, noLimit), "smaller");
}

void TestWindowEdge::resized_atTheMinimumOnlyGrows_data()
{
    QTest::addColumn<int>("edges");
    QTest::addColumn<QPoint>("inwards");
    QTest::addColumn<QPoint>("outwards");
    QTest::addColumn<QRect>("larger");

    QTest::newRow("top") << 1 << QPoint(0, 201) << QPoint(0, 199) << borders(100, 199, 399, 349);
    QTest::newRow("bottom") << 2 << QPoint(0, 348) << QPoint(0, 350) << borders(100, 200, 399, 350);
    QTest::newRow("left") << 4 << QPoint(101, 0) << QPoint(99, 0) << borders(99, 200, 399, 349);
    QTest::newRow("right") << 8 << QPoint(398, 0) << QPoint(400, 0) << borders(100, 200, 400, 349);
}

void TestWindowEdge::resized_atTheMinimumOnlyGrows()
{
    QFETCH(int, edges);
    QFETCH(QPoint, inwards);
    QFETCH(QPoint, outwards);
    const SizeRange range{frame.size(), QSize(5000, 5000)};

    QCOMPARE(resized(frame, edges, inwards, range, noLimit), frame);
    QTEST(resized(frame, edges, outwards, range, noLimit), "larger");
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
    QTest::addColumn<int>("edges");
    QTest::addColumn<QPoint>("pointer");

    QTest::newRow("top below bottom") << 1 << QPoint(0, 350);
    QTest::newRow("bottom above top") << 2 << QPoint(0, 199);
    QTest::newRow("left beyond right") << 4 << QPoint(400, 0);
    QTest::newRow("right beyond left") << 8 << QPoint(99, 0);
    QTest::newRow("one axis of two") << topLeft << QPoint(400, 220);
    QTest::newRow("the other axis of two") << bottomRight << QPoint(420, 150);
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
    QTest::addColumn<int>("edges");
    QTest::addColumn<QPoint>("pointer");
    QTest::addColumn<QSize>("limit");
    QTest::addColumn<QRect>("result");

    QTest::newRow("right") << 8 << QPoint(900, 0) << QSize(400, 400) << borders(100, 200, 500, 349);
    for (const int beyond : {0, 1, 2})
        QTest::addRow("right, %d beyond", beyond)
            << 8 << QPoint(500 + beyond, 0) << QSize(400, 400) << borders(100, 200, 500, 349);
    QTest::newRow("right, one below")
        << 8 << QPoint(499, 0) << QSize(400, 400) << borders(100, 200, 499, 349);
    QTest::newRow("bottom") << 2 << QPoint(0, 900) << QSize(400, 400)
                            << borders(100, 200, 399, 600);
    // The cut is at the right and the bottom, whichever border was dragged.
    QTest::newRow("left") << 4 << QPoint(-500, 0) << QSize(400, 400)
                          << borders(-500, 200, -100, 349);
    QTest::newRow("top") << 1 << QPoint(0, -500) << QSize(400, 400)
                         << borders(100, -500, 399, -100);
    QTest::newRow("the axis that was not dragged")
        << 8 << QPoint(390, 0) << QSize(400, 100) << borders(100, 200, 390, 300);
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
