#include "commonhelper.h"
#include "desktopscale.h"
#include "dictionary.h"
#include "drawcontainer.h"
#include "filldrawer.h"
#include "rows.h"
#include "shownwindow.h"

#include <QAction>
#include <QApplication>
#include <QScreen>
#include <QSignalSpy>
#include <QWindow>
#include <QtTest>

// What keys and the context menu do to the test window.
class TestDrawContainerKeys : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QApplication::setQuitOnLastWindowClosed(false); }
    void keyHelper_ofItsOwnTogglesFullScreen();
    void keyHelper_thatWasSetGetsTheKeys();
    void keySpace_doesNothing();
    void keyShiftF_togglesFullScreen();
    void keyShiftF_looksForFullScreenAlone();
    void keyShiftH_hidesAndShows();
    void hideAction_isTheContextMenu();
    void hideAction_followsTheLanguage();
    void contextMenu_followsTheScaleOfTheControls();
    void hide_isReportedOnce_data();
    void hide_isReportedOnce();
};

void TestDrawContainerKeys::keyHelper_ofItsOwnTogglesFullScreen()
{
    DrawContainer window;
    QVERIFY(isShown(window));

    QTest::keyClick(&window, Qt::Key_F, Qt::ShiftModifier);
    QCOMPARE(window.windowState(), Qt::WindowFullScreen);
    QTest::keyClick(&window, Qt::Key_F, Qt::ShiftModifier);
    QCOMPARE(window.windowState(), Qt::WindowNoState);
}

void TestDrawContainerKeys::keyHelper_thatWasSetGetsTheKeys()
{
    DrawContainer window;
    QVERIFY(isShown(window));
    CommonHelper helper;
    QSignalSpy home(&helper, &CommonHelper::signal_keyHomePressed);
    QSignalSpy shiftF(&helper, &CommonHelper::signal_keyShiftFPressed);
    QSignalSpy ctrlUp(&helper, &CommonHelper::signal_keyCtrlUpPressed);

    window.setKeyHelper(&helper);
    QTest::keyClick(&window, Qt::Key_Home);
    QTest::keyClick(&window, Qt::Key_F, Qt::ShiftModifier);
    QTest::keyClick(&window, Qt::Key_Up, Qt::ControlModifier);

    QCOMPARE(home.count(), 1);
    QCOMPARE(shiftF.count(), 1);
    QCOMPARE(ctrlUp.count(), 1);
    // The window's own helper is out of use.
    QCOMPARE(window.windowState(), Qt::WindowNoState);
}

void TestDrawContainerKeys::keySpace_doesNothing()
{
    DrawContainer window;
    CommonHelper helper;
    window.setKeyHelper(&helper);
    connect(&helper, &CommonHelper::signal_keySpacePressed, &window,
            &DrawContainer::slot_keySpacePressed);
    FillDrawer drawer(&window, Qt::red);
    window.setDrawer(&drawer, true);
    QVERIFY(isShown(window));
    QSignalSpy hidden(&window, &DrawContainer::signal_containerWidgetHide);
    const QImage before = window.grab().toImage();

    QTest::keyClick(&window, Qt::Key_Space);
    window.slot_keySpacePressed();

    QVERIFY(window.isVisible());
    QCOMPARE(hidden.count(), 0);
    QCOMPARE(window.geometry(), place);
    QCOMPARE(window.windowState(), Qt::WindowNoState);
    QVERIFY(drawer.active);
    QCOMPARE(window.grab().toImage(), before);
}

void TestDrawContainerKeys::keyShiftF_togglesFullScreen()
{
    DrawContainer window;
    QVERIFY(isShown(window));

    window.slot_keyShiftFPressed();
    QCOMPARE(window.windowState(), Qt::WindowFullScreen);
    QTRY_COMPARE(window.geometry(), QGuiApplication::primaryScreen()->geometry());
    window.slot_keyShiftFPressed();
    QCOMPARE(window.windowState(), Qt::WindowNoState);
    QTRY_COMPARE(window.geometry(), place);
}

