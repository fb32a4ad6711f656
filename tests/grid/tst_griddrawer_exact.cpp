#include "drawcontainer.h"
#include "gridcanvas.h"
#include "gridpicture.h"

#include <QPainter>
#include <QtTest>

#include <random>

namespace {

constexpr QRgb backdrop = 0xff553311;

// What a grid drawer is told, kept beside it.
struct Settings
{
    int distance = 10;
    int offset = 0;
    int width = 1;
    int families = 0;
    QColor line;
    QColor background;
};

// The rule for a grid's pixels, spelled out: every line by a call of its own.
void paintLineByLine(QPainter &painter, const QSize &size, const Settings &settings)
{
    const auto line = [&painter](int x1, int y1, int x2, int y2) {
        const QLine one(x1, y1, x2, y2);
        painter.drawLines(&one, 1);
    };
    const int w = size.width();
    const int h = size.height();
    const int m = qMax(w, h);
    QPen pen;
    pen.setColor(settings.line);
    pen.setWidth(settings.width);
    painter.setPen(pen);
    painter.fillRect(0, 0, w, h, settings.background);
    for (int y = settings.offset; (settings.families & Horizontal) && y <= h;
         y += settings.distance)
        line(0, y, w, y);
    for (int x = settings.offset; (settings.families & Vertical) && x <= w; x += settings.distance)
        line(x, 0, x, h);
    for (int d = settings.offset; (settings.families & SlantLeft) && d <= 2 * m;
         d += settings.distance)
        line(0, d, d, 0);
    for (int d = settings.offset; (settings.families & SlantRight) && d < 2 * m;
         d += settings.distance)
        line(0, m - d, d, m);
}

QImage blank(const QSize &size, QImage::Format format = QImage::Format_RGB32, qreal scale = 1)
{
    QImage image((QSizeF(size) * scale).toSize(), format);
    image.setDevicePixelRatio(scale);
    image.fill(backdrop);
    return image;
}

QImage expected(QImage image, const QSize &size, const Settings &settings)
{
    QPainter painter(&image);
    paintLineByLine(painter, size, settings);
    return image;
}

QImage rendered(QWidget &widget, QImage image)
{
    widget.render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
    return image;
}

// Tells the drawer the settings through its own operations only.
void apply(GridDrawer &drawer, Settings &current, const Settings &wanted)
{
    // The offset is reached by scrolling, at a distance that lets it get that far.
    drawer.slot_changeDistance(qMax(wanted.distance, wanted.offset + 1));
    int offset = current.offset;
    while (offset != wanted.offset) {
        drawer.scrollLines();
        offset = (offset + 1) % drawer.getLineDistance();
    }
    drawer.slot_changeDistance(wanted.distance);
    drawer.slot_changePix(wanted.width);
    drawer.slot_colorChanged(wanted.line);
    drawer.slot_changeBgColor(wanted.background);
    drawer.setHoriLinesEnabled(wanted.families & Horizontal);
    drawer.setVertLinesEnabled(wanted.families & Vertical);
    drawer.setSlantLeftLinesEnabled(wanted.families & SlantLeft);
    drawer.setSlantRightLinesEnabled(wanted.families & SlantRight);
    current = wanted;
}

void scroll(GridDrawer &drawer, Settings &current)
{
    drawer.scrollLines();
    current.offset = (current.offset + 1) % current.distance;
}

QString description(const QSize &size, const Settings &settings)
{
    return QStringLiteral("%1 x %2, distance %3, offset %4, width %5, families %6, %7 on %8")
        .arg(size.width())
        .arg(size.height())
        .arg(settings.distance)
        .arg(settings.offset)
        .arg(settings.width)
        .arg(settings.families)
        .arg(settings.line.name(QColor::HexArgb), settings.background.name(QColor::HexArgb));
}

// Draws sizes and settings by lot, the same ones in every run.
class Lot
{
public:
    static constexpr unsigned seed = 20240611;

    int between(int low, int high)
    {
        // Not a distribution of the standard library, whose numbers differ among libraries.
        return low + int(m_engine() % unsigned(high - low + 1));
    }

    QSize size()
    {
        switch (between(0, 9)) {
        case 0:
            return {1, 1};
        case 1:
            return {between(1, 30), between(1, 30)};
        case 2:
            return {between(300, 900), between(1, 60)};
        case 3:
            return {between(1, 60), between(300, 900)};
        case 4: {
            const int side = between(1, 600);
            return {side, side};
        }
        default:
            return {between(20, 500), between(20, 500)};
        }
    }

