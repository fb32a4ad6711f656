#include "drawcontainer.h"
#include "exactgrid.h"
#include "rows.h"

#include <QPainter>
#include <QtTest>

#include <functional>

namespace {

// Empty if the canvas shows what lines drawn one by one would on such an image.
QString fault(GridCanvas &grid, const GridSettings &settings, const QImage &empty)
{
    const QSize size = grid.canvas.size();
    const bool isExact = grid.rendered(empty) == drawnLineByLine(empty, size, settings);
    return isExact ? QString() : description(size, settings);
}

QString fault(GridCanvas &grid, const GridSettings &settings)
{
    return fault(grid, settings, blank(grid.canvas.size()));
}

} // namespace

class TestGridDrawerExact : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { qInfo("seed %u", Lot::seed); }
    void combinationsByLot_matchLineByLine();
    void combinationsByLotOnTheTestWindow_matchLineByLine();
    void scrollingThroughADistance_matchesLineByLine_data();
    void scrollingThroughADistance_matchesLineByLine();
    void screenSizes_matchLineByLine_data();
    void screenSizes_matchLineByLine();
    void otherScreens_matchLineByLine_data();
    void otherScreens_matchLineByLine();
    void offsetBeyondTheDistance_isPaintedAgainAtEveryChange();
    void gridThatTakesLong_isPaintedInParts();
    void partOfTheWindow_isRepaintedExactly();
    void childOfAWindow_isPaintedExactly();
};

void TestGridDrawerExact::combinationsByLot_matchLineByLine()
{
    Lot lot;
    GridCanvas grid;
    GridSettings current;
    int combinations = 0;
    while (combinations < 2400) {
        const QSize size = lot.size();
        grid.canvas.resize(size);
        apply(grid.drawer, current, lot.settings());
        // Painted first, painted again as it is, and painted one and two pixels further on.
        for (int painting = 0; painting < 4; ++painting) {
            if (painting > 1)
                scroll(grid.drawer, current);
            QCOMPARE(fault(grid, current), QString());
            if (painting != 1)
                ++combinations;
        }
    }
    QVERIFY(combinations >= 2000);
}

void TestGridDrawerExact::combinationsByLotOnTheTestWindow_matchLineByLine()
{
    Lot lot;
    DrawContainer window;
    GridDrawer drawer(&window);
    window.setDrawer(&drawer, true);
    GridSettings current;
    for (int i = 0; i < 200; ++i) {
        const QSize size = lot.size();
        window.resize(size);
        apply(drawer, current, lot.settings());
        QImage background = blank(size); // the window's own, below translucent colours
        background.fill(window.palette().color(QPalette::Window));
        for (int painting = 0; painting < 2; ++painting) {
            if (rendered(window, drawer, blank(size)) != drawnLineByLine(background, size, current))
                QFAIL(qPrintable(description(size, current)));
            scroll(drawer, current);
        }
    }
}

void TestGridDrawerExact::scrollingThroughADistance_matchesLineByLine_data()
{
    QTest::addColumn<int>("distance");
    QTest::addColumn<int>("width");
    for (const int distance : {3, 4, 9, 10, 33}) {
        for (const int width : {1, 2, 3, 4, 5})
            QTest::addRow("distance %d, width %d", distance, width) << distance << width;
    }
}

void TestGridDrawerExact::scrollingThroughADistance_matchesLineByLine()
{
    QFETCH(const int, distance);
    QFETCH(const int, width);
    const QSize size(311, 287);
    GridCanvas grid(size);
    GridSettings current;
    for (const int families :
         {int(Horizontal), int(Vertical), int(SlantLeft), int(SlantRight), int(EveryFamily)}) {
        apply(grid.drawer, current, {distance, 0, width, families, Qt::red, Qt::darkGreen});
        for (int step = 0; step <= distance; ++step) {
            QCOMPARE(fault(grid, current), QString());
            scroll(grid.drawer, current);
        }
    }
}

void TestGridDrawerExact::screenSizes_matchLineByLine_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("distance");
    QTest::addColumn<int>("offset");
    for (const QSize &size : {QSize(1920, 1080), QSize(1080, 1920)}) {
        const auto row = [&size](int distance, int offset) {
            QTest::addRow("%d x %d, distance %d, offset %d", size.width(), size.height(), distance,
                          offset)
                << size << distance << offset;
        };
        row(3, 1);
        row(10, 9);
        row(239, 100);
        row(700, 350);
        row(3, 699);
    }
    QTest::newRow("3840 x 2160") << QSize(3840, 2160) << 10 << 3;
}

