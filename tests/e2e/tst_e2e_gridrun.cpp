#include "endtoendtest.h"
#include "gridimage.h"
#include "waiting.h"

#include <QImage>
#include <QTest>

#include <csignal>

/// The grid's automatic sequences, as they show on the screen.
class tst_e2e_gridrun : public EndToEndTest
{
    Q_OBJECT

private slots:
    void agingTest_goesThroughFourColours();
    void mergedTest_goesThroughItsColoursAndLines();
    void runInTheMiddle_isResumed_data();
    void runInTheMiddle_isResumed();
    void scroll_goesOnAfterARestartAndCanBePaused();

private:
    bool startOnTheGridTab();
    void clickInPanel(const QPoint &position);
    QString shown();
    bool scrolls();
    QStringList collect(int changes);
};

namespace {

const QPoint panelOffset(0, 53); // of a tab's page in the control window
const QPoint horizontalButton(60, 86); // in the page, as the ones below
const QPoint pauseButton(531, 132);
const QPoint mergedButton(463, 86);
const QPoint agingButton(531, 86);
constexpr int speed = 90; // a step every 960 ms

QVariantMap settings()
{
    QVariantMap values = {{QStringLiteral("/setting/currentTabIndex"), 3},
                          {QStringLiteral("/setting/gridSpeed"), speed}};
    // Stored inverted: these are not selected for the merged test.
    for (const char *key : {"Green", "White", "Yellow", "Cyan", "Purple", "V", "SL"})
        values.insert(QStringLiteral("/setting/checkBox") + QLatin1String(key), true);
    return values;
}

// The entries of `cycle` from `first` on, round and round.
QStringList repeated(const QStringList &cycle, const QString &first, int count)
{
    QStringList result;
    const int start = cycle.indexOf(first);
    for (int index = 0; index < count; ++index)
        result << cycle.at((start + index) % cycle.size());
    return result;
}

const QStringList &agingCycle()
{
    static const QStringList cycle = {QStringLiteral("red"), QStringLiteral("green"),
                                      QStringLiteral("blue"), QStringLiteral("white")};
    return cycle;
}

const QStringList &mergedCycle()
{
    static const QStringList cycle = {QStringLiteral("red"), QStringLiteral("blue"),
                                      QStringLiteral("horizontal"), QStringLiteral("slant right")};
    return cycle;
}

} // namespace

bool tst_e2e_gridrun::startOnTheGridTab()
{
    tool().writeConfig(settings());
    return startTool();
}

void tst_e2e_gridrun::clickInPanel(const QPoint &position)
{
    const QPoint window = tool().controlWindow().geometry.topLeft();
    desktop().mouse().click(window + panelOffset + position);
}

// What the test window shows, by name; empty for anything else, such as a half painted picture.
QString tst_e2e_gridrun::shown()
{
    const QImage image = desktop().screen().grab(tool().testWindow().geometry);
    const QRgb red = qRgb(255, 0, 0);
    const QPair<QString, QRgb> fills[] = {{QStringLiteral("red"), red},
                                          {QStringLiteral("green"), qRgb(0, 255, 0)},
                                          {QStringLiteral("blue"), qRgb(0, 0, 255)},
                                          {QStringLiteral("white"), qRgb(255, 255, 255)}};
    for (const auto &fill : fills) {
        QImage expected = image;
        expected.fill(fill.second);
        if (image == expected)
            return fill.first;
    }
    if (gridOffset(image, red, 0) >= 0)
        return QStringLiteral("horizontal");
    if (gridOffset(image, red, 3) >= 0)
        return QStringLiteral("slant right");
    return {};
}

// What shows one after the other, until so many different pictures have been there.
QStringList tst_e2e_gridrun::collect(int changes)
{
    QStringList seen;
    waitFor(
        [&] {
            const QString now = shown();
            if (!now.isEmpty() && (seen.isEmpty() || seen.constLast() != now))
                seen << now;
            return seen.size() > changes;
        },
        20000);
    return seen;
}

void tst_e2e_gridrun::agingTest_goesThroughFourColours()
{
    QVERIFY(startOnTheGridTab());
    clickInPanel(agingButton);
    QVERIFY(testWindowTurns(qRgb(0, 255, 0)));
    QCOMPARE(collect(6), repeated(agingCycle(), QStringLiteral("green"), 7));
}

void tst_e2e_gridrun::mergedTest_goesThroughItsColoursAndLines()
{
    QVERIFY(startOnTheGridTab());
    clickInPanel(mergedButton);
    QVERIFY(testWindowTurns(qRgb(0, 0, 255)));
    QCOMPARE(collect(6), repeated(mergedCycle(), QStringLiteral("blue"), 7));
}

void tst_e2e_gridrun::runInTheMiddle_isResumed_data()
{
    QTest::addColumn<QPoint>("button");
    QTest::addColumn<QStringList>("cycle");
    QTest::newRow("aging") << agingButton << agingCycle();
    QTest::newRow("merged") << mergedButton << mergedCycle();
}

void tst_e2e_gridrun::runInTheMiddle_isResumed()
{
    QFETCH(QPoint, button);
    QFETCH(QStringList, cycle);
    QVERIFY(startOnTheGridTab());
    clickInPanel(button);
    QVERIFY(testWindowTurns(qRgb(0, 0, 255)));
    QVERIFY2(tool().endBySignal(SIGTERM), qPrintable(tool().problem()));

    QVERIFY(startTool());
    QVERIFY(testWindowTurns(qRgb(0, 0, 255)));
    QCOMPARE(collect(5), repeated(cycle, QStringLiteral("blue"), 6));
}

// Whether horizontal lines come to be somewhere else than they are.
bool tst_e2e_gridrun::scrolls()
{
    int first = -1;
    return waitFor([&] {
        const int now =
            gridOffset(desktop().screen().grab(tool().testWindow().geometry), qRgb(255, 0, 0), 0);
        if (first < 0)
            first = now;
        return now >= 0 && now != first;
    });
}

void tst_e2e_gridrun::scroll_goesOnAfterARestartAndCanBePaused()
{
    QVERIFY(startOnTheGridTab());
    clickInPanel(horizontalButton);
    QVERIFY(scrolls());
    QVERIFY2(tool().endBySignal(SIGTERM), qPrintable(tool().problem()));

    QVERIFY(startTool());
    QVERIFY(scrolls());
    clickInPanel(pauseButton);
    QVERIFY(waitFor(
        [this] { return !tool().configValue(QStringLiteral("/setting/gridIsScroll")).toBool(); }));
}

QTEST_GUILESS_MAIN(tst_e2e_gridrun)
#include "tst_e2e_gridrun.moc"