    Settings settings()
    {
        Settings settings;
        const int farthest[] = {10, 40, 150, 700};
        settings.distance = between(3, farthest[between(0, 3)]);
        // Sometimes further than a distance: the one before was larger.
        settings.offset = between(0, 7) == 0 ? between(0, 699) : between(0, settings.distance - 1);
        settings.width = between(1, 5);
        settings.families = between(0, 3) == 0 ? EveryFamily : between(0, EveryFamily);
        settings.line = color();
        settings.background = color();
        return settings;
    }

private:
    QColor color()
    {
        switch (between(0, 11)) {
        case 0:
            return QColor();
        case 1: // translucent
            return {between(0, 255), between(0, 255), between(0, 255), between(0, 254)};
        case 2:
            return QColor::fromHsv(between(0, 359), between(0, 255), between(0, 255));
        case 3:
            return Qt::white;
        case 4:
            return Qt::black;
        default:
            return {between(0, 255), between(0, 255), between(0, 255)};
        }
    }

    std::mt19937 m_engine{seed};
};

GridPattern patternOf(const QSize &size, const Settings &settings)
{
    GridPattern pattern;
    pattern.size = size;
    pattern.distance = settings.distance;
    pattern.offset = settings.offset;
    pattern.horizontal = settings.families & Horizontal;
    pattern.vertical = settings.families & Vertical;
    pattern.slantLeft = settings.families & SlantLeft;
    pattern.slantRight = settings.families & SlantRight;
    pattern.pen.setColor(settings.line);
    pattern.pen.setWidth(settings.width);
    pattern.background = settings.background;
    return pattern;
}

qint64 bytes(const QSize &size)
{
    return qint64(size.width()) * size.height() * 4;
}

} // namespace

class TestGridDrawerExact : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void combinationsByLot_matchLineByLine();
    void combinationsByLotOnTheTestWindow_matchLineByLine();
    void scrollingThroughADistance_matchesLineByLine_data();
    void scrollingThroughADistance_matchesLineByLine();
    void screenSizes_matchLineByLine_data();
    void screenSizes_matchLineByLine();
    void enlargedScreens_matchLineByLine_data();
    void enlargedScreens_matchLineByLine();
    void otherFormats_matchLineByLine();
    void partOfTheWindow_isRepaintedExactly();
    void childOfAWindow_isPaintedExactly();
    void pieces_areSmallerThanThePicture();
    void pieces_areUsedAtEverySetting();
};

void TestGridDrawerExact::initTestCase()
{
    qInfo("seed %u", Lot::seed);
}

