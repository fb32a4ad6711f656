#include "displayfaults.h"
#include "rows.h"

#include <QtTest>

#include <cmath>

namespace {

QVector<quint16> ramp(int size, double exponent, int top = 65535)
{
    QVector<quint16> levels(size);
    for (int i = 0; i < size; ++i)
        levels[i] =
            static_cast<quint16>(std::lround(top * std::pow(double(i) / (size - 1), exponent)));
    return levels;
}

} // namespace

class tst_DisplayFaults : public QObject
{
    Q_OBJECT

private slots:
    void isGammaAltered_data();
    void isGammaAltered();
    void isScaled_data();
    void isScaled();
    void isDepthTooLow_data();
    void isDepthTooLow();
    void isPartlyOffScreen_data();
    void isPartlyOffScreen();
};

void tst_DisplayFaults::isGammaAltered_data()
{
    const Table<QVector<quint16>, bool> row("levels", "altered");
    row("straight", ramp(256, 1), false);
    row("straight, of 10 bits", ramp(1024, 1), false);
    row("straight, without the lower 8 bits", ramp(256, 1, 65280), false);
    row("darker in the middle", ramp(256, 1.02), true);
    row("brighter in the middle", ramp(256, 0.98), true);
    row("one level below white", ramp(256, 1, 65535 - 256), true);
    row("two levels only", QVector<quint16>{0, 40000}, true);
    row("falling, inverted colours", QVector<quint16>{65535, 32768, 0}, true);
    row("level", QVector<quint16>(256, 0), false);
    row("up and down", QVector<quint16>{0, 16224, 8, 53872, 30062}, false);
    row("not told", QVector<quint16>(), false);
    row("a single level", QVector<quint16>{65535}, false);
}

void tst_DisplayFaults::isGammaAltered()
{
    QFETCH(QVector<quint16>, levels);
    QTEST(DisplayFaults::isGammaAltered(levels), "altered");
}

void tst_DisplayFaults::isScaled_data()
{
    const Table<QVector<QSize>, QVector<QSize>, bool> row("outputs", "screens", "scaled");

    const QSize hd(1920, 1080);
    const QSize uhd(3840, 2160);
    row("as they are", QVector<QSize>{hd, uhd}, QVector<QSize>{uhd, hd}, false);
    row("one and a half", QVector<QSize>{uhd}, QVector<QSize>{{2560, 1440}}, true);
    row("one of two", QVector<QSize>{hd, uhd}, QVector<QSize>{hd, {2560, 1440}}, true);
    row("turned", QVector<QSize>{hd}, QVector<QSize>{{1080, 1920}}, false);
    row("no compositor", QVector<QSize>(), QVector<QSize>{hd}, false);
}

void tst_DisplayFaults::isScaled()
{
    QFETCH(QVector<QSize>, outputs);
    QFETCH(QVector<QSize>, screens);
    QTEST(DisplayFaults::isScaled(outputs, screens), "scaled");
}

void tst_DisplayFaults::isDepthTooLow_data()
{
    const Table<int, bool> row("bits", "tooLow");
    row("16", 16, true);
    row("18", 18, true);
    row("24", 24, false);
    row("30", 30, false);
    row("32", 32, false);
}

void tst_DisplayFaults::isDepthTooLow()
{
    QFETCH(int, bits);
    QTEST(DisplayFaults::isDepthTooLow(bits), "tooLow");
}

void tst_DisplayFaults::isPartlyOffScreen_data()
{
    const Table<QRect, bool> row("window", "off");
    row("on the first", {0, 0, 1920, 1080}, false);
    row("across both", {1900, 0, 100, 1080}, false);
    row("one column left of the first", {-1, 0, 100, 100}, true);
    row("one row below the second", {1920, 981, 100, 100}, true);
    row("across both, below the second", {1900, 1000, 100, 200}, true);
    row("on none", {5000, 0, 10, 10}, true);
}

void tst_DisplayFaults::isPartlyOffScreen()
{
    QFETCH(QRect, window);
    const QVector<QRect> screens = {{0, 0, 1920, 1200}, {1920, 0, 1920, 1080}};
    QTEST(DisplayFaults::isPartlyOffScreen(window, screens), "off");
}

QTEST_APPLESS_MAIN(tst_DisplayFaults)
#include "tst_displayfaults.moc"
