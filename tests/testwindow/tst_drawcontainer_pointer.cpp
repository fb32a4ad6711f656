#include "dictionary.h"
#include "drawcontainer.h"
#include "rows.h"
#include "scriptedpointer.h"

#include <QApplication>
#include <QSignalSpy>
#include <QTimer>
#include <QToolTip>
#include <QtTest>

#include <memory>

namespace {

constexpr QRect place(200, 150, 300, 200);
constexpr QPoint centre(350, 250);

QWidget *toolTip()
{
    const auto widgets = QApplication::topLevelWidgets();
    for (QWidget *widget : widgets) {
        if (widget->inherits("QTipLabel") && widget->isVisible())
            return widget;
    }
    return nullptr;
}

} // namespace

// The pointer on the test window, and the tool tip that shows place and size while it changes them.
class TestDrawContainerPointer : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void toolTip_showsPlaceAndSizeLessOne_data();
    void toolTip_showsPlaceAndSizeLessOne();
    void toolTip_isTranslated();
    void toolTip_standsBesideTheLowerRightCorner();
    void toolTip_goesWhenTheMouseIsElsewhere();
    void toolTip_staysWhileTheMouseIsOnIt();
    void rest_hidesThePointerUntilItsNextMove();
    void rest_withoutAMoveSinceItCameHidesThePointer();
    void rest_whileTheWindowIsHeldKeepsThePointer();
    void leaving_keepsThePointerForItsReturn_data();
    void leaving_keepsThePointerForItsReturn();
    void move_beginsTheRestAgain();

private:
    // Lets the time pass that the pointer has been at rest.
    void rest();
    void glideTo(const QPoint &local);

    std::unique_ptr<DrawContainer> m_window;
    std::unique_ptr<ScriptedPointer> m_pointer;
    QTimer *m_timer = nullptr; // of the rest
};

void TestDrawContainerPointer::init()
{
    m_window = std::make_unique<DrawContainer>();
    m_pointer = std::make_unique<ScriptedPointer>(m_window.get());
    m_window->slot_setScreenMaxSize(5000, 5000);
    m_window->setGeometry(place);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    const QList<QTimer *> timers = m_window->findChildren<QTimer *>();
    const auto found = std::find_if(timers.cbegin(), timers.cend(), [](const QTimer *timer) {
        return timer->isSingleShot() && timer->interval() == 3000;
    });
    QVERIFY(found != timers.cend());
    m_timer = *found;
}

void TestDrawContainerPointer::cleanup()
{
    QToolTip::hideText();
    QTRY_VERIFY(!toolTip());
    m_pointer.reset();
    m_window.reset();
}

// A move of the mouse that the window itself, and so its tool tip, is not left by.
void TestDrawContainerPointer::glideTo(const QPoint &local)
{
    const QPoint global = m_window->mapToGlobal(local);
    QMouseEvent move(QEvent::MouseMove, local, local, global, Qt::NoButton, Qt::NoButton,
                     Qt::NoModifier);
    QCoreApplication::sendEvent(m_window.get(), &move);
}

void TestDrawContainerPointer::toolTip_showsPlaceAndSizeLessOne_data()
{
    const Table<QRect, QPoint, QPoint, const char *> row("window", "from", "to", "lines");
    row("moved", place, {350, 250}, {300, 260}, "(X,Y):(150,160)\n(W,H):(299,199)");
    row("moved, 640 x 480", {20, 30, 640, 480}, {300, 300}, {305, 306},
        "(X,Y):(25,36)\n(W,H):(639,479)");
    row("resized", place, {200, 150}, {190, 145}, "(X,Y):(190,145)\n(W,H):(309,204)");
}

void TestDrawContainerPointer::toolTip_showsPlaceAndSizeLessOne()
{
    QFETCH(QRect, window);
    QFETCH(QPoint, from);
    QFETCH(QPoint, to);
    QFETCH(QString, lines);
    m_window->setGeometry(window);

    m_pointer->drag(from, to);

    QVERIFY(toolTip());
    QCOMPARE(QToolTip::text(), QStringLiteral("窗口信息：\n") + lines);
}

