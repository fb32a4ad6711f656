#include "endtoendtest.h"
#include "waiting.h"

#include <QTest>

#include <array>

/// The purity test as an operator drives it: by keys and mouse, with the
/// result read from the screen.
class tst_e2e_purity : public EndToEndTest
{
    Q_OBJECT

private slots:
    void pageDown_showsGreenBlueWhite();
    void patternEndsWithTheWindow();
    void upAtGrey255_turnsBlack_andDownTurnsItBack();
    void colourAtGreyLevel_data();
    void colourAtGreyLevel();
    void shiftH_hidesAndShowsTheWindow();
    void shiftF_togglesFullScreen();
    void doubleClick_togglesFullScreen();
    void homeAndEnd_toggleTheOverlays_data();
    void homeAndEnd_toggleTheOverlays();

private:
    void pageDown(int times);
    bool windowCovers(const QRect &area);
};

namespace {
constexpr QRgb Black = qRgb(0, 0, 0);
constexpr QRgb Green = qRgb(0, 255, 0);
constexpr QRgb Blue = qRgb(0, 0, 255);
constexpr QRgb White = qRgb(255, 255, 255);
constexpr QRect DefaultPlace = QRect(0, 0, 256, 256);

int pixels(const QRect &area)
{
    return area.width() * area.height();
}
} // namespace

void tst_e2e_purity::pageDown(int times)
{
    for (int i = 0; i < times; ++i)
        desktop().keyboard().key("Next");
}

bool tst_e2e_purity::windowCovers(const QRect &area)
{
    if (waitFor([&] { return tool().testWindow().geometry == area; }))
        return true;
    qWarning() << "The test window covers" << tool().testWindow().geometry << "and not" << area;
    return false;
}

void tst_e2e_purity::pageDown_showsGreenBlueWhite()
{
    QVERIFY(startTool());
    QCOMPARE(tool().testWindow().geometry, DefaultPlace);

    pageDown(1);
    QVERIFY(testWindowTurns(Green));
    pageDown(1);
    QVERIFY(testWindowTurns(Blue));
    pageDown(1);
    QVERIFY(testWindowTurns(White));
}

void tst_e2e_purity::patternEndsWithTheWindow()
{
    QVERIFY(startTool());
    pageDown(1);
    QVERIFY(testWindowTurns(Green));

    const QRect window = tool().testWindow().geometry;
    const ScreenPixels &screen = desktop().screen();
    for (const QPoint &corner :
         {window.topLeft(), window.topRight(), window.bottomLeft(), window.bottomRight()})
        QCOMPARE(screen.pixel(corner), Green);
    const QRect columnBeside(window.right() + 1, 0, 1, window.height() + 1);
    const QRect rowBelow(0, window.bottom() + 1, window.width() + 1, 1);
    QCOMPARE(screen.count(columnBeside, Green), 0);
    QCOMPARE(screen.count(rowBelow, Green), 0);
}

void tst_e2e_purity::upAtGrey255_turnsBlack_andDownTurnsItBack()
{
    QVERIFY(startTool());
    pageDown(3);
    QVERIFY(testWindowTurns(White));

    desktop().keyboard().key("Up");
    QVERIFY(testWindowTurns(Black));
    desktop().keyboard().key("Down");
    QVERIFY(testWindowTurns(White));
}

void tst_e2e_purity::colourAtGreyLevel_data()
{
    QTest::addColumn<QColor>("colour");
    QTest::addColumn<QRgb>("lit");

    const std::array<QColor, 7> colours = {QColor(Qt::red),    QColor(Qt::green),  QColor(Qt::blue),
                                           QColor(Qt::white),  QColor(Qt::yellow), QColor(Qt::cyan),
                                           QColor(Qt::magenta)};
    for (const QColor &colour : colours)
        QTest::newRow(qPrintable(colour.name())) << colour << (colour.rgb() & RGB_MASK);
}

