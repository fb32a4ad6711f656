#include "displayfaults.h"

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
    QTest::addColumn<QVector<quint16>>("levels");
    QTest::addColumn<bool>("altered");

    QTest::newRow("straight") << ramp(256, 1) << false;
    QTest::newRow("straight, of 10 bits") << ramp(1024, 1) << false;
    QTest::newRow("straight, without the lower 8 bits") << ramp(256, 1, 65280) << false;
    QTest::newRow("darker in the middle") << ramp(256, 1.02) << true;
    QTest::newRow("brighter in the middle") << ramp(256, 0.98) << true;
    QTest::newRow("one level below white") << ramp(256, 1, 65535 - 256) << true;
    QTest::newRow("two levels only") << QVector<quint16>{0, 40000} << true;
    QTest::newRow("falling, inverted colours") << QVector<quint16>{65535, 32768, 0} << true;
    QTest::newRow("level") << QVector<quint16>(256, 0) << false;
    QTest::newRow("up and down") << QVector<quint16>{0, 16224, 8, 53872, 30062} << false;
    QTest::newRow("not told") << QVector<quint16>() << false;
    QTest::newRow("a single level") << QVector<quint16>{65535} << false;
}

void tst_DisplayFaults::isGammaAltered()
{
    QFETCH(QVector<quint16>, levels);
    QTEST(DisplayFaults::isGammaAltered(levels), "altered");
}

void tst_DisplayFaults::isScaled_data()
{
    QTest::addColumn<QVector<QSize>>("outputs");
    QTest::addColumn<QVector<QSize>>("screens");
    QTest::addColumn<bool>("scaled");

    const QSize hd(1920, 1080);
    const QSize uhd(3840, 2160);
    QTest::newRow("as they are") << QVector<QSize>{hd, uhd} << QVector<QSize>{uhd, hd} << false;
    QTest::newRow("one and a half") << QVector<QSize>{uhd} << QVector<QSize>{{2560, 1440}} << true;
    QTest::newRow("one of two") << QVector<QSize>{hd, uhd} << QVector<QSize>{hd, {2560, 1440}}
                                << true;
    QTest::newRow("turned") << QVector<QSize>{hd} << QVector<QSize>{{1080, 1920}} << false;
    QTest::newRow("no compositor") << QVector<QSize>() << QVector<QSize>{hd} << false;
}

void tst_DisplayFaults::isScaled()
{
    QFETCH(QVector<QSize>, outputs);
    QFETCH(QVector<QSize>, screens);
    QTEST(DisplayFaults::isScaled(outputs, screens), "scaled");
}

void tst_DisplayFaults::isDepthTooLow_data()
{
    QTest::addColumn<int>("bits");
    QTest::addColumn<bool>("tooLow");

    QTest::newRow("16") << 16 << true;
    QTest::newRow("18") << 18 << true;
    QTest::newRow("24") << 24 << false;
    QTest::newRow("30") << 30 << false;
    QTest::newRow("32") << 32 << false;
}

void tst_DisplayFaults::isDepthTooLow()
{
    QFETCH(int, bits);
    QTEST(DisplayFaults::isDepthTooLow(bits), "tooLow");
}

void tst_DisplayFaults::isPartlyOffScreen_data()
{
    QTest::addColumn<QRect>("window");
    QTest::addColumn<bool>("off");

    QTest::newRow("on the first") << QRect(0, 0, 1920, 1080) << false;
    QTest::newRow("across both") << QRect(1900, 0, 100, 1080) << false;
    QTest::newRow("one column left of the first") << QRect(-1, 0, 100, 100) << true;
    QTest::newRow("one row below the second") << QRect(1920, 981, 100, 100) << true;
    QTest::newRow("across both, below the second") << QRect(1900, 1000, 100, 200) << true;
    QTest::newRow("on none") << QRect(5000, 0, 10, 10) << true;
}

void tst_DisplayFaults::isPartlyOffScreen()
{
    QFETCH(QRect, window);
    const QVector<QRect> screens = {{0, 0, 1920, 1200}, {1920, 0, 1920, 1080}};
    QTEST(DisplayFaults::isPartlyOffScreen(window, screens), "off");
}

QTEST_APPLESS_MAIN(tst_DisplayFaults)
#include "tst_displayfaults.moc"
