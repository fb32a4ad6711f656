#include "commonhelper.h"
#include "drawcontainer.h"
#include "drawerbase.h"
#include "mainwindowrig.h"
#include "scrpurityctrldialog.h"

#include <QApplication>
#include <QCursor>
#include <QFile>
#include <QImage>
#include <QKeyEvent>
#include <QPainter>
#include <QRadioButton>
#include <QSettings>
#include <QSignalSpy>
#include <QSlider>
#include <QTabWidget>
#include <QTest>
#include <QTimer>
#include <QTranslator>

#include <utility>

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

// Paints black.
class BlackDrawer : public DrawerBase
{
public:
    using DrawerBase::DrawerBase;

    void draw(bool paint) override
    {
        if (paint)
            QPainter(targetWidget).fillRect(targetWidget->rect(), Qt::black);
    }
};

// What the test window shows with the pointer outside of it.
class ExpectedOverlay : public QWidget
{
public:
    ExpectedOverlay(QString text, const QColor &background)
        : m_text(std::move(text))
        , m_background(background)
    { }

protected:
    void paintEvent(QPaintEvent * /*event*/) override
    {
        QPainter painter(this);
        painter.fillRect(rect(), m_background);
        painter.setPen(Qt::white);
        painter.drawText(QRect(QPoint(width() / 2 - 20, height() / 2 - 10), size()), 0, m_text);
    }

private:
    QString m_text;
    QColor m_background;
};

} // namespace

class TestMainWindow : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();

    void freshSettings_showTab0AndSendGrey255AndRed();
    void storedGreyAndColour_areSentToTheTestWindow();
    void automaticMode_sendsTheAutomaticGrey();
    void savedTab3_isShownAndCountsAs0();
    void savedTab_comesBack_data();
    void savedTab_comesBack();
    void selectingTab0Or5Or6_keepsTheStoredTab();
    void selectingTheTab_doesNotChangeThePicture();
    void arrowKeys_belongToTheCurrentTab();
    void savedTab1_hasTheArrowKeysOnce();
    void feed_followsTheCurrentTab();
    void everyTabButTheCabinet_forbidsItsControls();
    void updateLanguage_reachesTitleTabsAndPanels();
    void doubleClick_doesNothing();
    void window_hasItsFixedSize();
    void saveSettings_reachesTheDiskAtOnce();
    void restoring_writesNothing();

private:
    void start(const QVariantMap &values = {}) { m_window = &m_rig.start(values); }
    int storedTab();
    QTabWidget *tabs() { return m_rig.tabs(); }
    ScrPurityCtrlDialog *purity() { return m_window->findChild<ScrPurityCtrlDialog *>(); }
    QImage overlay();
    QImage overlayOf(const QString &text, const QColor &background = Qt::black);

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

// The test window with the overlay at its centre, on black.
QImage TestMainWindow::overlay()
{
    DrawContainer *window = testWindow();
    window->setStyleSheet(QString());
    QPalette black;
    black.setColor(QPalette::Window, Qt::black);
    window->setPalette(black);
    window->slot_keyEndPressed();
    QCursor::setPos(window->mapToGlobal(QPoint(-50, -50))); // outside: no coordinates in the text
    return window->grab().toImage().convertToFormat(QImage::Format_RGB32);
}