void TestGridDrawerExact::combinationsByLot_matchLineByLine()
{
    Lot lot;
    GridCanvas grid;
    Settings current;
    int combinations = 0;
    while (combinations < 2400) {
        const QSize size = lot.size();
        grid.canvas.resize(size);
        apply(grid.drawer, current, lot.settings());
        // Painted anew, painted again as it is, and painted one and two pixels further on.
        for (int painting = 0; painting < 4; ++painting) {
            if (painting > 1)
                scroll(grid.drawer, current);
            if (rendered(grid.canvas, blank(size)) != expected(blank(size), size, current))
                QFAIL(qPrintable(description(size, current)));
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
    Settings current;
    for (int i = 0; i < 200; ++i) {
        const QSize size = lot.size();
        window.resize(size);
        apply(drawer, current, lot.settings());
        for (int painting = 0; painting < 2; ++painting) {
            if (rendered(window, blank(size)) != expected(blank(size), size, current))
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
    Settings current;
    for (const int families :
         {int(Horizontal), int(Vertical), int(SlantLeft), int(SlantRight), int(EveryFamily)}) {
        apply(grid.drawer, current, {distance, 0, width, families, Qt::red, Qt::darkGreen});
        for (int step = 0; step <= distance; ++step) {
            if (rendered(grid.canvas, blank(size)) != expected(blank(size), size, current))
                QFAIL(qPrintable(description(size, current)));
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
        row(11, 640); // left from a larger distance
        row(650, 699);
    }
    QTest::newRow("3840 x 2160") << QSize(3840, 2160) << 10 << 3;
}

void TestGridDrawerExact::screenSizes_matchLineByLine()
{
    QFETCH(const QSize, size);
    QFETCH(const int, distance);
    QFETCH(const int, offset);
    GridCanvas grid(size);
    Settings current;
    for (const int width : {1, 5}) {
        apply(grid.drawer, current, {distance, offset, width, EveryFamily, Qt::white, Qt::blue});
        if (rendered(grid.canvas, blank(size)) != expected(blank(size), size, current))
            QFAIL(qPrintable(description(size, current)));
    }
}

void TestGridDrawerExact::enlargedScreens_matchLineByLine_data()
{
    QTest::addColumn<qreal>("scale");
    QTest::newRow("twofold") << qreal(2);
    QTest::newRow("threefold") << qreal(3);
    QTest::newRow("one and a half") << qreal(1.5);
}

void TestGridDrawerExact::enlargedScreens_matchLineByLine()
{
    QFETCH(const qreal, scale);
    Lot lot;
    GridCanvas grid;
    Settings current;
    for (int i = 0; i < 150; ++i) {
        const QSize size = lot.size();
        const QImage empty = blank(size, QImage::Format_RGB32, scale);
        grid.canvas.resize(size);
        apply(grid.drawer, current, lot.settings());
        if (rendered(grid.canvas, empty) != expected(empty, size, current))
            QFAIL(qPrintable(description(size, current)));
    }
}

void TestGridDrawerExact::otherFormats_matchLineByLine()
{
    for (const QImage::Format format :
         {QImage::Format_ARGB32, QImage::Format_ARGB32_Premultiplied, QImage::Format_RGB888}) {
        Lot lot;
        GridCanvas grid;
        Settings current;
        for (int i = 0; i < 50; ++i) {
            const QSize size = lot.size();
            grid.canvas.resize(size);
            apply(grid.drawer, current, lot.settings());
            if (rendered(grid.canvas, blank(size, format))
                != expected(blank(size, format), size, current))
                QFAIL(qPrintable(description(size, current)));
        }
    }
}

void TestGridDrawerExact::partOfTheWindow_isRepaintedExactly()
{
    const QSize size(400, 300);
    const QRect part(37, 5, 201, 290);
    GridCanvas grid(size);
    Settings current;
    apply(grid.drawer, current, {11, 4, 3, EveryFamily, Qt::yellow, Qt::black});

    QImage image = blank(size);
    // Its upper left corner is what lands on the point given.
    grid.canvas.render(&image, part.topLeft(), part, QWidget::RenderFlags());
    const QImage whole = expected(blank(size), size, current);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x)
            QCOMPARE(image.pixel(x, y), part.contains(x, y) ? whole.pixel(x, y) : backdrop);
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
    Settings current;
    apply(drawer, current, {7, 3, 4, EveryFamily, Qt::cyan, Qt::darkRed});

    QImage image = blank(window.size());
    window.render(&image);
    QCOMPARE(image.copy(QRect(canvas.pos(), size)), expected(blank(size), size, current));
}

void TestGridDrawerExact::pieces_areSmallerThanThePicture()
{
    Lot lot;
    GridPicture picture;
    for (int i = 0; i < 1500; ++i) {
        const QSize size = lot.size();
        const Settings settings = lot.settings();
        QImage image(size, QImage::Format_RGB32);
        QPainter painter(&image);
        picture.paint(painter, patternOf(size, settings));
        if (picture.memory() >= bytes(size))
            QFAIL(qPrintable(QStringLiteral("%1 bytes for ").arg(picture.memory())
                             + description(size, settings)));
    }
}

void TestGridDrawerExact::pieces_areUsedAtEverySetting()
{
    const QSize size(1920, 1080);
    QImage image(size, QImage::Format_RGB32);
    QPainter painter(&image);
    for (const int distance : {3, 4, 10, 50, 239, 350, 699, 700}) {
        for (const int offset : {0, distance - 1, 699}) {
            for (const int width : {1, 5}) {
                GridPicture picture;
                const Settings settings{distance, offset, width, EveryFamily, Qt::red, Qt::black};
                picture.paint(painter, patternOf(size, settings));
                QVERIFY2(picture.memory() > 0, qPrintable(description(size, settings)));
                QVERIFY2(picture.memory() < bytes(size), qPrintable(description(size, settings)));
            }
        }
    }
}

QTEST_MAIN(TestGridDrawerExact)
#include "tst_griddrawer_exact.moc"
