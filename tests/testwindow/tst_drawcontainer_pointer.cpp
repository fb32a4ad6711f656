#include "desktopscale.h"
#include "drawcontainer.h"
#include "scriptedpointer.h"

#include <QtTest>

namespace {

constexpr QRect place(200, 150, 300, 200);
constexpr QPoint inside(350, 250);

} // namespace

class tst_DrawContainer_pointer : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void contextMenu_followsTheScaleOfTheControls();

    void rest_hidesThePointerUntilItsNextMove();
    void rest_withoutAMoveSinceItCameHidesThePointer();
    void rest_whileTheWindowIsHeldKeepsThePointer();
    void move_beginsTheRestAgain();

private:
    // Lets the time pass that the pointer has been at rest.
    void rest();

    std::unique_ptr<DrawContainer> m_window;
    std::unique_ptr<ScriptedPointer> m_pointer;
    QTimer *m_timer = nullptr;
};

void tst_DrawContainer_pointer::init()
{
    m_window = std::make_unique<DrawContainer>();
    m_window->setGeometry(place);
    m_pointer = std::make_unique<ScriptedPointer>(m_window.get());
    const QList<QTimer *> timers = m_window->findChildren<QTimer *>();
    const auto found = std::find_if(timers.cbegin(), timers.cend(), [](const QTimer *timer) {
        return timer->isSingleShot() && timer->interval() == 3000;
    });
    QVERIFY(found != timers.cend());
    m_timer = *found;
}

void tst_DrawContainer_pointer::contextMenu_followsTheScaleOfTheControls()
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

void tst_DrawContainer_pointer::rest()
{
    QVERIFY(m_timer->isActive());
    m_timer->start(0);
    QTRY_VERIFY(!m_timer->isActive());
    m_timer->setInterval(3000);
}

void tst_DrawContainer_pointer::rest_hidesThePointerUntilItsNextMove()
{
    for (int time = 0; time < 2; ++time) {
        m_pointer->move(inside);
        QCOMPARE(m_window->cursor().shape(), Qt::ArrowCursor);
        rest();
        QCOMPARE(m_window->cursor().shape(), Qt::BlankCursor);
    }
    m_pointer->move(place.topLeft());
    QCOMPARE(m_window->cursor().shape(), Qt::SizeFDiagCursor);
}

void tst_DrawContainer_pointer::rest_withoutAMoveSinceItCameHidesThePointer()
{
    QEvent enter(QEvent::Enter);
    QCoreApplication::sendEvent(m_window.get(), &enter);
    rest();
    QCOMPARE(m_window->cursor().shape(), Qt::BlankCursor);
}

void tst_DrawContainer_pointer::rest_whileTheWindowIsHeldKeepsThePointer()
{
    m_pointer->drag(inside, inside + QPoint(10, 0));
    rest();
    QCOMPARE(m_window->cursor().shape(), Qt::PointingHandCursor);
    m_pointer->release(inside + QPoint(10, 0));
    rest();
    QCOMPARE(m_window->cursor().shape(), Qt::BlankCursor);
}

void tst_DrawContainer_pointer::move_beginsTheRestAgain()
{
    m_pointer->move(inside);
    QTRY_VERIFY(m_timer->remainingTime() < 2700);
    m_pointer->move(inside + QPoint(1, 0));
    QVERIFY(m_timer->remainingTime() > 2700);
}

QTEST_MAIN(tst_DrawContainer_pointer)
#include "tst_drawcontainer_pointer.moc"
