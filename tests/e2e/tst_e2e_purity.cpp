#include "endtoendtest.h"

#include <QColor>
#include <QTest>

/// The purity test as an operator drives it: by keys and mouse, with the
/// result read from the screen.
class tst_e2e_purity : public EndToEndTest
{
    Q_OBJECT

private slots:
    void keys_setColourAndGrey();
    void doubleClick_togglesFullScreen();
};

void tst_e2e_purity::keys_setColourAndGrey()
{
    tool().writeConfig({{QStringLiteral("/setting/currentTabIndex"), 1},
                        {QStringLiteral("/setting/testWindowBaseColor"), QColor(Qt::blue)},
                        {QStringLiteral("/setting/testPurityGreyLevel"), 254}});
    QVERIFY(startTool());
    const QPair<const char *, QRgb> steps[] = {{"Up", qRgb(0, 0, 255)},
                                               {"Right", qRgb(0, 0, 0)},
                                               {"Left", qRgb(0, 0, 255)},
                                               {"Down", qRgb(0, 0, 254)},
                                               {"Next", qRgb(254, 254, 254)}};
    for (const auto &[key, colour] : steps) {
        desktop().keyboard().key(key);
        QVERIFY(testWindowTurns(colour));
    }
}

void tst_e2e_purity::doubleClick_togglesFullScreen()
{
    QVERIFY(startTool());
    const QRect before = tool().testWindow().geometry;
    desktop().keyboard().key("Next");
    QVERIFY(testWindowTurns(qRgb(0, 255, 0)));

    desktop().mouse().doubleClick(QPoint(100, 100));
    QVERIFY(testWindowCovers(desktop().screen().rect()));
    QVERIFY(testWindowTurns(qRgb(0, 255, 0)));
    desktop().mouse().doubleClick(QPoint(900, 300));
    QVERIFY(testWindowCovers(before));
    QVERIFY(testWindowTurns(qRgb(0, 255, 0)));
}

QTEST_GUILESS_MAIN(tst_e2e_purity)
#include "tst_e2e_purity.moc"
