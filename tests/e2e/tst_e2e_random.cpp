#include "dummyserver.h"
#include "longrun.h"
#include "placementmodeltest.h"
#include "waiting.h"

#include <QTest>

/// What an operator may do to the test window, in a random order: after each step the window, and
/// soon after the file, are as a small model says. Each step starts from what the panel shows, so
/// a panel that shows something else is found out by the next one. TARN_SOAK_COUNT says how
/// many steps, TARN_SOAK_SEED where to begin, TARN_WINDOW_MANAGER under which window manager.
class tst_e2e_random : public PlacementModelTest
{
    Q_OBJECT

private slots:
    void windowAndFile_agreeWithTheModel();

private:
    /// Does one step to the model and to the program, and says which; empty if it is not possible
    /// just now.
    QString step();
    QString dragNearby();
    QString typeNumber();
    QString switchScreen();

    static constexpr QRect First = QRect(QPoint(0, 0), DummyServer::OutputSize);
    static constexpr QRect Second = First.translated(First.width(), 0);
};

constexpr QRect tst_e2e_random::First;
constexpr QRect tst_e2e_random::Second;

namespace {
/// The placement panel's number fields, from the control window's corner.
constexpr QPoint Fields[] = {{525, 84}, {525, 114}, {525, 144}, {525, 174}};

QString first()
{
    return QStringLiteral("DUMMY0");
}

QString second()
{
    return QStringLiteral("DUMMY1");
}
} // namespace

QString tst_e2e_random::dragNearby()
{
    const QRect area = First.adjusted(0, 0, -100, -100);
    const QPoint from = (m_place.adjusted(10, 10, -10, -10) & area).center();
    // The pointer stops at the edges of the screen.
    const int x = qMax(0, from.x() + random(81) - 40);
    const int y = qMax(0, from.y() + random(81) - 40);
    return drag(area, {x, y});
}

QString tst_e2e_random::typeNumber()
{
    const QRect control = tool().controlWindow().geometry;
    if (m_isShown && target().intersects(control))
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
    const bool isOn = m_screens.contains(second());
    const bool isDone = isOn ? server().unplug(second())
                             : server().plugIn(second(), QStringLiteral("--right-of"), first());
    if (!isDone)
        return {};
    if (isOn)
        m_screens.remove(second());
    else
        m_screens.insert(second(), Second);
    return isOn ? QStringLiteral("screen off") : QStringLiteral("screen on");
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
        return dragNearby();
    case 5:
    case 6:
        return typeNumber();
    case 7:
        return switchScreen();
    default:
        return pressArrow();
    }
}

void tst_e2e_random::windowAndFile_agreeWithTheModel()
{
    const quint32 seed = LongRun::seed(1);
    m_random.seed(seed);
    QVERIFY2(server().unplug(second()), qPrintable(server().outputProblem()));
    m_screens.insert(first(), First);
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
