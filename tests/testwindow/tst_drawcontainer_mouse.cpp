#include "drawcontainer.h"
#include "rows.h"
#include "scriptedpointer.h"
#include "signallog.h"

#include <QGuiApplication>
#include <QScreen>
#include <QtTest>

#include <memory>

namespace {

// left 200, top 150, right 499, bottom 349
constexpr QRect place(200, 150, 300, 200);

QRect screen()
{
    return QGuiApplication::primaryScreen()->geometry();
}

} // namespace

Q_DECLARE_METATYPE(Qt::MouseButton)

class TestDrawContainerMouse : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void hover_setsTheCursorOfTheBorder_data();
    void hover_setsTheCursorOfTheBorder();
    void hover_withAnotherButtonHeldStillFindsTheBorder();
    void hover_onAWindowSmallerThanTwoMarginsGivesTopAndLeftTheLead();
    void press_ofTheLeftButtonShowsAHand();
    void press_ofAnotherButtonDoesNothing_data();
    void press_ofAnotherButtonDoesNothing();
    void drag_movesTheWindow();
    void drag_roundsThePointersPosition();
    void drag_reportsEachMoveOnce();
    void drag_leavesTheHandUntilTheNextMove();
    void drag_goesOnWhenAnotherButtonIsClicked();
    void resize_movesTheGrabbedBorders_data();
    void resize_movesTheGrabbedBorders();
    void resize_beyondTheDesktopStopsAtTheLargestSize();
    void resize_beforeAnyLimitWasSetEndsAtOnePixel();
    void resize_atTheMinimumHeightCannotPushTheTopDown();
    void resize_atTheMaximumWidthCannotGrow();
    void resize_turnedInsideOutIsIgnored();
    void resize_endsWithTheCursorOfTheBorder();
    void doubleClick_togglesFullScreen_data();
    void doubleClick_togglesFullScreen();
    void doubleClick_thenASmallMoveLeavesTheWindowAlone();
    void fullScreen_ignoresDrags_data();
    void fullScreen_ignoresDrags();

private:
    QPoint offset(int x, int y) const { return m_window->pos() + QPoint(x, y); }

    std::unique_ptr<DrawContainer> m_window;
    std::unique_ptr<ScriptedPointer> m_pointer;
    std::unique_ptr<SignalLog> m_log;
};

void TestDrawContainerMouse::init()
{
    m_window = std::make_unique<DrawContainer>();
    m_pointer = std::make_unique<ScriptedPointer>(m_window.get());
    m_window->slot_setScreenMaxSize(5000, 5000);
    m_window->setGeometry(place);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    m_log = std::make_unique<SignalLog>(m_window.get());
}

void TestDrawContainerMouse::cleanup()
{
    m_log.reset();
    m_pointer.reset();
    m_window.reset();
}

void TestDrawContainerMouse::hover_setsTheCursorOfTheBorder_data()
{
    const Table<QPoint, Qt::CursorShape> row("point", "shape");
    row("top left", {203, 153}, Qt::SizeFDiagCursor);
    row("top", {204, 153}, Qt::SizeVerCursor);
    row("top, right end", {495, 150}, Qt::SizeVerCursor);
    row("top right", {496, 153}, Qt::SizeBDiagCursor);
    row("left", {203, 154}, Qt::SizeHorCursor);
    row("inside, upper left", {204, 154}, Qt::ArrowCursor);
    row("inside, lower right", {495, 345}, Qt::ArrowCursor);
    row("right", {496, 345}, Qt::SizeHorCursor);
    row("bottom left", {200, 346}, Qt::SizeBDiagCursor);
    row("bottom", {204, 346}, Qt::SizeVerCursor);
    row("bottom right", {499, 349}, Qt::SizeFDiagCursor);
}

void TestDrawContainerMouse::hover_setsTheCursorOfTheBorder()
{
    QFETCH(QPoint, point);
    m_window->setCursor(Qt::WaitCursor);

    m_pointer->move(point);

    QTEST(m_window->cursor().shape(), "shape");
    QCOMPARE(m_window->geometry(), place);
}

void TestDrawContainerMouse::hover_withAnotherButtonHeldStillFindsTheBorder()
{
    m_pointer->move(offset(1, 100), Qt::RightButton);

    QCOMPARE(m_window->cursor().shape(), Qt::SizeHorCursor);
    QCOMPARE(m_window->geometry(), place);
}

void TestDrawContainerMouse::hover_onAWindowSmallerThanTwoMarginsGivesTopAndLeftTheLead()
{
    m_window->resize(6, 6);

    m_pointer->move(offset(3, 3)); // near all four
    QCOMPARE(m_window->cursor().shape(), Qt::SizeFDiagCursor);
    m_pointer->drag(offset(3, 3), offset(-10, -20));

    QCOMPARE(m_window->geometry(), QRect(QPoint(190, 130), QPoint(205, 155)));
}

void TestDrawContainerMouse::press_ofTheLeftButtonShowsAHand()
{
    m_pointer->press(offset(100, 100));
    QCOMPARE(m_window->cursor().shape(), Qt::PointingHandCursor);
}

