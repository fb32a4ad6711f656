#include "drawcontainer.h"
#include "filldrawer.h"
#include "shownwindow.h"

#include <QSignalSpy>
#include <QTimer>
#include <QtTest>

#include <memory>

namespace {

QImage picture(DrawContainer &window)
{
    return window.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

bool isAll(const QImage &image, const QColor &color)
{
    QImage expected(image.size(), QImage::Format_RGB32);
    expected.fill(color);
    return image == expected;
}

QList<QTimer *> refreshTimers(const DrawContainer &window)
{
    QList<QTimer *> timers;
    const auto children = window.findChildren<QTimer *>();
    for (QTimer *timer : children) {
        if (timer->interval() == 100)
            timers.append(timer);
    }
    return timers;
}

// Waits until a clock of its own has ticked so often at the window's pace.
bool waitForTicks(int count)
{
    QTimer clock;
    QSignalSpy ticks(&clock, &QTimer::timeout);
    clock.start(100);
    while (ticks.count() < count) {
        if (!ticks.wait())
            return false;
    }
    return true;
}

} // namespace

class TestDrawContainer : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void constructor_makesABorderlessWindowOnTop();
    void constructor_startsEmpty();
    void destruction_leavesTheDrawersAlone();
    void setDrawer_ofNullChangesNothing();
    void setDrawer_setsTheActiveFlag();
    void paint_withNoDrawerEverActiveIsNothing();
    void paint_ofAnInactiveDrawerLeavesTheEarlierPattern();
    void paint_alwaysAsksForThePattern();
    void paint_putsTheBackgroundBelowWhatDoesNotCoverIt();
    void shows_theDrawerThatIsPaintedNext();
    void shows_theSelectedDrawerWhileThereIsNoPattern();
    void palette_winsOverTheStyleSheet();
    void refresh_paintsOncePerTimeout();
    void refreshAndUpdate_areTheOnlyReasonsToPaint();
};

void TestDrawContainer::init()
{
    QCursor::setPos(0, 0); // off every window of the tests
}

void TestDrawContainer::constructor_makesABorderlessWindowOnTop()
{
    const DrawContainer window;

    QCOMPARE(window.windowFlags(), Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint
                                       | Qt::CustomizeWindowHint);
    QVERIFY(window.testAttribute(Qt::WA_MouseTracking));
    QCOMPARE(window.objectName(), QStringLiteral("DrawContainer"));
    QCOMPARE(window.windowTitle(), QStringLiteral("Form"));
    QCOMPARE(window.size(), QSize(0, 0));
    QCOMPARE(window.minimumSize(), QSize(0, 0));
    QVERIFY(window.isHidden());
}

void TestDrawContainer::constructor_startsEmpty()
{
    const DrawContainer window;

    QVERIFY(!window.selectedDrawer());
    QVERIFY(window.findChildren<QWidget *>().isEmpty());
}

void TestDrawContainer::destruction_leavesTheDrawersAlone()
{
    auto window = std::make_unique<DrawContainer>();
    FillDrawer shown(window.get(), Qt::red);
    FillDrawer selected(window.get(), Qt::green);
    QSignalSpy shownGone(&shown, &QObject::destroyed);
    QSignalSpy selectedGone(&selected, &QObject::destroyed);
    window->setDrawer(&shown, true);
    QVERIFY(isShown(*window));
    QTRY_VERIFY(shown.draws > 0);
    window->setDrawer(&selected, false);

    window.reset();

    QCOMPARE(shownGone.count(), 0);
    QCOMPARE(selectedGone.count(), 0);
    QVERIFY(shown.active);
}

void TestDrawContainer::setDrawer_ofNullChangesNothing()
{
    DrawContainer window;
    QVERIFY(isShown(window));
    FillDrawer drawer(&window, Qt::red);
    window.setDrawer(&drawer, true);

    window.setDrawer(nullptr, false);
    window.setDrawer(nullptr, true);

    QCOMPARE(window.selectedDrawer(), &drawer);
    QVERIFY(drawer.active);
    QVERIFY(isAll(picture(window), Qt::red));
}

void TestDrawContainer::setDrawer_setsTheActiveFlag()
{
    DrawContainer window;
    FillDrawer drawer(&window, Qt::red);

    window.setDrawer(&drawer, true);
    QVERIFY(drawer.active);
    window.setDrawer(&drawer, false);
    QVERIFY(!drawer.active);
    QCOMPARE(window.selectedDrawer(), &drawer);
}

void TestDrawContainer::paint_withNoDrawerEverActiveIsNothing()
{
    DrawContainer window;
    window.setPalette(QPalette(Qt::darkCyan));
    QVERIFY(isShown(window));
    const QColor background = window.palette().color(QPalette::Window);
    QVERIFY(isAll(picture(window), background));

    FillDrawer drawer(&window, Qt::red);
    window.setDrawer(&drawer, false);

    QVERIFY(isAll(picture(window), background));
    QCOMPARE(drawer.draws, 0);
}

