#include "rows.h"
#include "windowdragger.h"

#include <QMouseEvent>
#include <QtTest>

using UX::Widgets::WindowDragger;

Q_DECLARE_METATYPE(Qt::MouseButton)

namespace {

constexpr QPoint start(300, 200);

// A mouse event somewhere on the desktop, as the title bar would see it.
QMouseEvent mouse(QEvent::Type type, const QPoint &global, Qt::MouseButton button,
                  Qt::MouseButtons buttons)
{
    return {type, QPointF(5, 5), QPointF(5, 5), global, button, buttons, Qt::NoModifier};
}

// A window with the dragger under test, and short words for what the mouse does to it.
struct Dragged
{
    Dragged()
    {
        window.setGeometry(start.x(), start.y(), 240, 120);
        window.show();
    }

    bool send(const QMouseEvent &event) { return dragger.handleEvent(&event); }
    bool press(const QPoint &at, Qt::MouseButton button = Qt::LeftButton)
    {
        return send(mouse(QEvent::MouseButtonPress, at, button, button));
    }
    bool moveTo(const QPoint &at, Qt::MouseButtons buttons = Qt::LeftButton)
    {
        return send(mouse(QEvent::MouseMove, at, Qt::NoButton, buttons));
    }
    bool release(const QPoint &at, Qt::MouseButton button = Qt::LeftButton)
    {
        return send(mouse(QEvent::MouseButtonRelease, at, button, Qt::NoButton));
    }

    QWidget window{nullptr, Qt::FramelessWindowHint};
    WindowDragger dragger{&window};
};

const QPoint grip = start + QPoint(17, 9);

} // namespace

class TestWindowDragger : public QObject
{
    Q_OBJECT

private slots:
    void drag_movesByTheMouseDelta_data();
    void drag_movesByTheMouseDelta();
    void drag_endsWithTheRelease();
    void drag_endsWhenTheReleaseWasMissed();
    void otherButtons_doNotDrag_data();
    void otherButtons_doNotDrag();
    void rightReleaseDuringADrag_goesOn();
    void maximisedWindow_isNotDragged();
    void doubleClick_isAnotherPress();
};

void TestWindowDragger::drag_movesByTheMouseDelta_data()
{
    addRows<QPoint>("delta", {{"one pixel", {1, 0}},
                              {"right and down", {130, 57}},
                              {"left and up", {-41, -63}},
                              {"beyond the edge of the screen", {-400, -250}}});
}

void TestWindowDragger::drag_movesByTheMouseDelta()
{
    QFETCH(QPoint, delta);
    Dragged dragged;
    QVERIFY(dragged.press(grip));
    QVERIFY(dragged.moveTo(grip + delta / 2));
    QVERIFY(dragged.moveTo(grip + delta));
    QVERIFY(dragged.release(grip + delta));

    QCOMPARE(dragged.window.pos(), start + delta);
    QCOMPARE(dragged.window.size(), QSize(240, 120));
}

void TestWindowDragger::drag_endsWithTheRelease()
{
    Dragged dragged;
    dragged.press(grip);
    dragged.release(grip);
    QVERIFY(!dragged.moveTo(grip + QPoint(50, 50)));
    QCOMPARE(dragged.window.pos(), start);
}

void TestWindowDragger::drag_endsWhenTheReleaseWasMissed()
{
    Dragged dragged;
    dragged.press(grip);
    QVERIFY(!dragged.moveTo(grip + QPoint(50, 50), Qt::NoButton));
    QVERIFY(!dragged.moveTo(grip + QPoint(60, 60)));
    QCOMPARE(dragged.window.pos(), start);
}

void TestWindowDragger::otherButtons_doNotDrag_data()
{
    addRows<Qt::MouseButton>("button", {{"right", Qt::RightButton}, {"middle", Qt::MiddleButton}});
}

void TestWindowDragger::otherButtons_doNotDrag()
{
    QFETCH(Qt::MouseButton, button);
    Dragged dragged;
    QVERIFY(!dragged.press(grip, button));
    QVERIFY(!dragged.moveTo(grip + QPoint(50, 50), button));
    QVERIFY(!dragged.release(grip + QPoint(50, 50), button));
    QCOMPARE(dragged.window.pos(), start);
}

void TestWindowDragger::rightReleaseDuringADrag_goesOn()
{
    Dragged dragged;
    dragged.press(grip);
    QVERIFY(!dragged.release(grip, Qt::RightButton));
    QVERIFY(dragged.moveTo(grip + QPoint(8, 4)));
    QCOMPARE(dragged.window.pos(), start + QPoint(8, 4));
}

void TestWindowDragger::maximisedWindow_isNotDragged()
{
    Dragged dragged;
    dragged.window.showMaximized();
    const QPoint before = dragged.window.pos();
    QVERIFY(!dragged.press(grip));
    QVERIFY(!dragged.moveTo(grip + QPoint(50, 50)));
    QCOMPARE(dragged.window.pos(), before);
}

void TestWindowDragger::doubleClick_isAnotherPress()
{
    Dragged dragged;
    QVERIFY(dragged.send(mouse(QEvent::MouseButtonDblClick, grip, Qt::LeftButton, Qt::LeftButton)));
    QCOMPARE(dragged.window.geometry(), QRect(start, QSize(240, 120)));
    dragged.moveTo(grip + QPoint(3, 2));
    QCOMPARE(dragged.window.pos(), start + QPoint(3, 2));
}

QTEST_MAIN(TestWindowDragger)
#include "tst_windowdragger.moc"