void TestDrawContainerKeys::keyShiftF_looksForFullScreenAlone()
{
    DrawContainer window;
    QVERIFY(isShown(window));
    window.setWindowState(Qt::WindowFullScreen | Qt::WindowMaximized);

    window.slot_keyShiftFPressed();
    QCOMPARE(window.windowState(), Qt::WindowFullScreen);
    window.slot_keyShiftFPressed();
    QCOMPARE(window.windowState(), Qt::WindowNoState);
}

void TestDrawContainerKeys::keyShiftH_hidesAndShows()
{
    DrawContainer window;
    QVERIFY(isShown(window));
    QSignalSpy hidden(&window, &DrawContainer::signal_containerWidgetHide);
    QSignalSpy shown(&window, &DrawContainer::signal_containerWidgetShow);
    QList<bool> visibleWhenReported;
    const auto note = [&] { visibleWhenReported.append(window.isVisible()); };
    connect(&window, &DrawContainer::signal_containerWidgetHide, &window, note);
    connect(&window, &DrawContainer::signal_containerWidgetShow, &window, note);

    window.slot_keyShiftHPressed();
    QVERIFY(window.isHidden());
    QCOMPARE(hidden.count(), 1);
    QCOMPARE(shown.count(), 0);

    window.slot_keyShiftHPressed();
    QVERIFY(window.isVisible());
    QCOMPARE(hidden.count(), 1);
    QCOMPARE(shown.count(), 1);
    QCOMPARE(visibleWhenReported, (QList<bool>{false, true}));
}

void TestDrawContainerKeys::hideAction_isTheContextMenu()
{
    const DrawContainer window;

    QCOMPARE(window.contextMenuPolicy(), Qt::ActionsContextMenu);
    QCOMPARE(window.actions().count(), 1);
    QCOMPARE(window.actions().constFirst()->text(), QStringLiteral(" 隐藏"));
}

void TestDrawContainerKeys::hideAction_followsTheLanguage()
{
    DrawContainer window;
    const Dictionary english({{QStringLiteral(" 隐藏"), QStringLiteral(" Hide")}});

    window.updateLanguage();

    QCOMPARE(window.actions().constFirst()->text(), QStringLiteral(" Hide"));
}

void TestDrawContainerKeys::hide_isReportedOnce_data()
{
    addNames("way", {"menu action", "Shift+H", "slot", "closed from outside"});
}

void TestDrawContainerKeys::contextMenu_followsTheScaleOfTheControls()
{
    const auto menuFont = [](const char *scale) {
        DesktopScale::request(QLatin1String(scale));
        const DrawContainer window;
        return window.actions().constFirst()->font();
    };
    QCOMPARE(menuFont("1"), QAction(nullptr).font());
    QCOMPARE(menuFont("4").pixelSize(), 2 * menuFont("2").pixelSize());
    DesktopScale::request(QStringLiteral("1"));
}

void TestDrawContainerKeys::hide_isReportedOnce()
{
    QFETCH(QString, way);
    DrawContainer window;
    QVERIFY(isShown(window));
    QSignalSpy hidden(&window, &DrawContainer::signal_containerWidgetHide);
    QSignalSpy shown(&window, &DrawContainer::signal_containerWidgetShow);

    if (way == QLatin1String("menu action"))
        window.actions().constFirst()->trigger();
    else if (way == QLatin1String("Shift+H"))
        window.slot_keyShiftHPressed();
    else if (way == QLatin1String("slot"))
        window.slot_hideWindow();
    else
        window.windowHandle()->close(); // as a window manager does it
    QCoreApplication::processEvents();

    QVERIFY(window.isHidden());
    QCOMPARE(hidden.count(), 1);
    QCOMPARE(shown.count(), 0);
}

QTEST_MAIN(TestDrawContainerKeys)
#include "tst_drawcontainer_keys.moc"
