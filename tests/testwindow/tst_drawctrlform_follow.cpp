#include "drawcontainer.h"
#include "placementpanel.h"
#include "scriptedpointer.h"

#include <QtTest>

// The panel between the keys and the mouse, which both place the test window.
class TestDrawCtrlFormFollow : public QObject
{
    Q_OBJECT

private slots:
    void keys_stepByOnePixelAndStop_data();
    void keys_stepByOnePixelAndStop();
    void sizeChange_setsTheSlidersAndLeavesTheWindowAlone();
    void positionChange_setsTheSlidersAndLeavesTheWindowAlone();
    void keys_goOnFromWhereTheMouseLeft();
    void mouse_onTheTestWindowIsFollowed_data();
    void mouse_onTheTestWindowIsFollowed();
    void fullScreen_isLeftAloneUntilItEnds();
    void fullScreen_endsWhereItBegan();
};

void TestDrawCtrlFormFollow::keys_stepByOnePixelAndStop_data()
{
    QTest::addColumn<QByteArray>("key");
    QTest::addColumn<QString>("axis");
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");
    const int w = desktopSums().width();
    const int h = desktopSums().height();
    const auto add = [](const char *row, const char *key, int axis, int from, int to) {
        QTest::newRow(row) << QByteArray(key) << placementAxes().at(axis) << from << to;
    };

    add("Shift+Up", "slot_keyShiftUpPressed", 3, 300, 299);
    add("Shift+Up to height 1", "slot_keyShiftUpPressed", 3, 2, 1);
    add("Shift+Up at height 1 does nothing", "slot_keyShiftUpPressed", 3, 1, 1);
    add("Shift+Down", "slot_keyShiftDownPressed", 3, 300, 301);
    add("Shift+Down to the maximum", "slot_keyShiftDownPressed", 3, h - 1, h);
    add("Shift+Down at the maximum does nothing", "slot_keyShiftDownPressed", 3, h, h);
    add("Shift+Left", "slot_keyShiftLeftPressed", 2, 300, 299);
    add("Shift+Left to width 1", "slot_keyShiftLeftPressed", 2, 2, 1);
    add("Shift+Left at width 1 does nothing", "slot_keyShiftLeftPressed", 2, 1, 1);
    add("Shift+Right", "slot_keyShiftRightPressed", 2, 300, 301);
    add("Shift+Right to the maximum", "slot_keyShiftRightPressed", 2, w - 1, w);
    add("Shift+Right at the maximum does nothing", "slot_keyShiftRightPressed", 2, w, w);
    add("Ctrl+Up", "slot_keyCtrlUpPressed", 1, 0, -1);
    add("Ctrl+Up to the minimum", "slot_keyCtrlUpPressed", 1, 2 - h, 1 - h);
    add("Ctrl+Up at the minimum does nothing", "slot_keyCtrlUpPressed", 1, 1 - h, 1 - h);
    add("Ctrl+Down", "slot_keyCtrlDownPressed", 1, -1, 0);
    add("Ctrl+Down at the maximum does nothing", "slot_keyCtrlDownPressed", 1, h - 1, h - 1);
    add("Ctrl+Left", "slot_keyCtrlLeftPressed", 0, 5, 4);
    add("Ctrl+Left at the minimum does nothing", "slot_keyCtrlLeftPressed", 0, 1 - w, 1 - w);
    add("Ctrl+Right", "slot_keyCtrlRightPressed", 0, -7, -6);
    add("Ctrl+Right to the maximum", "slot_keyCtrlRightPressed", 0, w - 2, w - 1);
    add("Ctrl+Right at the maximum does nothing", "slot_keyCtrlRightPressed", 0, w - 1, w - 1);
}

void TestDrawCtrlFormFollow::keys_stepByOnePixelAndStop()
{
    QFETCH(QByteArray, key);
    QFETCH(QString, axis);
    QFETCH(int, from);
    QFETCH(int, to);
    const PlacementPanel panel;
    panel.slider(axis)->setValue(from);

    QVERIFY(QMetaObject::invokeMethod(panel.form.get(), key.constData()));

    QCOMPARE(panel.slider(axis)->value(), to);
    QRect expected(0, 0, 200, 200);
    if (axis == QLatin1String("X"))
        expected.moveLeft(to);
    else if (axis == QLatin1String("Y"))
        expected.moveTop(to);
    else if (axis == QLatin1String("Width"))
        expected.setWidth(to);
    else
        expected.setHeight(to);
    QCOMPARE(panel.target.geometry(), expected);
}

void TestDrawCtrlFormFollow::sizeChange_setsTheSlidersAndLeavesTheWindowAlone()
{
    PlacementPanel panel;
    panel.target.show(); // a hidden window hears of its changes later
    panel.target.resize(345, 234);
    PlacementCounter counter(&panel.target);

    panel.form->slot_drawWidgetSizeChange(345, 234);

    QCOMPARE(panel.controls(), QRect(0, 0, 345, 234));
    QCOMPARE(panel.spinBox(QStringLiteral("Width"))->value(), 345);
    QCOMPARE(panel.spinBox(QStringLiteral("Height"))->value(), 234);
    QCOMPARE(panel.target.geometry(), QRect(0, 0, 345, 234));
    QCOMPARE(counter.changes, 0);
}

