#include "canvas.h"
#include "scrpurity.h"

#include <QSignalSpy>
#include <QtTest>

namespace {

constexpr QRgb backdrop = 0xff0a141e;

// Which channels a pure colour lights, as factors of the grey level.
struct Lit
{
    Qt::GlobalColor color;
    uint red, green, blue;
};

constexpr Lit litChannels[] = {
    {Qt::red, 1, 0, 0},    {Qt::green, 0, 1, 0}, {Qt::blue, 0, 0, 1},    {Qt::white, 1, 1, 1},
    {Qt::yellow, 1, 1, 0}, {Qt::cyan, 0, 1, 1},  {Qt::magenta, 1, 0, 1},
};

// An opaque pixel, put together from its bytes.
QRgb pixel(uint red, uint green, uint blue)
{
    return 0xff000000u + red * 0x10000u + green * 0x100u + blue;
}

QVector<QPoint> cornersAndCentre(const QSize &size)
{
    const int right = size.width() - 1;
    const int bottom = size.height() - 1;
    return {{0, 0}, {right, 0}, {0, bottom}, {right, bottom}, {right / 2, bottom / 2}};
}

bool everyPixelIs(const QImage &image, QRgb expected)
{
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) != expected)
                return false;
        }
    }
    return image.width() > 0 && image.height() > 0;
}

} // namespace

class TestScrPurity : public QObject
{
    Q_OBJECT

private slots:
    void everyGreyLevelOfEachColour_isExact_data();
    void everyGreyLevelOfEachColour_isExact();
    void greyZero_paintsBlack_data();
    void greyZero_paintsBlack();
    void greyAtStart_isFull();
    void otherColours_arePaintedAsTheyAre_data();
    void otherColours_arePaintedAsTheyAre();
    void neverSetColour_paintsWhatAnInvalidOneGives();
    void wholeWidget_isPainted_data();
    void wholeWidget_isPainted();
    void resizedWidget_isPaintedToItsNewEdges();
    void window_isCoveredByOpaqueColours();
    void drawFalse_paintsNothing();

    void newDrawer_isInactiveAndHasNoParent();
    void colour_activatesWithoutASignal();
    void greyLevel_activatesAndSaysSo();
    void everyGreyLevel_saysSo();
    void change_asksForARepaint_data();
    void change_asksForARepaint();
};

void TestScrPurity::everyGreyLevelOfEachColour_isExact_data()
{
    QTest::addColumn<int>("row");
    QTest::newRow("red") << 0;
    QTest::newRow("green") << 1;
    QTest::newRow("blue") << 2;
    QTest::newRow("white") << 3;
    QTest::newRow("yellow") << 4;
    QTest::newRow("cyan") << 5;
    QTest::newRow("magenta") << 6;
}

void TestScrPurity::everyGreyLevelOfEachColour_isExact()
{
    QFETCH(const int, row);
    const Lit &lit = litChannels[row];
    Canvas canvas(QSize(33, 17));
    ScrPurity drawer(&canvas);
    canvas.setDrawer(&drawer);
    drawer.slot_colorChanged(lit.color);
    const QVector<QPoint> points = cornersAndCentre(canvas.size());

    for (uint grey = 0; grey < 256; ++grey) {
        drawer.slot_AlphaChanged(int(grey));
        const QImage image = canvas.painted(backdrop);
        const QRgb expected = pixel(lit.red * grey, lit.green * grey, lit.blue * grey);
        for (const QPoint &point : points) {
            if (image.pixel(point) != expected)
                QFAIL(qPrintable(QStringLiteral("grey %1 at (%2, %3): %4 instead of %5")
                                     .arg(grey)
                                     .arg(point.x())
                                     .arg(point.y())
                                     .arg(image.pixel(point), 8, 16)
                                     .arg(expected, 8, 16)));
        }
    }
}

void TestScrPurity::greyZero_paintsBlack_data()
{
    everyGreyLevelOfEachColour_isExact_data();
}

void TestScrPurity::greyZero_paintsBlack()
{
    QFETCH(const int, row);
    Canvas canvas;
    ScrPurity drawer(&canvas);
    canvas.setDrawer(&drawer);
    drawer.slot_AlphaChanged(0);
    drawer.slot_colorChanged(litChannels[row].color);

    QVERIFY(everyPixelIs(canvas.painted(Qt::white), pixel(0, 0, 0)));
}

void TestScrPurity::greyAtStart_isFull()
{
    Canvas canvas;
    ScrPurity drawer(&canvas);
    canvas.setDrawer(&drawer);
    drawer.slot_colorChanged(Qt::cyan);

    QVERIFY(everyPixelIs(canvas.painted(), pixel(0, 255, 255)));
}

void TestScrPurity::otherColours_arePaintedAsTheyAre_data()
{
    QTest::addColumn<QColor>("color");
    QTest::addColumn<uint>("expected");

    QTest::newRow("red with alpha 254") << QColor(255, 0, 0, 254) << 0xfeff0000u;
    QTest::newRow("black") << QColor(Qt::black) << 0xff000000u;
    QTest::newRow("red one step darker") << QColor(254, 0, 0) << 0xfffe0000u;
    QTest::newRow("white with a darker blue") << QColor(255, 255, 254) << 0xfffffffeu;
    QTest::newRow("dark red") << QColor(Qt::darkRed) << 0xff800000u;
    QTest::newRow("grey") << QColor(Qt::gray) << 0xffa0a0a4u;
    QTest::newRow("red of the other colour model") << QColor::fromHsv(0, 255, 255) << 0xffff0000u;
    QTest::newRow("transparent") << QColor(Qt::transparent) << 0x00000000u;
}

