#include "placekeeper.h"

#include <QSignalSpy>
#include <QtTest>

namespace {

constexpr QRect place(100, 50, 300, 200);

// A window manager that answers when the test says so.
class ScriptedEcho : public ManagerEcho
{
public:
    bool ask() override
    {
        ++asked;
        return true;
    }

    void answerNow() { emit answered(); }

    int asked = 0;
};

} // namespace

class TestPlaceKeeper : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void refusal_isAnsweredByAskingAgain_data();
    void refusal_isAnsweredByAskingAgain();
    void refusals_thatGoOnTakeTheWindowFromTheManager();
    void refusals_bySomebodyWhoNeverGivesInEnd();
    void obedience_isLeftAlone();
    void moveByTheManager_isReportedOnceItHasAnswered();
    void fullScreen_refusedIsAskedForAgain();
    void fullScreen_ofWindowThatIsOutIsNotForTheManagerToEnd();
    void visibility_isNotTouchedOnTheWayOut();

private:
    // As a window manager does, behind the widget's back.
    void moveFromOutside(const QRect &to);
    bool isOut() const;

    std::unique_ptr<QWidget> m_window;
    ScriptedEcho *m_echo = nullptr;
    std::unique_ptr<PlaceKeeper> m_keeper;
};

void TestPlaceKeeper::init()
{
    m_window = std::make_unique<QWidget>(nullptr, Qt::Tool | Qt::FramelessWindowHint);
    m_echo = new ScriptedEcho;
    m_keeper = std::make_unique<PlaceKeeper>(m_window.get(), m_echo, nullptr);
    m_keeper->setPlace(place);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    QTRY_COMPARE(m_window->windowHandle()->geometry(), place);
}

void TestPlaceKeeper::cleanup()
{
    m_keeper.reset();
    m_window.reset();
}

void TestPlaceKeeper::moveFromOutside(const QRect &to)
{
    m_window->windowHandle()->setGeometry(to);
    QTRY_COMPARE(m_window->geometry(), to);
}

bool TestPlaceKeeper::isOut() const
{
    return m_window->windowHandle()->flags().testFlag(Qt::BypassWindowManagerHint);
}

void TestPlaceKeeper::refusal_isAnsweredByAskingAgain_data()
{
    QTest::addColumn<QRect>("instead");

    QTest::newRow("moved") << place.translated(7, -3);
    QTest::newRow("resized") << place.adjusted(0, 0, -5, 9);
    QTest::newRow("both") << QRect(0, 0, 640, 480);
}

void TestPlaceKeeper::refusal_isAnsweredByAskingAgain()
{
    QFETCH(const QRect, instead);
    moveFromOutside(instead);
    const int asked = m_echo->asked;

    m_echo->answerNow();

    QTRY_COMPARE(m_window->windowHandle()->geometry(), place);
    QVERIFY(!isOut());
    QVERIFY(m_echo->asked > asked);
}

void TestPlaceKeeper::refusals_thatGoOnTakeTheWindowFromTheManager()
{
    for (int refusal = 0; refusal < 3; ++refusal) {
        QVERIFY(!isOut());
        moveFromOutside({0, 0, 300, 200});
        m_echo->answerNow();
    }

    QVERIFY(isOut());
    QVERIFY(m_window->isVisible());
}

void TestPlaceKeeper::refusals_bySomebodyWhoNeverGivesInEnd()
{
    for (int refusal = 0; refusal < 20; ++refusal) {
        moveFromOutside({0, 0, 300, 200});
        m_echo->answerNow();
    }
    const int asked = m_echo->asked;

    m_echo->answerNow();

    QCOMPARE(m_echo->asked, asked);
}

void TestPlaceKeeper::obedience_isLeftAlone()
{
    const int asked = m_echo->asked;

    m_echo->answerNow();

    QCOMPARE(m_echo->asked, asked);
    QVERIFY(!isOut());
}

void TestPlaceKeeper::moveByTheManager_isReportedOnceItHasAnswered()
{
    QSignalSpy displaced(m_keeper.get(), &PlaceKeeper::displaced);
    moveFromOutside(place.translated(1, 1));
    QCOMPARE(displaced.count(), 0);
    m_echo->answerNow();
    QTRY_COMPARE(m_window->windowHandle()->geometry(), place);
    m_echo->answerNow();

    moveFromOutside(place.translated(20, 10));
    m_echo->answerNow();

    QVERIFY(displaced.count() > 0);
    QCOMPARE(displaced.last(), QVariantList{place.translated(20, 10)});
    m_keeper->accept(place.translated(20, 10));
    m_echo->answerNow();
    QCOMPARE(m_window->geometry(), place.translated(20, 10));
}

void TestPlaceKeeper::fullScreen_refusedIsAskedForAgain()
{
    m_echo->answerNow();
    m_window->showFullScreen();
    const QRect screen = QGuiApplication::primaryScreen()->geometry();
    QTRY_COMPARE(m_window->geometry(), screen);
    m_window->windowHandle()->setWindowState(Qt::WindowNoState);
    moveFromOutside(place);

    m_echo->answerNow();

    QTRY_COMPARE(m_window->geometry(), screen);
    QVERIFY(m_window->isFullScreen());
}

void TestPlaceKeeper::fullScreen_ofWindowThatIsOutIsNotForTheManagerToEnd()
{
    refusals_thatGoOnTakeTheWindowFromTheManager();
    m_window->showFullScreen();
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    const QRect screen = QGuiApplication::primaryScreen()->geometry();
    QTRY_COMPARE(m_window->geometry(), screen);
    m_echo->answerNow();

    m_window->windowHandle()->setWindowState(Qt::WindowNoState);
    QTRY_VERIFY(!m_window->isFullScreen());
    m_echo->answerNow();

    QTRY_COMPARE(m_window->geometry(), screen);
    QVERIFY(m_window->isFullScreen());
}

void TestPlaceKeeper::visibility_isNotTouchedOnTheWayOut()
{
    QSignalSpy visible(m_window->windowHandle(), &QWindow::visibleChanged);

    refusals_thatGoOnTakeTheWindowFromTheManager();
    m_echo->answerNow();

    QCOMPARE(visible.count(), 0);
    QVERIFY(m_window->isVisible());
}

QTEST_MAIN(TestPlaceKeeper)
#include "tst_placekeeper.moc"
