#include "drawerrig.h"
#include "gradientrig.h"

#include <QtTest>

#include <limits>
#include <random>

namespace {

// Windows of every shape, and levels and colours of every kind, in a fixed random order.
class Dice
{
public:
    int number(int from, int to) { return std::uniform_int_distribution<int>(from, to)(m_engine); }

    QSize size()
    {
        switch (number(0, 4)) {
        case 0:
            return {number(1, 4), number(1, 4)};
        case 1:
            return {number(1, 7000), number(1, 36)};
        case 2:
            return {number(1, 36), number(1, 3000)};
        case 3:
            return {256 * number(1, 4) + number(-1, 1), number(30, 70)};
        default:
            return {number(1, 700), number(1, 200)};
        }
    }

    int level()
    {
        static constexpr int known[] = {32,  64,   128,    256, 0,  1,   2,   3,    -1,
                                        -32, -256, -32768, 31,  33, 255, 257, 1000, 32767};
        const int row = number(0, 23);
        return row < int(std::size(known)) ? known[row] : number(1, 512);
    }

    QColor color()
    {
        const int row = number(0, 11);
        if (row < colorCount)
            return colors[row];
        if (row == colorCount)
            return {};
        const int alpha = row == colorCount + 1 ? number(0, 254) : 255;
        return {number(0, 255), number(0, 255), number(0, 255), alpha};
    }

    QImage::Format format()
    {
        static constexpr QImage::Format known[] = {QImage::Format_RGB32, QImage::Format_ARGB32,
                                                   QImage::Format_ARGB32_Premultiplied};
        return known[number(0, 2)];
    }

private:
    std::mt19937 m_engine{20240117};
};

} // namespace

class TestGradualChangeExact : public QObject
{
    Q_OBJECT

private slots:
    void anyRamp_isWhatThePainterDrawsDirectly();
    void anyWidth_isWhatThePainterDrawsDirectly_data();
    void anyWidth_isWhatThePainterDrawsDirectly();
    void reference_isWhatThePainterDrawsDirectly();
    void eachChange_isShown();
    void outline_hasTheTextColourOfTheWindow();
    void translucentColour_isBlendedAnewEachTime();
    void partOfTheWindow_getsThePixelsOfTheWhole();
    void magnifiedWindow_isDrawnByThePainter();
};

void TestGradualChangeExact::anyRamp_isWhatThePainterDrawsDirectly()
{
    Dice dice;
    DrawerRig rig;
    QSize size = rig.canvas.size();
    int level = 0;
    QColor color = Qt::red;
    for (int run = 0; run < 2500; ++run) {
        // Not everything changes every time, or what is kept would never be used.
        if (dice.number(0, 2) > 0)
            size = dice.size();
        if (dice.number(0, 2) > 0)
            level = dice.level();
        if (dice.number(0, 2) > 0)
            color = dice.color();
        const QImage::Format format = dice.format();
        rig.canvas.resize(size);
        rig.set(level, color);
        if (!rig.isExact(level, color, format))
            QFAIL(qPrintable(QStringLiteral("run %1: %2 x %3, level %4, colour %5")
                                 .arg(run)
                                 .arg(size.width())
                                 .arg(size.height())
                                 .arg(level)
                                 .arg(color.name(QColor::HexArgb))));
    }
}

void TestGradualChangeExact::anyWidth_isWhatThePainterDrawsDirectly_data()
{
    QTest::addColumn<int>("level");
    for (const int level : {32, 64, 128, 256})
        QTest::addRow("%d levels", level) << level;
}

void TestGradualChangeExact::anyWidth_isWhatThePainterDrawsDirectly()
{
    QFETCH(const int, level);
    DrawerRig rig;
    for (int width = 1; width <= 600; ++width) {
        rig.canvas.resize(width, 36);
        rig.set(level, colors[width % colorCount]);
        QVERIFY(rig.isExact(level, colors[width % colorCount]));
    }
}

