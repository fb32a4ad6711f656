#include "rows.h"
#include "scrgridrig.h"

#include <QPainter>
#include <QtTest>

namespace {

// What the first start shows at a point that is not close to a number: 32 x 16 pixels a module,
// 2 x 2 modules a scan board; `fromOrigin` counts from where columns begin.
QRgb expectedPixel(int fromOrigin, int y, bool leftToRight)
{
    // A line 4 pixels wide begins 2 pixels left of and above its position.
    if ((fromOrigin + (leftToRight ? 2 : 1)) % 64 < 4 || (y + 2) % 32 < 4)
        return LayoutColor::blue;
    if (fromOrigin % 32 == 0 || y % 16 == 0)
        return LayoutColor::red;
    return LayoutColor::black;
}

constexpr QSize numberArea(44, 14); // in the middle of a cell; no number is larger

bool isYellowish(QRgb pixel)
{
    return qRed(pixel) > 100 && qGreen(pixel) > 100 && qBlue(pixel) < 100;
}

QRect yellowIn(const QImage &image, const QRect &area)
{
    QRect found;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            if (isYellowish(image.pixel(x, y)))
                found |= QRect(x, y, 1, 1);
        }
    }
    return found;
}

// Empty, or the first pixel that is wrong.
QString difference(const QImage &image, bool leftToRight)
{
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const int fromOrigin = leftToRight ? x : image.width() - x;
            const bool besideNumber = qAbs(fromOrigin % 64 - 32) > numberArea.width() / 2
                                      || qAbs(y % 32 - 16) > numberArea.height() / 2;
            if (besideNumber && image.pixel(x, y) != expectedPixel(fromOrigin, y, leftToRight))
                return QStringLiteral("%1, %2 is %3")
                    .arg(x)
                    .arg(y)
                    .arg(QColor(image.pixel(x, y)).name());
        }
    }
    return {};
}

QImage white(const QSize &size)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::white);
    return image;
}

// What a function of the drawer paints on an image that is larger than the window.
QImage paintedBeyond(const ScrGridRig &rig, void (ScrGrid::*paint)(QPainter &) const,
                     const QFont &font = {})
{
    QImage image = white(rig.canvas.size() + QSize(100, 100));
    QPainter painter(&image);
    painter.setFont(font);
    (rig.drawer.*paint)(painter);
    return image;
}

// The columns that a row of pixels has something in.
QVector<int> inkColumns(const QImage &image, int y)
{
    QVector<int> columns;
    for (int x = 0; x < image.width(); ++x) {
        if (image.pixel(x, y) != qRgb(255, 255, 255))
            columns.append(x);
    }
    return columns;
}

QImage textInCell(const QSize &size, const QRect &cell, const QFont &font, const QString &text)
{
    QImage image = white(size);
    QPainter painter(&image);
    painter.setPen(Qt::yellow);
    painter.setFont(font);
    painter.drawText(cell, Qt::AlignCenter, text);
    return image;
}

} // namespace

class TestScrGrid : public QObject
{
    Q_OBJECT

private slots:
    void newOrDisabledDrawer_paintsNothing();
    void firstStart_showsModulesBoardsAndNumbers_data();
    void firstStart_showsModulesBoardsAndNumbers();
    void update_repaintsTheWindow();
    void moduleWiderThanTheWindow_leavesOneLine();
    void windowOfWholeCells_numbersOneMoreColumnBeyond();
    void numbers_growInTheOrderOfTheColumns_data();
    void numbers_growInTheOrderOfTheColumns();
    void fontShape_isNormalBoldItalicOrAsItWas();
    void bothSlants_endDifferently();
};

void TestScrGrid::newOrDisabledDrawer_paintsNothing()
{
    ScrGridRig rig;
    rig.canvas.setDrawer(&rig.drawer, false);
    QCOMPARE(rig.paintedOnce(), DirectLayout::blank(rig.canvas.size()));
    QVERIFY(!rig.canvas.testAttribute(Qt::WA_SetPalette));

    ScrGrid drawer(&rig.canvas);
    QVERIFY(!drawer.active);
    rig.canvas.setDrawer(&drawer);
    QCOMPARE(rig.paintedOnce(), DirectLayout::blank(rig.canvas.size()));
}

void TestScrGrid::firstStart_showsModulesBoardsAndNumbers_data()
{
    const Table<QSize, bool> row("size", "leftToRight");
    row("left to right", {256, 256}, true);
    row("right to left", {256, 256}, false);
    row("with parts, left to right", {250, 247}, true);
    row("with parts, right to left", {250, 247}, false);
}

void TestScrGrid::firstStart_showsModulesBoardsAndNumbers()
{
    QFETCH(const QSize, size);
    QFETCH(const bool, leftToRight);
    ScrGridRig rig(size);
    rig.drawer.m_leftToRight = leftToRight;
    const QImage image = rig.painted();

    QCOMPARE(difference(image, leftToRight), QString());
    for (int y = 0; y + 32 <= size.height(); y += 32) {
        for (int column = 0; (column + 1) * 64 <= size.width(); ++column) {
            const QRect cell(leftToRight ? column * 64 : size.width() - (column + 1) * 64, y, 64,
                             32);
            const QRect number = yellowIn(image, cell);
            QVERIFY(number.width() > 16 && number.height() > 6);
            QVERIFY(qAbs(number.center().x() - cell.center().x()) <= 2);
            QVERIFY(qAbs(number.center().y() - cell.center().y()) <= 2);
        }
    }
}

