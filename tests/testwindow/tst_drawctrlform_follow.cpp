#include "drawcontainer.h"
#include "placementrig.h"
#include "rows.h"
#include "scriptedpointer.h"

#include <QtTest>

// The panel between the keys and the mouse, which both place the test window.
class TestDrawCtrlFormFollow : public QObject
{
    Q_OBJECT

private slots:
    void keys_stepByOnePixelAndStop_data();
    void keys_stepByOnePixelAndStop();
    void changeByTheMouse_setsTheControlsAndLeavesTheWindowAlone();
    void keys_goOnFromWhereTheMouseLeft();
    void mouse_onTheTestWindowIsFollowed_data();
    void mouse_onTheTestWindowIsFollowed();
    void fullScreen_isLeftAloneUntilItEnds();
};

void TestDrawCtrlFormFollow::keys_stepByOnePixelAndStop_data()
{
    const int w = desktopSums().width();
    const int h = desktopSums().height();
    const Table<QByteArray, int, int, int> row("key", "axis", "from", "to");
    row("Shift+Up", "slot_keyShiftUpPressed", 3, 300, 299);
    row("Shift+Up to height 1", "slot_keyShiftUpPressed", 3, 2, 1);
    row("Shift+Up at height 1 does nothing", "slot_keyShiftUpPressed", 3, 1, 1);
    row("Shift+Down", "slot_keyShiftDownPressed", 3, 300, 301);
    row("Shift+Down to the maximum", "slot_keyShiftDownPressed", 3, h - 1, h);
    row("Shift+Down at the maximum does nothing", "slot_keyShiftDownPressed", 3, h, h);
    row("Shift+Left", "slot_keyShiftLeftPressed", 2, 300, 299);
    row("Shift+Left to width 1", "slot_keyShiftLeftPressed", 2, 2, 1);
    row("Shift+Left at width 1 does nothing", "slot_keyShiftLeftPressed", 2, 1, 1);
    row("Shift+Right", "slot_keyShiftRightPressed", 2, 300, 301);
    row("Shift+Right to the maximum", "slot_keyShiftRightPressed", 2, w - 1, w);
    row("Shift+Right at the maximum does nothing", "slot_keyShiftRightPressed", 2, w, w);
    row("Ctrl+Up", "slot_keyCtrlUpPressed", 1, 0, -1);
    row("Ctrl+Up to the minimum", "slot_keyCtrlUpPressed", 1, 2 - h, 1 - h);
    row("Ctrl+Up at the minimum does nothing", "slot_keyCtrlUpPressed", 1, 1 - h, 1 - h);
    row("Ctrl+Down", "slot_keyCtrlDownPressed", 1, -1, 0);
    row("Ctrl+Down at the maximum does nothing", "slot_keyCtrlDownPressed", 1, h - 1, h - 1);
    row("Ctrl+Left", "slot_keyCtrlLeftPressed", 0, 5, 4);
    row("Ctrl+Left at the minimum does nothing", "slot_keyCtrlLeftPressed", 0, 1 - w, 1 - w);
    row("Ctrl+Right", "slot_keyCtrlRightPressed", 0, -7, -6);
    row("Ctrl+Right to the maximum", "slot_keyCtrlRightPressed", 0, w - 2, w - 1);
    row("Ctrl+Right at the maximum does nothing", "slot_keyCtrlRightPressed", 0, w - 1, w - 1);
}

void TestDrawCtrlFormFollow::keys_stepByOnePixelAndStop()
{
    QFETCH(QByteArray, key);
    QFETCH(int, axis);
    QFETCH(int, from);
    QFETCH(int, to);
    const PlacementRig rig;
    QSlider *slider = rig.slider(placementAxes().at(axis));
    slider->setValue(from);

    QVERIFY(QMetaObject::invokeMethod(rig.panel.get(), key.constData()));

    QCOMPARE(slider->value(), to);
    int expected[] = {0, 0, 256, 256};
    expected[axis] = to;
    QCOMPARE(rig.canvas.geometry(), QRect(expected[0], expected[1], expected[2], expected[3]));
}

void TestDrawCtrlFormFollow::changeByTheMouse_setsTheControlsAndLeavesTheWindowAlone()
{
    PlacementRig rig;
    const QRect placement(-31, 77, 345, 234);
    rig.canvas.setGeometry(placement);
    PlacementCounter counter(&rig.canvas);

    rig.panel->slot_drawWidgetSizeChange(345, 234);
    QCOMPARE(rig.controls().size(), placement.size());
    rig.panel->slot_drawWidgetPositionChange(-31, 77);
    QCOMPARE(rig.controls(), placement);

    QList<int> spinBoxes;
    for (const QString &axis : placementAxes())
        spinBoxes << rig.spinBox(axis)->value();
    QCOMPARE(spinBoxes, (QList<int>{-31, 77, 345, 234}));
    QCOMPARE(rig.canvas.geometry(), placement);
    QCOMPARE(counter.changes, 0);
}