void TestGridDrawerExact::screenSizes_matchLineByLine()
{
    QFETCH(const QSize, size);
    QFETCH(const int, distance);
    QFETCH(const int, offset);
    GridCanvas grid(size);
    GridSettings current;
    for (const int width : {1, 5}) {
        apply(grid.drawer, current, {distance, offset, width, EveryFamily, Qt::white, Qt::blue});
        QCOMPARE(fault(grid, current), QString());
    }
}

void TestGridDrawerExact::otherScreens_matchLineByLine_data()
{
    const Table<int, qreal> row("format", "scale");
    row("twofold", int(QImage::Format_RGB32), qreal(2));
    row("threefold", int(QImage::Format_RGB32), qreal(3));
    row("one and a half", int(QImage::Format_RGB32), qreal(1.5));
    row("alpha", int(QImage::Format_ARGB32), qreal(1));
    row("multiplied", int(QImage::Format_ARGB32_Premultiplied), qreal(1));
    row("three bytes", int(QImage::Format_RGB888), qreal(1));
}

void TestGridDrawerExact::otherScreens_matchLineByLine()
{
    QFETCH(const int, format);
    QFETCH(const qreal, scale);
    Lot lot;
    GridCanvas grid;
    GridSettings current;
    for (int i = 0; i < (scale > 1 ? 150 : 50); ++i) {
        grid.canvas.resize(lot.size());
        apply(grid.drawer, current, lot.settings());
        const QImage empty = blank(grid.canvas.size(), QImage::Format(format), scale);
        QCOMPARE(fault(grid, current, empty), QString());
    }
}

void TestGridDrawerExact::offsetBeyondTheDistance_isPaintedAgainAtEveryChange()
{
    GridCanvas grid(QSize(300, 200));
    GridSettings current;
    GridSettings wanted{7, 43, 2, EveryFamily, Qt::yellow, Qt::black};
    const std::function<void()> changes[] = {[] {},
                                             [&] { wanted.line = Qt::red; },
                                             [&] { wanted.background = Qt::blue; },
                                             [&] { wanted.families = SlantLeft; },
                                             [&] { wanted.width = 5; },
                                             [&] { wanted.distance = 9; },
                                             [&] { wanted.offset = 44; },
                                             [&] { grid.canvas.resize(301, 201); }};
    for (const auto &change : changes) {
        change();
        apply(grid.drawer, current, wanted);
        QCOMPARE(fault(grid, wanted), QString());
    }
    scroll(grid.drawer, current);
    QCOMPARE(fault(grid, current), QString());
}

void TestGridDrawerExact::gridThatTakesLong_isPaintedInParts()
{
    const QSize size(3840, 2160);
    GridCanvas grid(size);
    GridSettings current;
    apply(grid.drawer, current, {3, 10, 5, EveryFamily, Qt::yellow, Qt::black});
    const auto renderOnce = [&] {
        QImage image = blank(size);
        grid.canvas.render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
        return image;
    };
    const QImage first = renderOnce();
    QVERIFY(!grid.drawer.isDrawnInFull());
    QVERIFY(renderOnce() != first);

    scroll(grid.drawer, current); // given up
    QCOMPARE(renderOnce(), drawnLineByLine(blank(size), size, current));
    QVERIFY(grid.drawer.isDrawnInFull());
}

void TestGridDrawerExact::partOfTheWindow_isRepaintedExactly()
{
    const QSize size(400, 300);
    const QRect part(37, 5, 201, 290);
    GridCanvas grid(size);
    GridSettings current;
    const QImage empty = blank(size);
    for (const int offset : {4, 150}) {
        apply(grid.drawer, current, {11, offset, 3, EveryFamily, Qt::yellow, Qt::black});
        grid.painted(); // in full
        QImage image = empty;
        // Its upper left corner is what lands on the point given.
        grid.canvas.render(&image, part.topLeft(), part, QWidget::RenderFlags());
        QImage expected = empty;
        QPainter(&expected).drawImage(part.topLeft(), drawnLineByLine(empty, size, current), part);
        QCOMPARE(image, expected);
    }
}

void TestGridDrawerExact::childOfAWindow_isPaintedExactly()
{
    const QSize size(300, 200);
    QWidget window;
    window.resize(350, 260);
    Canvas canvas(size);
    canvas.setParent(&window);
    canvas.move(13, 29);
    GridDrawer drawer(&canvas);
    canvas.setDrawer(&drawer);
    GridSettings current;
    for (const int offset : {3, 150}) {
        apply(drawer, current, {7, offset, 4, EveryFamily, Qt::cyan, Qt::darkRed});
        rendered(canvas, drawer, blank(size)); // in full
        QImage image = blank(window.size());
        window.render(&image);
        QCOMPARE(image.copy(QRect(canvas.pos(), size)),
                 drawnLineByLine(blank(size), size, current));
    }
}

QTEST_MAIN(TestGridDrawerExact)
#include "tst_griddrawer_exact.moc"
