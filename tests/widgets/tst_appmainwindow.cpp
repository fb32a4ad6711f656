#include "appmainwindow.h"
#include "rows.h"
#include "titlebar.h"
#include "windowdrag.h"

#include <QLabel>
#include <QtTest>

using UX::Utils::AppMainWindow;
using UX::Widgets::TitleBar;

Q_DECLARE_METATYPE(Qt::MouseButton)

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
    void buttons_minimiseAndClose();
    void drag_movesTheWindowByItsTitleBar_data();
    void drag_movesTheWindowByItsTitleBar();
    void doubleClick_doesNotMaximise();
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

void TestAppMainWindow::buttons_minimiseAndClose()
{
    AppMainWindow window;
    window.show();
    QTest::mouseClick(window.titleBar()->titleButton(TitleBar::MinButton), Qt::LeftButton);
    QVERIFY(window.isMinimized());
    QTest::mouseClick(window.titleBar()->titleButton(TitleBar::CloseButton), Qt::LeftButton);
    QVERIFY(!window.isVisible());
}

void TestAppMainWindow::drag_movesTheWindowByItsTitleBar_data()
{
    const Table<QPoint, Qt::MouseButton, bool> row("grip", "button", "moves");
    row("empty part", {2, 2}, Qt::LeftButton, true);
    row("logo", {14, 14}, Qt::LeftButton, true);
    row("title", {60, 14}, Qt::LeftButton, true);
    row("right button", {60, 14}, Qt::RightButton, false);
    row("content", {60, titleBarHeight + 1}, Qt::LeftButton, false);
}

void TestAppMainWindow::drag_movesTheWindowByItsTitleBar()
{
    QFETCH(const QPoint, grip);
    QFETCH(const Qt::MouseButton, button);
    QFETCH(const bool, moves);
    AppMainWindow window;
    window.setCentralWidget(new QWidget);
    QPixmap logo(16, 16);
    logo.fill(Qt::red);
    window.setWindowIcon(QIcon(logo));
    window.setWindowTitle(QStringLiteral("A title to drag"));
    window.setFixedSize(fixedSize);
    window.move(100, 80);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));

    dragThroughTheWindow(window, grip, QPoint(47, -31), button);
    QCOMPARE(window.pos(), moves ? QPoint(147, 49) : QPoint(100, 80));
}

void TestAppMainWindow::doubleClick_doesNotMaximise()
{
    AppMainWindow window;
    window.setFixedSize(fixedSize);
    window.move(100, 80);
    window.show();
    QTest::mouseDClick(window.titleBar(), Qt::LeftButton, Qt::NoModifier, QPoint(60, 14));
    QVERIFY(!window.isMaximized());
    QCOMPARE(window.geometry(), QRect(QPoint(100, 80), fixedSize));
}

QTEST_MAIN(TestAppMainWindow)
#include "tst_appmainwindow.moc"
