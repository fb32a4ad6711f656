#include "exactgrid.h"
#include "gridpicture.h"

#include <QPainter>
#include <QtTest>

// Grids whose first lines are a line distance or more from the edge, as a smaller distance
// leaves them up to the next scroll step.
class TestGridDrawerOffsets : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void combinationsByLot_matchLineByLine_data();
    void combinationsByLot_matchLineByLine();
    void everyOffset_matchesLineByLine_data();
    void everyOffset_matchesLineByLine();
    void everySetOfFamilies_matchesLineByLine_data();
    void everySetOfFamilies_matchesLineByLine();
    void screenSizes_matchLineByLine_data();
    void screenSizes_matchLineByLine();
    void translucentColors_matchLineByLine();
    void smallerDistanceThenStep_matchesLineByLine();
    void partOfTheWindow_isRepaintedExactly();
    void childOfAWindow_isPaintedExactly();
    void paintersClip_isKept();
    void pieces_areSmallerThanThePicture();
    void pieces_areUsedOnScreens();
};

namespace {

constexpr int everyWidth[] = {1, 2, 3, 4, 5};

// Empty if the drawer paints what the settings ask for, at first and when asked again.
QString mismatch(GridCanvas &grid, const QImage &empty, const GridSettings &settings)
{
    const QSize size = grid.canvas.size();
    const QImage wanted = drawnLineByLine(empty, size, settings);
    for (int painting = 0; painting < 2; ++painting) {
        if (rendered(grid.canvas, empty) != wanted)
            return description(size, settings);
    }
    return QString();
}

} // namespace

void TestGridDrawerOffsets::initTestCase()
{
    qInfo("seed %u", Lot::seed);
}

void TestGridDrawerOffsets::combinationsByLot_matchLineByLine_data()
{
    QTest::addColumn<int>("scale");
    QTest::addColumn<int>("combinations");
    QTest::newRow("on a plain screen") << 1 << 450;
    QTest::newRow("enlarged twofold") << 2 << 100;
    QTest::newRow("enlarged threefold") << 3 << 60;
}

void TestGridDrawerOffsets::combinationsByLot_matchLineByLine()
{
    QFETCH(const int, scale);
    QFETCH(const int, combinations);
    Lot lot;
    GridCanvas grid;
    GridSettings current;
    for (int i = 0; i < combinations; ++i) {
        grid.canvas.resize(lot.size());
        apply(grid.drawer, current, lot.settingsWithLargeOffset());
        QVERIFY(current.offset >= current.distance);
        const QImage empty = blank(grid.canvas.size(), QImage::Format_RGB32, scale);
        QCOMPARE(mismatch(grid, empty, current), QString());
    }
}

void TestGridDrawerOffsets::everyOffset_matchesLineByLine_data()
{
    QTest::addColumn<int>("distance");
    QTest::addColumn<int>("scale");
    for (const int distance : {1, 3, 4, 10}) {
        for (const int scale : {1, 2, 3})
            QTest::addRow("distance %d, scale %d", distance, scale) << distance << scale;
    }
}

// From where the first lines are at the border to where there are none in the window.
void TestGridDrawerOffsets::everyOffset_matchesLineByLine()
{
    QFETCH(const int, distance);
    QFETCH(const int, scale);
    GridCanvas grid(QSize(47, 61));
    const QImage empty = blank(grid.canvas.size(), QImage::Format_RGB32, scale);
    GridSettings current;
    for (const int width : everyWidth) {
        for (int offset = distance; offset < 70; offset += offset < 25 ? 1 : 4) {
            apply(grid.drawer, current,
                  {distance, offset, width, EveryFamily, Qt::red, Qt::darkGreen});
            QCOMPARE(mismatch(grid, empty, current), QString());
        }
    }
}

void TestGridDrawerOffsets::everySetOfFamilies_matchesLineByLine_data()
{
    QTest::addColumn<int>("families");
    for (int families = 0; families <= EveryFamily; ++families)
        QTest::addRow("families %d", families) << families;
}

void TestGridDrawerOffsets::everySetOfFamilies_matchesLineByLine()
{
    QFETCH(const int, families);
    for (const QSize &size : {QSize(260, 170), QSize(170, 260), QSize(210, 210), QSize(400, 9)}) {
        GridCanvas grid(size);
        GridSettings current;
        for (const int width : everyWidth) {
            apply(grid.drawer, current, {3 + width, 140, width, families, Qt::white, Qt::blue});
            QCOMPARE(mismatch(grid, blank(size), current), QString());
        }
    }
}

void TestGridDrawerOffsets::screenSizes_matchLineByLine_data()
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
        row(3, 699);
        row(11, 640);
        row(74, 699);
        row(75, 699);
        row(350, 699);
        row(650, 699);
        row(699, 699);
    }
}

void TestGridDrawerOffsets::screenSizes_matchLineByLine()
{
    QFETCH(const QSize, size);
    QFETCH(const int, distance);
    QFETCH(const int, offset);
    GridCanvas grid(size);
    GridSettings current;
    for (const int width : {1, 5}) {
        apply(grid.drawer, current, {distance, offset, width, EveryFamily, Qt::white, Qt::blue});
        QCOMPARE(mismatch(grid, blank(size), current), QString());
    }
}

