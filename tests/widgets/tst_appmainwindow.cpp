#include "appmainwindow.h"
#include "titlebar.h"

#include <QLabel>
#include <QWindow>
#include <QtTest>

using UX::Utils::AppMainWindow;
using UX::Widgets::TitleBar;

namespace {

constexpr QSize fixedSize(585, 245);
constexpr int titleBarHeight = 28;

} // namespace

class TestAppMainWindow : public QObject
{
    Q_OBJECT

private slots:
    void window_isFramelessAndCanBeMinimised();
    void windowTitle_showsInTheTitleBar();
    void centralWidget_fillsTheWindowBelowTheTitleBar();
    void closeButton_closes();
    void minimiseButton_minimises();
    void dragOnTheTitleBar_movesTheWindow_data();
    void dragOnTheTitleBar_movesTheWindow();
    void dragOnTheContent_doesNot();
    void rightButton_doesNotDrag();
    void doubleClickOnAFixedSize_doesNothing();
    void doubleClickOnAResizable_togglesMaximised();
};

void TestAppMainWindow::window_isFramelessAndCanBeMinimised()
{
    AppMainWindow window;
    QCOMPARE(window.windowType(), Qt::Window);
    QVERIFY(window.windowFlags().testFlag(Qt::FramelessWindowHint));
    QVERIFY(window.windowFlags().testFlag(Qt::WindowMinimizeButtonHint));
    QVERIFY(window.isWindow());
}

void TestAppMainWindow::windowTitle_showsInTheTitleBar()
{
    AppMainWindow window;
    window.setWindowTitle(QStringLiteral("显示屏测试工具-Tarn"));
    window.setFixedSize(fixedSize);
    window.show();
    auto *label = window.titleBar()->findChild<QLabel *>();
    QCOMPARE(label->text(), QStringLiteral("显示屏测试工具-Tarn"));
}

void TestAppMainWindow::centralWidget_fillsTheWindowBelowTheTitleBar()
{
    AppMainWindow window;
    auto *content = new QWidget;
    window.setCentralWidget(content);
    window.setFixedSize(fixedSize);
    window.show();

    const QRect below(content->mapTo(&window, QPoint(0, 0)), content->size());
    QCOMPARE(below, QRect(0, titleBarHeight, 585, 245 - titleBarHeight));
    const QRect bar(window.titleBar()->mapTo(&window, QPoint(0, 0)), window.titleBar()->size());
    QCOMPARE(bar, QRect(0, 0, 585, titleBarHeight));
}

void TestAppMainWindow::closeButton_closes()
{
    AppMainWindow window;
    window.show();
    QTest::mouseClick(window.titleBar()->titleButton(TitleBar::CloseButton), Qt::LeftButton);
    QVERIFY(!window.isVisible());
}

void TestAppMainWindow::minimiseButton_minimises()
{
    AppMainWindow window;
    window.setFixedSize(fixedSize);
    window.show();
    QTest::mouseClick(window.titleBar()->titleButton(TitleBar::MinButton), Qt::LeftButton);
    QVERIFY(window.isMinimized());
}

void TestAppMainWindow::dragOnTheTitleBar_movesTheWindow_data()
{
    QTest::addColumn<QPoint>("grip");
    QTest::newRow("empty part") << QPoint(2, 2);
    QTest::newRow("logo") << QPoint(14, 14);
    QTest::newRow("title") << QPoint(60, 14);
}

// Sends press, moves and release through the window system, so that they find their widget as the
// operator's would.
static void dragThroughTheWindow(QWidget &window, const QPoint &grip, const QPoint &delta,
                                 Qt::MouseButton button)
{
    QWindow *handle = window.windowHandle();
    const QPoint from = window.mapToGlobal(grip);
    QTest::mousePress(handle, button, Qt::NoModifier, grip);
    QTest::mouseMove(handle, handle->mapFromGlobal(from + delta / 3));
    QTest::mouseMove(handle, handle->mapFromGlobal(from + delta));
    QTest::mouseRelease(handle, button, Qt::NoModifier, handle->mapFromGlobal(from + delta));
}

void TestAppMainWindow::dragOnTheTitleBar_movesTheWindow()
{
    QFETCH(QPoint, grip);
    AppMainWindow window;
    QPixmap logo(16, 16);
    logo.fill(Qt::red);
    window.setWindowIcon(QIcon(logo));
    window.setWindowTitle(QStringLiteral("A title to take hold of"));
    window.setFixedSize(fixedSize);
    window.move(100, 80);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));

    dragThroughTheWindow(window, grip, QPoint(47, -31), Qt::LeftButton);
    QCOMPARE(window.pos(), QPoint(147, 49));
}

void TestAppMainWindow::dragOnTheContent_doesNot()
{
    AppMainWindow window;
    window.setCentralWidget(new QWidget);
    window.setFixedSize(fixedSize);
    window.move(100, 80);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));

    dragThroughTheWindow(window, QPoint(60, titleBarHeight + 1), QPoint(47, 31), Qt::LeftButton);
    QCOMPARE(window.pos(), QPoint(100, 80));
}

void TestAppMainWindow::rightButton_doesNotDrag()
{
    AppMainWindow window;
    window.setFixedSize(fixedSize);
    window.move(100, 80);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));

    dragThroughTheWindow(window, QPoint(60, 14), QPoint(47, 31), Qt::RightButton);
    QCOMPARE(window.pos(), QPoint(100, 80));
}

void TestAppMainWindow::doubleClickOnAFixedSize_doesNothing()
{
    AppMainWindow window;
    window.setFixedSize(fixedSize);
    window.move(100, 80);
    window.show();
    QTest::mouseDClick(window.titleBar(), Qt::LeftButton, Qt::NoModifier, QPoint(60, 14));
    QCOMPARE(window.windowState(), Qt::WindowStates(Qt::WindowNoState));
    QCOMPARE(window.geometry(), QRect(QPoint(100, 80), fixedSize));
}

void TestAppMainWindow::doubleClickOnAResizable_togglesMaximised()
{
    AppMainWindow window;
    window.show();
    QTest::mouseDClick(window.titleBar(), Qt::LeftButton, Qt::NoModifier, QPoint(60, 14));
    QVERIFY(window.isMaximized());
    QTest::mouseDClick(window.titleBar(), Qt::LeftButton, Qt::NoModifier, QPoint(60, 14));
    QVERIFY(!window.isMaximized());
}

QTEST_MAIN(TestAppMainWindow)
#include "tst_appmainwindow.moc"