void TestDrawCtrlFormFollow::positionChange_setsTheSlidersAndLeavesTheWindowAlone()
{
    PlacementPanel panel;
    panel.target.show(); // a hidden window hears of its changes later
    panel.target.move(-31, 77);
    PlacementCounter counter(&panel.target);

    panel.form->slot_drawWidgetPositionChange(-31, 77);

    QCOMPARE(panel.controls(), QRect(-31, 77, 200, 200));
    QCOMPARE(panel.spinBox(QStringLiteral("X"))->value(), -31);
    QCOMPARE(panel.spinBox(QStringLiteral("Y"))->value(), 77);
    QCOMPARE(panel.target.geometry(), QRect(-31, 77, 200, 200));
    QCOMPARE(counter.changes, 0);
}

void TestDrawCtrlFormFollow::keys_goOnFromWhereTheMouseLeft()
{
    PlacementPanel panel;
    panel.target.setGeometry(40, 50, 345, 234);
    panel.form->slot_drawWidgetPositionChange(40, 50);
    panel.form->slot_drawWidgetSizeChange(345, 234);

    panel.form->slot_keyShiftRightPressed();
    QCOMPARE(panel.target.geometry(), QRect(40, 50, 346, 234));
    panel.form->slot_keyCtrlDownPressed();
    QCOMPARE(panel.target.geometry(), QRect(40, 51, 346, 234));
}

void TestDrawCtrlFormFollow::mouse_onTheTestWindowIsFollowed_data()
{
    QTest::addColumn<QPoint>("grip");
    QTest::addColumn<QPoint>("to");
    QTest::addColumn<QRect>("result");
    const auto rect = [](int left, int top, int right, int bottom) {
        return QRect(QPoint(left, top), QPoint(right, bottom));
    };

    QTest::newRow("inside") << QPoint(100, 100) << QPoint(140, 90) << QRect(40, -10, 200, 200);
    QTest::newRow("top left") << QPoint(0, 0) << QPoint(-20, 30) << rect(-20, 30, 199, 199);
    QTest::newRow("top") << QPoint(100, 0) << QPoint(90, 30) << rect(0, 30, 199, 199);
    QTest::newRow("top right") << QPoint(199, 0) << QPoint(220, 30) << rect(0, 30, 220, 199);
    QTest::newRow("left") << QPoint(0, 100) << QPoint(-20, 30) << rect(-20, 0, 199, 199);
    QTest::newRow("right") << QPoint(199, 100) << QPoint(180, 30) << rect(0, 0, 180, 199);
    QTest::newRow("bottom left") << QPoint(0, 199) << QPoint(10, 230) << rect(10, 0, 199, 230);
    QTest::newRow("bottom") << QPoint(100, 199) << QPoint(10, 230) << rect(0, 0, 199, 230);
    QTest::newRow("bottom right") << QPoint(199, 199) << QPoint(210, 230) << rect(0, 0, 210, 230);
}

void TestDrawCtrlFormFollow::mouse_onTheTestWindowIsFollowed()
{
    QFETCH(QPoint, grip);
    QFETCH(QPoint, to);
    QFETCH(QRect, result);
    DrawContainer window;
    ScriptedPointer pointer(&window);
    PlacementPanel panel;
    panel.form = std::make_unique<DrawCtrlForm>(&window, nullptr, nullptr);
    connect(&window, &DrawContainer::signal_drawWidgetSizeChange, panel.form.get(),
            &DrawCtrlForm::slot_drawWidgetSizeChange);
    connect(&window, &DrawContainer::signal_drawWidgetPositionChange, panel.form.get(),
            &DrawCtrlForm::slot_drawWidgetPositionChange);
    connect(panel.form.get(), &DrawCtrlForm::signal_screenMaxSizeChanged, &window,
            &DrawContainer::slot_setScreenMaxSize);
    panel.form->getScreenSize();
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QCOMPARE(window.geometry(), QRect(0, 0, 200, 200));

    pointer.drag(grip, to);

    QCOMPARE(window.geometry(), result);
    QCOMPARE(panel.controls(), result);
}

void TestDrawCtrlFormFollow::fullScreen_isLeftAloneUntilItEnds()
{
    PlacementPanel panel;
    panel.target.show();
    panel.target.showFullScreen();
    QTRY_COMPARE(panel.target.size(), QGuiApplication::primaryScreen()->size());
    const QRect wholeScreen = panel.target.geometry();
    PlacementCounter counter(&panel.target);

    panel.x()->setValue(50);
    panel.height()->setValue(60);
    panel.form->slot_keyShiftLeftPressed();
    QCoreApplication::processEvents();
    QCOMPARE(panel.target.geometry(), wholeScreen);
    QCOMPARE(counter.changes, 0);

    panel.target.showNormal();
    QTRY_COMPARE(panel.target.geometry(), QRect(50, 0, 199, 60));
    QCOMPARE(panel.controls(), QRect(50, 0, 199, 60));
}

void TestDrawCtrlFormFollow::fullScreen_endsWhereItBegan()
{
    PlacementPanel panel;
    panel.x()->setValue(-20);
    panel.width()->setValue(300);
    panel.target.show();

    panel.target.showFullScreen();
    QTRY_COMPARE(panel.target.size(), QGuiApplication::primaryScreen()->size());
    QCOMPARE(panel.controls(), QRect(-20, 0, 300, 200));
    panel.target.showNormal();

    QTRY_COMPARE(panel.target.geometry(), QRect(-20, 0, 300, 200));
    QCOMPARE(panel.controls(), QRect(-20, 0, 300, 200));
}

QTEST_MAIN(TestDrawCtrlFormFollow)
#include "tst_drawctrlform_follow.moc"
