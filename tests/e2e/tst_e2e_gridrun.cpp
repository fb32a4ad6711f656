#include "endtoendtest.h"
#include "gridimage.h"
#include "rows.h"
#include "waiting.h"

#include <QImage>
#include <QTest>

#include <csignal>

/// The grid's automatic sequences, as they show on the screen.
class tst_e2e_gridrun : public EndToEndTest
{
    Q_OBJECT

private slots:
    void runInTheMiddle_isResumedAndGoesThroughItsPictures_data();
    void runInTheMiddle_isResumedAndGoesThroughItsPictures();
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

// The entries of `cycle` from `first` on, over and over.
QStringList repeated(const QStringList &cycle, const QString &first, int count)
{
    QStringList result;
    const int start = cycle.indexOf(first);
    for (int index = 0; index < count; ++index)
        result << cycle.at((start + index) % cycle.size());
    return result;
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
        return QStringLiteral("slant-right");
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

void tst_e2e_gridrun::runInTheMiddle_isResumedAndGoesThroughItsPictures_data()
{
    const Table<QPoint, const char *> row("button", "cycle");
    row("aging", agingButton, "red green blue white");
    row("merged", mergedButton, "red blue horizontal slant-right");
}

void tst_e2e_gridrun::runInTheMiddle_isResumedAndGoesThroughItsPictures()
{
    QFETCH(QPoint, button);
    QFETCH(QString, cycle);
    QVERIFY(startOnTheGridTab());
    clickInPanel(button);
    QVERIFY(testWindowTurns(qRgb(0, 0, 255)));
    QVERIFY2(tool().endBySignal(SIGTERM), qPrintable(tool().problem()));

    QVERIFY(startTool());
    QVERIFY(testWindowTurns(qRgb(0, 0, 255)));
    QCOMPARE(collect(5), repeated(cycle.split(QLatin1Char(' ')), QStringLiteral("blue"), 6));
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
