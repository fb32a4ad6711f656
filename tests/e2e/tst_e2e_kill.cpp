#include "configwatcher.h"
#include "endtoendtest.h"
#include "longrun.h"
#include "waiting.h"

#include <QColor>
#include <QElapsedTimer>
#include <QTest>

#include <atomic>
#include <csignal>
#include <limits>
#include <random>
#include <thread>

#include <sys/types.h>

/// Killed at any instant while the settings of any panel change, the program leaves a "config.ini"
/// that is whole and at most a second old, and starts again.
class tst_e2e_kill : public EndToEndTest
{
    Q_OBJECT

private slots:
    void killWhileValuesChange_leavesAWholeAndRecentFile();

private:
    using Values = QMap<QByteArray, QVariant>; // by the keys without "/setting/"

    /// A value that a key has from some moment on.
    struct Stage
    {
        qint64 earliest; // of m_clock, in milliseconds
        qint64 latest;
        QString text;
    };

    void beginRound();
    void note(const Values &values, qint64 earliest, qint64 latest);
    template<typename Action>
    void act(const Values &values, const Action &action);
    void pressKey(const char *key, Qt::KeyboardModifiers modifiers, const Values &values);
    void clickAt(const QPoint &position, const Values &values = {});
    void openTab(int index);
    void typeInto(const QPoint &position, const char *key, int minimum, int digits = 2);

    void changePlacement();
    void changePurity();
    void changeGradient();
    void changeGrid();
    void changeCabinet();
    void changeAdvanced();
    void chooseColor();
    void change(int panel);
    QString killWhileChanging(int lifeMs);
    QString problem(qint64 before, qint64 after);

    int random(int count) { return int(m_random() % unsigned(count)); }

    std::mt19937 m_random;
    QElapsedTimer m_clock;
    std::atomic<qint64> m_killTime{0}; // 0 while the program lives
    QPoint m_corner; // of the window that is clicked into
    QMap<QByteArray, QVector<Stage>> m_stages;
};

namespace {
constexpr int Panels = 6; // the advanced settings are one
constexpr int LongestLifeMs = 4000;
constexpr int OldestMs = 1000;
constexpr qint64 Never = std::numeric_limits<qint64>::max();
constexpr QSize AdvancedSize = QSize(360, 220);

QString full(const QByteArray &key)
{
    return QStringLiteral("/setting/") + QLatin1String(key);
}
} // namespace

/// Starts the program, which has what the file holds.
void tst_e2e_kill::beginRound()
{
    tool().writeConfig({{full("gridNetChecked"), true}}); // one family at a time, whenever it died
    const bool isHidden = tool().configValue(full("testWindowVisible")).toBool();
    QVERIFY(startTool(isHidden ? ToolProcess::TestWindow::Hidden : ToolProcess::TestWindow::Shown));
    m_corner = tool().controlWindow().geometry.topLeft();
    m_stages.clear();
    m_killTime = 0;
    const QVariantMap config = tool().configIni();
    Values values;
    for (auto value = config.cbegin(); value != config.cend(); ++value)
        values[value.key().section(QLatin1Char('/'), -1).toLatin1()] = value.value();
    for (const char *key : {"gridIsScroll", "pushButtonPauseChecked", "testAutoScale"})
        values.remove(key); // which runs change by themselves
    note(values, 0, 0);
    // Specified: a start makes the test window square, which is stored with the next change.
    note({{"testWindowHeight", values["testWindowWidth"]}}, 0, Never);
}

void tst_e2e_kill::note(const Values &values, qint64 earliest, qint64 latest)
{
    for (auto value = values.cbegin(); value != values.cend(); ++value)
        m_stages[value.key()].append({earliest, latest, value.value().toString()});
}

/// Does what gives the keys these values, and waits until it has.
template<typename Action>
void tst_e2e_kill::act(const Values &values, const Action &action)
{
    if (m_killTime != 0)
        return;
    const qint64 before = m_clock.elapsed();
    action();
    // Two answers: the first may overtake what the program still has to handle.
    bool isSeen = true;
    for (int answer = 0; answer < 2 && isSeen; ++answer)
        isSeen = desktop().windows().answersPing(tool().controlWindow().id, OldestMs);
    note(values, before, isSeen ? m_clock.elapsed() : Never);
}

void tst_e2e_kill::pressKey(const char *key, Qt::KeyboardModifiers modifiers, const Values &values)
{
    act(values, [&] { desktop().keyboard().key(key, modifiers); });
}

void tst_e2e_kill::clickAt(const QPoint &position, const Values &values)
{
    act(values, [&] { desktop().mouse().click(m_corner + position); });
}

