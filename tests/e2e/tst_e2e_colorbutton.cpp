#include "endtoendtest.h"
#include "waiting.h"

#include <QTest>

#include <algorithm>
#include <memory>

/// Colours that are dragged from one colour button to another with a real mouse.
class tst_e2e_colorbutton : public EndToEndTest
{
    Q_OBJECT

private slots:
    void init();
    void cleanupTestCase() { m_program.reset(); }

    void drop_givesTheColourToTheOtherButton();
    void dragOverTheButton_showsTheDraggedColourUntilItLeaves();
    void dropBesideTheButtons_changesNothing();
    void dropOnTheSameButton_changesNothing();

private:
    bool shows(QRgb left, QRgb right);
    QString said() { return QString::fromUtf8(m_said += m_program->readAllStandardOutput()); }
    void glide(const QPoint &from, const QPoint &to);
    bool isDialogOpen();
    bool isDragging();
    WindowInfo window();

    std::unique_ptr<ChildProcess> m_program;
    QByteArray m_said;
    QPoint m_left; // the middle of the left button, on the screen
    QPoint m_right;
};

namespace {
constexpr QRgb Red = qRgb(255, 0, 0);
constexpr QRgb Blue = qRgb(0, 0, 255);
constexpr QSize WindowSize = QSize(220, 100);
} // namespace

WindowInfo tst_e2e_colorbutton::window()
{
    const QVector<WindowInfo> all = desktop().windows().ofProcess(m_program->processId());
    for (const WindowInfo &candidate : all) {
        if (candidate.isMapped && candidate.geometry.size() == WindowSize)
            return candidate;
    }
    return {};
}

void tst_e2e_colorbutton::init()
{
    m_said.clear();
    m_program = std::make_unique<ChildProcess>();
    desktop().mouse().move(QPoint(1, 1));
    QVERIFY2(m_program->startOn(desktop().displayName(), QStringLiteral(TARN_COLOR_BUTTONS)),
             qPrintable(m_program->errorString()));
    QVERIFY(waitFor([this] { return window().id != 0; }));
    m_left = window().geometry.topLeft() + QPoint(50, 50);
    m_right = window().geometry.topLeft() + QPoint(170, 50);
    QVERIFY(shows(Red, Blue));
}

bool tst_e2e_colorbutton::shows(QRgb left, QRgb right)
{
    const auto isShown = [&] {
        return desktop().screen().pixel(m_left + QPoint(-20, 15)) == left
               && desktop().screen().pixel(m_right + QPoint(20, 15)) == right;
    };
    return waitFor(isShown);
}

void tst_e2e_colorbutton::glide(const QPoint &from, const QPoint &to)
{
    constexpr int Steps = 40;
    for (int step = 0; step <= Steps; ++step)
        desktop().mouse().move(from + (to - from) * step / Steps);
}

bool tst_e2e_colorbutton::isDialogOpen()
{
    const QVector<WindowInfo> all = desktop().windows().ofProcess(m_program->processId());
    return std::any_of(all.cbegin(), all.cend(), [](const WindowInfo &candidate) {
        return candidate.isMapped && candidate.title == QLatin1String("Select Color");
    });
}

/// Whether the picture beside the pointer is there.
bool tst_e2e_colorbutton::isDragging()
{
    const QVector<WindowInfo> all = desktop().windows().ofProcess(m_program->processId());
    return std::any_of(all.cbegin(), all.cend(), [](const WindowInfo &candidate) {
        return candidate.isMapped && candidate.isPopup;
    });
}

void tst_e2e_colorbutton::drop_givesTheColourToTheOtherButton()
{
    desktop().mouse().drag(m_left, m_right);
    QVERIFY(shows(Red, Red));
    QVERIFY(waitFor([this] { return said() == QLatin1String("right #ff0000\n"); }));
}

void tst_e2e_colorbutton::dragOverTheButton_showsTheDraggedColourUntilItLeaves()
{
    desktop().mouse().move(m_right);
    desktop().mouse().press();
    glide(m_right, m_left);
    QVERIFY(waitFor([this] { return isDragging(); }));
    QVERIFY(shows(Blue, Blue)); // the pointer and its picture are not in the way
    glide(m_left, m_left + QPoint(0, 300));
    QVERIFY(shows(Red, Blue));
    desktop().mouse().release();
    QVERIFY(desktop().windows().answersPing(window().id));
    QVERIFY(shows(Red, Blue));
    QCOMPARE(said(), QString());
}

void tst_e2e_colorbutton::dropBesideTheButtons_changesNothing()
{
    desktop().mouse().drag(m_left, (m_left + m_right) / 2);
    QVERIFY(desktop().windows().answersPing(window().id));
    QVERIFY(shows(Red, Blue));
    QVERIFY(waitFor([this] { return !isDragging(); }));
    // The program is through with the drag: the next one works.
    desktop().mouse().move(m_right);
    desktop().mouse().press();
    glide(m_right, m_left);
    QVERIFY(shows(Blue, Blue));
    desktop().mouse().release();
    QVERIFY(waitFor([this] { return said() == QLatin1String("left #0000ff\n"); }));
}

void tst_e2e_colorbutton::dropOnTheSameButton_changesNothing()
{
    desktop().mouse().drag(m_left, m_left + QPoint(20, 20));
    QVERIFY(desktop().windows().answersPing(window().id));
    QVERIFY(shows(Red, Blue));
    QVERIFY(!isDialogOpen()); // a drag is no click
    QCOMPARE(said(), QString());
}

QTEST_GUILESS_MAIN(tst_e2e_colorbutton)
#include "tst_e2e_colorbutton.moc"
