#include "drawerrig.h"
#include "gradientrig.h"

#include <QtTest>

#include <cmath>

namespace {

// The painter looks its colours up in a table: 1023 steps to a ramp, 1024 entries before it
// starts again. So a ramp is a thousandth longer than its levels.
constexpr int tableSteps = 1023;
constexpr int tableSize = 1024;

// The ramp by arithmetic: the grey level at the middle of a column.
double greyAt(int column, int level)
{
    return 255 * std::fmod((column + 0.5) / level * tableSteps, tableSize) / tableSize;
}

// Grey levels that are as good as equal; 255 is next to 0, where a ramp starts again.
bool isGrey(int actual, double expected)
{
    const double difference = qAbs(actual - expected);
    return qMin(difference, 255 - difference) <= 1.1;
}

bool isRamp(QRgb pixel, const QColor &color, double grey)
{
    const auto isChannel = [grey](int actual, int full) {
        return full > 0 ? isGrey(actual, grey) : actual == 0;
    };
    return isChannel(qRed(pixel), color.red()) && isChannel(qGreen(pixel), color.green())
           && isChannel(qBlue(pixel), color.blue());
}

} // namespace

class TestGradualChange : public QObject
{
    Q_OBJECT

private slots:
    void levelZero_showsWhatThePainterMakesOfItAndDoesNotCrash();
    void level256_onAWindow1024WideShowsFourFullRamps();
    void white_givesFourGreyRamps_red_goesFromBlackToPureRed_data();
    void white_givesFourGreyRamps_red_goesFromBlackToPureRed();

    void columns_haveTheGreyOfTheirPlaceInTheRamp_data();
    void columns_haveTheGreyOfTheirPlaceInTheRamp();
    void lastColumnAndRow_areOutlined_data();
    void lastColumnAndRow_areOutlined();

    void drawFalse_paintsNothing();
    void newDrawer_isInactiveRedAndWithoutLevels();
    void slot_activatesAndAsksForARepaint();
};

void TestGradualChange::levelZero_showsWhatThePainterMakesOfItAndDoesNotCrash()
{
    DrawerRig rig;
    QVERIFY(rig.isExact(0, Qt::red));
    rig.set(0, Qt::red);
    QVERIFY(rig.isExact(0, Qt::red));
}

void TestGradualChange::level256_onAWindow1024WideShowsFourFullRamps()
{
    DrawerRig rig(QSize(1024, 50));
    rig.set(256, Qt::green);
    const QImage image = rig.painted();

    QVector<int> starts{0};
    for (int x = 1; x < 1023; ++x) {
        const int grey = qGreen(image.pixel(x, 20));
        const int before = qGreen(image.pixel(x - 1, 20));
        if (grey >= before)
            continue;
        QVERIFY(before >= 254 && grey <= 1);
        starts << x;
    }
    QCOMPARE(starts.size(), 4);
    for (int ramp = 0; ramp < 4; ++ramp)
        QVERIFY(qAbs(starts.at(ramp) - 256 * ramp) <= 1);
    // The last column of the fourth ramp is the outline.
    QVERIFY(qGreen(image.pixel(1022, 20)) >= 253);
    QCOMPARE(image.pixel(1023, 20), qRgb(0, 0, 0));
}

void TestGradualChange::white_givesFourGreyRamps_red_goesFromBlackToPureRed_data()
{
    QTest::addColumn<QColor>("color");
    QTest::newRow("white") << QColor(Qt::white);
    QTest::newRow("red") << QColor(Qt::red);
}

void TestGradualChange::white_givesFourGreyRamps_red_goesFromBlackToPureRed()
{
    QFETCH(const QColor, color);
    DrawerRig rig(QSize(1024, 50));
    rig.set(256, color);
    const QImage image = rig.painted();

    QVector<int> ofEachGrey(256);
    for (int x = 0; x < 1023; ++x) {
        const QRgb pixel = image.pixel(x, 0);
        const int rest = color == Qt::white ? qRed(pixel) : 0;
        QCOMPARE(pixel, qRgb(qRed(pixel), rest, rest));
        ++ofEachGrey[qRed(pixel)];
    }
    // Every grey level once in each of the four ramps, but for rounding and the outline.
    for (int grey = 0; grey < 256; ++grey)
        QVERIFY(ofEachGrey.at(grey) >= 2 && ofEachGrey.at(grey) <= 8);
    QCOMPARE(image.pixel(0, 0), qRgb(0, 0, 0));
    QCOMPARE(image.pixel(255, 0), color.rgb());
}

void TestGradualChange::columns_haveTheGreyOfTheirPlaceInTheRamp_data()
{
    QTest::addColumn<int>("level");
    QTest::addColumn<int>("index");
    for (const int level : {32, 64, 128, 256}) {
        for (int index = 0; index < colorCount; ++index)
            QTest::addRow("%d levels, colour %d", level, index) << level << index;
    }
}

void TestGradualChange::columns_haveTheGreyOfTheirPlaceInTheRamp()
{
    QFETCH(const int, level);
    QFETCH(const int, index);
    const QColor color = colors[index];
    DrawerRig rig(QSize(3001, 67));
    rig.set(level, color);
    const QImage image = rig.painted();

    for (const int y : {0, 1, 32, 33, 65}) {
        for (int x = 0; x < 3000; ++x) {
            const QRgb pixel = image.pixel(x, y);
            const double grey = greyAt(x, level);
            if (!isRamp(pixel, color, grey))
                QFAIL(qPrintable(QStringLiteral("(%1, %2) is %3, not grey %4")
                                     .arg(x)
                                     .arg(y)
                                     .arg(pixel, 8, 16)
                                     .arg(grey)));
        }
    }
}

void TestGradualChange::lastColumnAndRow_areOutlined_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("one pixel") << QSize(1, 1);
    QTest::newRow("one row") << QSize(301, 1);
    QTest::newRow("one column") << QSize(1, 203);
    QTest::newRow("two by two") << QSize(2, 2);
    QTest::newRow("low") << QSize(257, 33);
    QTest::newRow("one row more") << QSize(257, 34);
    QTest::newRow("high") << QSize(257, 300);
}

void TestGradualChange::lastColumnAndRow_areOutlined()
{
    QFETCH(const QSize, size);
    DrawerRig rig(size);
    rig.set(256, Qt::white);
    const QImage image = rig.painted();

    // Beside the outline only the first column of a ramp is black.
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            const bool outline = x == size.width() - 1 || y == size.height() - 1;
            QCOMPARE(image.pixel(x, y) == qRgb(0, 0, 0), outline || x % 256 == 0);
        }
    }
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

void TestGradualChange::newDrawer_isInactiveRedAndWithoutLevels()
{
    Canvas canvas;
    const GradualChange drawer(&canvas);
    QVERIFY(!drawer.active);
    QVERIFY(drawer.targetWidget == &canvas);
    QVERIFY(!drawer.parent());

    QImage image(canvas.size(), QImage::Format_RGB32);
    QPainter painter(&image);
    drawer.paintReference(painter, image.size());
    painter.end();
    QCOMPARE(image, DrawerRig::direct(canvas.size(), 0, Qt::red));
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
