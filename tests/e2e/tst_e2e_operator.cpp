#include "endtoendtest.h"
#include "longrun.h"
#include "waiting.h"

#include <QElapsedTimer>
#include <QFile>
#include <QRegularExpression>
#include <QTest>

#include <csignal>
#include <random>

/// An operator without sense: TARN_SOAK_COUNT keys, clicks, wheel steps, drags, digits and tab
/// changes. The program stays alive, answers at once and says nothing on its log, and what it
/// stores is as it was after a restart.
class tst_e2e_operator : public EndToEndTest
{
    Q_OBJECT

private slots:
    void anyInput_leavesTheProgramWell();

private:
    QString pressKey();
    QString click();
    QString turnWheel();
    QString drag();
    QString typeNumber();
    QString changeTab();

    QString step();
    QString log();
    bool isWell();
    bool goOn();
    bool restart();
    bool isWithinRanges(const QVariantMap &config);

    int random(int count) { return int(m_random() % unsigned(count)); }
    QPoint anyPoint();

    std::mt19937 m_random;
    WindowId m_control = 0;
    QVector<WindowInfo> m_windows; // mapped before this step
    int m_inputs = 0;
    int m_restarts = 0;
    qint64 m_slowest = 0; // answer, in milliseconds
    QString m_problem;
};

namespace {

QString key(const char *name)
{
    return QStringLiteral("/setting/") + QLatin1String(name);
}

/// What a start and an end make of settings. All stay as they are, but for the oddities that the
/// panels are specified to have.
QVariantMap afterRestart(QVariantMap config, int mostHeight)
{
    config[key("testWindowHeight")] = qMin(config[key("testWindowWidth")].toInt(), mostHeight);
    for (const char *level : {"testAutoScale", "testPurityGreyLevel", "gridGreyLevel"}) {
        if (config[key(level)].toInt() == 0)
            config[key(level)] = 255;
    }
    for (const char *family : {"Horizontal", "Vertical", "SlantLeft", "SlantRight"}) {
        if (config[QStringLiteral("/setting/grid%1Checked").arg(QLatin1String(family))].toBool())
            config[key("gridIsScroll")] = true;
    }
    return config;
}

/// All settings but whether the grid's run was paused at the end, which runs with its tab alone.
QStringList lasting(QVariantMap config)
{
    config.remove(key("pushButtonPauseChecked"));
    QStringList lines;
    for (auto value = config.cbegin(); value != config.cend(); ++value)
        lines << value.key() + QLatin1Char('=') + value->toString();
    return lines;
}

constexpr int AnswerMs = 200;
constexpr int LongestAnswerMs = 2000; // on a machine that has other things to do
constexpr int Tabs = 7;
constexpr QSize TabSize = QSize(83, 25);
constexpr int TabTop = 28; // within the control window
constexpr int StepsPerLook = 1000; // at the log

QList<QByteArray> fieldsOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll().trimmed().split(' ')
                                          : QList<QByteArray>();
}

/// How long this process and those that it has started, the X server too, have been ready to run
/// and had no processor, in milliseconds.
qint64 waitedForProcessor()
{
    const QByteArray own = QByteArray::number(QCoreApplication::applicationPid());
    qint64 ns = 0;
    const QList<QByteArray> processes =
        fieldsOf(QStringLiteral("/proc/self/task/%1/children").arg(QLatin1String(own))) << own;
    for (const QByteArray &process : processes)
        ns += fieldsOf(QStringLiteral("/proc/%1/schedstat").arg(QLatin1String(process)))
                  .value(1)
                  .toLongLong();
    return ns / 1000000;
}

} // namespace

/// In any window of the program.
QPoint tst_e2e_operator::anyPoint()
{
    const int choice = random(256);
    const int x = random(1 << 16);
    const int y = random(1 << 16);
    const QRect place = m_windows.at(choice % m_windows.size()).geometry;
    const QPoint point =
        place.topLeft() + QPoint(place.width() * x >> 16, place.height() * y >> 16);
    const QRect screen = desktop().screen().rect();
    return {qBound(0, point.x(), screen.right()), qBound(0, point.y(), screen.bottom())};
}

QString tst_e2e_operator::pressKey()
{
    // Not Alt, which belongs to the window manager.
    constexpr const char *keys[] = {"Left",   "Right",  "Up",     "Down",      "Prior",  "Next",
                                    "Home",   "End",    "Insert", "Delete",    "space",  "Return",
                                    "Escape", "Tab",    "f",      "h",         "a",      "plus",
                                    "minus",  "period", "0",      "BackSpace", "KP_Add", "F1"};
    constexpr Qt::KeyboardModifiers modifiers[] = {Qt::NoModifier, Qt::NoModifier,
                                                   Qt::ShiftModifier, Qt::ControlModifier};
    const char *key = keys[random(std::size(keys))];
    const int modifier = random(std::size(modifiers));
    const int count = 1 + random(6);
    m_inputs += count;
    for (int press = 0; press < count; ++press)
        desktop().keyboard().key(key, modifiers[modifier]);
    return QStringLiteral("%1 x %2 with %3").arg(QLatin1String(key)).arg(count).arg(modifier);
}

