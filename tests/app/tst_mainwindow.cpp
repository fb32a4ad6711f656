#include "desktopscale.h"
#include "dictionary.h"
#include "displaysign.h"
#include "drawcontainer.h"
#include "drawctrlform.h"
#include "griddrawer.h"
#include "mainwindowrig.h"
#include "rows.h"
#include "savesoon.h"
#include "scrgridctrldialog.h"
#include "scrpurityctrldialog.h"
#include "titlebar.h"

#include <QAbstractButton>
#include <QAction>
#include <QFile>
#include <QIcon>
#include <QLabel>
#include <QPointer>
#include <QScreen>
#include <QSettings>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTabWidget>
#include <QTest>
#include <QToolTip>

class TestMainWindow : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { m_rig.end(); }

    void freshSettings_showTab0AndSendGrey255AndRed();
    void storedGreyAndColour_areSentToTheTestWindow();
    void storedGrey_dimsTheTestWindowBeforeItsFirstPattern();
    void testWindow_isABorderlessToolOnTop();
    void automaticMode_sendsTheAutomaticGrey();
    void savedTab_comesBack_data();
    void savedTab_comesBack();
    void selectingTab0Or5Or6_keepsTheStoredTab();
    void updateLanguage_reachesTitleTabsAndPanels();
    void doubleClick_doesNothing();
    void window_hasItsFixedSize();
    void window_followsTheScaleOfTheDesktop();
    void window_hasItsIconAndTitle();
    void titleBar_hasTheSignOfTheDisplay_data();
    void titleBar_hasTheSignOfTheDisplay();
    void window_comesBackFromAScreenThatIsGone();
    void spareGridDrawer_belongsToTheWindow();
    void tabsThatChangeAtTheEnd_runNothing();
    void panels_goBeforeTheTestWindow();
    void saveSettings_reachesTheDiskAtOnce();
    void restoring_writesNothing();

private:
    void start(const QVariantMap &values = {}) { m_window = &m_rig.start(values); }
    int storedTab();
    QTabWidget *tabs() { return m_rig.tabs(); }
    ScrPurityCtrlDialog *purity() { return m_window->findChild<ScrPurityCtrlDialog *>(); }

    static DrawContainer *testWindow() { return MainWindowRig::testWindow(); }
    static QRgb shownPixel() { return MainWindowRig::shownPixel(); }
    static QByteArray settingsContent();
    static QString settingsPath() { return MainWindowRig::settingsPath(); }

    MainWindowRig m_rig;
    MainWindow *m_window = nullptr;
};

int TestMainWindow::storedTab()
{
    m_window->saveSettings();
    const QSettings file(settingsPath(), QSettings::IniFormat);
    return file.value(QStringLiteral("/setting/currentTabIndex"), -1).toInt();
}