void tst_e2e_purity::colourAtGreyLevel()
{
    QFETCH(QColor, colour);
    QFETCH(QRgb, lit);
    const int savedGrey = 128;
    tool().writeConfig({{QStringLiteral("/setting/currentTabIndex"), 1},
                        {QStringLiteral("/setting/testWindowBaseColor"), colour},
                        {QStringLiteral("/setting/testPurityGreyLevel"), savedGrey}});
    QVERIFY(startTool());

    // Grey level times the lit channels, each of which is 0 or 255.
    const auto atGrey = [lit](int grey) { return lit / 255 * static_cast<QRgb>(grey); };
    desktop().keyboard().key("Up");
    QVERIFY(testWindowTurns(atGrey(savedGrey + 1)));
    for (int grey = savedGrey; grey > 120; --grey) {
        desktop().keyboard().key(grey % 2 ? "Down" : "Left");
        QVERIFY(testWindowTurns(atGrey(grey)));
    }
    desktop().keyboard().key("Right");
    QVERIFY(testWindowTurns(atGrey(122)));
}

void tst_e2e_purity::shiftH_hidesAndShowsTheWindow()
{
    QVERIFY(startTool());
    pageDown(1);
    QVERIFY(testWindowTurns(Green));

    desktop().keyboard().key("h", Qt::ShiftModifier);
    QVERIFY(waitFor([this] { return !tool().testWindow().isMapped; }));
    QVERIFY(waitFor([this] { return desktop().screen().count(DefaultPlace, Green) == 0; }));

    QVERIFY(tool().focusControlWindow());
    desktop().keyboard().key("h", Qt::ShiftModifier);
    QVERIFY(testWindowTurns(Green));
    QVERIFY(windowCovers(DefaultPlace));
}

void tst_e2e_purity::shiftF_togglesFullScreen()
{
    QVERIFY(startTool());
    pageDown(1);
    QVERIFY(testWindowTurns(Green));

    desktop().keyboard().key("f", Qt::ShiftModifier);
    QVERIFY(windowCovers(desktop().screen().rect()));
    QVERIFY(testWindowTurns(Green));

    desktop().keyboard().key("f", Qt::ShiftModifier);
    QVERIFY(windowCovers(DefaultPlace));
    QVERIFY(testWindowTurns(Green));
}

void tst_e2e_purity::doubleClick_togglesFullScreen()
{
    QVERIFY(startTool());
    pageDown(1);
    QVERIFY(testWindowTurns(Green));

    desktop().mouse().doubleClick(QPoint(100, 100));
    QVERIFY(windowCovers(desktop().screen().rect()));
    QVERIFY(testWindowTurns(Green));

    desktop().mouse().doubleClick(QPoint(900, 300));
    QVERIFY(windowCovers(DefaultPlace));
}

void tst_e2e_purity::homeAndEnd_toggleTheOverlays_data()
{
    QTest::addColumn<QByteArray>("key");
    QTest::addColumn<QRectF>("where");

    // As shares of the window: the reminder's and the mouse position's place.
    QTest::newRow("Home: reminder, lower right")
        << QByteArray("Home") << QRectF(0.5, 0.7, 0.5, 0.3);
    QTest::newRow("End: mouse position, centre") << QByteArray("End") << QRectF(0.4, 0.4, 0.3, 0.2);
}

void tst_e2e_purity::homeAndEnd_toggleTheOverlays()
{
    QFETCH(QByteArray, key);
    QFETCH(QRectF, where);
    QVERIFY(startTool());
    desktop().keyboard().key("f", Qt::ShiftModifier);
    const QRect all = desktop().screen().rect();
    QVERIFY(windowCovers(all));
    pageDown(2);
    QVERIFY(testWindowTurns(Blue));

    desktop().keyboard().key(key.constData());
    const QRect area = QRectF(where.x() * all.width(), where.y() * all.height(),
                              where.width() * all.width(), where.height() * all.height())
                           .toRect();
    const ScreenPixels &screen = desktop().screen();
    QVERIFY(waitFor([&] { return !screen.isFilled(area, Blue); }));
    // Nothing is written elsewhere.
    QCOMPARE(pixels(area) - screen.count(area, Blue), pixels(all) - screen.count(all, Blue));

    desktop().keyboard().key(key.constData());
    QVERIFY(testWindowTurns(Blue));
}

QTEST_GUILESS_MAIN(tst_e2e_purity)
#include "tst_e2e_purity.moc"