void TestDrawContainerPointer::toolTip_isTranslated()
{
    const Dictionary english({{QStringLiteral("窗口信息："), QStringLiteral("Window:")}});

    m_pointer->drag(centre, QPoint(300, 260));

    QCOMPARE(QToolTip::text(), QStringLiteral("Window:\n(X,Y):(150,160)\n(W,H):(299,199)"));
}

void TestDrawContainerPointer::toolTip_standsBesideTheLowerRightCorner()
{
    m_pointer->drag(centre, QPoint(300, 260)); // to 150, 160
    QVERIFY(toolTip());
    const QRect tip = toolTip()->geometry();
    const QString text = QToolTip::text();
    QToolTip::hideText();
    QTRY_VERIFY(!toolTip());

    // The toolkit keeps its own distance from the point.
    QToolTip::showText(QPoint(150 + 300, 160 + 200 - 20), text, m_window.get());

    QVERIFY(toolTip());
    QCOMPARE(tip, toolTip()->geometry());
}

void TestDrawContainerPointer::toolTip_goesWhenTheMouseIsElsewhere()
{
    m_pointer->drag(centre, QPoint(300, 260));
    QVERIFY(toolTip());

    glideTo(QPoint(300 + 130, 200 + 10)); // just right of its rectangle

    QTRY_VERIFY(!toolTip());
}

void TestDrawContainerPointer::toolTip_staysWhileTheMouseIsOnIt()
{
    m_pointer->drag(centre, QPoint(300, 260));

    glideTo(QPoint(300, 200));
    glideTo(QPoint(300 + 129, 200 + 59));

    // Longer than it takes a tool tip to go.
    QTimer clock;
    QSignalSpy ticks(&clock, &QTimer::timeout);
    clock.start(100);
    QTRY_VERIFY(ticks.count() >= 8);
    QVERIFY(toolTip());
}

void TestDrawContainerPointer::rest()
{
    QVERIFY(m_timer->isActive());
    m_timer->start(0);
    QTRY_VERIFY(!m_timer->isActive());
    m_timer->setInterval(3000);
}

void TestDrawContainerPointer::rest_hidesThePointerUntilItsNextMove()
{
    for (int time = 0; time < 2; ++time) {
        m_pointer->move(centre);
        QCOMPARE(m_window->cursor().shape(), Qt::ArrowCursor);
        rest();
        QCOMPARE(m_window->cursor().shape(), Qt::BlankCursor);
    }
    m_pointer->move(place.topLeft());
    QCOMPARE(m_window->cursor().shape(), Qt::SizeFDiagCursor);
}

void TestDrawContainerPointer::rest_withoutAMoveSinceItCameHidesThePointer()
{
    QEvent enter(QEvent::Enter);
    QCoreApplication::sendEvent(m_window.get(), &enter);
    rest();
    QCOMPARE(m_window->cursor().shape(), Qt::BlankCursor);
}

void TestDrawContainerPointer::rest_whileTheWindowIsHeldKeepsThePointer()
{
    m_pointer->drag(centre, centre + QPoint(10, 0));
    rest();
    QCOMPARE(m_window->cursor().shape(), Qt::PointingHandCursor);
    m_pointer->release(centre + QPoint(10, 0));
    rest();
    QCOMPARE(m_window->cursor().shape(), Qt::BlankCursor);
}

// It may come back while a dialog keeps its moves from the window.
void TestDrawContainerPointer::leaving_keepsThePointerForItsReturn_data()
{
    addRows<bool>("rests", {{"at once", false}, {"after a rest", true}});
}

void TestDrawContainerPointer::leaving_keepsThePointerForItsReturn()
{
    QFETCH(bool, rests);
    m_pointer->move(centre);
    if (rests)
        rest();
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(m_window.get(), &leave);
    QVERIFY(!m_timer->isActive());
    QCOMPARE(m_window->cursor().shape(), Qt::ArrowCursor);
}

void TestDrawContainerPointer::move_beginsTheRestAgain()
{
    m_pointer->move(centre);
    QTRY_VERIFY(m_timer->remainingTime() < 2700);
    m_pointer->move(centre + QPoint(1, 0));
    QVERIFY(m_timer->remainingTime() > 2700);
}

QTEST_MAIN(TestDrawContainerPointer)
#include "tst_drawcontainer_pointer.moc"