QString tst_e2e_operator::click()
{
    const QPoint point = anyPoint();
    const int kind = random(8);
    ++m_inputs;
    if (kind == 0)
        desktop().mouse().doubleClick(point);
    else
        desktop().mouse().click(point, kind == 1 ? Qt::RightButton : Qt::LeftButton);
    return QStringLiteral("click %1 at %2, %3").arg(kind).arg(point.x()).arg(point.y());
}

QString tst_e2e_operator::turnWheel()
{
    const QPoint point = anyPoint();
    const int by = random(21) - 10;
    m_inputs += qAbs(by);
    desktop().mouse().turnWheel(point, by);
    return QStringLiteral("wheel by %1 at %2, %3").arg(by).arg(point.x()).arg(point.y());
}

QString tst_e2e_operator::drag()
{
    const QPoint from = anyPoint();
    ++m_inputs;
    const QPoint to = from + QPoint(random(81) - 40, random(81) - 40);
    desktop().mouse().drag(from, to);
    return QStringLiteral("drag from %1, %2 to %3, %4")
        .arg(from.x())
        .arg(from.y())
        .arg(to.x())
        .arg(to.y());
}

QString tst_e2e_operator::typeNumber()
{
    const QPoint point = anyPoint();
    const QByteArray number = QByteArray::number(random(100000) >> random(17));
    m_inputs += 1 + number.size();
    desktop().mouse().doubleClick(point);
    for (const char digit : number)
        desktop().keyboard().key(QByteArray(1, digit).constData());
    return QStringLiteral("type %1 at %2, %3")
        .arg(QString::fromLatin1(number))
        .arg(point.x())
        .arg(point.y());
}

QString tst_e2e_operator::changeTab()
{
    const int tab = random(Tabs);
    ++m_inputs;
    const QRect place = desktop().windows().info(m_control).geometry;
    desktop().mouse().click(
        place.topLeft()
        + QPoint(TabSize.width() * tab + TabSize.width() / 2, TabTop + TabSize.height() / 2));
    return QStringLiteral("tab %1").arg(tab);
}

QString tst_e2e_operator::step()
{
    switch (random(10)) {
    case 0:
        return changeTab();
    case 1:
        return turnWheel();
    case 2:
        return drag();
    case 3:
        return typeNumber();
    case 4:
    case 5:
    case 6:
        return pressKey();
    default:
        return click();
    }
}

/// Without two races of Qt's: a window goes while a drag from a swatch asks where it is, and one
/// that was hidden at once after it was shown is shown again.
QString tst_e2e_operator::log()
{
    const QRegularExpression race(
        QStringLiteral("3 \\(BadWindow\\).*40 \\(TranslateCoords\\)"
                       "|setNetWmStateOnUnmappedWindow\\(\\) called on mapped window"));
    QStringList lines;
    const QStringList all = tool().standardError().split(QLatin1Char('\n'));
    for (const QString &line : all) {
        if (!line.contains(race))
            lines << line;
    }
    return lines.join(QLatin1Char('\n'));
}

/// Whether it handles its events, and soon, but for the time that the machine gave to others.
bool tst_e2e_operator::isWell()
{
    const qint64 before = waitedForProcessor();
    QElapsedTimer clock;
    clock.start();
    const bool isAnswered = desktop().windows().answersPing(m_control, LongestAnswerMs);
    const qint64 ms = clock.elapsed() - (waitedForProcessor() - before);
    if (!tool().isRunning())
        return true;
    m_slowest = qMax(m_slowest, ms);
    if (!isAnswered || ms > scaledTimeout(AnswerMs))
        m_problem = QStringLiteral("It answers after %1 ms").arg(ms);
    return m_problem.isEmpty();
}

