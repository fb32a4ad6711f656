#include "drawcontainer.h"
#include "drawctrlform.h"
#include "gradualchangectrlwidget.h"
#include "mainwindowrig.h"
#include "rows.h"
#include "scrgridctrldialog.h"
#include "scriptedpointer.h"
#include "scrpurityctrldialog.h"

#include <QAbstractButton>
#include <QImage>
#include <QKeyEvent>
#include <QSlider>
#include <QSpinBox>
#include <QTabWidget>
#include <QTest>
#include <QTimer>

#include <utility>

Q_DECLARE_METATYPE(QVector<int>)

namespace {

// A start makes it a square.
const QVariantMap placed{{QStringLiteral("testWindowPointX"), 50},
                         {QStringLiteral("testWindowPointY"), 60},
                         {QStringLiteral("testWindowWidth"), 200},
                         {QStringLiteral("testWindowHeight"), 200}};

} // namespace

// What the panels, the keys and the test window tell one another, and on which tab.
class TestMainWindowConnections : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { m_rig.end(); }

    void chosenColour_reachesTheOtherPanels_data();
    void chosenColour_reachesTheOtherPanels();
    void overlay_listensToTheTabsPanel_data();
    void overlay_listensToTheTabsPanel();
    void overlay_listensToTheGridsTestsOnAnyTab();
    void arrowKeys_belongToTheTab_data();
    void arrowKeys_belongToTheTab();
    void shiftAndCtrlArrows_stepTheTestWindow_data();
    void shiftAndCtrlArrows_stepTheTestWindow();
    void shiftH_hidesAndShowsTheTestWindowWhichReportsIt();
    void shiftF_togglesTheFullScreen();
    void pageUp_jumpsIntoTheWalk();
    void keysOfTheTestWindow_areTheProgramsToo();
    void geometryThatTheTestWindowReports_isShownByThePlacementPanel();
    void draggedBorder_mayGoAsFarAsTheScreen();
    void homeAndEnd_showAndHideTheHints();
    void insertAndDelete_rampTheGridsGrey();
    void insertAndDelete_startAndTurnThePurityRun();
    void stepOfTheGrid_stopsThePurityRun();
    void pageKey_stopsThePurityRunAndLetsTheGridGoOn();
    void startOfThePurityRun_stopsTheGrid();

private:
    bool panelSays(bool visible);
    QWidget *panel(int tab) { return m_rig.tabs()->widget(tab); }
    ScrPurityCtrlDialog *purity() { return m_rig.find<ScrPurityCtrlDialog>(); }
    ScrGridCtrlDialog *grid() { return m_rig.find<ScrGridCtrlDialog>(); }
    void visit(const QVector<int> &tabs);
    void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    QRect shownPlacement();
    void tellGreen7(int tab);
    void startPurityRun();
    bool isPurityRunning();

    MainWindowRig m_rig;
};

void TestMainWindowConnections::visit(const QVector<int> &tabs)
{
    for (const int tab : tabs)
        m_rig.tabs()->setCurrentIndex(tab);
}

void TestMainWindowConnections::press(int key, Qt::KeyboardModifiers modifiers)
{
    QKeyEvent event(QEvent::KeyPress, key, modifiers);
    m_rig.window().slot_keyPressed(&event);
}

QRect TestMainWindowConnections::shownPlacement()
{
    const auto value = [this](const char *name) { return m_rig.find<QSpinBox>(name)->value(); };
    return {value("spinBoxX"), value("spinBoxY"), value("spinBoxWidth"), value("spinBoxHeight")};
}

// Has a tab's panel announce the colour green and the grey level 7.
void TestMainWindowConnections::tellGreen7(int tab)
{
    const auto tell = [](auto *panel, auto colorSignal) {
        emit(panel->*colorSignal)(Qt::green);
        emit panel->signal_greyChanged(QStringLiteral("7"));
    };
    if (tab == 1)
        tell(purity(), &ScrPurityCtrlDialog::signal_colorChanged);
    else if (tab == 2)
        tell(m_rig.find<GradualChangeCtrlWidget>(),
             &GradualChangeCtrlWidget::signal_selectColorChanged);
    else
        tell(grid(), &ScrGridCtrlDialog::signal_colorChanged);
}

