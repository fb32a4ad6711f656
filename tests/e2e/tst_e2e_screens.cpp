#include "dummyserver.h"
#include "endtoendtest.h"
#include "rows.h"
#include "waiting.h"

#include <QTest>

/// Two screens that come and go: the test window reaches all of them, fills the
/// one it is on, and waits for one that is gone.
class tst_e2e_screens : public EndToEndTest
{
    Q_OBJECT

private slots:
    void init();

    void sideBySide_rangesAreTheSumsOfBothScreens_data();
    void sideBySide_rangesAreTheSumsOfBothScreens();
    void ranges_followTheScreens();
    void screenLeftOfThePrimaryOne_isReached();
    void negativePlace_isObeyed();
    void fullScreen_coversTheScreenOfTheTestWindow_data();
    void fullScreen_coversTheScreenOfTheTestWindow();
    void fullScreen_coversTheScreenThatHasComeBelowTheTestWindow();
    void unplugging_keepsTheTestWindow_andPluggingInBringsItBack();
    void fullScreen_comesBackWithItsScreen();
    void fullScreen_followsItsScreenOutsideTheManagersHands();
    void dragWhileAScreenIsOff_changesThePlaceAlone();
    void moveWhileAScreenIsOff_isStored();
    void controlWindow_leavesAScreenThatIsGone();

protected:
    std::unique_ptr<VirtualDesktop> createDesktop() const override;

private:
    void plugIn(const char *relation, const QSize &size = DummyServer::OutputSize);
    void unplug();
    void handleScreenChange();
    using EndToEndTest::isStored;
    bool isStored(const char *name, int value);

    mutable DummyServer *m_server = nullptr; // owned by the desktop
};

namespace {
constexpr QRect Left = QRect(QPoint(0, 0), DummyServer::OutputSize);
constexpr QRect Right = Left.translated(1920, 0);
constexpr QRect OnTheRight = QRect(2500, 300, 256, 256);

QString first()
{
    return QStringLiteral("DUMMY0");
}

QString second()
{
    return QStringLiteral("DUMMY1");
}

QString key(const char *name)
{
    return QStringLiteral("/setting/testWindow") + QLatin1String(name);
}
} // namespace

std::unique_ptr<VirtualDesktop> tst_e2e_screens::createDesktop() const
{
    auto server = std::make_unique<DummyServer>();
    m_server = server.get();
    return std::make_unique<VirtualDesktop>(std::move(server));
}

void tst_e2e_screens::init()
{
    unplug();
    QCOMPARE(desktop().screen().rect(), Left);
}

void tst_e2e_screens::plugIn(const char *relation, const QSize &size)
{
    QVERIFY2(m_server->plugIn(second(), QLatin1String(relation), first(), size),
             qPrintable(m_server->outputProblem()));
}

void tst_e2e_screens::unplug()
{
    QVERIFY2(m_server->unplug(second()), qPrintable(m_server->outputProblem()));
}

/// Returns when the window manager and the program have handled it.
void tst_e2e_screens::handleScreenChange()
{
    QVERIFY(desktop().windows().syncWithWindowManager());
    for (int turn = 0; turn < 2; ++turn)
        QVERIFY(desktop().windows().answersPing(tool().controlWindow().id));
}

bool tst_e2e_screens::isStored(const char *name, int value)
{
    const auto now = [&] { return tool().configValue(key(name)).toInt(); };
    if (waitFor([&] { return now() == value; }))
        return true;
    qWarning() << name << "is stored as" << now() << "and not" << value;
    return false;
}

void tst_e2e_screens::sideBySide_rangesAreTheSumsOfBothScreens_data()
{
    const int step = 1;
    const Table<QByteArray, int, QByteArray, QByteArray, bool, int> row("name", "start", "inward",
                                                                        "outward", "shift", "end");
    row("X maximum", "PointX", 99999, "Left", "Right", false, 3839);
    row("X minimum", "PointX", -99999, "Right", "Left", false, -3839);
    row("Y maximum", "PointY", 99999, "Up", "Down", false, 2159);
    row("Y minimum", "PointY", -99999, "Down", "Up", false, -2159);
    row("width maximum", "Width", 99999, "Left", "Right", true, 3840);
    row("width minimum", "Width", step, "Right", "Left", true, 1);
    row("height maximum", "Height", 99999, "Up", "Down", true, 2160);
    row("height minimum", "Height", step, "Down", "Up", true, 1);
}

