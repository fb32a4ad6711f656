#include "gradualchangectrlwidget.h"
#include "griddrawer.h"
#include "mainwindowrig.h"
#include "rows.h"
#include "scrgridctrldialog.h"
#include "scrpurityctrldialog.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>

// Where the page keys stand: the tab, the colour and, in the grid, the line family.
struct Stop
{
    int tab;
    int color;
    int lines; // -1 outside the grid

    bool operator==(const Stop &other) const
    {
        return tab == other.tab && color == other.color && lines == other.lines;
    }
};

char *toString(const Stop &stop)
{
    return qstrdup(qPrintable(
        QStringLiteral("tab %1 colour %2 lines %3").arg(stop.tab).arg(stop.color).arg(stop.lines)));
}

using Key = void (MainWindow::*)();
Q_DECLARE_METATYPE(Key)

class TestMainWindowPages : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { m_rig.end(); }

    void pageDown_walksTheWholeSequence();
    void pageUp_walksTheSameWayBack();
    void pageDownFromOtherTabs_jumpsToTab1_data();
    void pageDownFromOtherTabs_jumpsToTab1();
    void pageUpFromOtherTabs_jumpsToTab3_data() { pageDownFromOtherTabs_jumpsToTab1_data(); }
    void pageUpFromOtherTabs_jumpsToTab3();
    void pageUpIntoTheGrid_stepsBackFromWhereItStood();
    void pageKeys_showGradientsOf256Levels_data();
    void pageKeys_showGradientsOf256Levels();
    void leavingTheGrid_releasesHorizontalAndSlantRight_data();
    void leavingTheGrid_releasesHorizontalAndSlantRight();
    void betweenPurityAndGradient_whiteIsReleased_data();
    void betweenPurityAndGradient_whiteIsReleased();
    void pageKeys_stopTheRuns();
    void otherTab_leavesTheFocusToNoSwatch();
    void everyStop_showsItsDrawerAndItsColourInAllPanels();

private:
    static QVector<Stop> sequence();
    Stop stop();
    QVector<Stop> walk(int steps, Key key);

    MainWindowRig m_rig;
};

// From the first purity colour to the last step of the grid.
QVector<Stop> TestMainWindowPages::sequence()
{
    QVector<Stop> stops;
    for (int color = 0; color < 4; ++color)
        stops.append({1, color, -1});
    for (int color = 0; color < 4; ++color)
        stops.append({2, color, -1});
    for (int color = 0; color < 4; ++color) {
        for (int lines = 0; lines < 4; ++lines)
            stops.append({3, color, lines});
    }
    return stops;
}

Stop TestMainWindowPages::stop()
{
    const auto checked = [panel = m_rig.tabs()->currentWidget()](const QStringList &names) {
        for (int index = 0; index < names.size(); ++index) {
            const auto *button = panel->findChild<QAbstractButton *>(names.at(index));
            if (button && button->isChecked())
                return index;
        }
        return -1;
    };
    return {
        m_rig.tabs()->currentIndex(),
        checked({QStringLiteral("radioButtonRed"), QStringLiteral("radioButtonGreen"),
                 QStringLiteral("radioButtonBlue"), QStringLiteral("radioButtonWhite")}),
        checked({QStringLiteral("radioButtonHorizontal"), QStringLiteral("radioButtonVertical"),
                 QStringLiteral("radioButtonSlantLeft"), QStringLiteral("radioButtonSlantRight")})};
}

QVector<Stop> TestMainWindowPages::walk(int steps, Key key)
{
    QVector<Stop> stops;
    for (int step = 0; step < steps; ++step) {
        (m_rig.window().*key)();
        stops.append(stop());
    }
    return stops;
}

void TestMainWindowPages::pageDown_walksTheWholeSequence()
{
    m_rig.start();
    QVector<Stop> expected = sequence();
    expected.append(expected.takeFirst()); // red is the start
    const QVector<Stop> walked = walk(24, &MainWindow::slot_SwitchDownTabControl);
    for (int step = 0; step < 24; ++step)
        QCOMPARE(walked.at(step), expected.at(step));
}