QImage TestMainWindow::overlayOf(const QString &text, const QColor &background)
{
    ExpectedOverlay expected(text, background);
    expected.setFont(testWindow()->font());
    expected.resize(testWindow()->size());
    return expected.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

void TestMainWindow::freshSettings_showTab0AndSendGrey255AndRed()
{
    start();
    QCOMPARE(tabs()->currentIndex(), 0);
    QCOMPARE(shownPixel(), qRgb(255, 0, 0));
    QCOMPARE(overlay(), overlayOf(QStringLiteral("红:255")));
}

void TestMainWindow::storedGreyAndColour_areSentToTheTestWindow()
{
    start({{QStringLiteral("testPurityGreyLevel"), 100},
           {QStringLiteral("testWindowBaseColor"), QColor(Qt::blue)}});
    QCOMPARE(overlay(), overlayOf(QStringLiteral("蓝:100")));
}

void TestMainWindow::automaticMode_sendsTheAutomaticGrey()
{
    start({{QStringLiteral("AutoTest"), true},
           {QStringLiteral("testAutoScale"), 77},
           {QStringLiteral("testPurityGreyLevel"), 100}});
    QCOMPARE(overlay(), overlayOf(QStringLiteral("红:77")));
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

void TestMainWindow::arrowKeys_belongToTheCurrentTab()
{
    start({{QStringLiteral("testPurityGreyLevel"), 100}});
    auto *grey = m_window->findChild<QSlider *>(QStringLiteral("hScrollBarScale"));
    QKeyEvent up(QEvent::KeyPress, Qt::Key_Up, Qt::NoModifier);
    for (const int tab : {0, 2, 3, 4, 5, 6}) {
        tabs()->setCurrentIndex(tab);
        m_window->slot_keyPressed(&up);
        QCOMPARE(grey->value(), 100);
    }
    for (int visit = 1; visit <= 3; ++visit) {
        tabs()->setCurrentIndex(0);
        tabs()->setCurrentIndex(1);
        m_window->slot_keyPressed(&up);
        QCOMPARE(grey->value(), 100 + visit);
    }
}

void TestMainWindow::savedTab1_hasTheArrowKeysOnce()
{
    start({{QStringLiteral("currentTabIndex"), 1}, {QStringLiteral("testPurityGreyLevel"), 100}});
    QKeyEvent down(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier);
    m_window->slot_keyPressed(&down);
    QCOMPARE(m_window->findChild<QSlider *>(QStringLiteral("hScrollBarScale"))->value(), 99);
}

void TestMainWindow::feed_followsTheCurrentTab()
{
    start();
    testWindow()->slot_keyEndPressed();
    QCursor::setPos(testWindow()->mapToGlobal(QPoint(-50, -50)));
    BlackDrawer black(testWindow());
    const auto text = [&black] {
        testWindow()->setDrawer(&black, true);
        return testWindow()->grab().toImage().convertToFormat(QImage::Format_RGB32);
    };
    tabs()->setCurrentIndex(1);
    purity()->slot_changeSelectedPurityColor(Qt::green);
    QCOMPARE(text(), overlayOf(QStringLiteral("绿:255")));
    tabs()->setCurrentIndex(2);
    purity()->slot_changeSelectedPurityColor(Qt::blue);
    QCOMPARE(text(), overlayOf(QStringLiteral("绿:255")));
    tabs()->setCurrentIndex(0); // leaves the feed as it is
    purity()->slot_changeSelectedPurityColor(Qt::red);
    QCOMPARE(text(), overlayOf(QStringLiteral("绿:255")));
    tabs()->setCurrentIndex(1);
    purity()->slot_changeSelectedPurityColor(Qt::magenta);
    QCOMPARE(text(), overlayOf(QStringLiteral("紫:255")));
    testWindow()->setDrawer(purity()->getDrawer(), false);
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
    const QString title = m_window->windowTitle();
    QStringList titles;
    for (int tab = 0; tab < tabs()->count(); ++tab)
        titles << tabs()->tabText(tab);
    const QString mode =
        m_window->findChild<QRadioButton *>(QStringLiteral("radioButtonAuto"))->text();
    QCoreApplication::removeTranslator(&translator);

    QCOMPARE(title, QStringLiteral("!显示屏测试工具-Tarn"));
    QCOMPARE(titles,
             QStringList({QStringLiteral("!窗口"), QStringLiteral("!纯色"), QStringLiteral("!渐变"),
                          QStringLiteral("!网格"), QStringLiteral("!定位"), QStringLiteral("!帮助"),
                          QStringLiteral("!关于")}));
    QCOMPARE(mode, QStringLiteral("!自动"));
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
