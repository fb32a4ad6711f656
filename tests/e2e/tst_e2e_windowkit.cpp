#include "endtoendtest.h"
#include "waiting.h"

#include <QTest>

#include <memory>

/// Which window lies above which, and what a dialog blocks, under a real window manager.
class tst_e2e_windowkit : public EndToEndTest
{
    Q_OBJECT

private slots:
    void cleanupTestCase() { m_program.reset(); }

    void clickOnTheWindowOnTop_leavesTheDialogInFront_data() { addModalities(); }
    void clickOnTheWindowOnTop_leavesTheDialogInFront();
    void modalDialog_blocksTheMainWindow_data() { addModalities(); }
    void modalDialog_blocksTheMainWindow();
    void fixedMainWindow_isNotMaximisedByADoubleClick();

    void mixDialog_staysInFrontOfTheTestWindow();
    void warningBox_staysInFrontOfTheMixDialog();

private:
    void addModalities();
    bool startKit(Qt::WindowModality modality);
    WindowInfo kitWindow(const QString &title);
    bool isDialogInFront();
    QString said() { return QString::fromUtf8(m_said += m_program->readAllStandardOutput()); }
    bool openMixDialog();
    QVector<WindowInfo> dialogs();
    bool allShow(const QVector<WindowInfo> &windows);

    std::unique_ptr<ChildProcess> m_program;
    QByteArray m_said;
};

namespace {
constexpr QRgb DialogGround = qRgb(48, 50, 56);
constexpr QRgb TitleBar = qRgb(34, 33, 38);
/// Where dialog and window on top lie over each other, from the dialog's corner.
constexpr QPoint Overlap = QPoint(10, 50);
/// The grid panel's button for the mix dialog, from the control window's corner.
constexpr QPoint MixButton = QPoint(530, 221);
/// The mix dialog's "clear" and "OK", from its corner.
constexpr QPoint ClearButton = QPoint(225, 320);
constexpr QPoint OkButton = QPoint(180, 392);
} // namespace

void tst_e2e_windowkit::addModalities()
{
    QTest::addColumn<Qt::WindowModality>("modality");
    QTest::newRow("not modal") << Qt::NonModal;
    QTest::newRow("modal for its window") << Qt::WindowModal;
    QTest::newRow("modal for the program") << Qt::ApplicationModal;
}

WindowInfo tst_e2e_windowkit::kitWindow(const QString &title)
{
    const QVector<WindowInfo> all = desktop().windows().ofProcess(m_program->processId());
    for (const WindowInfo &window : all) {
        if (window.isMapped && window.title == title)
            return window;
    }
    return {};
}

bool tst_e2e_windowkit::startKit(Qt::WindowModality modality)
{
    m_said.clear();
    m_program = std::make_unique<ChildProcess>();
    return m_program->startOn(desktop().displayName(), QStringLiteral(TARN_WINDOW_KIT),
                              {QString::number(modality)})
           && waitFor([this] { return isDialogInFront(); });
}

bool tst_e2e_windowkit::isDialogInFront()
{
    const WindowInfo dialog = kitWindow(QStringLiteral("dialog"));
    const WindowInfo onTop = kitWindow(QStringLiteral("on top"));
    const QPoint place = dialog.geometry.topLeft() + Overlap;
    return dialog.id != 0 && onTop.geometry.contains(place)
           && desktop().screen().pixel(place) == DialogGround
           && desktop().screen().pixel(onTop.geometry.topLeft()) == qRgb(0, 255, 0);
}

void tst_e2e_windowkit::clickOnTheWindowOnTop_leavesTheDialogInFront()
{
    QFETCH(const Qt::WindowModality, modality);
    QVERIFY(startKit(modality));
    // More than once: from the second click on the window may have the keyboard already.
    for (int turn = 0; turn < 3; ++turn) {
        const WindowInfo onTop = kitWindow(QStringLiteral("on top"));
        desktop().mouse().click(onTop.geometry.topLeft() + QPoint(20, 20));
        QVERIFY(desktop().windows().answersPing(onTop.id));
        QVERIFY(desktop().windows().syncWithWindowManager());
        QVERIFY(waitFor([this] { return isDialogInFront(); }));
    }
}

