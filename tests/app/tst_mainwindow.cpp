#include "drawcontainer.h"
#include "drawerbase.h"
#include "gradualchangectrlwidget.h"
#include "mainwindowrig.h"
#include "scrgridctrldialog.h"
#include "scrpurityctrldialog.h"

#include <QAbstractButton>
#include <QAction>
#include <QFile>
#include <QIcon>
#include <QImage>
#include <QLabel>
#include <QSettings>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTest>
#include <QTranslator>

namespace {

// A translation of every text to itself with a mark in front.
class MarkingTranslator : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char * /*context*/, const char *source, const char * /*disambiguation*/,
                      int /*n*/) const override
    {
        return QLatin1Char('!') + QString::fromUtf8(source);
    }
};

} // namespace

class TestMainWindow : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();

    void freshSettings_showTab0AndSendGrey255AndRed();
    void storedGreyAndColour_areSentToTheTestWindow();
    void storedGrey_dimsTheTestWindowBeforeItsFirstPattern();
    void testWindow_isABorderlessToolOnTop();
    void automaticMode_sendsTheAutomaticGrey();
    void savedTab3_isShownAndCountsAs0();
    void savedTab_comesBack_data();
    void savedTab_comesBack();
    void tab_countsForTheGridAsItsIndexOr0();
    void selectingTab0Or5Or6_keepsTheStoredTab();
    void selectingTheTab_doesNotChangeThePicture();
    void freshGridTab_paintsNothingNew();
    void changedPattern_stopsTheGridsRun_data();
    void changedPattern_stopsTheGridsRun();
    void changeOfTheTab_pressesTheFamiliesOfAPausedGridAgain_data();
    void changeOfTheTab_pressesTheFamiliesOfAPausedGridAgain();
    void everyTabButTheCabinet_forbidsItsControls();
    void updateLanguage_reachesTitleTabsAndPanels();
    void doubleClick_doesNothing();
    void window_hasItsFixedSize();
    void window_hasItsIcon();
    void tabsThatChangeAtTheEnd_runNothing();
    void saveSettings_reachesTheDiskAtOnce();
    void restoring_writesNothing();

private:
    void start(const QVariantMap &values = {}) { m_window = &m_rig.start(values); }
    int storedTab();
    QTabWidget *tabs() { return m_rig.tabs(); }
    ScrPurityCtrlDialog *purity() { return m_window->findChild<ScrPurityCtrlDialog *>(); }

    static DrawContainer *testWindow() { return MainWindowRig::testWindow(); }
    static QRgb shownPixel() { return MainWindowRig::shownPixel(); }
    static QString settingsPath() { return MainWindowRig::settingsPath(); }

    MainWindowRig m_rig;
    MainWindow *m_window = nullptr;
};

void TestMainWindow::cleanup()
{
    m_rig.end();
}

int TestMainWindow::storedTab()
{
    m_window->saveSettings();
    const QSettings file(settingsPath(), QSettings::IniFormat);
    return file.value(QStringLiteral("/setting/currentTabIndex"), -1).toInt();
}

void TestMainWindow::freshSettings_showTab0AndSendGrey255AndRed()
{
    start();
    QCOMPARE(tabs()->currentIndex(), 0);
    QCOMPARE(shownPixel(), qRgb(255, 0, 0));
    QVERIFY(MainWindowRig::overlaySays(QStringLiteral("红:255")));
}

void TestMainWindow::storedGreyAndColour_areSentToTheTestWindow()
{
    start({{QStringLiteral("testPurityGreyLevel"), 100},
           {QStringLiteral("testWindowBaseColor"), QColor(Qt::blue)}});
    QVERIFY(MainWindowRig::overlaySays(QStringLiteral("蓝:100")));
}

void TestMainWindow::storedGrey_dimsTheTestWindowBeforeItsFirstPattern()
{
    start({{QStringLiteral("testPurityGreyLevel"), 100}});
    QVERIFY(testWindow()->styleSheet().startsWith(
        QStringLiteral("QWidget{background-color:#64ff0000;}QMenu {")));
}

