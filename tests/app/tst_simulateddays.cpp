#include "drawcontainer.h"
#include "gridcanvas.h"
#include "longrun.h"
#include "mainwindowrig.h"
#include "rows.h"
#include "scrgridctrldialog.h"
#include "scrpurityctrldialog.h"
#include "simulatedclock.h"

#include <QScreen>
#include <QSpinBox>
#include <QtTest>

// Freed memory is not to be kept for the address sanitizer's sake.
extern "C" const char *__asan_default_options()
{
    return "quarantine_size_mb=0";
}

namespace {

constexpr int msPerMinute = 60 * 1000;
constexpr qint64 mostGrowth = 2 * 1024; // KiB
constexpr qint64 roundingMs = 1; // of the event loop
constexpr qint64 stepsPerLook = 97; // a prime, so that every place in every cycle comes up

// What stands on the screen where the test window is: the background, and before it the lines.
QString shown()
{
    DrawContainer *window = MainWindowRig::testWindow();
    const Picture found = picture(window->screen()->grabWindow(window->winId()).toImage());
    const QString background = QColor(found.background).name();
    if (found.families.isEmpty())
        return background;
    return QStringLiteral("%1%2 %3 on %4")
        .arg(found.families)
        .arg(found.offset)
        .arg(QColor(found.line).name(), background);
}

// Looks at a run at each of its steps, before the picture changes.
class RunWatch
{
public:
    // A step every \a interval ms, which show the pictures of \a cycle in turn.
    RunWatch(int interval, const QStringList &cycle)
        : m_interval(interval)
        , m_cycle(cycle)
    { }

    void step()
    {
        const qint64 now = SimulatedClock::now();
        if (m_steps == 0)
            m_start = now;
        else if (qAbs(now - due()) > roundingMs)
            complain(QStringLiteral("is %1 ms late").arg(now - due()));
        if (m_steps > 0 && m_steps % stepsPerLook == 0) {
            const QString expected = m_cycle.at(int((m_steps - 1) % m_cycle.size()));
            const QString found = shown();
            if (found != expected)
                complain(QStringLiteral("follows %1 instead of %2").arg(found, expected));
        }
        ++m_steps;
    }

    QString problem() const
    {
        if (m_problem.isEmpty() && SimulatedClock::now() > due() + roundingMs)
            return QStringLiteral("Step %1 is missing").arg(m_steps);
        return m_problem;
    }

private:
    qint64 due() const { return m_start + m_steps * m_interval; }
    void complain(const QString &what)
    {
        if (m_problem.isEmpty())
            m_problem = QStringLiteral("Step %1 %2").arg(m_steps).arg(what);
    }

    const int m_interval;
    const QStringList m_cycle;
    qint64 m_steps = 0;
    qint64 m_start = 0;
    QString m_problem; // the first
};

QString lines(const QString &families, int step)
{
    return QStringLiteral("%1%2 #ff0000 on #000000").arg(families).arg(step % 10);
}

QStringList scrollingLines()
{
    QStringList all;
    for (int step = 1; step <= 10; ++step)
        all << lines(QStringLiteral("HV"), step);
    return all;
}

// Seven colours and four families, which scroll over black.
QStringList mergedCycle()
{
    const QStringList colors{QStringLiteral("#ff0000"), QStringLiteral("#00ff00"),
                             QStringLiteral("#0000ff"), QStringLiteral("#ffffff"),
                             QStringLiteral("#ffff00"), QStringLiteral("#00ffff"),
                             QStringLiteral("#ff00ff")};
    QStringList all;
    for (int offset = 0; offset < 10; ++offset) {
        all << colors;
        for (const char family : {'H', 'V', 'L', 'R'})
            all << lines(QString(QLatin1Char(family)), all.size() + 1);
    }
    return all;
}

QStringList risingRed()
{
    QStringList all;
    for (int step = 0; step < 256; ++step)
        all << QColor(step, 0, 0).name();
    return all;
}

} // namespace

// The automatic runs for as many minutes as TARN_SOAK_COUNT says (without it for a few), on a
// clock that passes as fast as the program gets its work done.
class TestSimulatedDays : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { SimulatedClock::start(); }
    void cleanup() { m_rig.end(); }

    void gridRun_keepsPaceAndPictureAndMemory_data();
    void gridRun_keepsPaceAndPictureAndMemory();
    void purityRun_keepsPaceAndPictureAndMemory_data();
    void purityRun_keepsPaceAndPictureAndMemory();

private:
    void goOn(const RunWatch &watch);

    MainWindowRig m_rig;
};

void TestSimulatedDays::goOn(const RunWatch &watch)
{
    const int minutes = LongRun::count(3);
    SimulatedClock::run(msPerMinute);
    const qint64 first = LongRun::residentMemory();
    SimulatedClock::run((minutes - 1) * msPerMinute);
    const qint64 last = LongRun::residentMemory();

    LongRun::report(minutes, first, last);
    QCOMPARE(watch.problem(), QString());
    QVERIFY(last - first <= mostGrowth);
}

void TestSimulatedDays::gridRun_keepsPaceAndPictureAndMemory_data()
{
    const Table<QStringList, int, QStringList> row("trueSettings", "interval", "cycle");
    row("scrolling",
        {QStringLiteral("gridHorizontalChecked"), QStringLiteral("gridVerticalChecked"),
         QStringLiteral("isHorizontalPress"), QStringLiteral("isVerticalPress")},
        14, scrollingLines());
    row("aging", {QStringLiteral("gridIsOldTest")}, 160,
        {QStringLiteral("#ff0000"), QStringLiteral("#00ff00"), QStringLiteral("#0000ff"),
         QStringLiteral("#ffffff")});
    row("merged", {QStringLiteral("gridIsMix")}, 160, mergedCycle());
}

void TestSimulatedDays::gridRun_keepsPaceAndPictureAndMemory()
{
    QFETCH(QStringList, trueSettings);
    QFETCH(int, interval);
    QFETCH(QStringList, cycle);
    QVariantMap settings{{QStringLiteral("currentTabIndex"), 3},
                         {QStringLiteral("gridIsScroll"), true},
                         {QStringLiteral("gridSpeed"), 100}};
    for (const QString &key : trueSettings)
        settings.insert(key, true);
    m_rig.start(settings);
    RunWatch watch(interval, cycle);
    connect(m_rig.find<ScrGridCtrlDialog>(), &ScrGridCtrlDialog::signal_gridAutoChange, this,
            [&watch] { watch.step(); });
    goOn(watch);
}

void TestSimulatedDays::purityRun_keepsPaceAndPictureAndMemory_data()
{
    const Table<int, int> row("speed", "interval");
    row("fastest", 100, 100);
    row("of four seconds", 60, 4100);
}

void TestSimulatedDays::purityRun_keepsPaceAndPictureAndMemory()
{
    QFETCH(int, speed);
    QFETCH(int, interval);
    m_rig.start(
        {{QStringLiteral("currentTabIndex"), 1}, {QStringLiteral("testPuritySpeed"), speed}});
    auto *panel = m_rig.find<ScrPurityCtrlDialog>();
    panel->slot_keyInsertPressed(); // begins
    panel->slot_keyInsertPressed(); // upwards
    RunWatch watch(interval, risingRed());
    connect(m_rig.find<QSpinBox>("spinBoxAutoScale"), QOverload<int>::of(&QSpinBox::valueChanged),
            this, [&watch] { watch.step(); });
    goOn(watch);
}

QTEST_MAIN(TestSimulatedDays)
#include "tst_simulateddays.moc"