void tst_e2e_windowkit::modalDialog_blocksTheMainWindow()
{
    QFETCH(const Qt::WindowModality, modality);
    QVERIFY(startKit(modality));
    const WindowInfo main = kitWindow(QStringLiteral("main"));
    desktop().mouse().click(main.geometry.bottomLeft() + QPoint(20, -20));
    QVERIFY(desktop().windows().answersPing(main.id));
    if (modality == Qt::NonModal)
        QVERIFY(waitFor([this] { return said() == QLatin1String("clicked\n"); }));
    else
        QCOMPARE(said(), QString());
    QVERIFY(isDialogInFront());
}

void tst_e2e_windowkit::fixedMainWindow_isNotMaximisedByADoubleClick()
{
    QVERIFY(startKit(Qt::NonModal));
    const WindowInfo main = kitWindow(QStringLiteral("main"));
    desktop().mouse().doubleClick(main.geometry.topLeft() + QPoint(60, 14));
    QVERIFY(desktop().windows().answersPing(main.id));
    QVERIFY(desktop().windows().syncWithWindowManager());
    QCOMPARE(kitWindow(QStringLiteral("main")).geometry, main.geometry);
}

/// What is open beside test window and control window, the lowest first.
QVector<WindowInfo> tst_e2e_windowkit::dialogs()
{
    QVector<WindowInfo> found;
    const QVector<WindowInfo> all = tool().mappedWindows();
    for (const WindowInfo &window : all) {
        if (!window.isPopup && window.title != QLatin1String("Form")
            && window.geometry.size() != QSize(585, 245))
            found.append(window);
    }
    return found;
}

/// The mix dialog, half over a test window that lies above the control window.
bool tst_e2e_windowkit::openMixDialog()
{
    tool().writeConfig({{QStringLiteral("/setting/currentTabIndex"), 3},
                        {QStringLiteral("/setting/testWindowPointX"), 700},
                        {QStringLiteral("/setting/testWindowPointY"), 150},
                        {QStringLiteral("/setting/testWindowWidth"), 330}});
    if (!startTool())
        return false;
    desktop().mouse().click(tool().controlWindow().geometry.topLeft() + MixButton);
    return waitFor([this] { return dialogs().size() == 1 && allShow(dialogs()); });
}

bool tst_e2e_windowkit::allShow(const QVector<WindowInfo> &windows)
{
    for (const WindowInfo &window : windows) {
        const QRect bar(window.geometry.topRight() + QPoint(-90, 2), QSize(50, 5));
        if (!desktop().screen().isFilled(bar, TitleBar))
            return false;
    }
    return true;
}

void tst_e2e_windowkit::mixDialog_staysInFrontOfTheTestWindow()
{
    QVERIFY(openMixDialog());
    const WindowInfo testWindow = tool().testWindow();
    QVERIFY(testWindow.geometry.intersects(dialogs().constFirst().geometry));
    for (int turn = 0; turn < 2; ++turn) {
        desktop().mouse().click(testWindow.geometry.topRight() + QPoint(-5, 5));
        QVERIFY(desktop().windows().answersPing(testWindow.id));
        QVERIFY(desktop().windows().syncWithWindowManager());
        QVERIFY(waitFor([this] { return allShow(dialogs()); }));
    }
    // Hiding the test window by its shortcut does not take the dialog with it.
    desktop().keyboard().key("h", Qt::ShiftModifier);
    QVERIFY(waitFor([this] { return !tool().testWindow().isMapped; }));
    QVERIFY(waitFor([this] { return dialogs().size() == 1 && allShow(dialogs()); }));
}

void tst_e2e_windowkit::warningBox_staysInFrontOfTheMixDialog()
{
    QVERIFY(openMixDialog());
    const QPoint corner = dialogs().constFirst().geometry.topLeft();
    desktop().mouse().click(corner + ClearButton);
    desktop().mouse().click(corner + OkButton);
    QVERIFY(waitFor([this] { return dialogs().size() == 2 && allShow(dialogs()); }));
    const QRect testWindow = tool().testWindow().geometry;
    for (const QPoint &place : {testWindow.topRight() + QPoint(-5, 5), corner + QPoint(20, 60)}) {
        desktop().mouse().click(place);
        QVERIFY(desktop().windows().answersPing(dialogs().constLast().id));
        QVERIFY(desktop().windows().syncWithWindowManager());
        QVERIFY(waitFor([this] { return allShow(dialogs()); }));
    }
}

QTEST_GUILESS_MAIN(tst_e2e_windowkit)
#include "tst_e2e_windowkit.moc"
