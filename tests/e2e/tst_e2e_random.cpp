#include "dummyserver.h"
#include "endtoendtest.h"
#include "longrun.h"
#include "waiting.h"

#include <QRandomGenerator>
#include <QTest>

/// What an operator may do to the test window, in a random order: after each step the window, and
/// soon after the file, are as a small model says. Each step starts from what the panel shows, so
/// a panel that shows something else is found out by the next one. TARN_SOAK_COUNT says how
/// many steps, TARN_SOAK_SEED where to begin, TARN_WINDOW_MANAGER under which window manager.
class tst_e2e_random : public EndToEndTest
{
    Q_OBJECT

private slots:
    void windowAndFile_agreeWithTheModel();

protected:
    std::unique_ptr<VirtualDesktop> createDesktop() const override;

private:
    /// Does one step to the model and to the program, and says which; empty if it is not possible
    /// just now.
    QString step();
    QString pressArrow();
    QString toggleVisibility();
    QString toggleFullScreen();
    QString drag();
    QString typeNumber();
    QString switchScreen();

    int random(int count) { return m_random.bounded(count); }
    QRect desktopRect() const { return m_isSecondOn ? First | Second : First; }
    /// The sums of the screens' widths and heights, which the panel's ranges come from.
    QSize sums() const { return m_isSecondOn ? First.size() + Second.size() : First.size(); }
    QRect screenOfCentre() const;
    /// Whether the desktop has no room for the window, so that nothing is to be said about it.
    bool isAway() const;
    bool agrees();
    bool settle();

    static constexpr QRect First = QRect(QPoint(0, 0), DummyServer::OutputSize);
    static constexpr QRect Second = First.translated(First.width(), 0);

    mutable DummyServer *m_server = nullptr; // owned by the desktop
    QRandomGenerator m_random;
    QRect m_place{200, 150, 300, 300};
    QRect m_screen; // that the window fills, null if none
    bool m_isShown = true;
    bool m_isSecondOn = false;
};

constexpr QRect tst_e2e_random::First;
constexpr QRect tst_e2e_random::Second;

namespace {
/// The placement panel's number fields, from the control window's corner.
constexpr QPoint Fields[] = {{525, 84}, {525, 114}, {525, 144}, {525, 174}};
} // namespace

std::unique_ptr<VirtualDesktop> tst_e2e_random::createDesktop() const
{
    auto server = std::make_unique<DummyServer>();
    m_server = server.get();
    return std::make_unique<VirtualDesktop>(std::move(server));
}

QRect tst_e2e_random::screenOfCentre() const
{
    for (const QRect &screen : {First, Second}) {
        if ((desktopRect() & screen).contains(m_place.center()))
            return screen;
    }
    return {};
}

bool tst_e2e_random::isAway() const
{
    const QRect ranges(1 - sums().width(), 1 - sums().height(), 2 * sums().width() - 1,
                       2 * sums().height() - 1);
    return !desktopRect().intersects(m_place) || !ranges.contains(m_place.topLeft())
           || m_place.width() > sums().width() || m_place.height() > sums().height()
           || (!m_screen.isNull() && !desktopRect().contains(m_screen));
}

QString tst_e2e_random::pressArrow()
{
    struct Arrow
    {
        const char *key;
        QMargins growth; // what Shift adds to the place
        QPoint move; // what Ctrl does
    };
    const Arrow arrows[] = {{"Left", {0, 0, -1, 0}, {-1, 0}},
                            {"Right", {0, 0, 1, 0}, {1, 0}},
                            {"Up", {0, 0, 0, -1}, {0, -1}},
                            {"Down", {0, 0, 0, 1}, {0, 1}}};
    const Arrow &arrow = arrows[random(4)];
    const bool isShift = random(2) != 0;
    const int count = 1 + random(5);
    for (int press = 0; press < count; ++press) {
        desktop().keyboard().key(arrow.key, isShift ? Qt::ShiftModifier : Qt::ControlModifier);
        m_place = isShift ? m_place + arrow.growth : m_place.translated(arrow.move);
    }
    return QStringLiteral("%1 %2 x %3")
        .arg(QLatin1String(isShift ? "Shift" : "Ctrl"), QLatin1String(arrow.key))
        .arg(count);
}

QString tst_e2e_random::toggleVisibility()
{
    desktop().keyboard().key("h", Qt::ShiftModifier);
    m_isShown = !m_isShown;
    return QStringLiteral("Shift+H");
}

QString tst_e2e_random::toggleFullScreen()
{
    if (m_screen.isNull() && screenOfCentre().isNull())
        return {};
    desktop().keyboard().key("f", Qt::ShiftModifier);
    m_screen = m_screen.isNull() ? screenOfCentre() : QRect();
    m_isShown = true;
    return QStringLiteral("Shift+F");
}