void TestScrPurity::otherColours_arePaintedAsTheyAre()
{
    QFETCH(const QColor, color);
    QFETCH(const uint, expected);
    Canvas canvas;
    ScrPurity drawer(&canvas);
    canvas.setDrawer(&drawer);
    drawer.slot_AlphaChanged(7);
    drawer.slot_colorChanged(color);

    QVERIFY(everyPixelIs(canvas.painted(Qt::transparent), expected));
}

void TestScrPurity::neverSetColour_paintsWhatAnInvalidOneGives()
{
    Canvas canvas;
    ScrPurity drawer(&canvas);
    canvas.setDrawer(&drawer);

    QVERIFY(everyPixelIs(canvas.painted(Qt::white), QColor().rgba()));
}

void TestScrPurity::wholeWidget_isPainted_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("one pixel") << QSize(1, 1);
    QTest::newRow("one row") << QSize(301, 1);
    QTest::newRow("one column") << QSize(1, 203);
    QTest::newRow("odd by odd") << QSize(127, 63);
    QTest::newRow("even by even") << QSize(256, 128);
}

void TestScrPurity::wholeWidget_isPainted()
{
    QFETCH(const QSize, size);
    Canvas canvas(size);
    ScrPurity drawer(&canvas);
    canvas.setDrawer(&drawer);
    drawer.slot_colorChanged(Qt::magenta);
    drawer.slot_AlphaChanged(99);

    const QImage image = canvas.painted(backdrop);
    QCOMPARE(image.size(), size);
    QVERIFY(everyPixelIs(image, pixel(99, 0, 99)));
}

void TestScrPurity::resizedWidget_isPaintedToItsNewEdges()
{
    Canvas canvas(QSize(11, 9));
    ScrPurity drawer(&canvas);
    canvas.setDrawer(&drawer);
    drawer.slot_colorChanged(Qt::yellow);
    QVERIFY(everyPixelIs(canvas.painted(backdrop), pixel(255, 255, 0)));

    canvas.resize(53, 31);
    QVERIFY(everyPixelIs(canvas.painted(backdrop), pixel(255, 255, 0)));
}

void TestScrPurity::window_isCoveredByOpaqueColours()
{
    Canvas canvas;
    ScrPurity drawer(&canvas);
    canvas.setDrawer(&drawer);
    QVERIFY(canvas.isCovered()); // an invalid colour is black
    drawer.slot_AlphaChanged(0);
    drawer.slot_colorChanged(Qt::red);
    QVERIFY(canvas.isCovered());
    drawer.slot_colorChanged(QColor(255, 0, 0, 254));
    QVERIFY(!canvas.isCovered());
}

void TestScrPurity::drawFalse_paintsNothing()
{
    Canvas canvas;
    ScrPurity drawer(&canvas);
    canvas.setDrawer(&drawer, false);
    drawer.slot_colorChanged(Qt::white);
    drawer.slot_AlphaChanged(200);

    QVERIFY(everyPixelIs(canvas.painted(backdrop), backdrop));
    QCOMPARE(canvas.paintCount(), 1);
}

void TestScrPurity::newDrawer_isInactiveAndHasNoParent()
{
    Canvas canvas;
    const ScrPurity drawer(&canvas);

    QVERIFY(!drawer.active);
    QVERIFY(drawer.targetWidget == &canvas);
    QVERIFY(!drawer.parent());
}

void TestScrPurity::colour_activatesWithoutASignal()
{
    Canvas canvas;
    ScrPurity drawer(&canvas);
    QSignalSpy selected(&drawer, &ScrPurity::signal_puritySelect);
    drawer.slot_colorChanged(Qt::green);

    QVERIFY(drawer.active);
    QCOMPARE(selected.count(), 0);
}

void TestScrPurity::greyLevel_activatesAndSaysSo()
{
    Canvas canvas;
    ScrPurity drawer(&canvas);
    QSignalSpy selected(&drawer, &ScrPurity::signal_puritySelect);
    drawer.slot_AlphaChanged(12);

    QVERIFY(drawer.active);
    QCOMPARE(selected.count(), 1);
    QCOMPARE(selected.first().first().toBool(), true);
}

void TestScrPurity::everyGreyLevel_saysSo()
{
    Canvas canvas;
    ScrPurity drawer(&canvas);
    QSignalSpy selected(&drawer, &ScrPurity::signal_puritySelect);
    drawer.slot_AlphaChanged(12);
    drawer.slot_AlphaChanged(12);
    drawer.slot_AlphaChanged(13);

    QCOMPARE(selected.count(), 3);
}

void TestScrPurity::change_asksForARepaint_data()
{
    QTest::addColumn<bool>("ofColour");
    QTest::newRow("colour") << true;
    QTest::newRow("grey level") << false;
}

void TestScrPurity::change_asksForARepaint()
{
    QFETCH(const bool, ofColour);
    Canvas canvas;
    ScrPurity drawer(&canvas);
    canvas.setDrawer(&drawer);
    canvas.show();
    QTRY_VERIFY(canvas.paintCount() > 0);

    const int before = canvas.paintCount();
    if (ofColour)
        drawer.slot_colorChanged(Qt::blue);
    else
        drawer.slot_AlphaChanged(31);
    QCOMPARE(canvas.paintCount(), before);
    QTRY_VERIFY(canvas.paintCount() > before);
}

QTEST_MAIN(TestScrPurity)
#include "tst_scrpurity.moc"