void TestMainWindowPages::pageUp_walksTheSameWayBack()
{
    m_rig.start({{QStringLiteral("currentTabIndex"), 1}});
    QVector<Stop> expected = sequence();
    std::reverse(expected.begin(), expected.end());
    const QVector<Stop> walked = walk(24, &MainWindow::slot_SwitchUpTabControl);
    for (int step = 0; step < 24; ++step)
        QCOMPARE(walked.at(step), expected.at(step));
}

void TestMainWindowPages::pageDownFromOtherTabs_jumpsToTab1_data()
{
    QTest::addColumn<int>("tab");
    for (const int tab : {0, 4, 5, 6})
        QTest::addRow("tab %d", tab) << tab;
}

void TestMainWindowPages::pageDownFromOtherTabs_jumpsToTab1()
{
    QFETCH(int, tab);
    m_rig.start();
    m_rig.tabs()->setCurrentIndex(tab);
    m_rig.window().slot_SwitchDownTabControl();
    QCOMPARE(stop(), (Stop{1, 1, -1}));
    QCOMPARE(MainWindowRig::shownPixel(), qRgb(0, 255, 0));
}

// From its first step the grid is left again by the same key press.
void TestMainWindowPages::pageUpFromOtherTabs_jumpsToTab3()
{
    QFETCH(int, tab);
    m_rig.start();
    m_rig.tabs()->setCurrentIndex(tab);
    QSignalSpy changed(m_rig.tabs(), &QTabWidget::currentChanged);
    m_rig.window().slot_SwitchUpTabControl();
    QVERIFY(!changed.isEmpty());
    QCOMPARE(changed.constFirst().constFirst().toInt(), 3);
    QCOMPARE(stop(), (Stop{2, 3, -1}));
}

void TestMainWindowPages::pageUpIntoTheGrid_stepsBackFromWhereItStood()
{
    m_rig.start();
    walk(12, &MainWindow::slot_SwitchDownTabControl); // green horizontal lines
    QCOMPARE(stop(), (Stop{3, 1, 0}));
    m_rig.tabs()->setCurrentIndex(0);
    m_rig.window().slot_SwitchUpTabControl();
    QCOMPARE(stop(), (Stop{3, 0, 3}));
}

void TestMainWindowPages::pageKeys_showGradientsOf256Levels_data()
{
    const Table<int, Key, int, int> row("tab", "key", "steps", "color");
    row("entered downwards", 1, &MainWindow::slot_SwitchDownTabControl, 4, 0);
    row("downwards", 2, &MainWindow::slot_SwitchDownTabControl, 1, 1);
    row("entered upwards", 3, &MainWindow::slot_SwitchUpTabControl, 1, 3);
}

void TestMainWindowPages::pageKeys_showGradientsOf256Levels()
{
    QFETCH(const int, tab);
    QFETCH(const Key, key);
    QFETCH(const int, steps);
    m_rig.start({{QStringLiteral("currentTabIndex"), tab},
                 {QStringLiteral("gradualChangeColorLevel"), 32}});
    auto *gradient = m_rig.find<GradualChangeCtrlWidget>();
    QCOMPARE(int(gradient->m_level), 32);
    walk(steps, key);
    QTEST(stop().color, "color");
    QCOMPARE(int(gradient->m_level), 256);
}

void TestMainWindowPages::leavingTheGrid_releasesHorizontalAndSlantRight_data()
{
    const Table<Key, int> row("key", "index");
    row("upwards", &MainWindow::slot_SwitchUpTabControl, 0);
    row("downwards", &MainWindow::slot_SwitchDownTabControl, 3);
}