void TestScrGrid::update_repaintsTheWindow()
{
    ScrGridRig rig;
    rig.canvas.show();
    QVERIFY(QTest::qWaitForWindowExposed(&rig.canvas));
    QTRY_VERIFY(rig.canvas.paintCount() > 0);
    QCoreApplication::processEvents();
    const int before = rig.canvas.paintCount();
    rig.drawer.update();
    QCOMPARE(rig.canvas.paintCount(), before); // not at once
    QTRY_VERIFY(rig.canvas.paintCount() > before);
}

void TestScrGrid::moduleWiderThanTheWindow_leavesOneLine()
{
    ScrGridRig rig(QSize(100, 50));
    rig.drawer.m_moduleWidth = 101;
    rig.drawer.m_moduleHeight = 1000;
    const auto columns = [&rig] {
        return inkColumns(paintedBeyond(rig, &ScrGrid::drawModuleLines), 20);
    };
    QCOMPARE(columns(), QVector<int>{0});
    rig.drawer.m_leftToRight = false;
    QCOMPARE(columns(), QVector<int>{100});
}

void TestScrGrid::windowOfWholeCells_numbersOneMoreColumnBeyond()
{
    ScrGridRig rig(QSize(128, 32));
    const auto beyond = [&rig] {
        return yellowIn(paintedBeyond(rig, &ScrGrid::drawText), QRect(128, 0, 90, 32));
    };
    QVERIFY(!beyond().isEmpty());
    QVERIFY(QRect(128, 0, 64, 32).contains(beyond()));
    rig.canvas.resize(127, 32);
    QVERIFY(beyond().isEmpty());
}

void TestScrGrid::numbers_growInTheOrderOfTheColumns_data()
{
    // The place is that of a cell in a window of 3 cells and a part.
    const Table<bool, int, int, QPoint, const char *> row("leftToRight", "beginRow", "beginColumn",
                                                          "place", "text");
    row("from zero at the left", true, 0, 0, {0, 0}, "0000");
    row("from zero at the right", false, 0, 0, {136, 0}, "0000");
    row("second from the left", true, 11, 104, {64, 32}, "12105");
    row("second from the right", false, 11, 104, {72, 32}, "12105");
    row("third from the left", true, 11, 104, {128, 0}, "11106");
    row("third from the right", false, 11, 104, {8, 0}, "11106");
}

void TestScrGrid::numbers_growInTheOrderOfTheColumns()
{
    QFETCH(const QPoint, place);
    QFETCH(const QString, text);
    QFETCH(const bool, leftToRight);
    QFETCH(const int, beginRow);
    QFETCH(const int, beginColumn);
    ScrGridRig rig(QSize(200, 96));
    rig.drawer.m_leftToRight = leftToRight;
    rig.drawer.m_beginRow = beginRow;
    rig.drawer.m_beginColumn = beginColumn;
    QFont font;
    font.setPointSize(10);
    const QRect cell(place, QSize(64, 32));
    const QImage image = paintedBeyond(rig, &ScrGrid::drawText);
    QCOMPARE(image.copy(cell), textInCell(image.size(), cell, font, text).copy(cell));
}

void TestScrGrid::fontShape_isNormalBoldItalicOrAsItWas()
{
    const struct
    {
        int shape;
        int weight;
        QFont::Style style;
    } rows[] = {{0, 50, QFont::StyleNormal},
                {1, 75, QFont::StyleNormal},
                {2, 50, QFont::StyleItalic},
                {3, 75, QFont::StyleItalic}, // as it was
                {-1, 75, QFont::StyleItalic}};
    ScrGridRig rig(QSize(60, 30));
    rig.drawer.m_fontSize = 9;
    for (const auto &row : rows) {
        rig.drawer.m_fontShape = row.shape;
        QFont font;
        font.setWeight(75);
        font.setStyle(QFont::StyleItalic);
        const QImage image = paintedBeyond(rig, &ScrGrid::drawText, font);
        font.setPointSize(9);
        font.setWeight(row.weight);
        font.setStyle(row.style);
        QCOMPARE(image, textInCell(image.size(), {0, 0, 64, 32}, font, QStringLiteral("0101")));
    }
}

void TestScrGrid::bothSlants_endDifferently()
{
    ScrGridRig rig(QSize(8, 8));
    rig.drawer.m_layoutOn = false;
    rig.drawer.m_slantLeftLines = true;
    rig.drawer.m_slantRightLines = true;
    const QImage rising = paintedBeyond(rig, &ScrGrid::drawSlantLeftLines);
    const QImage falling = paintedBeyond(rig, &ScrGrid::drawSlantRightLines);

    QCOMPARE(inkColumns(rising, 0), (QVector<int>{0, 8, 16}));
    QCOMPARE(inkColumns(rising, 3), (QVector<int>{5, 13}));
    QCOMPARE(inkColumns(falling, 8), (QVector<int>{0, 8}));
    QCOMPARE(inkColumns(falling, 3), QVector<int>{3}); // without the one from (0, -8) to (16, 8)
    // Together on the window.
    const QImage shown = rig.painted();
    for (int y = 0; y < 8; ++y) {
        for (int x = 0; x < 8; ++x) {
            const bool onLine = x + y == 0 || x + y == 8 || x == y;
            QCOMPARE(shown.pixel(x, y) == LayoutColor::black, onLine);
        }
    }
}

QTEST_MAIN(TestScrGrid)
#include "tst_scrgrid.moc"