void tst_e2e_kill::openTab(int index)
{
    constexpr QPoint first(42, 40);
    constexpr QPoint next(83, 0);
    const bool isStored = index > 0; // of the tabs with a pattern alone
    clickAt(first + index * next, isStored ? Values{{"currentTabIndex", index}} : Values());
}

/// Types a number into a spin box, which takes each digit that makes it large enough.
void tst_e2e_kill::typeInto(const QPoint &position, const char *key, int minimum, int digits)
{
    act({}, [&] { desktop().mouse().doubleClick(m_corner + position); });
    int value = 0;
    for (int digit = 0; digit < digits; ++digit) {
        const int typed = 2 + random(8);
        value = 10 * value + typed;
        pressKey(QByteArray::number(typed).constData(), Qt::NoModifier,
                 value < minimum ? Values() : Values{{key, value}});
    }
}

void tst_e2e_kill::changePlacement()
{
    if (random(5) == 0) {
        const bool isHidden = m_stages["testWindowVisible"].last().text == QStringLiteral("true");
        pressKey("h", Qt::ShiftModifier, {{"testWindowVisible", !isHidden}});
        return;
    }
    const bool isMove = random(2) != 0;
    const bool isAcross = random(2) != 0;
    const char *key = isMove ? (isAcross ? "testWindowPointX" : "testWindowPointY")
                             : (isAcross ? "testWindowWidth" : "testWindowHeight");
    const int value = m_stages[key].last().text.toInt();
    const bool isUp = value < 50 || (value < 300 && random(2) != 0);
    pressKey(isAcross ? (isUp ? "Right" : "Left") : (isUp ? "Down" : "Up"),
             isMove ? Qt::ControlModifier : Qt::ShiftModifier, {{key, value + (isUp ? 1 : -1)}});
}

/// A swatch of the panel that is open; the panels share the colour.
void tst_e2e_kill::chooseColor()
{
    constexpr Qt::GlobalColor colors[] = {Qt::red,    Qt::green, Qt::blue,   Qt::white,
                                          Qt::yellow, Qt::cyan,  Qt::magenta};
    constexpr QPoint first(50, 83);
    constexpr QPoint next(54, 0);
    const int index = random(7);
    const QColor color(colors[index]);
    clickAt(first + index * next,
            {{"testWindowBaseColor", color.name()}, {"gradualChangeColor", color.name()}});
}

void tst_e2e_kill::changePurity()
{
    openTab(1);
    chooseColor();
    if (random(2)) { // automatic
        clickAt({40, 140}, {{"AutoTest", true}});
        typeInto({525, 140}, "testPuritySpeed", 1);
    } else {
        clickAt({40, 212}, {{"AutoTest", false}});
        typeInto({525, 212}, "testPurityGreyLevel", 0);
    }
}

void tst_e2e_kill::changeGradient()
{
    openTab(2);
    chooseColor();
    const int level = random(4);
    clickAt({69 + 108 * level, 149}, {{"gradualChangeColorLevel", 32 << level}});
}

void tst_e2e_kill::changeGrid()
{
    openTab(3);
    chooseColor();
    // In their places; alone, since the overlay is off.
    const QList<QByteArray> families = {"Horizontal", "Vertical", "SlantRight", "SlantLeft"};
    const int family = random(4);
    Values values;
    for (int other = 0; other < 4; ++other) {
        values["grid" + families.at(other) + "Checked"] = other == family;
        values["is" + families.at(other) + "Press"] = other == family;
    }
    clickAt({59 + 68 * family, 138}, values);
    typeInto({366, 184}, "gridSpeed", 1);
    typeInto({366, 220}, "gridGreyLevel", 0);
    constexpr QPoint overlay(315, 138);
    clickAt(overlay, {{"gridNetChecked", false}});
    clickAt(overlay, {{"gridNetChecked", true}});
}

void tst_e2e_kill::changeCabinet()
{
    openTab(4);
    clickAt({525, 210}); // lays it out, and unlocks the panel
    typeInto({157, 76}, "tarnBoxWidth", 16);
    typeInto({341, 76}, "tarnBoxHeight", 16);
    typeInto({157, 106}, "tarnModelRowCount", 1);
    typeInto({341, 106}, "tarnModelColumnCount", 1);
    const bool isFromRight = random(2) != 0;
    clickAt({407, isFromRight ? 106 : 76}, {{"tarnLeftToRight", isFromRight}});
}

