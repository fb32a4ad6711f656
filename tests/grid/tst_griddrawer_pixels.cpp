#include "gridcanvas.h"

#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainter>
#include <QtTest>

using namespace GridColor;

namespace {

// The lines that were drawn one by one, and the last pen and brush.
struct Record
{
    QPen pen;
    QBrush brush;
    QVector<QLine> lines;
    int lineCalls = 0;
};

// Keeps a record of what it is told to paint.
class Recorder : public QPaintEngine
{
public:
    Recorder()
        : QPaintEngine(QPaintEngine::AllFeatures)
    { }

    bool begin(QPaintDevice * /*device*/) override { return true; }
    bool end() override { return true; }
    Type type() const override { return User; }

    void updateState(const QPaintEngineState &now) override
    {
        m_pen = now.pen();
        m_brush = now.brush();
    }

    void drawPixmap(const QRectF & /*to*/, const QPixmap & /*pixmap*/,
                    const QRectF & /*from*/) override
    {
        noteTools();
    }

    void drawPath(const QPainterPath & /*path*/) override { noteTools(); }

    void drawLines(const QLine *drawn, int count) override
    {
        noteTools();
        ++record.lineCalls;
        for (int i = 0; i < count; ++i)
            record.lines.append(drawn[i]);
    }

    Record record;

private:
    void noteTools()
    {
        record.pen = m_pen;
        record.brush = m_brush;
    }

    QPen m_pen;
    QBrush m_brush;
};

// What a canvas is rendered on to see how it paints instead of what.
class RecordingDevice : public QPaintDevice
{
public:
    explicit RecordingDevice(const QSize &size)
        : m_size(size)
    { }

    QPaintEngine *paintEngine() const override { return &recorder; }

    mutable Recorder recorder;

protected:
    int metric(PaintDeviceMetric metric) const override
    {
        switch (metric) {
        case PdmWidth:
            return m_size.width();
        case PdmHeight:
            return m_size.height();
        case PdmDevicePixelRatio:
        case PdmNumColors:
            return 1;
        case PdmDevicePixelRatioScaled:
            return QPaintDevice::metric(metric);
        default:
            return 96; // dots per inch
        }
    }

private:
    QSize m_size;
};

Record recorded(Canvas &canvas)
{
    RecordingDevice device(canvas.size());
    canvas.render(&device, QPoint(), QRegion(), QWidget::RenderFlags());
    return device.recorder.record;
}

} // namespace

class TestGridDrawerPixels : public QObject
{
    Q_OBJECT

private slots:
    void lastStraightLine_isDrawnAtTheEdge();
    void lastSlantLine_isDrawnToTheLeftOnly();
    void fullGrey_leavesTheBrushDimmed();
    void families_areExact_data();
    void families_areExact();
    void lineFunctions_ignoreTheFlagsAndKeepThePen();
    void families_arePaintedOverOneAnotherInOrder();
    void screens_areCopiedNotDrawnLineByLine();
    void smallerDistance_keepsTheOffsetUpToTheNextStep();
    void changePix_setsTheWidthOfTheLines();
};

void TestGridDrawerPixels::lastStraightLine_isDrawnAtTheEdge()
{
    for (const bool horizontal : {true, false}) {
        const auto across = [horizontal](int position) {
            return horizontal ? QPoint(5, position) : QPoint(position, 5);
        };
        // The line itself is beyond the last pixel; a painter on a larger image shows it.
        GridCanvas grid(QSize(33, 33));
        grid.scroll(3);
        QImage image(60, 60, QImage::Format_RGB32);
        image.fill(blue);
        QPainter painter(&image);
        if (horizontal)
            grid.drawer.drawHoriLines(painter);
        else
            grid.drawer.drawVertLines(painter);
        painter.end();
        QCOMPARE(image.pixel(across(33)), black);
        QCOMPARE(image.pixel(across(43)), blue);

        // With three pixels of width it reaches into the window.
        grid.showRedOnBlue(horizontal ? Horizontal : Vertical);
        grid.drawer.slot_changePix(3);
        QCOMPARE(grid.painted().pixel(across(32)), red);
        grid.canvas.resize(32, 32);
        QCOMPARE(grid.painted().pixel(across(31)), blue);
    }
}

void TestGridDrawerPixels::lastSlantLine_isDrawnToTheLeftOnly()
{
    const int side = 20;
    GridCanvas grid(QSize(side, 10));
    QImage leftward(2 * side + 5, 2 * side + 5, QImage::Format_RGB32);
    leftward.fill(blue);
    QPainter left(&leftward);
    grid.drawer.drawSlantLeftLines(left);
    left.end();
    QCOMPARE(leftward.pixel(side, side), black); // of the line at twice the side
    QCOMPARE(leftward.pixel(side, side + 10), blue);

    QImage rightward(2 * side + 5, 2 * side + 5, QImage::Format_RGB32);
    rightward.fill(blue);
    QPainter right(&rightward);
    right.translate(0, side);
    grid.drawer.drawSlantRightLines(right);
    right.end();
    QCOMPARE(rightward.pixel(EveryFamily, 5 + side), black); // of the line at the side plus 10
    QCOMPARE(rightward.pixel(EveryFamily, side - 5), blue); // of the line at twice the side
}

