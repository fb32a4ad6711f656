#include "drawcontainer.h"
#include "mainwindowrig.h"
#include "paintcounter.h"
#include "scrgridctrldialog.h"
#include "scrpurityctrldialog.h"

#include <QImage>
#include <QKeyEvent>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QSlider>
#include <QTabWidget>
#include <QTest>

#include <algorithm>

// The grid's run from one start of the program to the next, and behind the other tabs.
class TestMainWindowGridRun : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { m_rig.end(); }

    void runOfBefore_goesOnAfterAStartOnItsTab();
    void agingOfBefore_canBePaused();
    void otherTab_keepsThePaceOfTheScroll_data();
    void otherTab_keepsThePaceOfTheScroll();
    void runBehindAnotherPattern_asksForNoPaint();
    void insert_goesToTheTestThatIsShown();
    void savingInARunningProgram_leavesAPausedGridPaused();

private:
    bool startScrolling();
    bool pauseByButton();
    int paintsInFortySteps();
    ScrGridCtrlDialog *grid() { return m_rig.find<ScrGridCtrlDialog>(); }
    QPushButton *pauseButton();
    static QImage picture() { return MainWindowRig::testWindow()->grab().toImage(); }

    MainWindowRig m_rig;
};

// Two buttons of the panel have this name; this one is above the other.
QPushButton *TestMainWindowGridRun::pauseButton()
{
    const auto buttons = grid()->findChildren<QPushButton *>(QStringLiteral("beginPushBtn"));
    return *std::min_element(
        buttons.cbegin(), buttons.cend(),
        [](const QPushButton *a, const QPushButton *b) { return a->y() < b->y(); });
}

bool TestMainWindowGridRun::startScrolling()
{
    m_rig.start({{QStringLiteral("currentTabIndex"), 3},
                 {QStringLiteral("gridHorizontalChecked"), true},
                 {QStringLiteral("isHorizontalPress"), true},
                 {QStringLiteral("gridIsScroll"), true},
                 {QStringLiteral("gridGreyLevel"), 100},
                 {QStringLiteral("gridSpeed"), 100}});
    const QImage before = picture();
    return QTest::qWaitFor([&before] { return picture() != before; });
}

bool TestMainWindowGridRun::pauseByButton()
{
    pauseButton()->click();
    return QTest::qWaitFor([this] { return pauseButton()->text() == QStringLiteral("开始"); });
}

// Of the test window; -1 when the run does not step.
int TestMainWindowGridRun::paintsInFortySteps()
{
    QSignalSpy ticks(grid(), &ScrGridCtrlDialog::signal_gridAutoChange);
    const PaintCounter counter(MainWindowRig::testWindow());
    return QTest::qWaitFor([&ticks] { return ticks.count() >= 40; }) ? counter.count : -1;
}

void TestMainWindowGridRun::runOfBefore_goesOnAfterAStartOnItsTab()
{
    QVERIFY(startScrolling());
    QVERIFY(pauseButton()->isEnabled());
    QTRY_COMPARE(pauseButton()->text(), QStringLiteral("暂停"));
    const QImage first = picture();
    QTRY_VERIFY(picture() != first);
}

void TestMainWindowGridRun::agingOfBefore_canBePaused()
{
    m_rig.start({{QStringLiteral("currentTabIndex"), 3},
                 {QStringLiteral("gridIsOldTest"), true},
                 {QStringLiteral("gridIsScroll"), true},
                 {QStringLiteral("gridSpeed"), 100}});
    QTRY_COMPARE(MainWindowRig::shownPixel(), qRgb(0, 255, 0));
    QVERIFY(pauseByButton());
    const QImage paused = picture();
    QSignalSpy colors(grid(), &ScrGridCtrlDialog::signal_oldMixColorChanged);
    grid()->slot_TimerOut();
    QVERIFY(colors.isEmpty());
    QCOMPARE(picture(), paused);
}

void TestMainWindowGridRun::otherTab_keepsThePaceOfTheScroll_data()
{
    QTest::addColumn<int>("tab");
    for (const int tab : {1, 2, 4})
        QTest::addRow("tab %d", tab) << tab;
}

void TestMainWindowGridRun::otherTab_keepsThePaceOfTheScroll()
{
    QFETCH(const int, tab);
    QVERIFY(startScrolling());
    QVERIFY(QTest::qWaitForWindowExposed(MainWindowRig::testWindow()));
    m_rig.tabs()->setCurrentIndex(tab);
    // The window's own refresh is seven times slower than the scroll.
    QVERIFY(paintsInFortySteps() >= 20);
}

void TestMainWindowGridRun::runBehindAnotherPattern_asksForNoPaint()
{
    QVERIFY(startScrolling());
    m_rig.tabs()->setCurrentIndex(1);
    m_rig.find<ScrPurityCtrlDialog>()->slot_changeSelectedPurityColor(Qt::blue);
    const int paints = paintsInFortySteps();
    QVERIFY(paints >= 0 && paints < 20);

    m_rig.tabs()->setCurrentIndex(3);
    grid()->slot_changeSelectedGridColor(Qt::green); // the next step brings the grid back
    QTRY_VERIFY(MainWindowRig::shownPixel() != qRgb(0, 0, 255));
}

void TestMainWindowGridRun::insert_goesToTheTestThatIsShown()
{
    QVERIFY(startScrolling());
    grid()->enableAdvanceSettings(); // the grey level follows nothing while it is switched off
    const QSlider *grey = grid()->findChild<QSlider *>(QStringLiteral("hScrollBarGrayLevel"));
    const auto *manual = m_rig.find<QRadioButton>("radioButtonMual");
    QKeyEvent enter(QEvent::KeyPress, Qt::Key_Enter, Qt::KeypadModifier);
    m_rig.tabs()->setCurrentIndex(1); // untouched: the grid stays
    m_rig.window().slot_keyPressed(&enter);
    QTRY_VERIFY(grey->value() > 100);
    QVERIFY(manual->isChecked());

    m_rig.find<ScrPurityCtrlDialog>()->slot_changeSelectedPurityColor(Qt::blue);
    m_rig.window().slot_keyPressed(&enter);
    QVERIFY(!manual->isChecked());
}

void TestMainWindowGridRun::savingInARunningProgram_leavesAPausedGridPaused()
{
    QVERIFY(startScrolling());
    QVERIFY(pauseByButton());
    m_rig.window().saveSettings(); // as at the end of a desktop session that is then cancelled
    m_rig.tabs()->setCurrentIndex(1);
    QVERIFY(!grid()->getScroll());
}

QTEST_MAIN(TestMainWindowGridRun)
#include "tst_mainwindow_gridrun.moc"
