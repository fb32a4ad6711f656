#include "drawcontainer.h"
#include "gridcanvas.h"
#include "gridrun.h"
#include "mixselection.h"
#include "rows.h"

#include <QtTest>

namespace {

// "Red Blue H SR" and the like, as the keys have it.
MixSelection selection(const QString &names)
{
    MixSelection selected;
    for (const MixSelection::Entry &entry : MixSelection::entries) {
        const QString name = QString(entry.key).section(QStringLiteral("checkBox"), -1);
        selected.set(entry.item, names.split(QLatin1Char(' ')).contains(name));
    }
    return selected;
}

// A run that goes on, over a canvas, with vertical lines and what it emits.
struct RunRig : public GridCanvas
{
    explicit RunRig(const QString &selected = {})
        : GridCanvas(QSize(41, 41))
    {
        drawer.slot_colorChanged(QColor(1, 2, 3));
        drawer.slot_vertLineToggled(true);
        run.isOn = true;
        run.select(selection(selected));
        QObject::connect(&run, &GridRun::greyStepped,
                         [this](int by) { emitted << QStringLiteral("grey %1").arg(by); });
        QObject::connect(&run, &GridRun::scrolled,
                         [this] { emitted << QStringLiteral("scrolled"); });
        QObject::connect(&run, &GridRun::colorShown,
                         [this](const QColor &color) { emitted << color.name(); });
    }

    void step(int times)
    {
        for (int i = 0; i < times; ++i)
            run.step();
    }
    // What each of the next steps shows.
    QString pictures(int count)
    {
        QStringList all;
        for (int i = 0; i < count; ++i) {
            run.step();
            all << summary(painted());
        }
        return all.join(QLatin1Char(' '));
    }
    // Since the last call.
    QString takeEmitted()
    {
        const QString all = emitted.join(QLatin1Char(' '));
        emitted.clear();
        return all;
    }
    // How many steps of a scrolling run there are up to a grey step.
    int scrollsToGreyStep()
    {
        takeEmitted();
        for (int scrolls = 1; scrolls <= 20; ++scrolls) {
            run.step();
            if (takeEmitted().startsWith(QStringLiteral("grey")))
                return scrolls;
        }
        return -1;
    }

    GridRun run{&drawer};
    QStringList emitted;
};

} // namespace

class TestGridRun : public QObject
{
    Q_OBJECT

private slots:
    void interval_isThatOfModeAndSpeed();
    void pausedRun_doesNothing();
    void scroll_movesTheLinesAndTells();
    void gridBehindAnotherPattern_doesNotScrollNorTakeARamp();
    void tests_goOnWithoutScrolling();

    void greyRamp_stepsAtEveryFifthScrollOnceItIsAskedForInARun();
    void greyRamp_endsWhenATestBegins();

    void agingTest_showsRedGreenBlueWhiteAndRedAgain();
    void mergedTest_showsTheSelectedColoursThenTheSelectedFamilies_data();
    void mergedTest_showsTheSelectedColoursThenTheSelectedFamilies();
    void mergedTest_ofNothingClearsTheFamilies();
    void mergedTest_showsFamiliesOnTheOldColour();
    void mergedTest_beginsItsFamiliesAgainWithAnotherSelection();
    void colours_areDimmedAsTheLinesAndToldUndimmed();
    void tests_goOnWhereTheyStopped();
    void bothTests_runInOneStepAgingFirst();
    void restartFamilies_countsAndRepeatsThem();
};

void TestGridRun::interval_isThatOfModeAndSpeed()
{
    RunRig rig;
    for (int modes = 0; modes < 4; ++modes) {
        rig.run.isAging = modes % 2 == 1;
        rig.run.isMerged = modes / 2 == 1;
        QCOMPARE(rig.run.interval(1), modes == 0 ? 707 : 8080);
        QCOMPARE(rig.run.interval(50), modes == 0 ? 364 : 4160);
        QCOMPARE(rig.run.interval(100), modes == 0 ? 14 : 160);
    }
}

void TestGridRun::pausedRun_doesNothing()
{
    RunRig rig(QStringLiteral("Red"));
    rig.run.canScroll = rig.run.isAging = rig.run.isMerged = true;
    rig.run.isOn = false;
    rig.step(3);
    QCOMPARE(rig.takeEmitted(), QString());
    QVERIFY(!rig.drawer.active);
    QCOMPARE(summary(rig.painted()), QStringLiteral("V"));
}