void TestDrawContainerMouse::press_ofAnotherButtonDoesNothing_data()
{
    addRows<Qt::MouseButton>("button", {{"right", Qt::RightButton}, {"middle", Qt::MiddleButton}});
}

void TestDrawContainerMouse::press_ofAnotherButtonDoesNothing()
{
    QFETCH(Qt::MouseButton, button);
    m_pointer->move(offset(100, 100));

    m_pointer->press(offset(100, 100), button);
    QCOMPARE(m_window->cursor().shape(), Qt::ArrowCursor);
    m_pointer->move(offset(130, 140), button);

    QCOMPARE(m_window->geometry(), place);
    QCOMPARE(m_log->take(), QString());
}

void TestDrawContainerMouse::drag_movesTheWindow()
{

    m_pointer->drag(QPoint(350, 250), QPoint(227, 306));

    QCOMPARE(m_window->geometry(), place.translated(-123, 56));
    QCOMPARE(m_log->take(), QStringLiteral("signal_drawWidgetPositionChange(77,206)"));
}

void TestDrawContainerMouse::drag_roundsThePointersPosition()
{
    m_pointer->move(QPointF(350, 250));
    m_pointer->press(QPointF(349.6, 250.4)); // 350, 250
    m_pointer->move(QPointF(360.4, 269.7), Qt::LeftButton); // 360, 270

    QCOMPARE(m_window->pos(), place.topLeft() + QPoint(10, 20));
}

void TestDrawContainerMouse::drag_reportsEachMoveOnce()
{

    m_pointer->drag(QPoint(350, 250), QPoint(351, 250));
    m_pointer->move(QPoint(340, 230), Qt::LeftButton);
    m_pointer->move(QPoint(-60, -150), Qt::LeftButton);
    m_pointer->release(QPoint(-60, -150));

    QCOMPARE(m_log->take(), QStringLiteral("signal_drawWidgetPositionChange(201,150) "
                                           "signal_drawWidgetPositionChange(190,130) "
                                           "signal_drawWidgetPositionChange(-210,-250)"));
    QCOMPARE(m_window->pos(), QPoint(-210, -250));
}

void TestDrawContainerMouse::drag_leavesTheHandUntilTheNextMove()
{
    m_pointer->drag(QPoint(350, 250), QPoint(360, 250));
    m_pointer->release(QPoint(360, 250));
    QCOMPARE(m_window->cursor().shape(), Qt::PointingHandCursor);

    m_pointer->move(QPoint(361, 250));
    QCOMPARE(m_window->cursor().shape(), Qt::ArrowCursor);
}

void TestDrawContainerMouse::drag_goesOnWhenAnotherButtonIsClicked()
{
    m_pointer->drag(QPoint(350, 250), QPoint(360, 250));
    m_pointer->release(QPoint(360, 250), Qt::RightButton, Qt::LeftButton);

    m_pointer->move(QPoint(380, 260), Qt::LeftButton);

    QCOMPARE(m_window->geometry(), place.translated(30, 10));
}

void TestDrawContainerMouse::resize_movesTheGrabbedBorders_data()
{
    const auto rect = [](int left, int top, int right, int bottom) {
        return QRect(QPoint(left, top), QPoint(right, bottom));
    };
    // A border goes to the pointer itself, wherever it was gripped.
    const Table<QPoint, QPoint, QRect> row("grip", "to", "result");
    row("top", {350, 152}, {340, 120}, rect(200, 120, 499, 349));
    row("bottom", {350, 347}, {340, 380}, rect(200, 150, 499, 380));
    row("left", {202, 250}, {220, 260}, rect(220, 150, 499, 349));
    row("right", {497, 250}, {470, 260}, rect(200, 150, 470, 349));
    row("top left", {200, 150}, {180, 190}, rect(180, 190, 499, 349));
    row("top right", {498, 151}, {520, 130}, rect(200, 130, 520, 349));
    row("bottom left", {201, 348}, {190, 360}, rect(190, 150, 499, 360));
    row("bottom right", {499, 349}, {520, 300}, rect(200, 150, 520, 300));
}

void TestDrawContainerMouse::resize_movesTheGrabbedBorders()
{
    QFETCH(QPoint, grip);
    QFETCH(QPoint, to);
    QFETCH(QRect, result);

    m_pointer->drag(grip, QPointF(to) + QPointF(0.3, -0.3));

    QCOMPARE(m_window->geometry(), result);
    QCOMPARE(m_log->take(), QStringLiteral("signal_drawWidgetSizeChange(%1,%2)")
                                .arg(result.width())
                                .arg(result.height()));
}

void TestDrawContainerMouse::resize_beyondTheDesktopStopsAtTheLargestSize()
{
    m_window->slot_setScreenMaxSize(350, 220);

    m_pointer->drag(QPoint(499, 349), QPoint(700, 700));

    QCOMPARE(m_window->geometry(), QRect(place.topLeft(), QPoint(200 + 350, 150 + 220)));
    QVERIFY(m_log->take().endsWith(QStringLiteral("signal_drawWidgetSizeChange(351,221)")));
}