/// What is stored beyond the range is cut to its end: a key steps from there,
/// and the key back stops there.
void tst_e2e_screens::sideBySide_rangesAreTheSumsOfBothScreens()
{
    QFETCH(QByteArray, name);
    QFETCH(int, start);
    QFETCH(QByteArray, inward);
    QFETCH(QByteArray, outward);
    QFETCH(bool, shift);
    QFETCH(int, end);
    plugIn("--right-of");
    QVariantMap values{{key(name.constData()), start}};
    if (name == "Height") // is taken from the width
        values.insert(key("Width"), start);
    tool().writeConfig(values);
    QVERIFY(startTool());
    const Qt::KeyboardModifier modifier = shift ? Qt::ShiftModifier : Qt::ControlModifier;
    const int inside = start > 1 ? end - 1 : end + 1;

    desktop().keyboard().key(inward.constData(), modifier);
    QVERIFY(isStored(name.constData(), inside));
    for (int press = 0; press < 3; ++press)
        desktop().keyboard().key(outward.constData(), modifier);
    QVERIFY(isStored(name.constData(), end));
    QVERIFY(desktop().windows().answersPing(tool().controlWindow().id));
    desktop().keyboard().key(inward.constData(), modifier);
    QVERIFY(isStored(name.constData(), inside));
}

void tst_e2e_screens::ranges_followTheScreens()
{
    QVERIFY(startToolAt({1919, 0, 256, 256}));
    Keyboard &keyboard = desktop().keyboard();
    keyboard.key("Right", Qt::ControlModifier); // stops at the end
    keyboard.key("Down", Qt::ControlModifier);
    QVERIFY(isStored("PointY", 1));
    QCOMPARE(stored().x(), 1919);

    plugIn("--right-of");
    handleScreenChange();
    keyboard.key("Right", Qt::ControlModifier);
    keyboard.key("Right", Qt::ControlModifier);
    QVERIFY(isStored("PointX", 1921));

    unplug();
    handleScreenChange();
    keyboard.key("Left", Qt::ControlModifier); // from the end of the smaller range
    QVERIFY(isStored("PointX", 1918));
}

void tst_e2e_screens::screenLeftOfThePrimaryOne_isReached()
{
    plugIn("--left-of");
    QCOMPARE(desktop().screen().rect(), Left | Right);
    QVERIFY(startToolAt({300, 400, 256, 256})); // the primary screen begins at 1920
    QVERIFY(testWindowCovers({300, 400, 256, 256}));

    // And it is dragged over to the primary one and back.
    desktop().mouse().drag({400, 500}, {2400, 500});
    QVERIFY(testWindowCovers({2300, 400, 256, 256}));
    desktop().mouse().drag({2400, 500}, {400, 500});
    QVERIFY(testWindowCovers({300, 400, 256, 256}));
    QVERIFY(isStored("PointX", 300));
}

/// A window manager may keep a window whole on the screen while it maps it, so
/// the window goes there afterwards.
void tst_e2e_screens::negativePlace_isObeyed()
{
    plugIn("--left-of");
    QVERIFY(startToolAt({1, 400, 256, 256}));
    for (int press = 0; press < 3; ++press)
        desktop().keyboard().key("Left", Qt::ControlModifier);
    QVERIFY(testWindowCovers({-2, 400, 256, 256}));

    desktop().mouse().drag({200, 500}, {100, 450});
    QVERIFY(testWindowCovers({-102, 350, 256, 256}));
    QVERIFY(isStored("PointX", -102));
}

void tst_e2e_screens::fullScreen_coversTheScreenOfTheTestWindow_data()
{
    const QRect onTheLeft(100, 100, 256, 256);
    const Table<QByteArray, QRect, QRect> row("relation", "place", "screen");
    row("primary, left", "--right-of", onTheLeft, Left);
    row("other, right", "--right-of", OnTheRight, Right);
    row("other, left", "--left-of", onTheLeft, Left);
    row("primary, right", "--left-of", OnTheRight, Right);
}

void tst_e2e_screens::fullScreen_coversTheScreenOfTheTestWindow()
{
    QFETCH(QByteArray, relation);
    QFETCH(QRect, place);
    QFETCH(QRect, screen);
    plugIn(relation.constData());
    QVERIFY(startToolAt(place));
    QVERIFY(testWindowCovers(place));

    desktop().keyboard().key("f", Qt::ShiftModifier);
    QVERIFY(testWindowCovers(screen));
    desktop().keyboard().key("f", Qt::ShiftModifier);
    QVERIFY(testWindowCovers(place));
}

void tst_e2e_screens::fullScreen_coversTheScreenThatHasComeBelowTheTestWindow()
{
    const QRect place(100, 100, 256, 256);
    plugIn("--right-of");
    QVERIFY(startToolAt(place));
    QVERIFY(testWindowCovers(place));
    plugIn("--left-of"); // the window stays where it is, and so Qt looks no further
    handleScreenChange();

    desktop().keyboard().key("f", Qt::ShiftModifier);
    QVERIFY(testWindowCovers(Left));
    handleScreenChange();
    QVERIFY(testWindowCovers(Left));
    desktop().keyboard().key("f", Qt::ShiftModifier);
    QVERIFY(testWindowCovers(place));
}