void TestGridRun::scroll_movesTheLinesAndTells()
{
    RunRig rig;
    rig.run.canScroll = true;
    for (int step = 1; step <= 12; ++step) {
        rig.drawer.active = false;
        rig.run.step();
        QVERIFY(rig.drawer.active);
        QCOMPARE(picture(rig.painted()).offset, step % 10);
        QCOMPARE(rig.takeEmitted(), QStringLiteral("scrolled"));
    }
}

void TestGridRun::gridBehindAnotherPattern_doesNotScrollNorTakeARamp()
{
    DrawContainer testWindow;
    GridDrawer drawer(&testWindow);
    GridDrawer other(&testWindow);
    GridRun run(&drawer);
    run.isOn = run.canScroll = true;
    int greySteps = 0;
    connect(&run, &GridRun::greyStepped, this, [&greySteps](int by) { greySteps += by; });
    for (const bool behind : {true, false}) {
        testWindow.setDrawer(behind ? &other : &drawer, behind);
        run.rampGrey(1);
        for (int i = 0; i < 5; ++i)
            run.step();
        QCOMPARE(drawer.active, !behind);
        QCOMPARE(greySteps, behind ? 0 : 1);
    }
}

void TestGridRun::tests_goOnWithoutScrolling()
{
    RunRig rig(QStringLiteral("Yellow"));
    rig.step(2);
    QCOMPARE(rig.takeEmitted(), QString());
    QCOMPARE(picture(rig.painted()).offset, 0);
    rig.run.isAging = rig.run.isMerged = true;
    rig.step(1);
    QCOMPARE(rig.takeEmitted(), QStringLiteral("#ff0000 #ffff00"));
}

void TestGridRun::greyRamp_stepsAtEveryFifthScrollOnceItIsAskedForInARun()
{
    RunRig rig;
    rig.run.canScroll = true;
    rig.run.isOn = false;
    rig.run.rampGrey(1);
    rig.run.isOn = true;
    QCOMPARE(rig.scrollsToGreyStep(), -1);
    rig.step(2); // counted without a ramp, too
    rig.run.rampGrey(1);
    QCOMPARE(rig.scrollsToGreyStep(), 3);
    QCOMPARE(rig.scrollsToGreyStep(), 5);
    rig.run.rampGrey(-1);
    rig.step(5);
    QCOMPARE(rig.takeEmitted(),
             QStringLiteral("scrolled scrolled scrolled scrolled grey -1 scrolled"));
}

void TestGridRun::greyRamp_endsWhenATestBegins()
{
    for (const bool aging : {true, false}) {
        for (const int by : {1, -1}) {
            RunRig rig;
            rig.run.canScroll = true;
            rig.run.rampGrey(by);
            rig.run.isOn = false;
            rig.run.beginTest(aging);
            QCOMPARE(rig.run.isAging, aging);
            QCOMPARE(rig.run.isMerged, !aging);
            QVERIFY(rig.run.isOn);
            QCOMPARE(rig.scrollsToGreyStep(), -1);
        }
    }
}

void TestGridRun::agingTest_showsRedGreenBlueWhiteAndRedAgain()
{
    RunRig rig;
    rig.run.beginTest(true);
    const QString expected =
        QStringLiteral("#ff0000 #00ff00 #0000ff #ffffff #ff0000 #00ff00 #0000ff #ffffff #ff0000");
    QCOMPARE(rig.pictures(9), expected);
    QCOMPARE(rig.takeEmitted(), expected);
    QVERIFY(rig.drawer.active);
}

void TestGridRun::mergedTest_showsTheSelectedColoursThenTheSelectedFamilies_data()
{
    const Table<const char *, const char *> row("selected", "expected"); // one cycle
    row("red, blue, horizontal and slant right", "Red Blue H SR", "#ff0000 #0000ff H R");
    row("a colour", "Cyan", "#00ffff");
    row("a family", "SL", "L");
    row("colours in the order of the table", "Purple Yellow White Green",
        "#00ff00 #ffffff #ffff00 #ff00ff");
    row("families in their order", "SR SL V H", "H V L R");
    row("everything", "Red Green Blue White Yellow Cyan Purple H V SL SR",
        "#ff0000 #00ff00 #0000ff #ffffff #ffff00 #00ffff #ff00ff H V L R");
}