void tst_e2e_kill::changeAdvanced()
{
    openTab(4);
    clickAt({525, 210});
    clickAt({445, 210});
    WindowInfo dialog;
    const auto find = [&] {
        for (const WindowInfo &window : tool().mappedWindows()) {
            if (window.geometry.size() == AdvancedSize)
                dialog = window;
        }
        return dialog.id != 0 || m_killTime != 0;
    };
    if (!waitFor(find) || m_killTime != 0)
        return;
    m_corner = dialog.geometry.topLeft();
    typeInto({125, 81}, "advanceFontSize", 1);
    typeInto({125, 114}, "advanceBeginRow", 0);
    typeInto({285, 114}, "advanceBeginColumn", 0);
    typeInto({125, 138}, "advanceModeWidth", 1, 1);
    typeInto({285, 138}, "advanceScanWidth", 1);
    clickAt({345, 13}); // closes it
    const auto isGone = [&] {
        return !desktop().windows().info(dialog.id).isMapped || m_killTime != 0;
    };
    waitFor(isGone);
    m_corner = desktop().windows().info(tool().controlWindow().id).geometry.topLeft();
    desktop().windows().activate(tool().controlWindow().id);
}

/// What is wrong with the file of a program that ended between these times: half of it, or a key
/// with a value that was gone too early.
QString tst_e2e_kill::problem(qint64 before, qint64 after)
{
    const QByteArray text = ConfigWatcher::text(tool().directory() + QStringLiteral("/config.ini"));
    if (!ConfigWatcher::isWhole(text))
        return QStringLiteral("not whole: ") + QString::fromUtf8(text);
    const QVariantMap config = tool().configIni();
    for (auto key = m_stages.cbegin(); key != m_stages.cend(); ++key) {
        const QString stored = config.value(full(key.key())).toString();
        QStringList possible{QString()}; // not there yet
        qint64 firstTime = 0;
        for (const Stage &stage : key.value()) {
            if (stage.latest <= before - scaledTimeout(OldestMs)) {
                possible.clear(); // what was before is gone for too long
                firstTime = stage.latest;
            }
            if (stage.earliest <= after)
                possible << stage.text;
        }
        if (!possible.contains(stored))
            return QStringLiteral(
                       "%1 is \"%2\" and none of \"%3\", the first of which came %4 ms before")
                .arg(QLatin1String(key.key()), stored, possible.join(QStringLiteral("\", \"")))
                .arg(before - firstTime);
    }
    return {};
}

void tst_e2e_kill::change(int panel)
{
    switch (panel) {
    case 0:
        return changePlacement();
    case 1:
        return changePurity();
    case 2:
        return changeGradient();
    case 3:
        return changeGrid();
    case 4:
        return changeCabinet();
    default:
        return changeAdvanced();
    }
}

/// Kills the program after so many milliseconds; what is wrong with the file then.
QString tst_e2e_kill::killWhileChanging(int lifeMs)
{
    qint64 before = 0;
    std::thread killer([this, lifeMs, &before, process = pid_t(tool().processId())] {
        std::this_thread::sleep_for(std::chrono::milliseconds(lifeMs));
        before = m_clock.elapsed();
        ::kill(process, SIGKILL);
        m_killTime = m_clock.elapsed();
    });
    while (m_killTime == 0)
        change(random(Panels));
    killer.join();
    tool().kill();
    return problem(before, m_killTime);
}

void tst_e2e_kill::killWhileValuesChange_leavesAWholeAndRecentFile()
{
    const quint32 seed = LongRun::seed(4711);
    const int rounds = LongRun::count(6);
    qInfo("Seed %u, %d rounds", seed, rounds);
    m_clock.start();
    // All keys of a fresh start are there once it has ended in the ordinary way.
    QVERIFY(startTool());
    QVERIFY2(tool().endBySignal(SIGTERM), qPrintable(tool().problem()));
    qint64 firstMemory = 0;
    for (int round = 0; round < rounds; ++round) {
        m_random.seed(seed + unsigned(round)); // how far the one before came says the clock
        beginRound();
        QVERIFY(!QTest::currentTestFailed());
        if (round == 0)
            firstMemory = LongRun::residentMemory(tool().processId());
        const QString wrong = killWhileChanging(300 + random(LongestLifeMs));
        QVERIFY2(wrong.isEmpty(), qPrintable(QStringLiteral("Round %1: %2").arg(round).arg(wrong)));
    }
    // Ended in the ordinary way it loses nothing at all.
    beginRound();
    for (int panel = 0; panel < Panels; ++panel)
        change(panel);
    LongRun::report(rounds, firstMemory, LongRun::residentMemory(tool().processId()));
    QVERIFY2(tool().endBySignal(SIGTERM), qPrintable(tool().problem()));
    QCOMPARE(problem(Never, Never), QString());
}

QTEST_GUILESS_MAIN(tst_e2e_kill)
#include "tst_e2e_kill.moc"