void TestGridDrawerPixels::fullGrey_leavesTheBrushDimmed()
{
    GridCanvas grid;
    grid.drawer.slot_changeGrayScale(128);
    grid.drawer.slot_colorChanged(Qt::red);
    grid.drawer.slot_horiToggled(true);
    const Record dimmed = recorded(grid.canvas);
    QCOMPARE(dimmed.pen.color(), QColor(128, 0, 0));
    QCOMPARE(dimmed.brush.color(), QColor(128, 0, 0));

    grid.drawer.slot_changeGrayScale(255);
    const Record full = recorded(grid.canvas);
    QCOMPARE(full.pen.color(), QColor(255, 0, 0));
    QCOMPARE(full.brush.color(), QColor(128, 0, 0));
}

void TestGridDrawerPixels::families_areExact_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("families");

    const QSize sizes[] = {{1, 1}, {1, 40}, {40, 1}, {64, 64}, {200, 90}, {90, 200}, {257, 255}};
    const QVector<QPair<QByteArray, int>> families = {
        {"horizontal", Horizontal},  {"vertical", Vertical}, {"slant left", SlantLeft},
        {"slant right", SlantRight}, {"all", EveryFamily},   {"none", 0}};
    for (const QSize &size : sizes) {
        for (const auto &family : families)
            QTest::addRow("%s, %d x %d", family.first.constData(), size.width(), size.height())
                << size << family.second;
    }
}

void TestGridDrawerPixels::families_areExact()
{
    QFETCH(const QSize, size);
    QFETCH(const int, families);
    GridCanvas grid(size);
    grid.showRedOnBlue(families);
    int offset = 0;
    for (const int distance : {3, 7, 10, 64, 700, 5}) {
        grid.drawer.slot_changeDistance(distance);
        for (int step = 0; step < 4; ++step) {
            QCOMPARE(difference(grid.painted(), families, distance, offset), QString());
            grid.drawer.slot_ScrollLines();
            offset = (offset + 1) % distance;
        }
    }
}

void TestGridDrawerPixels::lineFunctions_ignoreTheFlagsAndKeepThePen()
{
    const std::pair<void (GridDrawer::*)(QPainter &), int> functions[] = {
        {&GridDrawer::drawHoriLines, Horizontal},
        {&GridDrawer::drawVertLines, Vertical},
        {&GridDrawer::drawSlantLeftLines, SlantLeft},
        {&GridDrawer::drawSlantRightLines, SlantRight}};
    GridCanvas grid(QSize(50, 30));
    grid.drawer.slot_colorChanged(Qt::green);
    grid.drawer.slot_changePix(5);
    grid.scroll(4);
    for (const auto &[drawFamily, family] : functions) {
        QImage image(grid.canvas.size(), QImage::Format_RGB32);
        image.fill(blue);
        QPainter painter(&image);
        painter.setPen(Qt::red);
        (grid.drawer.*drawFamily)(painter);
        QCOMPARE(painter.pen(), QPen(Qt::red));
        painter.end();
        QCOMPARE(difference(image, family, 10, 4), QString());
    }
}

void TestGridDrawerPixels::families_arePaintedOverOneAnotherInOrder()
{
    GridCanvas grid(QSize(4, 3)); // too small for anything to repeat
    grid.enable(EveryFamily);
    grid.drawer.slot_changeDistance(4);

    const QVector<QLine> expected = {
        {0, 0, 4, 0}, {0, 0, 0, 3}, {4, 0, 4, 3}, {0, 0, 0, 0},
        {0, 4, 4, 0}, {0, 8, 8, 0}, {0, 4, 0, 4}, {0, 0, 4, 4},
    };
    const Record painted = recorded(grid.canvas);
    QCOMPARE(painted.lines, expected);
    QCOMPARE(painted.lineCalls, expected.size());
}

void TestGridDrawerPixels::screens_areCopiedNotDrawnLineByLine()
{
    GridCanvas grid(QSize(1920, 1080));
    grid.showRedOnBlue(EveryFamily);
    for (const int distance : {700, 350, 50, 3}) { // the offset is beyond the last
        grid.drawer.slot_changeDistance(distance);
        for (const int width : {1, 5}) {
            grid.drawer.slot_changePix(width);
            QCOMPARE(recorded(grid.canvas).lineCalls, 0);
        }
        grid.scroll(7);
    }
}

void TestGridDrawerPixels::smallerDistance_keepsTheOffsetUpToTheNextStep()
{
    GridCanvas grid(QSize(300, 200));
    grid.showRedOnBlue(EveryFamily);
    grid.drawer.slot_changeDistance(50);
    grid.scroll(43);
    grid.drawer.slot_changeDistance(7);
    QCOMPARE(difference(grid.painted(), EveryFamily, 7, 43), QString());
    grid.drawer.scrollLines();
    QCOMPARE(difference(grid.painted(), EveryFamily, 7, 2), QString());
}

void TestGridDrawerPixels::changePix_setsTheWidthOfTheLines()
{
    GridCanvas grid(QSize(60, 60));
    grid.showRedOnBlue(Horizontal);
    grid.drawer.slot_changeDistance(20);
    for (int width = 1; width <= 5; ++width) {
        grid.drawer.slot_changePix(width);
        QCOMPARE(grid.drawer.getPix(), width);
        const QImage image = grid.painted();
        int rows = 0;
        for (int y = 10; y < 30; ++y)
            rows += image.pixel(30, y) == red ? 1 : 0;
        QCOMPARE(rows, width);
        QCOMPARE(image.pixel(30, 20), red);
    }
}

QTEST_MAIN(TestGridDrawerPixels)
#include "tst_griddrawer_pixels.moc"
