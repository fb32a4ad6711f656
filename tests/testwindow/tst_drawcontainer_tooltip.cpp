#include "dictionary.h"
#include "drawcontainer.h"
#include "scriptedpointer.h"

#include <QApplication>
#include <QSignalSpy>
#include <QTimer>
#include <QToolTip>
#include <QtTest>

#include <memory>

namespace {

constexpr QRect place(200, 150, 300, 200);

QWidget *toolTip()
{
    const auto widgets = QApplication::topLevelWidgets();
    for (QWidget *widget : widgets) {
        if (widget->inherits("QTipLabel") && widget->isVisible())
            return widget;
    }
    return nullptr;
}

} // namespace

// The tool tip that shows place and size while the mouse changes them.
class TestDrawContainerToolTip : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void toolTip_afterMovingShowsPlaceAndSizeLessOne();
    void toolTip_afterMovingA640x480WindowShows639And479();
    void toolTip_afterResizingShowsTheNewSize();
    void toolTip_isTranslated();
    void toolTip_standsBesideTheLowerRightCorner();
    void toolTip_goesWhenTheMouseIsElsewhere();
    void toolTip_staysWhileTheMouseIsOnIt();

private:
    void glideTo(const QPoint &local);

    std::unique_ptr<DrawContainer> m_window;
    std::unique_ptr<ScriptedPointer> m_pointer;
};

void TestDrawContainerToolTip::init()
{
    m_window = std::make_unique<DrawContainer>();
    m_pointer = std::make_unique<ScriptedPointer>(m_window.get());
    m_window->slot_setScreenMaxSize(5000, 5000);
    m_window->setGeometry(place);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
}

void TestDrawContainerToolTip::cleanup()
{
    QToolTip::hideText();
    QTRY_VERIFY(!toolTip());
    m_pointer.reset();
    m_window.reset();
}

// A move of the mouse that the window itself, and so its tool tip, is not left by.
void TestDrawContainerToolTip::glideTo(const QPoint &local)
{
    const QPoint global = m_window->mapToGlobal(local);
    QMouseEvent move(QEvent::MouseMove, local, local, global, Qt::NoButton, Qt::NoButton,
                     Qt::NoModifier);
    QCoreApplication::sendEvent(m_window.get(), &move);
}

void TestDrawContainerToolTip::toolTip_afterMovingShowsPlaceAndSizeLessOne()
{
    m_pointer->drag(QPoint(350, 250), QPoint(300, 260));

    QVERIFY(toolTip());
    QCOMPARE(QToolTip::text(), QStringLiteral("窗口信息：\n(X,Y):(150,160)\n(W,H):(299,199)"));
}

void TestDrawContainerToolTip::toolTip_afterMovingA640x480WindowShows639And479()
{
    m_window->setGeometry(20, 30, 640, 480);

    m_pointer->drag(QPoint(300, 300), QPoint(305, 306));

    QCOMPARE(QToolTip::text(), QStringLiteral("窗口信息：\n(X,Y):(25,36)\n(W,H):(639,479)"));
}

void TestDrawContainerToolTip::toolTip_afterResizingShowsTheNewSize()
{
    m_pointer->drag(QPoint(200, 150), QPoint(190, 145));

    QVERIFY(toolTip());
    QCOMPARE(QToolTip::text(), QStringLiteral("窗口信息：\n(X,Y):(190,145)\n(W,H):(309,204)"));
}

void TestDrawContainerToolTip::toolTip_isTranslated()
{
    const Dictionary english({{QStringLiteral("窗口信息："), QStringLiteral("Window:")}});

    m_pointer->drag(QPoint(350, 250), QPoint(300, 260));

    QCOMPARE(QToolTip::text(), QStringLiteral("Window:\n(X,Y):(150,160)\n(W,H):(299,199)"));
}

void TestDrawContainerToolTip::toolTip_standsBesideTheLowerRightCorner()
{
    m_pointer->drag(QPoint(350, 250), QPoint(300, 260)); // to 150, 160
    QVERIFY(toolTip());
    const QRect tip = toolTip()->geometry();
    const QString text = QToolTip::text();
    QToolTip::hideText();
    QTRY_VERIFY(!toolTip());

    // The toolkit keeps its own distance from the point.
    QToolTip::showText(QPoint(150 + 300, 160 + 200 - 20), text, m_window.get());

    QVERIFY(toolTip());
    QCOMPARE(tip, toolTip()->geometry());
}

void TestDrawContainerToolTip::toolTip_goesWhenTheMouseIsElsewhere()
{
    m_pointer->drag(QPoint(350, 250), QPoint(300, 260));
    QVERIFY(toolTip());

    glideTo(QPoint(300 + 130, 200 + 10)); // just right of its rectangle

    QTRY_VERIFY(!toolTip());
}

void TestDrawContainerToolTip::toolTip_staysWhileTheMouseIsOnIt()
{
    m_pointer->drag(QPoint(350, 250), QPoint(300, 260));

    glideTo(QPoint(300, 200));
    glideTo(QPoint(300 + 129, 200 + 59));

    // Longer than it takes a tool tip to go.
    QTimer clock;
    QSignalSpy ticks(&clock, &QTimer::timeout);
    clock.start(100);
    QTRY_VERIFY(ticks.count() >= 8);
    QVERIFY(toolTip());
}

QTEST_MAIN(TestDrawContainerToolTip)
#include "tst_drawcontainer_tooltip.moc"
