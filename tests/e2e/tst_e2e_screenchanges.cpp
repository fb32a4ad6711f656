#include "dummyserver.h"
#include "longrun.h"
#include "placementmodeltest.h"
#include "waiting.h"

#include <QTest>

/// Two screens that are switched off and on, moved, resized and turned in a random order, while the
/// operator now and then does something too: the test window, full screen, hidden or neither, is
/// where he has left it whenever the screens have room for it, and that is all that is stored.
class tst_e2e_screenchanges : public PlacementModelTest
{
    Q_OBJECT

private slots:
    void placement_isTheOperatorsOnly();

private:
    /// An output as it is or would be if it were on.
    struct Output
    {
        QString name;
        QSize size = DummyServer::OutputSize;
        bool isOn = false;
    };

    // One step each, in words.
    QString changeScreens();
    QString operate();
    QString chooseTab();
    QString dragAnywhere();

    bool arrange();
    QPoint placeOfSecond() const;
    QString describe() const;

    Output m_outputs[2] = {{QStringLiteral("DUMMY0")}, {QStringLiteral("DUMMY1")}};
    int m_side = 0; // of the first screen that the second one is on
    int m_shift = 0; // of the second screen along that side
};

namespace {

constexpr QSize Sizes[] = {DummyServer::OutputSize, {1280, 1024}, {1024, 768}};

/// The tab's middle and its upper edge, from the control window's corner.
constexpr int TabWidth = 83;
constexpr QPoint FirstTab = {41, 40};

} // namespace

QPoint tst_e2e_screenchanges::placeOfSecond() const
{
    const QSize &first = m_outputs[0].size;
    const QSize &second = m_outputs[1].size;
    const QPoint places[] = {{first.width(), m_shift},
                             {-second.width(), m_shift},
                             {m_shift, first.height()},
                             {m_shift, -second.height()}};
    return places[m_side];
}

/// The upper left corner of all screens is the desktop's.
bool tst_e2e_screenchanges::arrange()
{
    QMap<QString, QRect> places;
    places.insert(m_outputs[0].name, {QPoint(0, 0), m_outputs[0].size});
    places.insert(m_outputs[1].name, {placeOfSecond(), m_outputs[1].size});
    m_screens.clear();
    for (const Output &output : m_outputs) {
        if (output.isOn)
            m_screens.insert(output.name, places.value(output.name));
        else
            places.insert(output.name, {});
    }
    const QPoint corner = desktopRegion().boundingRect().topLeft();
    for (auto screen = m_screens.begin(); screen != m_screens.end(); ++screen) {
        screen->translate(-corner);
        places.insert(screen.key(), *screen);
    }
    return server().arrange(places);
}

QString tst_e2e_screenchanges::describe() const
{
    QStringList screens;
    for (auto screen = m_screens.cbegin(); screen != m_screens.cend(); ++screen)
        screens << QStringLiteral("%1 %2x%3+%4+%5")
                       .arg(screen.key())
                       .arg(screen->width())
                       .arg(screen->height())
                       .arg(screen->x())
                       .arg(screen->y());
    return screens.join(QStringLiteral(", "));
}

QString tst_e2e_screenchanges::changeScreens()
{
    Output &one = m_outputs[random(2)];
    const Output &other = &one == m_outputs ? m_outputs[1] : m_outputs[0];
    const char *what = "switched";
    switch (random(4)) {
    case 0:
        m_side = (m_side + 1 + random(3)) % 4;
        m_shift = 100 * random(3);
        what = "moved";
        break;
    case 1:
        one.size = Sizes[random(3)];
        what = "resized";
        break;
    case 2:
        one.size.transpose();
        what = "turned";
        break;
    default:
        one.isOn = !one.isOn || !other.isOn;
        break;
    }
    if (!arrange())
        return {};
    return QStringLiteral("%1 %2: %3").arg(one.name, QLatin1String(what), describe());
}

QString tst_e2e_screenchanges::chooseTab()
{
    const QRect control = tool().controlWindow().geometry;
    const QPoint middle = control.topLeft() + FirstTab + QPoint(random(7) * TabWidth, 0);
    const bool isCovered = m_isShown && tool().testWindow().geometry.contains(middle);
    if (isCovered || !desktopRegion().contains(middle))
        return {};
    desktop().mouse().click(middle);
    return QStringLiteral("click at %1, %2").arg(middle.x()).arg(middle.y());
}

QString tst_e2e_screenchanges::dragAnywhere()
{
    const QRect area = m_screens.first().adjusted(20, 20, -20, -20);
    const QRect aim = m_screens.last();
    return drag(area, aim.topLeft() + QPoint(random(aim.width()), random(aim.height())));
}

/// What the operator does, if anything.
QString tst_e2e_screenchanges::operate()
{
    const int what = random(10);
    if (what == 0)
        return toggleVisibility();
    if (what == 1)
        return chooseTab();
    if (isAway())
        return {};
    if (what < 4)
        return toggleFullScreen();
    if (what < 6)
        return dragAnywhere();
    return what == 6 ? pressArrow() : QString();
}

void tst_e2e_screenchanges::placement_isTheOperatorsOnly()
{
    const quint32 seed = LongRun::seed(1);
    const int count = LongRun::count(30);
    qInfo("Seed %u", seed);
    m_random.seed(seed);
    m_outputs[0].isOn = true;
    QVERIFY2(arrange(), qPrintable(server().outputProblem()));
    QVERIFY(startToolAt(m_place));
    QVERIFY(agrees());
    const qint64 firstMemory = LongRun::residentMemory(tool().processId());
    QStringList done;
    const auto failure = [&] {
        return QStringLiteral("Seed %1, step %2: %3; %4")
            .arg(seed)
            .arg(done.size())
            .arg(QStringList(done.mid(done.size() - 8)).join(QStringLiteral("; ")),
                 server().outputProblem());
    };
    for (int step = 0; step < count; ++step) {
        QVERIFY2(tool().focusControlWindow() && settle(), qPrintable(failure()));
        done << operate();
        QVERIFY2(agrees(), qPrintable(failure()));
        done.last() += changeScreens();
        QVERIFY2(agrees(), qPrintable(failure()));
    }
    LongRun::report(count, firstMemory, LongRun::residentMemory(tool().processId()));
    QVERIFY2(tool().quit(), qPrintable(tool().problem()));
    QCOMPARE(stored(), m_place);
}

QTEST_GUILESS_MAIN(tst_e2e_screenchanges)
#include "tst_e2e_screenchanges.moc"
