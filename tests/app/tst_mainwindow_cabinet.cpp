#include "advancedsetup.h"
#include "drawcontainer.h"
#include "mainwindowrig.h"
#include "pictureloader.h"
#include "rows.h"
#include "scrgrid.h"
#include "scrgridctrldialog.h"
#include "tarntool.h"

#include <QDir>
#include <QImage>
#include <QPushButton>
#include <QSpinBox>
#include <QTabWidget>
#include <QTest>
#include <QWindow>

#include <algorithm>

namespace {

constexpr int gridTab = 3;
constexpr int cabinetTab = 4;

QString pictureFolder()
{
    return QCoreApplication::applicationDirPath() + QStringLiteral("/BackgroundPicture");
}

void keepPicture(const QColor &color = Qt::cyan)
{
    QImage picture(4, 4, QImage::Format_RGB32);
    picture.fill(color);
    if (!QDir().mkpath(pictureFolder())
        || !picture.save(pictureFolder() + QStringLiteral("/picture"), "PNG"))
        qFatal("cannot keep a picture");
}

} // namespace

// The cabinet panel as the main window uses it.
class TestMainWindowCabinet : public QObject
{
    Q_OBJECT

private slots:
    void init() { QDir(pictureFolder()).removeRecursively(); }
    void cleanup() { m_rig.end(); }

    void start_leavesTheDrawerInactive();
    void leavingTheTab_locksThePanelAndKeepsTheLayout();
    void returningToTheTab_showsTheLayoutOnceAControlIsTouched();
    void changedLayout_stopsTheGridsRun_data();
    void changedLayout_stopsTheGridsRun();
    void keptPicture_isNotDecodedUntilItsTabIsSeen();
    void resizedTestWindow_stretchesThePictureAgain();
    void pageKeyBehindTheAdvancedSettings_leavesThemUsable();

private:
    TarnTool *panel() { return m_rig.find<TarnTool>(); }
    const ScrGrid *drawer() { return m_drawer; }
    void start(const QVariantMap &values = {{QStringLiteral("currentTabIndex"), cabinetTab}});
    QPushButton *button(bool rightmost);
    void layOut();

    MainWindowRig m_rig;
    const ScrGrid *m_drawer = nullptr; // with the tab current from the start
};

void TestMainWindowCabinet::start(const QVariantMap &values)
{
    m_rig.start(values);
    m_drawer = qobject_cast<const ScrGrid *>(MainWindowRig::testWindow()->selectedDrawer());
}

// One of the two buttons that share their name; the layout button is the rightmost.
QPushButton *TestMainWindowCabinet::button(bool rightmost)
{
    const auto buttons =
        panel()->findChildren<QPushButton *>(QStringLiteral("normalContentPushBtn"));
    const auto isLeft = [](const QPushButton *a, const QPushButton *b) { return a->x() < b->x(); };
    const auto ends = std::minmax_element(buttons.cbegin(), buttons.cend(), isLeft);
    return rightmost ? *ends.second : *ends.first;
}

void TestMainWindowCabinet::layOut()
{
    QTest::mouseClick(button(true), Qt::LeftButton);
}

void TestMainWindowCabinet::start_leavesTheDrawerInactive()
{
    start();
    QCOMPARE(m_rig.tabs()->currentWidget(), static_cast<QWidget *>(panel()));
    QVERIFY(DrawContainer::shows(*drawer()));
    QVERIFY(!drawer()->active);
    layOut();
    QVERIFY(drawer()->active);
}

void TestMainWindowCabinet::leavingTheTab_locksThePanelAndKeepsTheLayout()
{
    for (const int other : {0, 1, 2, 3, 5, 6}) {
        start();
        layOut();
        auto *box = m_rig.find<QSpinBox>("boxWidth");
        QVERIFY(box->isEnabled());
        m_rig.tabs()->setCurrentIndex(other);
        QVERIFY(!box->isEnabled());
        QVERIFY(drawer()->m_layoutOn);
        m_rig.tabs()->setCurrentIndex(cabinetTab);
        QVERIFY(!box->isEnabled());
        layOut();
        QVERIFY(box->isEnabled());
    }
}

void TestMainWindowCabinet::returningToTheTab_showsTheLayoutOnceAControlIsTouched()
{
    start();
    layOut();
    const QImage layout = MainWindowRig::testWindow()->grab().toImage();
    m_rig.tabs()->setCurrentIndex(1);
    QVERIFY(MainWindowRig::testWindow()->grab().toImage() == layout);
    m_rig.tabs()->setCurrentIndex(cabinetTab);
    QVERIFY(!drawer()->active);
    QVERIFY(MainWindowRig::testWindow()->grab().toImage() == layout);
    layOut();
    m_rig.find<QSpinBox>("boxWidth")->setValue(50);
    QVERIFY(MainWindowRig::testWindow()->grab().toImage() != layout);
}

void TestMainWindowCabinet::changedLayout_stopsTheGridsRun_data()
{
    addRows<bool>("changed", {{"changed", true}, {"only visited", false}});
}

void TestMainWindowCabinet::changedLayout_stopsTheGridsRun()
{
    QFETCH(const bool, changed);
    start({});
    m_rig.tabs()->setCurrentIndex(cabinetTab);
    auto *grid = m_rig.find<ScrGridCtrlDialog>();
    grid->setScrollEnabled(true);
    grid->scrollLocked = true; // has no say on this tab
    if (changed)
        layOut();
    QCOMPARE(panel()->m_userChanged, changed);
    m_rig.tabs()->setCurrentIndex(gridTab);
    QVERIFY(!panel()->m_userChanged);
    QCOMPARE(grid->getScroll(), !changed);
}

void TestMainWindowCabinet::keptPicture_isNotDecodedUntilItsTabIsSeen()
{
    keepPicture();
    const int before = PictureLoader::decodedCount();
    start({{QStringLiteral("tarnBackgroundSelect"), true}});
    QTRY_VERIFY(panel()->window()->windowHandle()->isExposed());
    MainWindowRig::testWindow()->resize(300, 200);
    MainWindowRig::testWindow()->grab();
    QCoreApplication::processEvents();
    QCOMPARE(PictureLoader::decodedCount(), before);
    m_rig.tabs()->setCurrentIndex(cabinetTab);
    QTRY_COMPARE(PictureLoader::decodedCount(), before + 1);
}

void TestMainWindowCabinet::resizedTestWindow_stretchesThePictureAgain()
{
    keepPicture();
    start();
    layOut();
    DrawContainer *testWindow = MainWindowRig::testWindow();
    testWindow->resize(300, 200);
    QTRY_COMPARE(drawer()->m_bgPixmap.size(), QSize(300, 200));

    keepPicture(Qt::magenta); // which a report of the size has looked at, resized or not
    emit testWindow->signal_drawWidgetSizeChange(300, 200);
    QTRY_COMPARE(drawer()->m_bgPixmap.toImage().pixelColor(1, 1), QColor(Qt::magenta));
}

void TestMainWindowCabinet::pageKeyBehindTheAdvancedSettings_leavesThemUsable()
{
    start();
    layOut();
    QTest::mouseClick(button(false), Qt::LeftButton);
    auto *dialog = m_rig.find<AdvancedSetup>();
    QVERIFY(dialog && dialog->isVisible());
    m_rig.window().slot_SwitchDownTabControl();
    QCOMPARE(m_rig.tabs()->currentIndex(), 1);
    QVERIFY(dialog->isEnabled());
}

QTEST_MAIN(TestMainWindowCabinet)
#include "tst_mainwindow_cabinet.moc"
