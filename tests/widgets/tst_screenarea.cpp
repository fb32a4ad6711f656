#include "rows.h"
#include "screenarea.h"

#include <QGuiApplication>
#include <QScreen>
#include <QTest>

class TestScreenArea : public QObject
{
    Q_OBJECT

private slots:
    void around_isTheScreenOfThePoint();
    void around_isThePrimaryScreenForAPointOnNone();
    void constrained_movesAsLittleAsNeeded_data();
    void constrained_movesAsLittleAsNeeded();
};

void TestScreenArea::around_isTheScreenOfThePoint()
{
    const QScreen *screen = QGuiApplication::primaryScreen();
    QCOMPARE(ScreenArea::around(screen->geometry().center()), screen->availableGeometry());
}

void TestScreenArea::around_isThePrimaryScreenForAPointOnNone()
{
    QCOMPARE(ScreenArea::around(QPoint(-5000, -5000)),
             QGuiApplication::primaryScreen()->availableGeometry());
}

void TestScreenArea::constrained_movesAsLittleAsNeeded_data()
{
    const Table<QRect, QPoint> row("rectangle", "topLeft");
    row("inside", {100, 100, 50, 40}, {100, 100});
    row("at the corner", {150, 160, 50, 40}, {150, 160});
    row("one column beyond", {151, 160, 50, 40}, {150, 160});
    row("one row beyond", {150, 161, 50, 40}, {150, 160});
    row("left and above", {-30, -1, 50, 40}, {0, 0});
    row("far away", {9000, 9000, 50, 40}, {150, 160});
    row("larger than the area", {20, 20, 300, 300}, {0, 0});
}

void TestScreenArea::constrained_movesAsLittleAsNeeded()
{
    QFETCH(QRect, rectangle);
    QFETCH(QPoint, topLeft);
    QCOMPARE(ScreenArea::constrained(rectangle, QRect(0, 0, 200, 200)),
             QRect(topLeft, rectangle.size()));
}

QTEST_MAIN(TestScreenArea)
#include "tst_screenarea.moc"