// What stands on the disk, nothing pending included.
QByteArray TestMainWindow::settingsContent()
{
    QFile file(settingsPath());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
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

void TestMainWindow::savedTab_comesBack_data()
{
    const Table<QVariant, int> row("stored", "shown");
    for (int tab = 0; tab <= 4; ++tab)
        QTest::addRow("tab %d", tab) << QVariant(tab) << tab;
    row("too large", 70, 0);
    row("negative", -3, 0);
    row("text", QStringLiteral("first"), 0);
}

void TestMainWindow::savedTab_comesBack()
{
    QFETCH(QVariant, stored);
    start({{QStringLiteral("currentTabIndex"), stored}});
    QTEST(tabs()->currentIndex(), "shown");
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

void TestMainWindow::updateLanguage_reachesTitleTabsAndPanels()
{
    start();
    const Dictionary marked(QStringLiteral("!"));
    m_window->updateLanguage();

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
        QVERIFY2(text.endsWith(QLatin1Char('!')), qPrintable(text));
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

void TestMainWindow::window_followsTheScaleOfTheDesktop()
{
    start();
    const QSize size = m_window->size();
    const QFont toolTips = QToolTip::font();
    DesktopScale::request(QStringLiteral("2"));
    start();
    const int toolTip = QToolTip::font().pixelSize();
    QToolTip::setFont(toolTips);
    DesktopScale::request(QStringLiteral("1"));
    QCOMPARE(m_window->size(), 2 * size);
    QCOMPARE(toolTip, 2 * qRound(toolTips.pointSizeF() * 96 / 72));
}

void TestMainWindow::titleBar_hasTheSignOfTheDisplay_data()
{
    addRows<int>("scale", {{"one", 1}, {"four", 4}});
}

void TestMainWindow::titleBar_hasTheSignOfTheDisplay()
{
    QFETCH(int, scale);
    DesktopScale::request(QString::number(scale));
    start();
    DesktopScale::request(QStringLiteral("1"));
    auto *sign = m_window->titleBar()->findChild<DisplaySign *>();
    QVERIFY(sign);
    sign->resize(sign->sizeHint());
    QRegion yellow;
    const QImage shown = sign->grab().toImage();
    for (int y = 0; y < shown.height(); ++y) {
        for (int x = 0; x < shown.width(); ++x) {
            if (shown.pixelColor(x, y) == QColor(255, 210, 30))
                yellow += QRect(x, y, 1, 1);
        }
    }
    const QRect field(8 * scale, 3 * scale, 12 * scale, 11 * scale);
    const QRect picture(6 * scale, 0, 16 * scale, 16 * scale);
    QVERIFY(yellow.boundingRect().contains(field));
    QVERIFY(picture.contains(yellow.boundingRect()));
}

void TestMainWindow::window_hasItsIconAndTitle()
{
    start();
    const QIcon icon(QStringLiteral(":/Resource/Image/logo/TarnTestTool.ico"));
    QVERIFY(!icon.pixmap(32).isNull());
    QCOMPARE(m_window->windowIcon().pixmap(32).toImage(), icon.pixmap(32).toImage());
    QCOMPARE(m_window->windowTitle(), QStringLiteral("显示屏测试工具-Tarn"));
}

void TestMainWindow::window_comesBackFromAScreenThatIsGone()
{
    start();
    const QRect screen = m_window->screen()->geometry();
    m_window->move(screen.bottomRight() + QPoint(1000, 1000));
    emit m_rig.find<DrawCtrlForm>()->signal_screenMaxSizeChanged(screen.width(), screen.height());
    QVERIFY(!screen.intersects(m_window->geometry())); // the window manager comes first
    QTRY_VERIFY(screen.contains(m_window->geometry()));
}

void TestMainWindow::spareGridDrawer_belongsToTheWindow()
{
    start();
    QVERIFY(m_window->findChild<GridDrawer *>(QString(), Qt::FindDirectChildrenOnly));
}

void TestMainWindow::tabsThatChangeAtTheEnd_runNothing()
{
    start();
    QSignalSpy switched(m_window, &MainWindow::signal_forbidTarnToolCtrls);
    // As moc would, since what says so is no tab widget any more.
    connect(tabs(), &QObject::destroyed, [](QObject *dying) {
        const QMetaObject &tabWidget = QTabWidget::staticMetaObject;
        const int signal = tabWidget.indexOfSignal("currentChanged(int)");
        int index = 1;
        void *arguments[] = {nullptr, &index};
        QMetaObject::activate(dying, &tabWidget, signal - tabWidget.methodOffset(), arguments);
    });
    m_rig.end();
    QCOMPARE(switched.count(), 0);
}

void TestMainWindow::panels_goBeforeTheTestWindow()
{
    start();
    const QPointer<QWidget> panel(purity());
    bool hasGone = false;
    connect(testWindow(), &QObject::destroyed, this, [&panel, &hasGone] { hasGone = !panel; });
    m_rig.end();
    QVERIFY(hasGone);
}

void TestMainWindow::saveSettings_reachesTheDiskAtOnce()
{
    start({{QStringLiteral("testPurityGreyLevel"), 100}});
    purity()->slot_keyUpPressed();
    m_rig.find<QSpinBox>("spinBoxX")->setValue(21);
    m_rig.find<QAbstractButton>("levelPushBtn")->click();
    m_rig.find<ScrGridCtrlDialog>()
        ->findChild<QSpinBox *>(QStringLiteral("labelSpeed"))
        ->setValue(77);
    m_rig.find<QSpinBox>("boxRow")->setValue(9);
    m_window->saveSettings();
    const QByteArray content = settingsContent();
    for (const char *line : {"testPurityGreyLevel=101", "testWindowPointX=21",
                             "gradualChangeColorLevel=32", "gridSpeed=77", "tarnModelRowCount=9"})
        QVERIFY2(content.contains(line), line);
}

void TestMainWindow::restoring_writesNothing()
{
    start({{QStringLiteral("currentTabIndex"), 1}, {QStringLiteral("testWindowPointX"), 30}});
    const QByteArray before = settingsContent();
    QVERIFY(!before.isEmpty());
    m_window->updateLanguage();
    QCoreApplication::processEvents();
    const auto savers = m_window->findChildren<SaveSoon *>();
    QCOMPARE(savers.size(), 5);
    for (const SaveSoon *saver : savers)
        QVERIFY(!saver->isDue());
    m_window->findChild<QSettings *>()->sync();
    QCOMPARE(settingsContent(), before);
}

QTEST_MAIN(TestMainWindow)
#include "tst_mainwindow.moc"