void TestMainWindowConnections::startPurityRun()
{
    m_rig.start({{QStringLiteral("AutoTest"), true}});
    purity()->slot_PauseResume();
    QVERIFY(isPurityRunning());
}

bool TestMainWindowConnections::isPurityRunning()
{
    const auto *timer = purity()->findChild<QTimer *>(QString(), Qt::FindDirectChildrenOnly);
    return timer && timer->isActive();
}

void TestMainWindowConnections::chosenColour_reachesTheOtherPanels_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");
    for (int from = 1; from <= 3; ++from) {
        for (int to = 1; to <= 3; ++to) {
            if (from != to)
                QTest::addRow("tab %d to tab %d", from, to) << from << to;
        }
    }
}

// Without the third panel, which would pass the colour on.
void TestMainWindowConnections::chosenColour_reachesTheOtherPanels()
{
    QFETCH(const int, from);
    QFETCH(const int, to);
    m_rig.start();
    panel(6 - from - to)->blockSignals(true);
    const auto green = [this](int tab) {
        return panel(tab)->findChild<QAbstractButton *>(QStringLiteral("radioButtonGreen"));
    };
    QVERIFY(!green(to)->isChecked());
    green(from)->click();
    QVERIFY(green(to)->isChecked());
}

void TestMainWindowConnections::overlay_listensToTheTabsPanel_data()
{
    const Table<QVector<int>, QVector<int>> row("visited", "heard");
    row("before any change of the tab", QVector<int>{}, QVector<int>{1, 2, 3});
    for (int tab = 1; tab <= 3; ++tab) {
        QTest::addRow("tab %d", tab) << QVector<int>{tab} << QVector<int>{tab};
        QTest::addRow("tab %d again", tab)
            << QVector<int>{tab, tab % 3 + 1, tab} << QVector<int>{tab};
    }
    for (const int tab : {0, 4, 5, 6})
        QTest::addRow("tab %d after tab 2", tab) << QVector<int>{2, tab} << QVector<int>{2};
}

void TestMainWindowConnections::overlay_listensToTheTabsPanel()
{
    QFETCH(const QVector<int>, visited);
    QFETCH(const QVector<int>, heard);
    for (int teller = 1; teller <= 3; ++teller) {
        MainWindow &window = m_rig.start();
        visit(visited);
        emit window.signal_colorChanged(Qt::red);
        emit window.signal_greyChanged(QStringLiteral("0"));
        for (int other = 1; other <= 3; ++other)
            panel(other)->blockSignals(other != teller); // they would pass the colour on
        tellGreen7(teller);
        QVERIFY(MainWindowRig::overlaySays(heard.contains(teller) ? QStringLiteral("绿:7")
                                                                  : QStringLiteral("红:0")));
    }
}

void TestMainWindowConnections::overlay_listensToTheGridsTestsOnAnyTab()
{
    m_rig.start();
    for (int tab = 0; tab < m_rig.tabs()->count(); ++tab) {
        visit({tab});
        emit grid()->signal_oldMixColorChanged(tab % 2 == 0 ? Qt::blue : Qt::cyan);
        QVERIFY(MainWindowRig::overlaySays(tab % 2 == 0 ? QStringLiteral("蓝:255")
                                                        : QStringLiteral("青:255")));
    }
}

void TestMainWindowConnections::arrowKeys_belongToTheTab_data()
{
    const Table<int, QVector<int>> row("saved", "visited");
    for (int tab = 0; tab <= 4; ++tab)
        QTest::addRow("saved %d", tab) << tab << QVector<int>{};
    for (int tab = 0; tab <= 6; ++tab) {
        for (const int before : {1, 3}) {
            if (tab != before)
                QTest::addRow("%d after %d", tab, before) << 0 << QVector<int>{before, tab};
        }
    }
    row("0 after a saved 1", 1, QVector<int>{0});
    row("0 after a saved 3", 3, QVector<int>{0});
}

