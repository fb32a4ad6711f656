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
    void movedInto_movesAsLittleAsNeeded_data();
    void movedInto_movesAsLittleAsNeeded();
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

void TestScreenArea::movedInto_movesAsLittleAsNeeded_data()
{
    QTest::addColumn<QRect>("rectangle");
    QTest::addColumn<QPoint>("topLeft");
    QTest::newRow("inside") << QRect(100, 100, 50, 40) << QPoint(100, 100);
    QTest::newRow("at the corner") << QRect(150, 160, 50, 40) << QPoint(150, 160);
    QTest::newRow("one column beyond") << QRect(151, 160, 50, 40) << QPoint(150, 160);
    QTest::newRow("one row beyond") << QRect(150, 161, 50, 40) << QPoint(150, 160);
    QTest::newRow("left and above") << QRect(-30, -1, 50, 40) << QPoint(0, 0);
    QTest::newRow("far away") << QRect(9000, 9000, 50, 40) << QPoint(150, 160);
    QTest::newRow("larger than the area") << QRect(20, 20, 300, 300) << QPoint(0, 0);
}

void TestScreenArea::movedInto_movesAsLittleAsNeeded()
{
    QFETCH(QRect, rectangle);
    QFETCH(QPoint, topLeft);
    QCOMPARE(ScreenArea::movedInto(rectangle, QRect(0, 0, 200, 200)),
             QRect(topLeft, rectangle.size()));
}

QTEST_MAIN(TestScreenArea)
#include "tst_screenarea.moc"
