#include "damagecounter.h"
#include "endtoendtest.h"
#include "rows.h"
#include "waiting.h"

#include <QTest>

/// How often the test window is painted, as the X server sees it.
class tst_e2e_repaint : public EndToEndTest
{
    Q_OBJECT

private slots:
    void idleWindow_isPaintedTenTimesASecond_data();
    void idleWindow_isPaintedTenTimesASecond();
};

void tst_e2e_repaint::idleWindow_isPaintedTenTimesASecond_data()
{
    addRows<bool>("showsPattern", {{"no pattern yet", false}, {"a pattern", true}});
}

void tst_e2e_repaint::idleWindow_isPaintedTenTimesASecond()
{
    QFETCH(bool, showsPattern);
    QVERIFY(startTool());
    if (showsPattern) {
        desktop().keyboard().key("Next");
        QVERIFY(testWindowTurns(qRgb(0, 255, 0)));
    }

    constexpr int Intervals = 30;
    DamageCounter painted(desktop().connection(), tool().testWindow().id);
    QVERIFY2(waitFor([&] { return painted.reports().size() > Intervals; }, 15000),
             qPrintable(QStringLiteral("Painted %1 times only").arg(painted.reports().size())));

    const QVector<DamageCounter::Report> reports = painted.reports();
    for (const DamageCounter::Report &report : reports)
        QCOMPARE(report.area, QRect(QPoint(0, 0), tool().testWindow().geometry.size()));
    // Measured by the server's clock, so that a slow reader changes nothing; a
    // busy machine may make the time longer but not shorter.
    const unsigned long span = reports.at(Intervals).time - reports.first().time;
    QVERIFY2(span >= 2700, qPrintable(QStringLiteral("Painted 30 times within %1 ms").arg(span)));
}

QTEST_GUILESS_MAIN(tst_e2e_repaint)
#include "tst_e2e_repaint.moc"