void TestMainWindowConnections::arrowKeys_belongToTheTab()
{
    QFETCH(const int, saved);
    QFETCH(const QVector<int>, visited);
    m_rig.start({{QStringLiteral("currentTabIndex"), saved},
                 {QStringLiteral("testPurityGreyLevel"), 100},
                 {QStringLiteral("gridGreyLevel"), 100}});
    visit(visited);
    grid()->enableAdvanceSettings();
    const int tab = m_rig.tabs()->currentIndex();
    const std::pair<Qt::Key, int> steps[] = {
        {Qt::Key_Up, 101}, {Qt::Key_Left, 100}, {Qt::Key_Down, 99}, {Qt::Key_Right, 100}};
    for (const auto &[key, grey] : steps) {
        press(key);
        QCOMPARE(m_rig.find<QSlider>("hScrollBarScale")->value(), tab == 1 ? grey : 100);
        QCOMPARE(m_rig.find<QSlider>("hScrollBarGrayLevel")->value(), tab == 3 ? grey : 100);
    }
}

void TestMainWindowConnections::shiftAndCtrlArrows_stepTheTestWindow_data()
{
    const Table<int, bool, QRect> row("key", "shift", "placement");
    row("lower", Qt::Key_Up, true, {50, 60, 200, 199});
    row("higher", Qt::Key_Down, true, {50, 60, 200, 201});
    row("narrower", Qt::Key_Left, true, {50, 60, 199, 200});
    row("wider", Qt::Key_Right, true, {50, 60, 201, 200});
    row("up", Qt::Key_Up, false, {50, 59, 200, 200});
    row("down", Qt::Key_Down, false, {50, 61, 200, 200});
    row("left", Qt::Key_Left, false, {49, 60, 200, 200});
    row("right", Qt::Key_Right, false, {51, 60, 200, 200});
}

void TestMainWindowConnections::shiftAndCtrlArrows_stepTheTestWindow()
{
    QFETCH(const int, key);
    QFETCH(const bool, shift);
    m_rig.start(placed);
    press(key, shift ? Qt::ShiftModifier : Qt::ControlModifier);
    QTEST(shownPlacement(), "placement");
    QTEST(MainWindowRig::testWindow()->geometry(), "placement");
}

void TestMainWindowConnections::shiftH_hidesAndShowsTheTestWindowWhichReportsIt()
{
    m_rig.start();
    for (const bool visible : {false, true}) {
        press(Qt::Key_H, Qt::ShiftModifier);
        QCOMPARE(MainWindowRig::testWindow()->isVisible(), visible);
        QVERIFY(panelSays(visible));
    }
    // A report counts by itself, too.
    emit MainWindowRig::testWindow()->signal_containerWidgetHide();
    QVERIFY(panelSays(false));
    emit MainWindowRig::testWindow()->signal_containerWidgetShow();
    QVERIFY(panelSays(true));
}

// Of the test window, by its buttons to show and to hide.
bool TestMainWindowConnections::panelSays(bool visible)
{
    const auto buttons =
        panel(0)->findChildren<QAbstractButton *>(QStringLiteral("normalContentPushBtn"));
    return buttons.size() == 2 && buttons.first()->isEnabled() == !visible
           && buttons.last()->isEnabled() == visible;
}

void TestMainWindowConnections::shiftF_togglesTheFullScreen()
{
    m_rig.start();
    press(Qt::Key_F, Qt::ShiftModifier);
    QVERIFY(MainWindowRig::testWindow()->isFullScreen());
    press(Qt::Key_F, Qt::ShiftModifier);
    QVERIFY(!MainWindowRig::testWindow()->isFullScreen());
}

void TestMainWindowConnections::pageUp_jumpsIntoTheWalk()
{
    m_rig.start();
    press(Qt::Key_PageUp);
    QCOMPARE(m_rig.tabs()->currentIndex(), 2); // by way of the first step of the grid
}

void TestMainWindowConnections::geometryThatTheTestWindowReports_isShownByThePlacementPanel()
{
    m_rig.start(placed);
    DrawContainer *window = MainWindowRig::testWindow();
    window->resize(321, 223);
    emit window->signal_drawWidgetSizeChange(321, 223);
    QCOMPARE(shownPlacement(), QRect(50, 60, 321, 223));
    window->move(12, 34);
    emit window->signal_drawWidgetPositionChange(12, 34);
    QCOMPARE(shownPlacement(), QRect(12, 34, 321, 223));
}

