#include "scrgridrig.h"

#include <QPainter>
#include <QtTest>

#include <limits>
#include <random>

namespace {

constexpr int largest = std::numeric_limits<int>::max();
constexpr int smallest = std::numeric_limits<int>::min();

bool isAll(const QImage &image, QRgb color)
{
    QImage expected = image;
    expected.fill(color);
    return image == expected;
}

constexpr int ScrGrid::*fields[] = {
    &ScrGrid::m_moduleWidth,       &ScrGrid::m_moduleHeight, &ScrGrid::m_moduleRowCount,
    &ScrGrid::m_moduleColumnCount, &ScrGrid::m_fontSize,     &ScrGrid::m_fontShape,
    &ScrGrid::m_beginRow,          &ScrGrid::m_beginColumn,  &ScrGrid::m_moduleLineWidth,
    &ScrGrid::m_scanLineWidth,     &ScrGrid::m_lineStart,    &ScrGrid::m_lineStep,
};

QImage withoutLayout(const QSize &size)
{
    QImage image = DirectLayout::blank(size);
    image.fill(Qt::black);
    return image;
}

} // namespace

class TestScrGridHostile : public QObject
{
    Q_OBJECT

private slots:
    void modulesOfNoSize_showOnlyTheBackground();
    void endlessLineWidth_fillsTheWindow();
    void negativeLineWidth_isTheThinnest();
    void fontOfNoSize_keepsTheWindowsSize();
    void endlessFont_isAsLargeAsAWindowShows();
    void largestBeginNumber_countsOn();
    void endlessCells_haveOneLineAndNoVisibleNumber();
    void lineStartOutside_isTheEdgeOrBehindTheWindow();
    void generalLinesWithoutStep_areLeftOut();
    void emptyWindow_isNotPainted();
    void layoutThatTakesLong_isPaintedInParts();
    void extremesByLot_areSurvived();
};

void TestScrGridHostile::modulesOfNoSize_showOnlyTheBackground()
{
    ScrGridRig rig(QSize(100, 60));
    for (const int size : {0, -1, -32, smallest}) {
        rig.drawer.m_leftToRight = !rig.drawer.m_leftToRight;
        rig.drawer.m_moduleWidth = rig.drawer.m_moduleHeight = size;
        QCOMPARE(rig.paintedOnce(), withoutLayout(rig.canvas.size()));
    }
}

void TestScrGridHostile::endlessLineWidth_fillsTheWindow()
{
    for (const int width : {1000, 32767, 32768, 100000, largest}) {
        ScrGridRig rig(QSize(100, 60));
        rig.drawer.m_fontColor = Qt::blue;
        rig.drawer.m_scanLineWidth = width;
        QVERIFY(isAll(rig.painted(), LayoutColor::blue));
        rig.drawer.m_scanColor = rig.drawer.m_fontColor = Qt::red;
        rig.drawer.m_moduleLineWidth = width;
        QVERIFY(isAll(rig.painted(), LayoutColor::red));
    }
}

void TestScrGridHostile::negativeLineWidth_isTheThinnest()
{
    ScrGridRig rig(QSize(100, 60));
    rig.drawer.m_moduleLineWidth = 0;
    const QImage thinnest = rig.painted();
    for (const int width : {-1, smallest}) {
        rig.drawer.m_moduleLineWidth = width;
        QCOMPARE(rig.painted(), thinnest);
    }
}

void TestScrGridHostile::fontOfNoSize_keepsTheWindowsSize()
{
    ScrGridRig rig(QSize(100, 60));
    QFont font = rig.canvas.font();
    font.setPointSize(7);
    rig.canvas.setFont(font);
    rig.drawer.m_fontSize = 7;
    const QImage expected = rig.painted();
    for (const int size : {0, -5, smallest}) {
        rig.drawer.m_fontSize = 12;
        QVERIFY(rig.painted() != expected);
        rig.drawer.m_fontSize = size;
        QCOMPARE(rig.painted(), expected);
    }
}

void TestScrGridHostile::endlessFont_isAsLargeAsAWindowShows()
{
    ScrGridRig rig(QSize(1280, 640)); // one cell
    rig.drawer.m_moduleColumnCount = rig.drawer.m_moduleRowCount = 40;
    rig.drawer.m_fontSize = 999;
    const QImage smaller = rig.painted();
    rig.drawer.m_fontSize = 1000;
    rig.painted(); // what Qt draws for the first time can differ a trifle
    rig.drawer.m_fontSize = 100000;
    const QImage image = rig.painted();
    QVERIFY(rig.drawer.isDrawnInFull());
    QVERIFY(image != smaller);
    rig.drawer.m_fontSize = 1000;
    QCOMPARE(rig.painted(), image);
    rig.drawer.m_fontSize = largest;
    QCOMPARE(rig.painted(), image);
}

void TestScrGridHostile::largestBeginNumber_countsOn()
{
    ScrGridRig rig(QSize(500, 60));
    rig.drawer.m_moduleColumnCount = 8;
    rig.drawer.m_beginRow = largest;
    rig.drawer.m_beginColumn = largest;
    rig.drawer.m_moduleLineColor = rig.drawer.m_scanColor = Qt::black;
    QImage expected = withoutLayout(rig.canvas.size());
    DirectLayout::setResolution(expected, 96);
    QPainter painter(&expected);
    QFont font = rig.canvas.font();
    font.setPointSize(10);
    painter.setFont(font);
    painter.setPen(Qt::yellow);
    const QString rows[] = {QStringLiteral("2147483647"), QStringLiteral("2147483648")};
    for (int row = 0; row < 2; ++row) {
        for (int column = 0; column < 2; ++column)
            painter.drawText(QRect(256 * column, 32 * row, 256, 32), Qt::AlignCenter,
                             rows[row] + rows[column]);
    }
    painter.end();

    QCOMPARE(rig.painted(), expected);
}