void TestMainWindowPages::leavingTheGrid_releasesHorizontalAndSlantRight()
{
    QFETCH(const Key, key);
    QFETCH(const int, index);
    m_rig.start({{QStringLiteral("currentTabIndex"), 3}});
    auto *grid = m_rig.find<ScrGridCtrlDialog>();
    grid->colorIndex = grid->lineIndex = qint16(index);
    const auto buttons = {m_rig.find<QAbstractButton>("radioButtonHorizontal"),
                          m_rig.find<QAbstractButton>("radioButtonSlantRight")};
    for (QAbstractButton *button : buttons)
        button->setChecked(true);
    walk(1, key);
    QVERIFY(stop().tab != 3);
    for (const QAbstractButton *button : buttons)
        QVERIFY(!button->isChecked());
}

void TestMainWindowPages::betweenPurityAndGradient_whiteIsReleased_data()
{
    const Table<int, Key> row("tab", "key");
    row("downwards", 1, &MainWindow::slot_SwitchDownTabControl);
    row("upwards", 2, &MainWindow::slot_SwitchUpTabControl);
}

// Colour buttons are exclusive, and of those the checked one stays; so they are not, here.
void TestMainWindowPages::betweenPurityAndGradient_whiteIsReleased()
{
    QFETCH(const int, tab);
    QFETCH(const Key, key);
    m_rig.start({{QStringLiteral("currentTabIndex"), tab}});
    auto *purity = m_rig.find<ScrPurityCtrlDialog>();
    auto *white = purity->findChild<QAbstractButton *>(QStringLiteral("radioButtonWhite"));
    white->setChecked(true);
    QCOMPARE(purity->colorIndex, 3);
    m_rig.find<GradualChangeCtrlWidget>()->m_colorIndex = 0;
    white->group()->setExclusive(false);
    QSignalSpy toggled(white, &QAbstractButton::toggled);
    walk(1, key);
    QVERIFY(stop().tab != tab);
    QCOMPARE(toggled.value(0), QVariantList{false});
    if (tab == 2) // white comes next, and is checked again
        QCOMPARE(toggled.value(1), QVariantList{true});
}

void TestMainWindowPages::pageKeys_stopTheRuns()
{
    MainWindow &window = m_rig.start();
    QSignalSpy stopped(&window, &MainWindow::signal_stopGreyChanged);
    window.slot_SwitchDownTabControl();
    QCOMPARE(stopped.count(), 1);
    window.slot_SwitchUpTabControl();
    QCOMPARE(stopped.count(), 2);
}

// Its ring would look as if the colour were the chosen one.
void TestMainWindowPages::otherTab_leavesTheFocusToNoSwatch()
{
    m_rig.start();
    m_rig.find<QSpinBox>("spinBoxX")->setFocus();
    m_rig.window().slot_SwitchDownTabControl();
    QCOMPARE(m_rig.window().focusWidget(), m_rig.tabs()->tabBar());
}

void TestMainWindowPages::everyStop_showsItsDrawerAndItsColourInAllPanels()
{
    MainWindow &window = m_rig.start();
    static const char *const names[] = {"radioButtonRed", "radioButtonGreen", "radioButtonBlue",
                                        "radioButtonWhite"};
    for (int step = 0; step < 24; ++step) {
        window.slot_SwitchDownTabControl();
        const DrawerBase *selected = MainWindowRig::testWindow()->selectedDrawer();
        QTRY_VERIFY(selected->active); // the grid with its next tick
        const int tab = stop().tab;
        QCOMPARE(selected == m_rig.find<ScrPurityCtrlDialog>()->getDrawer(), tab == 1);
        QCOMPARE(selected == m_rig.find<GradualChangeCtrlWidget>()->getDrawer(), tab == 2);
        QCOMPARE(dynamic_cast<const GridDrawer *>(selected) != nullptr, tab == 3);
        const auto buttons =
            window.findChildren<QAbstractButton *>(QString::fromLatin1(names[stop().color]));
        QCOMPARE(buttons.size(), 3);
        for (const QAbstractButton *button : buttons)
            QVERIFY(button->isChecked());
    }
}

QTEST_MAIN(TestMainWindowPages)
#include "tst_mainwindow_pages.moc"