void TestDrawContainer::paint_ofAnInactiveDrawerLeavesTheEarlierPattern()
{
    DrawContainer window;
    QVERIFY(isShown(window));
    FillDrawer first(&window, Qt::red);
    FillDrawer second(&window, Qt::green);
    FillDrawer third(&window, Qt::blue);
    window.setDrawer(&first, true);
    QVERIFY(isAll(picture(window), Qt::red));

    window.setDrawer(&second, false);
    QVERIFY(isAll(picture(window), Qt::red));
    QVERIFY(waitForTicks(3));
    QCOMPARE(second.draws + second.refusals, 0);
    window.setDrawer(&third, false);
    QVERIFY(isAll(picture(window), Qt::red));
    first.color = Qt::yellow; // still painted afresh each time
    QVERIFY(isAll(picture(window), Qt::yellow));
    QCOMPARE(first.drops, 0);
    third.active = true;
    QVERIFY(isAll(picture(window), Qt::blue));
    QCOMPARE(first.drops, 1);
    window.setDrawer(&second, false);
    QVERIFY(isAll(picture(window), Qt::blue));
}

void TestDrawContainer::paint_alwaysAsksForThePattern()
{
    DrawContainer window;
    QVERIFY(isShown(window));
    FillDrawer drawer(&window, Qt::red);
    window.setDrawer(&drawer, true);
    QTRY_VERIFY(drawer.draws >= 3);
    window.setDrawer(&drawer, false); // which it goes on for
    QVERIFY(isAll(picture(window), Qt::red));
    QTRY_VERIFY(drawer.draws >= 6);

    QCOMPARE(drawer.refusals, 0);
}

void TestDrawContainer::paint_putsTheBackgroundBelowWhatDoesNotCoverIt()
{
    DrawContainer window;
    window.setStyleSheet(QStringLiteral("QWidget{background-color:#800000ff;}"));
    window.resize(20, 10);
    FillDrawer drawer(&window, Qt::transparent);
    window.setDrawer(&drawer, true);
    const auto painted = [&window] {
        QImage image(window.size(), QImage::Format_RGB32);
        image.fill(Qt::yellow);
        window.render(&image, QPoint(), QRegion(), QWidget::DrawWindowBackground);
        return image;
    };
    QVERIFY(isAll(painted(), QColor(0, 0, 0x80))); // dimmed, not mixed with what was there

    drawer.covers = true;
    QVERIFY(isAll(painted(), Qt::yellow));
}

void TestDrawContainer::shows_theDrawerThatIsPaintedNext()
{
    DrawContainer window;
    window.resize(20, 10);
    FillDrawer first(&window, Qt::red);
    FillDrawer second(&window, Qt::green);
    window.setDrawer(&first, true);
    QVERIFY(DrawContainer::shows(first));
    window.grab();
    window.setDrawer(&second, false);
    QVERIFY(DrawContainer::shows(first));
    QVERIFY(!DrawContainer::shows(second));
    second.active = true;
    QVERIFY(!DrawContainer::shows(first));
    QVERIFY(DrawContainer::shows(second));
}

void TestDrawContainer::shows_theSelectedDrawerWhileThereIsNoPattern()
{
    DrawContainer window;
    FillDrawer first(&window, Qt::red);
    FillDrawer second(&window, Qt::green);
    QVERIFY(!DrawContainer::shows(first));
    window.setDrawer(&first, false);
    QVERIFY(DrawContainer::shows(first));
    QVERIFY(!DrawContainer::shows(second));

    QWidget plain;
    QVERIFY(DrawContainer::shows(FillDrawer(&plain, Qt::red)));
}

void TestDrawContainer::palette_winsOverTheStyleSheet()
{
    DrawContainer window;
    QVERIFY(isShown(window));
    window.setStyleSheet(QStringLiteral("QWidget{background-color:#ff0000;}"));
    QVERIFY(isAll(picture(window), Qt::red));

    QPalette palette = window.palette();
    palette.setBrush(QPalette::Window, Qt::blue);
    window.setPalette(palette);

    QVERIFY(isAll(picture(window), Qt::blue));
}

void TestDrawContainer::refresh_paintsOncePerTimeout()
{
    DrawContainer window;
    FillDrawer drawer(&window, Qt::red);
    window.setDrawer(&drawer, true);
    QVERIFY(isShown(window));
    QCOMPARE(refreshTimers(window).count(), 1);
    QTimer *timer = refreshTimers(window).constFirst();
    QVERIFY(timer->isActive());
    QVERIFY(!timer->isSingleShot());
    timer->stop();
    QVERIFY(waitForTicks(2));

    drawer.draws = 0;
    QSignalSpy timeouts(timer, &QTimer::timeout);
    connect(timer, &QTimer::timeout, timer, [&] {
        if (timeouts.count() == 5)
            timer->stop();
    });
    timer->start();
    QTRY_COMPARE(timeouts.count(), 5);
    QVERIFY(waitForTicks(2));

    QCOMPARE(timeouts.count(), 5);
    QCOMPARE(drawer.draws, 5);
}

void TestDrawContainer::refreshAndUpdate_areTheOnlyReasonsToPaint()
{
    DrawContainer window;
    FillDrawer drawer(&window, Qt::red);
    window.setDrawer(&drawer, true);
    QVERIFY(isShown(window));
    refreshTimers(window).constFirst()->stop();
    QVERIFY(waitForTicks(2));
    drawer.draws = 0;

    QVERIFY(waitForTicks(5));
    QCOMPARE(drawer.draws, 0);

    window.slot_updateContainer();
    QCOMPARE(drawer.draws, 0);
    QTRY_COMPARE(drawer.draws, 1);
}

QTEST_MAIN(TestDrawContainer)
#include "tst_drawcontainer.moc"