void TestDrawCtrlFormFollow::keys_goOnFromWhereTheMouseLeft()
{
    PlacementRig rig;
    rig.canvas.setGeometry(40, 50, 345, 234);
    rig.panel->slot_drawWidgetPositionChange(40, 50);
    rig.panel->slot_drawWidgetSizeChange(345, 234);

    rig.panel->slot_keyShiftRightPressed();
    QCOMPARE(rig.canvas.geometry(), QRect(40, 50, 346, 234));
    rig.panel->slot_keyCtrlDownPressed();
    QCOMPARE(rig.canvas.geometry(), QRect(40, 51, 346, 234));
}

void TestDrawCtrlFormFollow::mouse_onTheTestWindowIsFollowed_data()
{
    const auto rect = [](int left, int top, int right, int bottom) {
        return QRect(QPoint(left, top), QPoint(right, bottom));
    };
    const Table<QPoint, QPoint, QRect> row("grip", "to", "result");
    row("inside", {100, 100}, {140, 90}, {40, -10, 200, 200});
    row("top left", {0, 0}, {-20, 30}, rect(-20, 30, 199, 199));
    row("top", {100, 0}, {90, 30}, rect(0, 30, 199, 199));
    row("top right", {199, 0}, {220, 30}, rect(0, 30, 220, 199));
    row("left", {0, 100}, {-20, 30}, rect(-20, 0, 199, 199));
    row("right", {199, 100}, {180, 30}, rect(0, 0, 180, 199));
    row("bottom left", {0, 199}, {10, 230}, rect(10, 0, 199, 230));
    row("bottom", {100, 199}, {10, 230}, rect(0, 0, 199, 230));
    row("bottom right", {199, 199}, {210, 230}, rect(0, 0, 210, 230));
}

void TestDrawCtrlFormFollow::mouse_onTheTestWindowIsFollowed()
{
    QFETCH(QPoint, grip);
    QFETCH(QPoint, to);
    QFETCH(QRect, result);
    DrawContainer window;
    ScriptedPointer pointer(&window);
    PlacementRig rig;
    rig.panel = std::make_unique<DrawCtrlForm>(&window, nullptr, nullptr);
    connect(&window, &DrawContainer::signal_drawWidgetSizeChange, rig.panel.get(),
            &DrawCtrlForm::slot_drawWidgetSizeChange);
    connect(&window, &DrawContainer::signal_drawWidgetPositionChange, rig.panel.get(),
            &DrawCtrlForm::slot_drawWidgetPositionChange);
    connect(rig.panel.get(), &DrawCtrlForm::signal_screenMaxSizeChanged, &window,
            &DrawContainer::slot_setScreenMaxSize);
    rig.panel->getScreenSize();
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QCOMPARE(window.geometry(), QRect(0, 0, 200, 200));

    pointer.drag(grip, to);

    QCOMPARE(window.geometry(), result);
    QCOMPARE(rig.controls(), result);
}

void TestDrawCtrlFormFollow::fullScreen_isLeftAloneUntilItEnds()
{
    for (const bool isChanged : {true, false}) {
        PlacementRig rig;
        rig.x()->setValue(-20);
        rig.width()->setValue(300);
        rig.canvas.showFullScreen();
        QTRY_COMPARE(rig.canvas.size(), QGuiApplication::primaryScreen()->size());
        QCOMPARE(rig.controls(), QRect(-20, 0, 300, 256));
        const QRect wholeScreen = rig.canvas.geometry();
        PlacementCounter counter(&rig.canvas);
        if (isChanged) {
            rig.x()->setValue(50);
            rig.height()->setValue(60);
            rig.panel->slot_keyShiftLeftPressed();
        }
        QCoreApplication::processEvents();
        QCOMPARE(rig.canvas.geometry(), wholeScreen);
        QCOMPARE(counter.changes, 0);

        rig.canvas.showNormal();
        const QRect expected = isChanged ? QRect(50, 0, 299, 60) : QRect(-20, 0, 300, 256);
        QTRY_COMPARE(rig.canvas.geometry(), expected);
        QCOMPARE(rig.controls(), expected);
    }
}

QTEST_MAIN(TestDrawCtrlFormFollow)
#include "tst_drawctrlform_follow.moc"