void TestScrGridHostile::endlessCells_haveOneLineAndNoVisibleNumber()
{
    ScrGridRig rig(QSize(100, 60));
    ScrGrid &drawer = rig.drawer;
    QImage expected = withoutLayout(rig.canvas.size());
    {
        QPainter painter(&expected);
        painter.fillRect(0, 0, 100, 2, Qt::blue);
        painter.fillRect(0, 0, 2, 60, Qt::blue);
    }
    for (const int length : {largest, -largest}) { // two negative factors are a positive width
        drawer.m_moduleWidth = drawer.m_moduleHeight = length;
        drawer.m_moduleRowCount = drawer.m_moduleColumnCount = length;
        drawer.m_leftToRight = true;
        QCOMPARE(rig.painted(), expected);
        drawer.m_leftToRight = false;
        QCOMPARE(rig.painted(), expected.mirrored(true, false));
    }
}

void TestScrGridHostile::lineStartOutside_isTheEdgeOrBehindTheWindow()
{
    ScrGridRig rig(QSize(150, 90));
    rig.drawer.m_horiLines = rig.drawer.m_vertLines = true;
    rig.drawer.m_slantLeftLines = rig.drawer.m_slantRightLines = true;
    rig.drawer.m_pen.setColor(Qt::green);
    for (const bool leftToRight : {true, false}) {
        rig.drawer.m_leftToRight = leftToRight;
        rig.drawer.m_lineStart = 0;
        QVERIFY(rig.isExact());
        const QImage expected = rig.painted();
        for (const int start : {-1, smallest}) {
            rig.drawer.m_lineStart = start;
            QCOMPARE(rig.painted(), expected);
        }
    }
    rig.drawer.m_lineStart = largest;
    rig.drawer.m_fontColor = Qt::black;
    QCOMPARE(rig.painted(), withoutLayout(rig.canvas.size()));
}

void TestScrGridHostile::generalLinesWithoutStep_areLeftOut()
{
    ScrGridRig rig(QSize(100, 60));
    const QImage expected = rig.painted();
    rig.drawer.m_pen.setColor(Qt::green);
    rig.drawer.m_horiLines = rig.drawer.m_vertLines = true;
    rig.drawer.m_slantLeftLines = rig.drawer.m_slantRightLines = true;
    for (const int step : {0, -1, smallest}) {
        rig.drawer.m_lineStep = step;
        QCOMPARE(rig.painted(), expected);
    }
}

void TestScrGridHostile::emptyWindow_isNotPainted()
{
    ScrGridRig rig(QSize(50, 50));
    QImage image(QSize(50, 50), QImage::Format_RGB32);
    image.fill(Qt::white);
    for (const QSize &size : {QSize(0, 0), QSize(50, 0), QSize(0, 50)}) {
        rig.canvas.resize(size);
        rig.canvas.render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
        QVERIFY(isAll(image, 0xffffffff));
    }
    rig.canvas.resize(50, 50);
    QVERIFY(rig.isExact());
}

void TestScrGridHostile::layoutThatTakesLong_isPaintedInParts()
{
    // Numbers in very large characters, of which no pictures are kept.
    ScrGridRig rig(QSize(1200, 800));
    rig.drawer.m_moduleWidth = rig.drawer.m_moduleHeight = 4;
    rig.drawer.m_moduleRowCount = rig.drawer.m_moduleColumnCount = 1;
    rig.drawer.m_fontSize = 100;
    const QImage first = rig.paintedOnce();
    QVERIFY(!rig.drawer.isDrawnInFull());
    const QImage second = rig.paintedOnce();
    QVERIFY(second != first);

    rig.drawer.m_moduleWidth = rig.drawer.m_moduleHeight = 400; // given up
    rig.drawer.m_horiLines = true;
    rig.drawer.m_pen.setColor(Qt::green);
    QVERIFY(rig.isExact());
    QVERIFY(rig.drawer.isDrawnInFull());
}

void TestScrGridHostile::extremesByLot_areSurvived()
{
    std::mt19937 engine(7);
    static constexpr int values[] = {smallest, -100000, -1, 0, 1, 2, 100, 65536, largest};
    ScrGridRig rig(QSize(90, 70));
    for (int run = 0; run < 400; ++run) {
        for (const auto field : fields) {
            if (engine() % 2 == 0)
                rig.drawer.*field = values[engine() % std::size(values)];
        }
        rig.drawer.m_leftToRight = engine() % 2 == 0;
        rig.drawer.m_horiLines = engine() % 4 == 0;
        rig.drawer.m_vertLines = engine() % 4 == 0;
        rig.drawer.m_slantLeftLines = engine() % 4 == 0;
        rig.drawer.m_slantRightLines = engine() % 4 == 0;
        const QImage once = rig.paintedOnce();
        QCOMPARE(once.size(), rig.canvas.size());
        if (rig.drawer.isDrawnInFull())
            QCOMPARE(rig.paintedOnce(), once);
    }
}

QTEST_MAIN(TestScrGridHostile)
#include "tst_scrgrid_hostile.moc"
