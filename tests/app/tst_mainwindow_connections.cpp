#include "gradualchangectrlwidget.h"
#include "mainwindowrig.h"
#include "scrgridctrldialog.h"
#include "scrpurityctrldialog.h"

#include <QAbstractButton>
#include <QKeyEvent>
#include <QSlider>
#include <QSpinBox>
#include <QTabWidget>
#include <QTest>
#include <QTimer>

#include <utility>

Q_DECLARE_METATYPE(QVector<int>)

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
    void insertAndDelete_rampTheGridsGrey();
    void stepOfTheGrid_stopsThePurityRun();
    void pageKey_stopsThePurityRunAndLetsTheGridGoOn();
    void startOfThePurityRun_stopsTheGrid();

private:
    QWidget *panel(int tab) { return m_rig.tabs()->widget(tab); }
    ScrPurityCtrlDialog *purity() { return m_rig.find<ScrPurityCtrlDialog>(); }
    ScrGridCtrlDialog *grid() { return m_rig.find<ScrGridCtrlDialog>(); }
    void visit(const QVector<int> &tabs);
    void press(int key);
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

void TestMainWindowConnections::press(int key)
{
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
    m_rig.window().slot_keyPressed(&event);
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
    QTest::addColumn<QVector<int>>("visited");
    QTest::addColumn<QVector<int>>("heard");
    QTest::newRow("before any change of the tab") << QVector<int>{} << QVector<int>{1, 2, 3};
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
    QTest::addColumn<int>("saved");
    QTest::addColumn<QVector<int>>("visited");
    for (int tab = 0; tab <= 4; ++tab)
        QTest::addRow("saved %d", tab) << tab << QVector<int>{};
    for (int tab = 0; tab <= 6; ++tab) {
        for (const int before : {1, 3}) {
            if (tab != before)
                QTest::addRow("%d after %d", tab, before) << 0 << QVector<int>{before, tab};
        }
    }
    QTest::newRow("0 after a saved 1") << 1 << QVector<int>{0};
    QTest::newRow("0 after a saved 3") << 3 << QVector<int>{0};
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
