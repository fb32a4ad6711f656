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

    QString alterOne();
    QMap<QString, QRect> arrangement();
    QPoint placeOfSecond() const;
    QString describe() const;

    Output m_outputs[2] = {{QStringLiteral("DUMMY0")}, {QStringLiteral("DUMMY1")}};
    int m_side = 0; // of the first screen that the second one is on
    int m_shift = 0; // of the second screen along that side
};

namespace {

constexpr QSize Sizes[] = {DummyServer::OutputSize, {1280, 1024}, {1024, 768}};

/// The middle of the first tab, from the control window's corner.
constexpr QPoint FirstTab = {41, 40};
constexpr int TabWidth = 83;
constexpr int TabTop = 28;
/// Its upper edge if it is chosen.
constexpr QRgb Chosen = qRgb(230, 112, 7);
constexpr QRgb ChosenWithKeyboard = qRgb(255, 179, 107);

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

/// Puts the screens that are on where they are to be, and returns the places of all outputs.
QMap<QString, QRect> tst_e2e_screenchanges::arrangement()
{
    m_screens.clear();
    if (m_outputs[0].isOn)
        m_screens.insert(m_outputs[0].name, {QPoint(0, 0), m_outputs[0].size});
    if (m_outputs[1].isOn)
        m_screens.insert(m_outputs[1].name, {placeOfSecond(), m_outputs[1].size});
    // The upper left corner of all screens is the desktop's.
    const QPoint corner = desktopRegion().boundingRect().topLeft();
    for (QRect &screen : m_screens)
        screen.translate(-corner);
    QMap<QString, QRect> places = m_screens;
    for (const Output &output : m_outputs)
        places.insert(output.name, m_screens.value(output.name));
    return places;
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

QString tst_e2e_screenchanges::alterOne()
{
    Output &one = m_outputs[random(2)];
    const Output &other = m_outputs[&one == m_outputs ? 1 : 0];
    switch (random(5)) {
    case 0:
        m_side = random(4);
        m_shift = 100 * random(3);
        return one.name + QStringLiteral(" moved");
    case 1:
        one.size = Sizes[random(3)];
        return one.name + QStringLiteral(" resized");
    case 2:
        one.size.transpose();
        return one.name + QStringLiteral(" turned");
    default:
        one.isOn = !one.isOn || !other.isOn;
        return one.name + QStringLiteral(" switched");
    }
}

/// Until something has changed that is seen.
QString tst_e2e_screenchanges::changeScreens()
{
    const QMap<QString, QRect> before = m_screens;
    QString what;
    QMap<QString, QRect> places;
    while (m_screens == before) {
        what = alterOne();
        places = arrangement();
    }
    if (!server().arrange(places))
        QTest::qFail(qPrintable(server().outputProblem()), __FILE__, __LINE__);
    return what + QStringLiteral(": ") + describe();
}

QString tst_e2e_screenchanges::chooseTab()
{
    const QPoint middle = FirstTab + QPoint(random(7) * TabWidth, 0);
    const QPoint edge(middle.x(), TabTop);
    const QPoint corner = tool().controlWindow().geometry.topLeft();
    const bool isCovered =
        m_isShown
        && tool().testWindow().geometry.intersects(QRect(edge, middle).translated(corner));
    if (isCovered || !desktopRegion().contains(corner + middle))
        return {};
    // The window manager may still be moving the window after the last change of the screens.
    const auto isChosenByClick = [&] {
        desktop().mouse().click(tool().controlWindow().geometry.topLeft() + middle);
        return waitFor(
            [&] {
                const QPoint place = tool().controlWindow().geometry.topLeft() + edge;
                const QRgb colour = desktop().screen().pixel(place);
                return colour == Chosen || colour == ChosenWithKeyboard;
            },
            1000);
    };
    if (!waitFor(isChosenByClick))
        QTest::qFail("The tab is not chosen", __FILE__, __LINE__);
    return QStringLiteral("tab at %1, %2").arg(middle.x()).arg(middle.y());
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
    if (what < 5)
        return toggleFullScreen();
    if (what < 8)
        return dragAnywhere();
    return what == 8 ? pressArrow() : QString();
}

void tst_e2e_screenchanges::placement_isTheOperatorsOnly()
{
    const quint32 seed = LongRun::seed(5);
    const int count = LongRun::count(30);
    qInfo("Seed %u", seed);
    m_random.seed(seed);
    m_outputs[0].isOn = true;
    QVERIFY2(server().arrange(arrangement()), qPrintable(server().outputProblem()));
    QVERIFY(startToolAt(m_place));
    QVERIFY(agrees());
    const qint64 firstMemory = LongRun::residentMemory(tool().processId());
    QStringList done;
    const auto last = [&] {
        return QStringList(done.mid(done.size() - 8)).join(QLatin1Char('\n'));
    };
    for (int step = 1; step <= count; ++step) {
        QVERIFY2(tool().focusControlWindow() && settle(), qPrintable(last()));
        for (auto act : {&tst_e2e_screenchanges::operate, &tst_e2e_screenchanges::changeScreens}) {
            done << QStringLiteral("Step %1: %2").arg(step).arg((this->*act)());
            QVERIFY2(agrees() && !QTest::currentTestFailed(), qPrintable(last()));
        }
    }
    LongRun::report(count, firstMemory, LongRun::residentMemory(tool().processId()));
    QVERIFY2(tool().quit(), qPrintable(tool().problem()));
    QCOMPARE(stored(), m_place);
    QCOMPARE(tool().standardError(), QString());
}

QTEST_GUILESS_MAIN(tst_e2e_screenchanges)
#include "tst_e2e_screenchanges.moc"
