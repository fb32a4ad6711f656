#include "endtoendtest.h"
#include "waiting.h"

#include <QTest>

#include <memory>

/// One pixel of a pattern is one pixel of the screen, however the desktop is
/// set to scale.
class tst_e2e_scaling : public EndToEndTest
{
    Q_OBJECT

protected:
    std::unique_ptr<VirtualDesktop> createDesktop() const override;

private slots:
    void windowOf256_covers256ScreenPixels_data();
    void windowOf256_covers256ScreenPixels();
    void overlays_lookTheSameOnADenserScreen();

private:
    QImage overlays(int dotsPerInch);
};

// So dense a screen makes Qt choose a scale of two where it is allowed to.
std::unique_ptr<VirtualDesktop> tst_e2e_scaling::createDesktop() const
{
    return std::make_unique<VirtualDesktop>(
        std::make_unique<XvfbServer>(VirtualDesktop::DefaultSize, 192));
}

void tst_e2e_scaling::windowOf256_covers256ScreenPixels_data()
{
    QTest::addColumn<QString>("variable");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QSize>("controls");

    const auto row = [](const char *name, const char *variable, const char *value,
                        const QSize &controls) {
        QTest::newRow(name) << QString::fromLatin1(variable) << QString::fromLatin1(value)
                            << controls;
    };
    const QSize twice(1170, 490);
    row("not scaled", "QT_SCALE_FACTOR", "1", {585, 245});
    row("factor for all", "QT_SCALE_FACTOR", "1.5", {877, 367});
    row("factor for the screen", "QT_SCREEN_SCALE_FACTORS", "2", twice);
    row("chosen by the screen", "QT_AUTO_SCREEN_SCALE_FACTOR", "1", twice);
    row("chosen by the screen, newer name", "QT_ENABLE_HIGHDPI_SCALING", "1", twice);
    row("ratio for all, older name", "QT_DEVICE_PIXEL_RATIO", "2", twice);
}

void tst_e2e_scaling::windowOf256_covers256ScreenPixels()
{
    QFETCH(QString, variable);
    QFETCH(QString, value);
    tool().setEnvironment(variable, value);
    QVERIFY(startTool());
    QTEST(tool().controlWindow().geometry.size(), "controls");

    // A green that no control of the program has: one grey level below full.
    constexpr QRgb Green254 = qRgb(0, 254, 0);
    desktop().keyboard().key("Next");
    desktop().keyboard().key("Down");
    QVERIFY(testWindowTurns(Green254));

    const QRect place(0, 0, 256, 256);
    QCOMPARE(tool().testWindow().geometry, place);
    QVERIFY(desktop().screen().isFilled(place, Green254));
    // An edge of a swatch may have that green by chance.
    const QRect controls = tool().controlWindow().geometry;
    QVERIFY(!controls.intersects(place));
    QCOMPARE(desktop().screen().count(desktop().screen().rect(), Green254)
                 - desktop().screen().count(controls, Green254),
             256 * 256);
}

/// The reminder and the text at the centre of a test window, on a desktop of its own.
QImage tst_e2e_scaling::overlays(int dotsPerInch)
{
    const QRect place(0, 0, 590, 590);
    VirtualDesktop sharp(std::make_unique<XvfbServer>(VirtualDesktop::DefaultSize, dotsPerInch));
    if (!sharp.start())
        return {};
    ToolProcess program(sharp);
    program.writeConfig({{QStringLiteral("/setting/testWindowWidth"), place.width()},
                         {QStringLiteral("/setting/testWindowHeight"), place.height()}});
    sharp.mouse().move(sharp.screen().rect().bottomRight());
    if (!program.start() || !program.focusControlWindow())
        return {};
    const auto written = [&] { return sharp.screen().count(place, qRgb(255, 255, 255)); };
    const auto comesWith = [&](const char *key) {
        const int before = written();
        sharp.keyboard().key(key);
        return waitFor([&] { return written() > before; });
    };
    sharp.windows().move(program.controlWindow().id, {600, 480});
    return comesWith("Home") && comesWith("End") ? sharp.screen().grab(place) : QImage();
}

void tst_e2e_scaling::overlays_lookTheSameOnADenserScreen()
{
    const QImage usual = overlays(96);
    QVERIFY(!usual.isNull());
    QCOMPARE(overlays(192), usual);
}

QTEST_GUILESS_MAIN(tst_e2e_scaling)
#include "tst_e2e_scaling.moc"