void TestDrawContainerMouse::resize_beforeAnyLimitWasSetEndsAtOnePixel()
{
    // The limit at the start is the empty window's own size.
    DrawContainer fresh;
    ScriptedPointer pointer(&fresh);
    fresh.setGeometry(place);
    fresh.show();
    QVERIFY(QTest::qWaitForWindowExposed(&fresh));

    pointer.drag(QPoint(499, 349), QPoint(510, 360));

    QCOMPARE(fresh.geometry(), QRect(place.topLeft(), QSize(1, 1)));
}

void TestDrawContainerMouse::resize_atTheMinimumHeightCannotPushTheTopDown()
{
    m_window->setMinimumHeight(place.height());

    m_pointer->drag(QPoint(350, 150), QPoint(350, 170));
    QCOMPARE(m_window->geometry(), place);

    m_pointer->move(QPoint(350, 140), Qt::LeftButton);
    QCOMPARE(m_window->geometry(), place.adjusted(0, -10, 0, 0));
}

void TestDrawContainerMouse::resize_atTheMaximumWidthCannotGrow()
{
    m_window->setMaximumWidth(place.width());

    m_pointer->drag(QPoint(200, 250), QPoint(180, 250));
    QCOMPARE(m_window->geometry(), place);

    m_pointer->move(QPoint(210, 250), Qt::LeftButton);
    QCOMPARE(m_window->geometry(), place.adjusted(10, 0, 0, 0));
}

void TestDrawContainerMouse::resize_turnedInsideOutIsIgnored()
{

    m_pointer->drag(QPoint(350, 150), QPoint(350, 360));
    QCOMPARE(m_window->geometry(), place);
    QCOMPARE(m_log->take(), QString());

    m_pointer->move(QPoint(350, 349), Qt::LeftButton);
    QCOMPARE(m_window->geometry(), QRect(200, 349, 300, 1));
}

void TestDrawContainerMouse::resize_endsWithTheCursorOfTheBorder()
{
    m_pointer->drag(QPoint(498, 250), QPoint(520, 250));
    QCOMPARE(m_window->cursor().shape(), Qt::PointingHandCursor);

    m_pointer->release(QPoint(520, 250));
    QCOMPARE(m_window->cursor().shape(), Qt::SizeHorCursor);
}

void TestDrawContainerMouse::doubleClick_togglesFullScreen_data()
{
    addRows<Qt::MouseButton>(
        "button",
        {{"left", Qt::LeftButton}, {"right", Qt::RightButton}, {"middle", Qt::MiddleButton}});
}

void TestDrawContainerMouse::doubleClick_togglesFullScreen()
{
    QFETCH(Qt::MouseButton, button);

    m_pointer->doubleClick(QPoint(350, 250), button);
    QCOMPARE(m_window->windowState(), Qt::WindowFullScreen);
    QTRY_COMPARE(m_window->geometry(), screen());
    m_pointer->release(QPoint(350, 250), button);

    m_pointer->doubleClick(QPoint(350, 250), button);
    QCOMPARE(m_window->windowState(), Qt::WindowNoState);
    QTRY_COMPARE(m_window->geometry(), place);
}

void TestDrawContainerMouse::doubleClick_thenASmallMoveLeavesTheWindowAlone()
{

    m_pointer->doubleClick(QPoint(350, 250));
    QTRY_COMPARE(m_window->geometry(), screen());
    m_pointer->move(QPoint(352, 251), Qt::LeftButton);
    QCOMPARE(m_window->geometry(), screen());
    m_pointer->release(QPoint(352, 251));

    m_pointer->doubleClick(QPoint(352, 251));
    QTRY_COMPARE(m_window->geometry(), place);
    m_pointer->move(QPoint(354, 252), Qt::LeftButton);
    QCOMPARE(m_window->geometry(), place);
    m_pointer->release(QPoint(354, 252));

    QCOMPARE(m_log->take(), QString());
    // The next drag is an ordinary one.
    m_pointer->drag(QPoint(350, 250), QPoint(360, 250));
    QCOMPARE(m_window->geometry(), place.translated(10, 0));
}

void TestDrawContainerMouse::fullScreen_ignoresDrags_data()
{
    addRows<QPoint>("grip", {{"inside", screen().center()},
                             {"left border", {0, screen().center().y()}},
                             {"lower right corner", screen().bottomRight()}});
}

void TestDrawContainerMouse::fullScreen_ignoresDrags()
{
    QFETCH(QPoint, grip);
    m_window->slot_keyShiftFPressed();
    QTRY_COMPARE(m_window->geometry(), screen());

    m_pointer->drag(grip, QPoint(300, 310));
    m_pointer->release(QPoint(300, 310));

    QCOMPARE(m_window->geometry(), screen());
    QCOMPARE(m_window->windowState(), Qt::WindowFullScreen);
    QCOMPARE(m_log->take(), QString());
    m_window->slot_keyShiftFPressed();
    QTRY_COMPARE(m_window->geometry(), place);
}

QTEST_MAIN(TestDrawContainerMouse)
#include "tst_drawcontainer_mouse.moc"