void TestGridDrawerOffsets::translucentColors_matchLineByLine()
{
    GridCanvas grid(QSize(200, 150));
    GridSettings current;
    const QColor veil(200, 10, 60, 90);
    for (const GridSettings &settings : {GridSettings{5, 77, 3, EveryFamily, veil, Qt::white},
                                         GridSettings{5, 77, 3, EveryFamily, Qt::white, veil}}) {
        apply(grid.drawer, current, settings);
        QCOMPARE(mismatch(grid, blank(grid.canvas.size()), current), QString());
    }
}

void TestGridDrawerOffsets::smallerDistanceThenStep_matchesLineByLine()
{
    GridCanvas grid(QSize(300, 200));
    GridSettings current;
    apply(grid.drawer, current, {50, 43, 2, EveryFamily, Qt::yellow, Qt::black});
    QCOMPARE(mismatch(grid, blank(grid.canvas.size()), current), QString());
    grid.drawer.slot_changeDistance(current.distance = 7);
    QCOMPARE(mismatch(grid, blank(grid.canvas.size()), current), QString());
    grid.drawer.scrollLines();
    current.offset = 2;
    QCOMPARE(mismatch(grid, blank(grid.canvas.size()), current), QString());
}

void TestGridDrawerOffsets::partOfTheWindow_isRepaintedExactly()
{
    const QSize size(400, 300);
    const QImage empty = blank(size);
    GridCanvas grid(size);
    GridSettings current;
    apply(grid.drawer, current, {5, 190, 3, EveryFamily, Qt::yellow, Qt::black});
    const QImage whole = drawnLineByLine(empty, size, current);
    // Across where the families begin, and beside it.
    for (const QRect &part : {QRect(37, 5, 201, 290), QRect(150, 20, 3, 40), QRect(0, 0, 60, 60),
                              QRect(180, 180, 30, 1), QRect(2, 250, 390, 50)}) {
        QImage image = empty;
        // Its upper left corner is what lands on the point given.
        grid.canvas.render(&image, part.topLeft(), part, QWidget::RenderFlags());
        QImage wanted = empty;
        QPainter(&wanted).drawImage(part.topLeft(), whole, part);
        QCOMPARE(image, wanted);
    }
}

void TestGridDrawerOffsets::childOfAWindow_isPaintedExactly()
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
    for (const int distance : {4, 110}) { // at the second there is a piece that does not repeat
        apply(drawer, current, {distance, 180, 4, EveryFamily, Qt::cyan, Qt::darkRed});
        for (const int scale : {1, 2}) {
            QImage image = blank(window.size(), QImage::Format_RGB32, scale);
            window.render(&image);
            const QImage wanted =
                drawnLineByLine(blank(size, QImage::Format_RGB32, scale), size, current);
            QCOMPARE(image.copy(QRect(canvas.pos() * scale, size * scale)), wanted);
        }
    }
}

void TestGridDrawerOffsets::paintersClip_isKept()
{
    const QSize size(300, 200);
    const QImage empty = blank(size);
    const QRegion clip = QRegion(70, 50, 90, 140) + QRegion(0, 180, 30, 7);
    for (const int distance : {4, 110}) {
        const GridSettings settings{distance, 180, 2, EveryFamily, Qt::cyan, Qt::darkRed};
        QImage image = empty;
        QPainter painter(&image);
        painter.setClipRegion(clip);
        GridPicture().paint(painter, patternOf(size, settings));
        QCOMPARE(painter.clipRegion(), clip);
        painter.end();

        QImage wanted = empty;
        QPainter wantedPainter(&wanted);
        wantedPainter.setClipRegion(clip);
        wantedPainter.drawImage(0, 0, drawnLineByLine(empty, size, settings));
        wantedPainter.end();
        QCOMPARE(image, wanted);
    }
}

void TestGridDrawerOffsets::pieces_areSmallerThanThePicture()
{
    Lot lot;
    GridPicture picture;
    for (int i = 0; i < 600; ++i) {
        const QSize size = lot.size();
        const GridSettings settings = lot.settingsWithLargeOffset();
        QImage image(size, QImage::Format_RGB32);
        QPainter painter(&image);
        picture.paint(painter, patternOf(size, settings));
        QVERIFY2(picture.memory() < bytes(size), qPrintable(description(size, settings)));
    }
}

// As a guard of the speed: little is drawn line by line, and little is kept.
void TestGridDrawerOffsets::pieces_areUsedOnScreens()
{
    for (const QSize &size : {QSize(1920, 1080), QSize(1080, 1920)}) {
        QImage image(size, QImage::Format_RGB32);
        QPainter painter(&image);
        painter.setClipRect(image.rect());
        for (const int distance : {3, 4, 10, 50, 239, 350, 600, 699}) {
            for (const int width : {1, 5}) {
                GridPicture picture;
                const GridSettings settings{distance, 699, width, EveryFamily, Qt::red, Qt::black};
                picture.paint(painter, patternOf(size, settings));
                QVERIFY2(picture.memory() > 0, qPrintable(description(size, settings)));
                QVERIFY2(picture.memory() < bytes(size) / (distance < 75 ? 10 : 1),
                         qPrintable(description(size, settings)));
            }
        }
    }
}

QTEST_MAIN(TestGridDrawerOffsets)
#include "tst_griddrawer_offsets.moc"
