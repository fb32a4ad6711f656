#include "drawerrig.h"
#include "gradientrig.h"
#include "rows.h"

#include <QLinearGradient>
#include <QPainter>
#include <QtTest>

class TestGradualChange : public QObject
{
    Q_OBJECT

private slots:
    void everyColumn_hasTheColourOfItsPlaceInTheRamp_data();
    void everyColumn_hasTheColourOfItsPlaceInTheRamp();
    void anySizeAndLevel_isExact_data();
    void anySizeAndLevel_isExact();
    void eachChange_isShown();
    void partOfTheWindow_getsThePixelsOfTheWhole();
    void outline_hasTheTextColourOfTheWindow();
    void levelZero_isLeftToThePainter();
    void translucentColour_letsTheBackgroundThrough();
    void window_isCoveredByOpaqueRampsAlone();

    void drawFalse_paintsNothing();
    void newDrawer_isInactiveOnItsTarget();
    void slot_activatesAndAsksForARepaint();
};

void TestGradualChange::everyColumn_hasTheColourOfItsPlaceInTheRamp_data()
{
    QTest::addColumn<int>("level");
    QTest::addColumn<int>("index");
    for (const int level : {32, 64, 128, 256}) {
        for (int index = 0; index < colorCount; ++index)
            QTest::addRow("%d levels, colour %d", level, index) << level << index;
    }
}

void TestGradualChange::everyColumn_hasTheColourOfItsPlaceInTheRamp()
{
    QFETCH(const int, level);
    QFETCH(const int, index);
    DrawerRig rig(QSize(15360, 3)); // two 8K screens
    const DirectRamp ramp{level, colors[index]};
    QVERIFY(rig.isExact(ramp));
    QVERIFY(rig.isExact(ramp, QImage::Format_ARGB32_Premultiplied));
}

void TestGradualChange::anySizeAndLevel_isExact_data()
{
    const Table<QSize> row("size");
    row("one pixel", {1, 1});
    row("one row", {301, 1});
    row("one column", {1, 203});
    row("two by two", {2, 2});
    row("one ramp and the outline", {257, 33});
    row("high", {600, 1100});
    row("four ramps", {1024, 50});
}

void TestGradualChange::anySizeAndLevel_isExact()
{
    QFETCH(const QSize, size);
    DrawerRig rig(size);
    for (const int level : {1, 2, 3, 31, 32, 255, 256, 257, 1023, 1024, 1025, 32767})
        QVERIFY2(rig.isExact({level, QColor(10, 100, 200)}), qPrintable(QString::number(level)));
}

void TestGradualChange::eachChange_isShown()
{
    DrawerRig rig(QSize(200, 100));
    QVERIFY(rig.isExact({32, Qt::cyan}));
    QVERIFY(rig.isExact({64, Qt::cyan}));
    QVERIFY(rig.isExact({64, Qt::magenta}));
    rig.canvas.resize(201, 1000);
    QVERIFY(rig.isExact({64, Qt::magenta}));
}

void TestGradualChange::partOfTheWindow_getsThePixelsOfTheWhole()
{
    DrawerRig rig(QSize(500, 120));
    rig.set(100, Qt::blue);
    const QImage whole = rig.painted();
    for (const QRect &part :
         {QRect(0, 0, 10, 10), QRect(123, 31, 40, 5), QRect(490, 110, 10, 10)}) {
        QImage image(rig.canvas.size(), QImage::Format_RGB32);
        image.fill(DrawerRig::backdrop);
        rig.canvas.render(&image, part.topLeft(), part, QWidget::RenderFlags());
        QCOMPARE(image.copy(part), whole.copy(part));
        QCOMPARE(image.pixel(200, 60), DrawerRig::backdrop);
    }
}

void TestGradualChange::outline_hasTheTextColourOfTheWindow()
{
    DrawerRig rig(QSize(70, 50));
    QPalette palette;
    palette.setColor(QPalette::WindowText, Qt::darkYellow);
    rig.canvas.setPalette(palette);
    QVERIFY(rig.isExact({32, Qt::white, Qt::darkYellow}));
}

void TestGradualChange::levelZero_isLeftToThePainter()
{
    DrawerRig rig;
    QImage expected(rig.canvas.size(), QImage::Format_RGB32);
    expected.fill(DrawerRig::backdrop);
    QPainter painter(&expected);
    QLinearGradient ramp(0, 0, 0, 0);
    ramp.setStops({{0, Qt::black}, {1, Qt::red}});
    ramp.setSpread(QGradient::RepeatSpread);
    painter.setBrush(ramp);
    painter.drawRect(QRect(QPoint(-1, -1), expected.size()));
    painter.end();

    QCOMPARE(rig.painted(), expected); // as before the panel has sent any level
    rig.set(32, Qt::white);
    rig.set(0, Qt::red);
    QCOMPARE(rig.painted(), expected);
}

void TestGradualChange::translucentColour_letsTheBackgroundThrough()
{
    DrawerRig rig(QSize(3, 2));
    rig.set(1, QColor(255, 255, 255, 51)); // half way from black: alpha 153, and 26 of white
    QCOMPARE(rig.canvas.painted(Qt::white).pixel(0, 0), qRgb(128, 128, 128));
    QCOMPARE(rig.canvas.painted(Qt::black).pixel(0, 0), qRgb(26, 26, 26));
}

void TestGradualChange::window_isCoveredByOpaqueRampsAlone()
{
    DrawerRig rig;
    rig.set(256, Qt::red);
    QVERIFY(rig.canvas.isCovered());
    rig.set(256, QColor(255, 0, 0, 0));
    QVERIFY(!rig.canvas.isCovered());
    rig.set(256, Qt::red);
    QPalette palette;
    palette.setColor(QPalette::WindowText, QColor(0, 0, 0, 128)); // of the outline
    rig.canvas.setPalette(palette);
    QVERIFY(!rig.canvas.isCovered());
}

void TestGradualChange::drawFalse_paintsNothing()
{
    DrawerRig rig;
    rig.canvas.setDrawer(&rig.drawer, false);
    rig.set(32, Qt::white);
    QImage untouched(rig.canvas.size(), QImage::Format_RGB32);
    untouched.fill(DrawerRig::backdrop);

    QCOMPARE(rig.painted(), untouched);
    QCOMPARE(rig.canvas.paintCount(), 1);
}

void TestGradualChange::newDrawer_isInactiveOnItsTarget()
{
    Canvas canvas;
    const GradualChange drawer(&canvas);
    QVERIFY(!drawer.active);
    QVERIFY(drawer.targetWidget == &canvas);
    QVERIFY(!drawer.parent());
}

void TestGradualChange::slot_activatesAndAsksForARepaint()
{
    DrawerRig rig;
    rig.canvas.show();
    QVERIFY(QTest::qWaitForWindowExposed(&rig.canvas));
    QTRY_VERIFY(rig.canvas.paintCount() > 0);
    QVERIFY(!rig.drawer.active);

    const int before = rig.canvas.paintCount();
    rig.set(128, Qt::green);
    QVERIFY(rig.drawer.active);
    QCOMPARE(rig.canvas.paintCount(), before);
    QTRY_VERIFY(rig.canvas.paintCount() > before);
}

QTEST_MAIN(TestGradualChange)
#include "tst_gradualchange.moc"
