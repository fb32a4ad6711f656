#include "cellnumbers.h"
#include "rows.h"
#include "scrgridrig.h"

#include <QPainter>
#include <QtTest>

#include <functional>
#include <random>

namespace {

// Windows and layouts by lot, the same ones in every run.
class Lot
{
public:
    static constexpr unsigned seed = 20240829;

    int between(int low, int high)
    {
        // Not a distribution of the standard library, whose numbers differ among libraries.
        return low + int(m_engine() % unsigned(high - low + 1));
    }

    bool once(int in) { return between(1, in) == 1; }

    QSize size()
    {
        switch (between(0, 5)) {
        case 0:
            return {between(1, 20), between(1, 20)};
        case 1:
            return {between(200, 400), between(1, 40)};
        case 2:
            return {between(1, 40), between(100, 300)};
        default:
            return {between(20, 260), between(20, 200)};
        }
    }

    void fill(ScrGrid &drawer)
    {
        drawer.m_bgColor = color();
        drawer.m_fontColor = color();
        drawer.m_moduleLineColor = color();
        drawer.m_scanColor = color();
        drawer.m_moduleWidth = between(16, once(5) ? 500 : 60);
        drawer.m_moduleHeight = between(once(6) ? 3 : 16, 60);
        drawer.m_moduleColumnCount = between(1, 4);
        drawer.m_moduleRowCount = between(1, 4);
        drawer.m_leftToRight = once(2);
        drawer.m_fontSize = once(6) ? between(21, 100) : between(4, 20);
        drawer.m_fontShape = between(-1, 3);
        drawer.m_beginRow = once(8) ? between(-30, 20000) : between(0, 100);
        drawer.m_beginColumn = once(8) ? between(-30, 20000) : between(0, 100);
        drawer.m_moduleLineWidth = once(4) ? between(0, 10) : 1;
        drawer.m_scanLineWidth = once(4) ? between(1, 100) : between(1, 6);
        drawer.m_lineStart = once(8) ? between(0, 70) : 0;
        drawer.m_lineStep = between(1, 40);
        drawer.m_horiLines = once(8);
        drawer.m_vertLines = once(8);
        drawer.m_slantLeftLines = once(8);
        drawer.m_slantRightLines = once(8);
        drawer.m_pen = pen();
    }

private:
    QPen pen()
    {
        if (!once(8))
            return {};
        static constexpr Qt::PenStyle styles[] = {Qt::SolidLine, Qt::DashLine, Qt::DotLine};
        static constexpr Qt::PenCapStyle caps[] = {Qt::FlatCap, Qt::SquareCap, Qt::RoundCap};
        return {color(), qreal(between(0, 4)), styles[between(0, 2)], caps[between(0, 2)]};
    }

    QColor color()
    {
        switch (between(0, 9)) {
        case 0:
            return {};
        case 1: // translucent
            return {between(0, 255), between(0, 255), between(0, 255), between(0, 254)};
        default:
            return {between(0, 255), between(0, 255), between(0, 255)};
        }
    }

    std::mt19937 m_engine{seed};
};

// A window on a screen of another resolution than the first one's.
class FineCanvas : public Canvas
{
public:
    using Canvas::Canvas;

protected:
    int metric(PaintDeviceMetric metric) const override
    {
        const bool resolution = metric == PdmDpiX || metric == PdmDpiY;
        return resolution ? 144 : Canvas::metric(metric);
    }
};

} // namespace

class TestScrGridExact : public QObject
{
    Q_OBJECT

private slots:
    void layoutsByLot_matchCallByCall_data();
    void layoutsByLot_matchCallByCall();
    void layersByLot_matchCallByCall();
    void everyField_isNoticed_data();
    void everyField_isNoticed();
    void window_isNoticed();
    void screenOfManyNumbers_matchesCallByCall();
    void numbers_haveTheSamePixelsOnEveryScreen();
    void usualNumbers_areDrawnDigitByDigit();
    void linesWithoutALayout_haveThePen();
    void writtenFromRightToLeft_matchesCallByCall();
    void partOfTheWindow_getsThePixelsOfTheWhole();
    void turnedPainter_drawsCallByCall();
};

void TestScrGridExact::layoutsByLot_matchCallByCall_data()
{
    const Table<qreal, int> row("scale", "combinations");
    row("plain", qreal(1), 600);
    row("twofold", qreal(2), 60);
    row("one and a half", qreal(1.5), 60);
}