void tst_e2e_screens::unplugging_keepsTheTestWindow_andPluggingInBringsItBack()
{
    plugIn("--right-of");
    QVERIFY(startToolAt(OnTheRight));
    QVERIFY(testWindowCovers(OnTheRight));

    unplug();
    handleScreenChange();
    QVERIFY(tool().testWindow().isMapped);
    QCOMPARE(tool().testWindow().geometry.size(), OnTheRight.size());
    qInfo() << "The window manager leaves it at" << tool().testWindow().geometry.topLeft();
    // Longer than a change takes to be stored.
    QTest::qWait(1000);
    QCOMPARE(stored(), OnTheRight);

    plugIn("--right-of");
    QVERIFY(testWindowCovers(OnTheRight));
    QVERIFY2(tool().quit(), qPrintable(tool().problem()));
    QCOMPARE(stored(), OnTheRight);
}

void tst_e2e_screens::fullScreen_comesBackWithItsScreen()
{
    plugIn("--right-of");
    QVERIFY(startToolAt(OnTheRight));
    desktop().keyboard().key("f", Qt::ShiftModifier);
    QVERIFY(testWindowCovers(Right));

    for (int turn = 0; turn < 2; ++turn) {
        unplug();
        handleScreenChange();
        plugIn("--right-of");
        QVERIFY(testWindowCovers(Right));
    }
    QVERIFY(tool().focusControlWindow());
    desktop().keyboard().key("f", Qt::ShiftModifier);
    QVERIFY(testWindowCovers(OnTheRight));
    QCOMPARE(stored(), OnTheRight);
}

void tst_e2e_screens::fullScreen_followsItsScreenOutsideTheManagersHands()
{
    const QRect overTheDock(2500, 900, 180, 180); // which the window manager does not allow
    plugIn("--right-of");
    const auto dock = desktop().windows().addDock({0, 1040, 3840, 40}, qRgb(200, 0, 200));
    QVERIFY(startToolAt(overTheDock));
    QVERIFY(testWindowCovers(overTheDock));
    desktop().keyboard().key("f", Qt::ShiftModifier);
    QVERIFY(testWindowCovers(Right));

    plugIn("--left-of");
    QVERIFY(testWindowCovers(Left));
    unplug();
    handleScreenChange();
    plugIn("--right-of", {1024, 768});
    QVERIFY(testWindowCovers({1920, 0, 1024, 768}));
}

void tst_e2e_screens::moveWhileAScreenIsOff_isStored()
{
    plugIn("--right-of");
    QVERIFY(startToolAt(OnTheRight));
    QVERIFY(testWindowCovers(OnTheRight));
    unplug();
    handleScreenChange();
    QCOMPARE(stored(), OnTheRight);
    // The first move to where it is seen again is not the operator's.
    const WindowId window = tool().testWindow().id;
    const QRect seen(300, 200, 256, 256);
    const QRect moved(400, 300, 256, 256);
    if (!Left.intersects(tool().testWindow().geometry))
        desktop().windows().place(window, seen);
    handleScreenChange();
    desktop().windows().place(window, moved);
    QVERIFY(isStored(moved));
}

void tst_e2e_screens::dragWhileAScreenIsOff_changesThePlaceAlone()
{
    const QRect place(100, 100, 3000, 3000);
    plugIn("--right-of");
    QVERIFY(startToolAt(place));
    QVERIFY(testWindowCovers({place.topLeft(), QSize(3000, 2160)}));

    unplug();
    handleScreenChange();
    const QPoint from = tool().testWindow().geometry.topLeft() + QPoint(300, 200);
    desktop().mouse().drag(from, from + QPoint(40, 30));
    QVERIFY(waitFor([&] { return stored().topLeft() != place.topLeft(); }));
    QVERIFY(waitFor([&] { return stored().topLeft() == tool().testWindow().geometry.topLeft(); }));
    QCOMPARE(stored().width(), 3000);

    plugIn("--right-of");
    QVERIFY(testWindowCovers({stored().topLeft(), QSize(3000, 2160)}));
}

void tst_e2e_screens::controlWindow_leavesAScreenThatIsGone()
{
    plugIn("--right-of");
    QVERIFY(startToolAt({0, 0, 256, 256}));
    const WindowId control = tool().controlWindow().id;
    const auto isOn = [&](const QRect &screen) {
        return screen.contains(desktop().windows().info(control).geometry);
    };
    desktop().windows().move(control, {2600, 400});
    QVERIFY(waitFor([&] { return isOn(Right); }));
    QVERIFY(desktop().windows().answersPing(control));

    unplug();
    QVERIFY(waitFor([&] { return isOn(Left); }));
    QVERIFY(desktop().windows().answersPing(control));
}

QTEST_GUILESS_MAIN(tst_e2e_screens)
#include "tst_e2e_screens.moc"