bool tst_e2e_operator::isWithinRanges(const QVariantMap &config)
{
    struct Range
    {
        const char *name;
        int minimum;
        int maximum;
    };
    const QSize screen = desktop().screen().rect().size();
    const Range ranges[] = {{"testWindowPointX", 1 - screen.width(), screen.width() - 1},
                            {"testWindowPointY", 1 - screen.height(), screen.height() - 1},
                            {"testWindowWidth", 1, screen.width()},
                            {"testWindowHeight", 1, screen.height()},
                            {"currentTabIndex", 0, Tabs - 1},
                            {"testPurityGreyLevel", 0, 255},
                            {"testPuritySpeed", 1, 100},
                            {"testAutoScale", 0, 255},
                            {"gridGreyLevel", 0, 255},
                            {"gridSpeed", 1, 100},
                            {"gradualChangeColorLevel", 32, 256},
                            {"tarnBoxHeight", 16, 100},
                            {"tarnBoxWidth", 16, 100},
                            {"tarnModelColumnCount", 1, 100},
                            {"tarnModelRowCount", 1, 100},
                            {"advanceFontSize", 1, 100},
                            {"advanceFontShape", 0, 2},
                            {"advanceBeginRow", 0, 100},
                            {"advanceBeginColumn", 0, 100},
                            {"advanceModeWidth", 1, 10},
                            {"advanceScanWidth", 1, 100}};
    for (const Range &range : ranges) {
        const QVariant value =
            config.value(QStringLiteral("/setting/") + QLatin1String(range.name), range.minimum);
        bool isNumber = false;
        const int number = value.toInt(&isNumber);
        if (!isNumber || number < range.minimum || number > range.maximum)
            m_problem = QStringLiteral("%1 is %2").arg(QLatin1String(range.name), value.toString());
    }
    return m_problem.isEmpty();
}

/// The program has ended, as somebody closed it: starts it again on what it has stored.
bool tst_e2e_operator::restart()
{
    if (!tool().waitForCleanExit()) {
        m_problem = tool().problem();
        return false;
    }
    const QVariantMap config = tool().configIni();
    if (!isWithinRanges(config))
        return false;
    const bool isHidden = config.value(key("testWindowVisible")).toBool();
    ++m_restarts;
    if (!startTool(isHidden ? ToolProcess::TestWindow::Hidden : ToolProcess::TestWindow::Shown)) {
        m_problem = QStringLiteral("It does not start");
        return false;
    }
    m_control = tool().controlWindow().id;
    return true;
}

/// Makes the next step possible: nobody would look for a minimised program for long, and what files
/// there are is not to be changed here.
bool tst_e2e_operator::goOn()
{
    if (!tool().isRunning() && !restart())
        return false;
    m_windows = tool().mappedWindows();
    const WindowId active = desktop().windows().active();
    bool isActive = false;
    for (const WindowInfo &window : qAsConst(m_windows)) {
        isActive = isActive || window.id == active;
        if (window.title == QStringLiteral("选择背景图")) {
            desktop().windows().close(window.id);
            return waitFor([&] { return !desktop().windows().info(window.id).isMapped; }) && goOn();
        }
    }
    if (!isActive)
        desktop().windows().activate(m_control);
    if (!m_windows.isEmpty())
        return true;
    // Minimised, or just ending.
    if (waitFor([this] { return !tool().isRunning() || !tool().mappedWindows().isEmpty(); }))
        return goOn();
    m_problem = QStringLiteral("It has no window");
    return false;
}

void tst_e2e_operator::anyInput_leavesTheProgramWell()
{
    const int count = LongRun::count(600);
    const quint32 seed = LongRun::seed(1);
    qInfo("Seed %u", seed);
    m_random.seed(seed);
    desktop().windows().useOneDesktop(); // the wheel beside a window turns to the next one
    // It finds no program that it could start.
    tool().setEnvironment(QStringLiteral("PATH"), QString());
    QVERIFY(startTool());
    m_control = tool().controlWindow().id;
    QVERIFY(goOn());
    qint64 firstMemory = 0;
    QStringList done;
    for (int number = 1; m_inputs < count; ++number) {
        done = done.mid(done.size() - 12) << step();
        const bool isFine = isWell() && goOn();
        if (!isFine || (number % StepsPerLook == 0 && !log().isEmpty()))
            QFAIL(qPrintable(
                QStringLiteral("Step %1: %2; %3; log: %4")
                    .arg(number)
                    .arg(m_problem, done.join(QStringLiteral("; ")), tool().standardError())));
        if (firstMemory == 0 && m_inputs > count / 10)
            firstMemory = LongRun::residentMemory(tool().processId());
    }
    LongRun::report(m_inputs, firstMemory, LongRun::residentMemory(tool().processId()));
    qInfo("Slowest answer %lld ms, closed and started again %d times", m_slowest, m_restarts);

    QVERIFY2(tool().endBySignal(SIGTERM), qPrintable(tool().problem()));
    const QVariantMap config = tool().configIni();
    QVERIFY2(restart(), qPrintable(m_problem));
    QVERIFY2(tool().endBySignal(SIGTERM), qPrintable(tool().problem()));
    const int mostHeight = desktop().screen().rect().height();
    QCOMPARE(lasting(tool().configIni()), lasting(afterRestart(config, mostHeight)));
    QCOMPARE(log(), QString());
}

QTEST_GUILESS_MAIN(tst_e2e_operator)
#include "tst_e2e_operator.moc"