// And not as far as the window was large when it was built.
void TestMainWindowConnections::draggedBorder_mayGoAsFarAsTheScreen()
{
    m_rig.start(placed);
    DrawContainer *window = MainWindowRig::testWindow();
    ScriptedPointer pointer(window);
    pointer.drag(QPoint(249, 130), QPoint(649, 130));
    QCOMPARE(window->geometry(), QRect(50, 60, 600, 200));
    emit m_rig.find<DrawCtrlForm>()->signal_screenMaxSizeChanged(300, 200);
    pointer.move(QPoint(648, 130), Qt::LeftButton);
    QCOMPARE(window->width(), 301);
}

void TestMainWindowConnections::keysOfTheTestWindow_areTheProgramsToo()
{
    m_rig.start();
    QTest::keyClick(MainWindowRig::testWindow(), Qt::Key_PageDown);
    QCOMPARE(m_rig.tabs()->currentIndex(), 1);
}

void TestMainWindowConnections::homeAndEnd_showAndHideTheHints()
{
    m_rig.start();
    MainWindowRig::testWindow()->resize(800, 400); // wide enough for all that Home shows
    const auto picture = [] { return MainWindowRig::testWindow()->grab().toImage(); };
    const QImage plain = picture();
    press(Qt::Key_Home);
    const QImage hint = picture();
    press(Qt::Key_Home);
    press(Qt::Key_End);
    const QImage overlay = picture();
    press(Qt::Key_End);
    QVERIFY(hint != plain);
    QVERIFY(overlay != plain);
    QVERIFY(overlay != hint);
    QCOMPARE(picture(), plain);
}

void TestMainWindowConnections::insertAndDelete_rampTheGridsGrey()
{
    m_rig.start({{QStringLiteral("gridGreyLevel"), 100}});
    visit({3});
    m_rig.find<QAbstractButton>("radioButtonHorizontal")->click();
    MainWindowRig::shownPixel(); // from here on the grid is what is shown
    const std::pair<Qt::Key, int> ramps[] = {{Qt::Key_Enter, 101}, {Qt::Key_Backspace, 100}};
    for (const auto &[key, grey] : ramps) {
        press(key);
        for (int tick = 0; tick < 5; ++tick)
            grid()->slot_TimerOut();
        QCOMPARE(m_rig.find<QSpinBox>("labelGrayLevel")->value(), grey);
    }
}

void TestMainWindowConnections::insertAndDelete_startAndTurnThePurityRun()
{
    m_rig.start({{QStringLiteral("testAutoScale"), 100}});
    press(Qt::Key_PageDown);
    MainWindowRig::shownPixel(); // from here on the colour is what is shown
    press(Qt::Key_Enter);
    QVERIFY(isPurityRunning());
    const std::pair<Qt::Key, int> ramps[] = {{Qt::Key_Enter, 101}, {Qt::Key_Backspace, 100}};
    for (const auto &[key, grey] : ramps) {
        press(key);
        purity()->slot_AutoTimerFinished();
        QCOMPARE(m_rig.find<QSpinBox>("spinBoxAutoScale")->value(), grey);
    }
}

void TestMainWindowConnections::stepOfTheGrid_stopsThePurityRun()
{
    startPurityRun();
    emit grid()->signal_gridAutoChange();
    QVERIFY(!isPurityRunning());
}

void TestMainWindowConnections::pageKey_stopsThePurityRunAndLetsTheGridGoOn()
{
    startPurityRun();
    grid()->setScroll(false);
    emit m_rig.window().signal_stopGreyChanged();
    QVERIFY(!isPurityRunning());
    QVERIFY(grid()->getScroll());
}

void TestMainWindowConnections::startOfThePurityRun_stopsTheGrid()
{
    m_rig.start();
    grid()->setScroll(true);
    emit purity()->signal_purityAutoChange();
    QVERIFY(!grid()->getScroll());
}

QTEST_MAIN(TestMainWindowConnections)
#include "tst_mainwindow_connections.moc"