QString tst_e2e_random::drag()
{
    const QRect inside = m_place.adjusted(10, 10, -10, -10) & First.adjusted(0, 0, -100, -100);
    if (!m_isShown || !m_screen.isNull() || inside.width() < 1 || inside.height() < 1)
        return {};
    // The pointer stops at the edges of the screen.
    const QPoint to(qMax(0, inside.center().x() + random(81) - 40),
                    qMax(0, inside.center().y() + random(81) - 40));
    const QPoint by = to - inside.center();
    desktop().mouse().drag(inside.center(), to);
    m_place.translate(by);
    return QStringLiteral("drag by %1, %2").arg(by.x()).arg(by.y());
}

QString tst_e2e_random::typeNumber()
{
    const QRect control = tool().controlWindow().geometry;
    if (m_isShown && (m_screen.isNull() ? m_place : m_screen).intersects(control))
        return {};
    const int axis = random(4);
    // A double click selects a number without its sign.
    if (axis == 0 ? m_place.x() < 0 : axis == 1 && m_place.y() < 0)
        return {};
    const int value = axis < 2 ? 10 + random(300) : 100 + random(300);
    desktop().mouse().doubleClick(control.topLeft() + Fields[axis]);
    if (!settle())
        return {};
    const QByteArray digits = QByteArray::number(value);
    for (const char digit : digits)
        desktop().keyboard().key(QByteArray(1, digit).constData());
    const QRect before = m_place;
    m_place = axis == 0   ? QRect(QPoint(value, before.y()), before.size())
              : axis == 1 ? QRect(QPoint(before.x(), value), before.size())
              : axis == 2 ? QRect(before.topLeft(), QSize(value, before.height()))
                          : QRect(before.topLeft(), QSize(before.width(), value));
    return QStringLiteral("type %1 into field %2").arg(value).arg(axis);
}

QString tst_e2e_random::switchScreen()
{
    const QString second = QStringLiteral("DUMMY1");
    const bool isDone = m_isSecondOn ? m_server->unplug(second)
                                     : m_server->plugIn(second, QStringLiteral("--right-of"),
                                                        QStringLiteral("DUMMY0"));
    if (!isDone)
        return {};
    m_isSecondOn = !m_isSecondOn;
    return m_isSecondOn ? QStringLiteral("screen on") : QStringLiteral("screen off");
}

QString tst_e2e_random::step()
{
    if (isAway())
        return switchScreen();
    switch (random(12)) {
    case 0:
    case 1:
        return toggleFullScreen();
    case 2:
        return toggleVisibility();
    case 3:
    case 4:
        return drag();
    case 5:
    case 6:
        return typeNumber();
    case 7:
        return switchScreen();
    default:
        return pressArrow();
    }
}

bool tst_e2e_random::settle()
{
    for (int turn = 0; turn < 3; ++turn) {
        if (!desktop().windows().syncWithWindowManager()
            || !desktop().windows().answersPing(tool().controlWindow().id))
            return false;
    }
    return true;
}

bool tst_e2e_random::agrees()
{
    const QRect place = m_screen.isNull() ? m_place : m_screen;
    const auto isRight = [&] {
        const WindowInfo window = tool().testWindow();
        return isAway()
               || (window.isMapped == m_isShown && (!m_isShown || window.geometry == place));
    };
    if (!waitFor(isRight) || !settle() || !isRight()) {
        qWarning() << "The window," << (tool().testWindow().isMapped ? "shown" : "hidden") << "at"
                   << tool().testWindow().geometry << "should be"
                   << (m_isShown ? "shown" : "hidden") << "at" << place;
        return false;
    }
    const auto isHidden = [&] {
        return tool().configValue(QStringLiteral("/setting/testWindowVisible")).toBool();
    };
    return isStored(m_place) && waitFor([&] { return isHidden() != m_isShown; });
}

void tst_e2e_random::windowAndFile_agreeWithTheModel()
{
    const quint32 seed = LongRun::seed(1);
    m_random.seed(seed);
    QVERIFY2(m_server->unplug(QStringLiteral("DUMMY1")), qPrintable(m_server->outputProblem()));
    QVERIFY(startToolAt(m_place));
    QVERIFY(agrees());
    const int count = LongRun::count(60);
    QStringList done;
    while (done.size() < count) {
        QVERIFY(tool().focusControlWindow() && settle());
        const QString what = step();
        if (what.isEmpty())
            continue;
        done << what;
        if (!agrees()) {
            const QString last = QStringList(done.mid(done.size() - 12)).join(QStringLiteral("; "));
            QFAIL(qPrintable(
                QStringLiteral("Seed %1, step %2: %3").arg(seed).arg(done.size()).arg(last)));
        }
    }
    qInfo("Seed %u, %d steps", seed, count);
}

QTEST_GUILESS_MAIN(tst_e2e_random)
#include "tst_e2e_random.moc"