void TestGridRun::mergedTest_showsTheSelectedColoursThenTheSelectedFamilies()
{
    QFETCH(const QString, selected);
    QFETCH(const QString, expected);
    RunRig rig(selected);
    rig.run.beginTest(false);
    const QStringList steps = expected.split(QLatin1Char(' '));
    for (int cycle = 0; cycle < 3; ++cycle) {
        QCOMPARE(rig.pictures(steps.size()), expected);
        QCOMPARE(rig.takeEmitted(), steps.filter(QStringLiteral("#")).join(QLatin1Char(' ')));
    }
}

void TestGridRun::mergedTest_ofNothingClearsTheFamilies()
{
    RunRig rig;
    rig.run.beginTest(false);
    rig.drawer.slot_changeBgColor(QColor(9, 8, 7));
    QCOMPARE(rig.pictures(3), QStringLiteral("#090807 #090807 #090807"));
    QCOMPARE(rig.takeEmitted(), QString());
}

void TestGridRun::mergedTest_showsFamiliesOnTheOldColour()
{
    RunRig rig(QStringLiteral("Blue V"));
    rig.drawer.slot_setBgColor(QColor(0, 40, 0));
    rig.run.beginTest(false);
    rig.step(2);
    const Picture shown = picture(rig.painted());
    QCOMPARE(shown.families, QStringLiteral("V"));
    QCOMPARE(shown.background, qRgb(0, 40, 0));
    QCOMPARE(shown.line, qRgb(1, 2, 3));
}

// The cycle goes on from where it is.
void TestGridRun::mergedTest_beginsItsFamiliesAgainWithAnotherSelection()
{
    RunRig rig(QStringLiteral("Red H V"));
    rig.run.beginTest(false);
    QCOMPARE(rig.pictures(2), QStringLiteral("#ff0000 H"));
    rig.run.select(selection(QStringLiteral("Red H V SL")));
    QCOMPARE(rig.pictures(3), QStringLiteral("H V #ff0000"));

    rig.run.select(
        selection(QStringLiteral("Blue"))); // over with the next step, which shows nothing
    QCOMPARE(rig.pictures(3), QStringLiteral("#ff0000 #0000ff #0000ff"));
}

void TestGridRun::colours_areDimmedAsTheLinesAndToldUndimmed()
{
    for (const bool aging : {true, false}) {
        RunRig rig(QStringLiteral("Red"));
        rig.drawer.slot_changeGrayScale(60);
        rig.run.beginTest(aging);
        QCOMPARE(rig.pictures(1), QStringLiteral("#3c0000"));
        QCOMPARE(rig.takeEmitted(), QStringLiteral("#ff0000"));
    }
}

void TestGridRun::tests_goOnWhereTheyStopped()
{
    RunRig rig(QStringLiteral("Red H V"));
    rig.run.beginTest(false);
    QCOMPARE(rig.pictures(2), QStringLiteral("#ff0000 H"));
    rig.run.beginTest(true);
    QCOMPARE(rig.pictures(2), QStringLiteral("#ff0000 #00ff00"));
    rig.run.isAging = false;
    rig.step(2);
    rig.run.beginTest(false);
    QCOMPARE(rig.pictures(2), QStringLiteral("V #ff0000"));
    rig.run.beginTest(true);
    QCOMPARE(rig.pictures(1), QStringLiteral("#0000ff"));
}

void TestGridRun::bothTests_runInOneStepAgingFirst()
{
    RunRig rig(QStringLiteral("Yellow V"));
    rig.run.isAging = rig.run.isMerged = true;
    QCOMPARE(rig.pictures(3), QStringLiteral("#ffff00 V #ffff00"));
    QCOMPARE(rig.takeEmitted(), QStringLiteral("#ff0000 #ffff00 #00ff00 #0000ff #ffff00"));
}

void TestGridRun::restartFamilies_countsAndRepeatsThem()
{
    const std::tuple<const char *, int, const char *> rows[] = {
        {"Red", 0, "#ff0000"}, {"SL", 1, "L"}, {"SL H SR", 3, "H"}};
    for (const auto &[selected, count, expected] : rows) {
        RunRig rig(QString::fromLatin1(selected));
        rig.run.beginTest(false);
        for (int times = 0; times < 2; ++times) {
            QCOMPARE(rig.pictures(1), QLatin1String(expected));
            QCOMPARE(rig.run.restartFamilies(), count);
        }
    }
}

QTEST_MAIN(TestGridRun)
#include "tst_gridrun.moc"