void TestMainWindow::testWindow_isABorderlessToolOnTop()
{
    start();
    QCOMPARE(testWindow()->windowFlags(),
             Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
}

void TestMainWindow::automaticMode_sendsTheAutomaticGrey()
{
    start({{QStringLiteral("AutoTest"), true},
           {QStringLiteral("testAutoScale"), 77},
           {QStringLiteral("testPurityGreyLevel"), 100}});
    QVERIFY(MainWindowRig::overlaySays(QStringLiteral("红:77")));
}

void TestMainWindow::savedTab3_isShownAndCountsAs0()
{
    start({{QStringLiteral("currentTabIndex"), 3}});
    QCOMPARE(tabs()->currentIndex(), 3);
    QCOMPARE(m_window->tabIndexForGrid(), 0);
}

void TestMainWindow::savedTab_comesBack_data()
{
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<int>("shown");
    for (int tab = 0; tab <= 4; ++tab)
        QTest::addRow("tab %d", tab) << QVariant(tab) << tab;
    QTest::newRow("too large") << QVariant(70) << 0;
    QTest::newRow("negative") << QVariant(-3) << 0;
    QTest::newRow("text") << QVariant(QStringLiteral("first")) << 0;
}

void TestMainWindow::savedTab_comesBack()
{
    QFETCH(QVariant, stored);
    start({{QStringLiteral("currentTabIndex"), stored}});
    QTEST(tabs()->currentIndex(), "shown");
}

void TestMainWindow::tab_countsForTheGridAsItsIndexOr0()
{
    start();
    const int counted[] = {0, 1, 2, 0, 4, 0, 0};
    for (const int tab : {1, 3, 2, 5, 4, 6, 1, 0}) {
        tabs()->setCurrentIndex(tab);
        QCOMPARE(m_window->tabIndexForGrid(), counted[tab]);
    }
}

void TestMainWindow::selectingTab0Or5Or6_keepsTheStoredTab()
{
    start();
    tabs()->setCurrentIndex(1);
    QCOMPARE(storedTab(), 1);
    for (const int tab : {0, 5, 6}) {
        tabs()->setCurrentIndex(tab);
        QCOMPARE(storedTab(), 1);
    }
}

void TestMainWindow::selectingTheTab_doesNotChangeThePicture()
{
    start({{QStringLiteral("testWindowBaseColor"), QColor(Qt::blue)}});
    m_window->slot_SwitchDownTabControl(); // blue is followed by white
    QCOMPARE(shownPixel(), qRgb(255, 255, 255));
    tabs()->setCurrentIndex(0);
    tabs()->setCurrentIndex(1);
    QVERIFY(!purity()->getDrawer()->active);
    QCOMPARE(shownPixel(), qRgb(255, 255, 255));
}

void TestMainWindow::freshGridTab_paintsNothingNew()
{
    start();
    m_window->slot_SwitchDownTabControl();
    QCOMPARE(shownPixel(), qRgb(0, 255, 0));
    const QImage before = testWindow()->grab().toImage();
    tabs()->setCurrentIndex(3);
    QVERIFY(!testWindow()->selectedDrawer()->active);
    QCOMPARE(testWindow()->grab().toImage(), before);
}

void TestMainWindow::changedPattern_stopsTheGridsRun_data()
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
void TestMainWindow::changedPattern_stopsTheGridsRun()
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

void TestMainWindow::changeOfTheTab_pressesTheFamiliesOfAPausedGridAgain_data()
{
    QTest::addColumn<bool>("paused");
    QTest::newRow("paused") << true;
    QTest::newRow("running") << false;
}

void TestMainWindow::changeOfTheTab_pressesTheFamiliesOfAPausedGridAgain()
{
    QFETCH(const bool, paused);
    start({{QStringLiteral("isVerticalPress"), true},
           {QStringLiteral("pushButtonPauseChecked"), paused}});
    auto *vertical = m_rig.find<QAbstractButton>("radioButtonVertical");
    QVERIFY(!vertical->isChecked());
    tabs()->setCurrentIndex(1);
    QCOMPARE(vertical->isChecked(), paused);
}

void TestMainWindow::everyTabButTheCabinet_forbidsItsControls()
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

void TestMainWindow::updateLanguage_reachesTitleTabsAndPanels()
{
    start();
    MarkingTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    m_window->updateLanguage();
    QCoreApplication::removeTranslator(&translator);

    QStringList texts{m_window->windowTitle(), testWindow()->actions().constFirst()->text()};
    for (int tab = 0; tab < tabs()->count(); ++tab)
        texts << tabs()->tabText(tab);
    // A control of each panel, and one of each card.
    for (const char *name : {"normalContentPushBtn", "radioButtonAuto", "levelPushBtn",
                             "pushButtonMerged", "radioBeginLeft"})
        texts << m_rig.find<QAbstractButton>(name)->text();
    for (const char *name : {"labelHome", "labelControl"})
        texts << m_rig.find<QLabel>(name)->text();
    for (const QString &text : texts)
        QVERIFY2(text.startsWith(QLatin1Char('!')), qPrintable(text));
    m_window->setStyleSheet(QString()); // it sets another font over the tabs' own
    QCOMPARE(tabs()->font().family(), QStringLiteral("Arial"));
}

void TestMainWindow::doubleClick_doesNothing()
{
    start();
    const QRect before = m_window->geometry();
    QTest::mouseDClick(m_window, Qt::LeftButton);
    QTest::mouseDClick(tabs()->widget(0), Qt::LeftButton, Qt::NoModifier, QPoint(5, 5));
    QCOMPARE(m_window->geometry(), before);
    QVERIFY(!m_window->isMaximized());
}

void TestMainWindow::window_hasItsFixedSize()
{
    start();
    QCOMPARE(m_window->minimumSize(), QSize(585, 245));
    QCOMPARE(m_window->maximumSize(), QSize(585, 245));
    for (int tab = 0; tab < tabs()->count(); ++tab) {
        tabs()->setCurrentIndex(tab);
        QCOMPARE(tabs()->currentWidget()->size(), QSize(585, 192));
    }
}

void TestMainWindow::window_hasItsIcon()
{
    start();
    const QIcon icon(QStringLiteral(":/Resource/Image/logo/TarnTestTool.ico"));
    QVERIFY(!icon.pixmap(32).isNull());
    QCOMPARE(m_window->windowIcon().pixmap(32).toImage(), icon.pixmap(32).toImage());
}

void TestMainWindow::tabsThatChangeAtTheEnd_runNothing()
{
    start();
    QSignalSpy switched(m_window, &MainWindow::signal_forbidTarnToolCtrls);
    connect(tabs(), &QObject::destroyed, [widget = tabs()] { emit widget->currentChanged(1); });
    m_rig.end();
    QCOMPARE(switched.count(), 0);
}

void TestMainWindow::saveSettings_reachesTheDiskAtOnce()
{
    start({{QStringLiteral("testPurityGreyLevel"), 100}});
    tabs()->setCurrentIndex(1);
    purity()->slot_keyUpPressed();
    m_window->saveSettings();
    const QSettings file(settingsPath(), QSettings::IniFormat);
    QCOMPARE(file.value(QStringLiteral("/setting/testPurityGreyLevel")).toInt(), 101);
}

void TestMainWindow::restoring_writesNothing()
{
    start({{QStringLiteral("currentTabIndex"), 1}, {QStringLiteral("testWindowPointX"), 30}});
    const auto content = [] {
        QFile file(settingsPath());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    };
    const QByteArray before = content();
    QVERIFY(!before.isEmpty());
    m_window->updateLanguage();
    QTest::qWait(1200); // longer than any save is put off
    QCOMPARE(content(), before);
}

QTEST_MAIN(TestMainWindow)
#include "tst_mainwindow.moc"
