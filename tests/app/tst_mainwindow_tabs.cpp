#include "drawcontainer.h"
#include "drawerbase.h"
#include "gradualchangectrlwidget.h"
#include "mainwindowrig.h"
#include "paintcounter.h"
#include "rows.h"
#include "scrgridctrldialog.h"
#include "scrpurityctrldialog.h"

#include <QAbstractButton>
#include <QImage>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTest>

// What a change of the tab leads to, and what it leaves as it is.
class TestMainWindowTabs : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { m_rig.end(); }

    void tab_countsForTheGridAsItsIndexOr0();
    void selectingTheTab_doesNotChangeThePicture();
    void freshGridTab_paintsNothingNew();
    void changeOfTheTab_repaintsTheTestWindow();
    void changedPattern_stopsTheGridsRun_data();
    void changedPattern_stopsTheGridsRun();
    void changeOfTheTab_pressesTheFamiliesOfAPausedGridAgain_data();
    void changeOfTheTab_pressesTheFamiliesOfAPausedGridAgain();
    void everyTabButTheCabinet_forbidsItsControls();

private:
    void start(const QVariantMap &values = {}) { m_window = &m_rig.start(values); }
    QTabWidget *tabs() { return m_rig.tabs(); }
    ScrPurityCtrlDialog *purity() { return m_rig.find<ScrPurityCtrlDialog>(); }

    static DrawContainer *testWindow() { return MainWindowRig::testWindow(); }
    static QRgb shownPixel() { return MainWindowRig::shownPixel(); }

    MainWindowRig m_rig;
    MainWindow *m_window = nullptr;
};

void TestMainWindowTabs::tab_countsForTheGridAsItsIndexOr0()
{
    const int counted[] = {0, 1, 2, 0, 4, 0, 0};
    for (const int saved : {1, 2, 3, 4}) {
        start({{QStringLiteral("currentTabIndex"), saved}});
        QCOMPARE(m_window->tabIndexForGrid(), counted[saved]);
    }
    start();
    for (const int tab : {1, 3, 2, 5, 4, 6, 1, 0}) {
        tabs()->setCurrentIndex(tab);
        QCOMPARE(m_window->tabIndexForGrid(), counted[tab]);
    }
}

void TestMainWindowTabs::selectingTheTab_doesNotChangeThePicture()
{
    start({{QStringLiteral("testWindowBaseColor"), QColor(Qt::blue)}});
    m_window->slot_SwitchDownTabControl(); // blue is followed by white
    QCOMPARE(shownPixel(), qRgb(255, 255, 255));
    tabs()->setCurrentIndex(0);
    tabs()->setCurrentIndex(1);
    QVERIFY(!purity()->getDrawer()->active);
    QCOMPARE(shownPixel(), qRgb(255, 255, 255));
}

void TestMainWindowTabs::freshGridTab_paintsNothingNew()
{
    start();
    m_window->slot_SwitchDownTabControl();
    QCOMPARE(shownPixel(), qRgb(0, 255, 0));
    const QImage before = testWindow()->grab().toImage();
    tabs()->setCurrentIndex(3);
    QVERIFY(!testWindow()->selectedDrawer()->active);
    QCOMPARE(testWindow()->grab().toImage(), before);
}

void TestMainWindowTabs::changeOfTheTab_repaintsTheTestWindow()
{
    start();
    QVERIFY(QTest::qWaitForWindowExposed(testWindow()));
    const PaintCounter paints(testWindow());
    const auto paint = [] { QCoreApplication::sendPostedEvents(nullptr, QEvent::UpdateRequest); };
    paint();
    const int before = paints.count;
    paint();
    QCOMPARE(paints.count, before);
    tabs()->setCurrentIndex(5);
    paint();
    QCOMPARE(paints.count, before + 1);
}

void TestMainWindowTabs::changedPattern_stopsTheGridsRun_data()
{
    QTest::addColumn<int>("tab");
    QTest::addColumn<bool>("changed");
    QTest::addColumn<bool>("locked");
    for (const int tab : {1, 2}) {
        QTest::addRow("tab %d changed", tab) << tab << true << false;
        QTest::addRow("tab %d changed, grid locked", tab) << tab << true << true;
        QTest::addRow("tab %d only visited", tab) << tab << false << false;
    }
}

// As long as the grid is not locked.
void TestMainWindowTabs::changedPattern_stopsTheGridsRun()
{
    QFETCH(const int, tab);
    QFETCH(const bool, changed);
    QFETCH(const bool, locked);
    start();
    tabs()->setCurrentIndex(tab);
    auto *gradient = m_rig.find<GradualChangeCtrlWidget>();
    auto *grid = m_rig.find<ScrGridCtrlDialog>();
    if (changed)
        tabs()
            ->widget(tab)
            ->findChild<QAbstractButton *>(QStringLiteral("radioButtonBlue"))
            ->click();
    QCOMPARE(tab == 1 ? purity()->puritySelected : gradient->m_userChanged, changed);
    grid->scrollLocked = locked;
    grid->setScrollEnabled(true);
    tabs()->setCurrentIndex(3);
    QCOMPARE(grid->getScroll(), !changed || locked);
    QVERIFY(!purity()->puritySelected);
    QVERIFY(!gradient->m_userChanged);
}

void TestMainWindowTabs::changeOfTheTab_pressesTheFamiliesOfAPausedGridAgain_data()
{
    addRows<bool>("paused", {{"paused", true}, {"running", false}});
}

void TestMainWindowTabs::changeOfTheTab_pressesTheFamiliesOfAPausedGridAgain()
{
    QFETCH(const bool, paused);
    start({{QStringLiteral("isVerticalPress"), true},
           {QStringLiteral("pushButtonPauseChecked"), paused}});
    auto *vertical = m_rig.find<QAbstractButton>("radioButtonVertical");
    QVERIFY(!vertical->isChecked());
    tabs()->setCurrentIndex(1);
    QCOMPARE(vertical->isChecked(), paused);
}

void TestMainWindowTabs::everyTabButTheCabinet_forbidsItsControls()
{
    start();
    QSignalSpy forbidden(m_window, &MainWindow::signal_forbidTarnToolCtrls);
    tabs()->setCurrentIndex(4);
    QCOMPARE(forbidden.count(), 0);
    int expected = 0;
    for (const int tab : {3, 2, 1, 0, 5, 6}) {
        tabs()->setCurrentIndex(tab);
        QCOMPARE(forbidden.count(), ++expected);
    }
}

QTEST_MAIN(TestMainWindowTabs)
#include "tst_mainwindow_tabs.moc"