void TestScrGridExact::layoutsByLot_matchCallByCall()
{
    QFETCH(const qreal, scale);
    QFETCH(const int, combinations);
    Lot lot;
    ScrGridRig rig;
    for (int i = 0; i < combinations; ++i) {
        rig.canvas.resize(lot.size());
        lot.fill(rig.drawer);
        const QImage expected = DirectLayout::image(rig.drawer, scale);
        QVERIFY2(rig.painted(scale) == expected, qPrintable(QString::number(i)));
        QVERIFY2(rig.painted(scale) == expected, qPrintable(QStringLiteral("again, %1").arg(i)));
    }
}

void TestScrGridExact::layersByLot_matchCallByCall()
{
    Lot lot;
    ScrGridRig rig;
    for (int i = 0; i < 60; ++i) {
        rig.canvas.resize(lot.size());
        lot.fill(rig.drawer);
        rig.drawer.m_horiLines = rig.drawer.m_vertLines = true;
        rig.drawer.m_slantLeftLines = rig.drawer.m_slantRightLines = true;
        // What lies beyond the window counts as well.
        QImage image(rig.canvas.size() + QSize(80, 80), QImage::Format_RGB32);
        image.fill(Qt::white);
        QImage expected = image;
        QPainter direct(&expected);
        DirectLayout::paintLayers(direct, rig.drawer);
        QPainter painter(&image);
        rig.drawer.drawHoriLines(painter);
        rig.drawer.drawVertLines(painter);
        rig.drawer.drawSlantLeftLines(painter);
        rig.drawer.drawSlantRightLines(painter);
        rig.drawer.drawModuleLines(painter);
        rig.drawer.drawScanLines(painter);
        rig.drawer.drawText(painter);
        QCOMPARE(painter.pen(), direct.pen());
        QCOMPARE(painter.font(), direct.font());
        QVERIFY2(image == expected, qPrintable(QString::number(i)));
    }
}

using Change = std::function<void(ScrGrid &)>;
Q_DECLARE_METATYPE(Change)

void TestScrGridExact::everyField_isNoticed_data()
{
    const Table<Change> row("change");
    row("background colour", [](ScrGrid &d) { d.m_bgColor = Qt::darkGray; });
    row("picture", [](ScrGrid &d) {
        d.m_bgPicturePath = QStringLiteral("picture");
        d.m_bgPixmap = QPixmap(7, 9);
        d.m_bgPixmap.fill(Qt::darkCyan);
    });
    row("module width", [](ScrGrid &d) { d.m_moduleWidth = 33; });
    row("module height", [](ScrGrid &d) { d.m_moduleHeight = 17; });
    row("module rows", [](ScrGrid &d) { d.m_moduleRowCount = 3; });
    row("module columns", [](ScrGrid &d) { d.m_moduleColumnCount = 3; });
    row("number colour", [](ScrGrid &d) { d.m_fontColor = Qt::cyan; });
    row("module line colour", [](ScrGrid &d) { d.m_moduleLineColor = Qt::cyan; });
    row("scan line colour", [](ScrGrid &d) { d.m_scanColor = Qt::cyan; });
    row("order", [](ScrGrid &d) { d.m_leftToRight = false; });
    row("font size", [](ScrGrid &d) { d.m_fontSize = 11; });
    row("font shape", [](ScrGrid &d) { d.m_fontShape = 1; });
    row("begin row", [](ScrGrid &d) { d.m_beginRow = 2; });
    row("begin column", [](ScrGrid &d) { d.m_beginColumn = 2; });
    row("module line width", [](ScrGrid &d) { d.m_moduleLineWidth = 2; });
    row("scan line width", [](ScrGrid &d) { d.m_scanLineWidth = 5; });
    row("pen", [](ScrGrid &d) { d.m_pen.setStyle(Qt::DotLine); });
    row("rows of lines", [](ScrGrid &d) { d.m_horiLines = true; });
    row("columns of lines", [](ScrGrid &d) { d.m_vertLines = true; });
    row("rising lines", [](ScrGrid &d) { d.m_slantLeftLines = true; });
    row("falling lines", [](ScrGrid &d) { d.m_slantRightLines = true; });
    row("line start", [](ScrGrid &d) { d.m_lineStart = 3; });
    row("line step", [](ScrGrid &d) {
        d.m_horiLines = true;
        d.m_lineStep = 5;
    });
    row("window's font", [](ScrGrid &d) {
        QFont font = d.targetWidget->font();
        font.setLetterSpacing(QFont::AbsoluteSpacing, 2);
        d.targetWidget->setFont(font);
    });
}

void TestScrGridExact::everyField_isNoticed()
{
    QFETCH(const Change, change);
    ScrGridRig rig(QSize(200, 100));
    rig.drawer.m_bgColor = Qt::darkGreen;
    QVERIFY(rig.isExact());
    const QImage before = rig.painted();

    change(rig.drawer);

    const QImage expected = DirectLayout::image(rig.drawer);
    QCOMPARE(rig.painted(), expected);
    QVERIFY(expected != before);
}

