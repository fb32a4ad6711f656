#include "canvas.h"
#include "rows.h"
#include "scrpurity.h"
#include "signallog.h"

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

// The drawer on a canvas of its own.
struct PurityCanvas
{
    explicit PurityCanvas(const QSize &size = QSize(33, 17))
        : canvas(size)
    {
        canvas.setDrawer(&drawer);
    }

    Canvas canvas;
    ScrPurity drawer{&canvas};
};

} // namespace

class TestScrPurity : public QObject
{
    Q_OBJECT

private slots:
    void everyGreyLevelOfEachColour_isExact_data();
    void everyGreyLevelOfEachColour_isExact();
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
    void colourAndGreyLevel_activateAndTheLatterSaysSo();
    void change_asksForARepaint_data();
    void change_asksForARepaint();
};

void TestScrPurity::everyGreyLevelOfEachColour_isExact_data()
{
    addRows<int>("row", {{"red", 0},
                         {"green", 1},
                         {"blue", 2},
                         {"white", 3},
                         {"yellow", 4},
                         {"cyan", 5},
                         {"magenta", 6}});
}

void TestScrPurity::everyGreyLevelOfEachColour_isExact()
{
    QFETCH(const int, row);
    const Lit &lit = litChannels[row];
    PurityCanvas purity;
    purity.drawer.slot_colorChanged(lit.color);
    const QVector<QPoint> points = cornersAndCentre(purity.canvas.size());

    for (uint grey = 0; grey < 256; ++grey) {
        purity.drawer.slot_AlphaChanged(int(grey));
        const QImage image = purity.canvas.painted(backdrop);
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

void TestScrPurity::greyAtStart_isFull()
{
    PurityCanvas purity;
    purity.drawer.slot_colorChanged(Qt::cyan);

    QVERIFY(everyPixelIs(purity.canvas.painted(), pixel(0, 255, 255)));
}

void TestScrPurity::otherColours_arePaintedAsTheyAre_data()
{
    const Table<QColor, uint> row("color", "expected");
    row("red with alpha 254", {255, 0, 0, 254}, 0xfeff0000u);
    row("black", Qt::black, 0xff000000u);
    row("red one step darker", {254, 0, 0}, 0xfffe0000u);
    row("white with a darker blue", {255, 255, 254}, 0xfffffffeu);
    row("dark red", Qt::darkRed, 0xff800000u);
    row("grey", Qt::gray, 0xffa0a0a4u);
    row("red of the other colour model", QColor::fromHsv(0, 255, 255), 0xffff0000u);
    row("transparent", Qt::transparent, 0x00000000u);
}

void TestScrPurity::otherColours_arePaintedAsTheyAre()
{
    QFETCH(const QColor, color);
    QFETCH(const uint, expected);
    PurityCanvas purity;
    purity.drawer.slot_AlphaChanged(7);
    purity.drawer.slot_colorChanged(color);

    QVERIFY(everyPixelIs(purity.canvas.painted(Qt::transparent), expected));
}

void TestScrPurity::neverSetColour_paintsWhatAnInvalidOneGives()
{
    PurityCanvas purity;

    QVERIFY(everyPixelIs(purity.canvas.painted(Qt::white), QColor().rgba()));
}

void TestScrPurity::wholeWidget_isPainted_data()
{
    addRows<QSize>("size", {{"one pixel", {1, 1}},
                            {"one row", {301, 1}},
                            {"one column", {1, 203}},
                            {"odd by odd", {127, 63}},
                            {"even by even", {256, 128}}});
}

void TestScrPurity::wholeWidget_isPainted()
{
    QFETCH(const QSize, size);
    PurityCanvas purity(size);
    purity.drawer.slot_AlphaChanged(99);
    purity.drawer.slot_colorChanged(Qt::magenta);

    const QImage image = purity.canvas.painted(backdrop);
    QCOMPARE(image.size(), size);
    QVERIFY(everyPixelIs(image, pixel(99, 0, 99)));
}

void TestScrPurity::resizedWidget_isPaintedToItsNewEdges()
{
    PurityCanvas purity(QSize(11, 9));
    purity.drawer.slot_colorChanged(Qt::yellow);
    QVERIFY(everyPixelIs(purity.canvas.painted(backdrop), pixel(255, 255, 0)));

    purity.canvas.resize(53, 31);
    QVERIFY(everyPixelIs(purity.canvas.painted(backdrop), pixel(255, 255, 0)));
}

void TestScrPurity::window_isCoveredByOpaqueColours()
{
    PurityCanvas purity;
    QVERIFY(purity.canvas.isCovered()); // an invalid colour is black
    purity.drawer.slot_AlphaChanged(0);
    purity.drawer.slot_colorChanged(Qt::red);
    QVERIFY(purity.canvas.isCovered());
    purity.drawer.slot_colorChanged(QColor(255, 0, 0, 254));
    QVERIFY(!purity.canvas.isCovered());
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

void TestScrPurity::colourAndGreyLevel_activateAndTheLatterSaysSo()
{
    PurityCanvas purity;
    SignalLog log(&purity.drawer);
    purity.drawer.slot_colorChanged(Qt::green);
    QVERIFY(purity.drawer.active);
    QCOMPARE(log.take(), QString());

    for (const int grey : {12, 12, 13}) {
        purity.drawer.active = false;
        purity.drawer.slot_AlphaChanged(grey);
        QVERIFY(purity.drawer.active);
        QCOMPARE(log.take(), QStringLiteral("signal_puritySelect(true)"));
    }
}

void TestScrPurity::change_asksForARepaint_data()
{
    addRows<bool>("ofColour", {{"colour", true}, {"grey level", false}});
}

void TestScrPurity::change_asksForARepaint()
{
    QFETCH(const bool, ofColour);
    PurityCanvas purity;
    purity.canvas.show();
    QTRY_VERIFY(purity.canvas.paintCount() > 0);

    const int before = purity.canvas.paintCount();
    if (ofColour)
        purity.drawer.slot_colorChanged(Qt::blue);
    else
        purity.drawer.slot_AlphaChanged(31);
    QCOMPARE(purity.canvas.paintCount(), before);
    QTRY_VERIFY(purity.canvas.paintCount() > before);
}

QTEST_MAIN(TestScrPurity)
#include "tst_scrpurity.moc"