void TestGradualChangeExact::reference_isWhatThePainterDrawsDirectly()
{
    DrawerRig rig;
    for (const int level : {0, -5, 32, 256, int(std::numeric_limits<short>::max())}) {
        rig.set(level, Qt::yellow);
        QImage image(QSize(2500, 40), QImage::Format_RGB32);
        image.fill(DrawerRig::backdrop);
        QPainter painter(&image);
        rig.drawer.paintReference(painter, image.size());
        painter.end();
        QCOMPARE(image, DrawerRig::direct(image.size(), level, Qt::yellow));
    }
}

void TestGradualChangeExact::eachChange_isShown()
{
    DrawerRig rig(QSize(200, 100));
    rig.set(32, Qt::cyan);
    QVERIFY(rig.isExact(32, Qt::cyan));
    QVERIFY(rig.isExact(32, Qt::cyan));
    rig.set(64, Qt::cyan);
    QVERIFY(rig.isExact(64, Qt::cyan));
    rig.set(64, Qt::magenta);
    QVERIFY(rig.isExact(64, Qt::magenta));
    rig.canvas.resize(201, 100);
    QVERIFY(rig.isExact(64, Qt::magenta));
    rig.canvas.resize(201, 10);
    QVERIFY(rig.isExact(64, Qt::magenta));
    rig.canvas.resize(201, 1000);
    QVERIFY(rig.isExact(64, Qt::magenta));
}

void TestGradualChangeExact::outline_hasTheTextColourOfTheWindow()
{
    DrawerRig rig(QSize(70, 50));
    rig.set(32, Qt::white);
    QCOMPARE(rig.canvas.painted(), (DirectRamp{32, Qt::white, Qt::black}.image({70, 50})));

    QPalette palette;
    palette.setColor(QPalette::WindowText, Qt::darkYellow);
    rig.canvas.setPalette(palette);
    QCOMPARE(rig.canvas.painted(), (DirectRamp{32, Qt::white, Qt::darkYellow}.image({70, 50})));

    palette.setColor(QPalette::WindowText, QColor(10, 200, 30, 40));
    rig.canvas.setPalette(palette);
    QCOMPARE(rig.canvas.painted(),
             (DirectRamp{32, Qt::white, QColor(10, 200, 30, 40)}.image({70, 50})));
}

void TestGradualChangeExact::translucentColour_isBlendedAnewEachTime()
{
    DrawerRig rig(QSize(70, 50));
    const QColor color(255, 255, 255, 100);
    rig.set(64, color);
    for (const QRgb below : {0xff000000u, 0xff0000ffu, 0xffffffffu}) {
        QImage expected(rig.canvas.size(), QImage::Format_ARGB32);
        expected.fill(below);
        DirectRamp{64, color}.paintOn(expected);
        QCOMPARE(rig.canvas.painted(QColor::fromRgb(below)), expected);
    }
}

void TestGradualChangeExact::partOfTheWindow_getsThePixelsOfTheWhole()
{
    DrawerRig rig(QSize(500, 120));
    rig.set(100, Qt::blue);
    const QImage whole = rig.painted();
    for (const QRect &part :
         {QRect(0, 0, 10, 10), QRect(123, 31, 40, 5), QRect(490, 110, 10, 10)}) {
        QImage image(rig.canvas.size(), QImage::Format_RGB32);
        image.fill(DrawerRig::backdrop);
        rig.canvas.render(&image, part.topLeft(), part, QWidget::RenderFlags());
        QCOMPARE(image.copy(part), whole.copy(part));
        QCOMPARE(image.pixel(200, 60), DrawerRig::backdrop);
    }
}

void TestGradualChangeExact::magnifiedWindow_isDrawnByThePainter()
{
    DrawerRig rig(QSize(90, 60));
    rig.set(32, Qt::white);
    QImage image(QSize(180, 120), QImage::Format_RGB32);
    image.setDevicePixelRatio(2);
    image.fill(DrawerRig::backdrop);
    QImage expected = image;
    rig.canvas.render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
    DirectRamp{32, Qt::white}.paintOn(expected);

    QCOMPARE(image, expected);
    QVERIFY(image.pixel(1, 0) != image.pixel(2, 0)); // twice as fine as the window's pixels
}

QTEST_MAIN(TestGradualChangeExact)
#include "tst_gradualchange_exact.moc"