void TestScrGridExact::window_isNoticed()
{
    ScrGridRig rig(QSize(200, 100));
    QVERIFY(rig.isExact());
    rig.canvas.resize(200, 101);
    QVERIFY(rig.isExact());
    rig.canvas.resize(100, 101);
    QVERIFY(rig.isExact());
    QVERIFY(rig.isExact(2)); // on a finer screen
    QVERIFY(rig.isExact());
    rig.drawer.m_bgPicturePath = QStringLiteral("picture");
    rig.drawer.m_bgPixmap = QPixmap(100, 101);
    rig.drawer.m_bgPixmap.fill(Qt::green);
    QVERIFY(rig.isExact());
    rig.drawer.m_bgPixmap.fill(Qt::red);
    QVERIFY(rig.isExact());
    QCOMPARE(rig.painted().pixel(5, 5), LayoutColor::red);
}

void TestScrGridExact::screenOfManyNumbers_matchesCallByCall()
{
    ScrGridRig rig(QSize(1280, 720));
    rig.drawer.m_moduleWidth = 16;
    rig.drawer.m_moduleRowCount = 1;
    rig.drawer.m_moduleColumnCount = 1;
    for (const bool leftToRight : {true, false}) {
        rig.drawer.m_leftToRight = leftToRight;
        rig.drawer.m_beginColumn = 60; // up to 140
        QVERIFY(rig.isExact());
    }
}

void TestScrGridExact::numbers_haveTheSamePixelsOnEveryScreen()
{
    FineCanvas canvas(QSize(300, 200));
    ScrGrid drawer(&canvas);
    canvas.setDrawer(&drawer);
    showFirstStart(drawer);
    QCOMPARE(DirectLayout::image(drawer), ScrGridRig(canvas.size()).painted());

    QImage image = DirectLayout::blank(canvas.size());
    canvas.render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
    QCOMPARE(image, DirectLayout::image(drawer));
}

// Which is several times faster than text by text.
void TestScrGridExact::usualNumbers_areDrawnDigitByDigit()
{
    QImage image(100, 100, QImage::Format_RGB32);
    const QPainter painter(&image);
    CabinetLayout layout;
    layout.size = image.size();
    CellNumbers numbers;
    QVERIFY(numbers.prepare(layout, painter));
    layout.m_beginRow = -1; // which has more than digits
    QVERIFY(!numbers.prepare(layout, painter));
}

void TestScrGridExact::linesWithoutALayout_haveThePen()
{
    ScrGridRig rig;
    rig.drawer.m_layoutOn = false;
    rig.drawer.m_horiLines = true;
    rig.drawer.m_pen = QPen(Qt::green);
    QCOMPARE(rig.paintedOnce().pixel(5, rig.drawer.m_lineStep), LayoutColor::green);
}

void TestScrGridExact::writtenFromRightToLeft_matchesCallByCall()
{
    ScrGridRig rig(QSize(300, 100));
    rig.canvas.setLayoutDirection(Qt::RightToLeft);
    QVERIFY(rig.isExact());
    rig.drawer.m_beginRow = -1;
    QVERIFY(rig.isExact());
}

void TestScrGridExact::partOfTheWindow_getsThePixelsOfTheWhole()
{
    ScrGridRig rig(QSize(300, 100));
    const QImage whole = rig.painted();
    const QRect part(123, 31, 40, 5);
    QImage image = DirectLayout::blank(rig.canvas.size());
    const QRgb outside = image.pixel(0, 0);
    rig.canvas.render(&image, part.topLeft(), part, QWidget::RenderFlags());
    QCOMPARE(image.copy(part), whole.copy(part));
    QCOMPARE(image.pixel(100, 60), outside);
}

void TestScrGridExact::turnedPainter_drawsCallByCall()
{
    ScrGridRig rig(QSize(120, 60));
    QImage image(60, 120, QImage::Format_RGB32);
    image.fill(Qt::white);
    DirectLayout::setResolution(image, rig.canvas.logicalDpiY());
    QImage expected = image;
    const auto turn = [](QPainter &painter) {
        painter.rotate(90);
        painter.translate(0, -60);
    };
    QPainter direct(&expected);
    turn(direct);
    DirectLayout::paint(direct, rig.drawer);
    QPainter painter(&image);
    turn(painter);
    rig.canvas.render(&painter, QPoint(), QRegion(), QWidget::RenderFlags());
    painter.end();
    QCOMPARE(image, expected);
}

QTEST_MAIN(TestScrGridExact)
#include "tst_scrgrid_exact.moc"
