#include "childprocess.h"
#include "displaysign.h"
#include "drawcontainer.h"
#include "drawctrlform.h"
#include "sessionbus.h"
#include "waiting.h"

#include <QFile>
#include <QLabel>
#include <QScreen>
#include <QSettings>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QWindow>
#include <QtTest>

/// A native Wayland session with two screens, without an X server: the tool works, and says what
/// it cannot do. The compositor is the test's own.
class tst_e2e_wayland : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void panel_saysThatItCannotPlaceTheTestWindow();
    void sign_doesNotGuessThePlace();
    void fullScreen_fillsTheScreenOfThePlaceAndComesBack_data();
    void fullScreen_fillsTheScreenOfThePlaceAndComesBack();
    void sizeFromTheCompositor_isShownAndNotStored();
    void mouse_resizesAndDoesNotMove();
    void program_startsAndEnds();

private:
    void startAt(const QPoint &place);
    QSpinBox *field(const char *name) const
    {
        return m_panel->findChild<QSpinBox *>(QLatin1String(name));
    }
    int stored(const char *name) const
    {
        m_panel->saveWindowBaseInfo();
        return m_settings->value(QStringLiteral("/setting/testWindow") + QLatin1String(name))
            .toInt();
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<QSettings> m_settings;
    std::unique_ptr<DrawContainer> m_testWindow;
    std::unique_ptr<DrawCtrlForm> m_panel;
};

namespace {
constexpr char InsideSession[] = "TARN_INSIDE_SESSION";
constexpr QRect First = QRect(0, 0, 1280, 800);
constexpr QRect Second = QRect(1280, 0, 1024, 768);
constexpr QSize StoredSize = QSize(300, 300);
} // namespace

void tst_e2e_wayland::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_settings = std::make_unique<QSettings>(m_folder->filePath(QStringLiteral("config.ini")),
                                             QSettings::IniFormat);
    m_settings->setValue(QStringLiteral("/setting/testWindowWidth"), StoredSize.width());
    m_settings->setValue(QStringLiteral("/setting/testWindowHeight"), StoredSize.height());
    startAt(First.topLeft());
}

void tst_e2e_wayland::startAt(const QPoint &place)
{
    m_panel.reset();
    m_settings->setValue(QStringLiteral("/setting/testWindowPointX"), place.x());
    m_settings->setValue(QStringLiteral("/setting/testWindowPointY"), place.y());
    m_testWindow = std::make_unique<DrawContainer>();
    m_panel = std::make_unique<DrawCtrlForm>(m_testWindow.get(), m_settings.get(), nullptr);
    const QSignalSpy screenChanges(m_testWindow->windowHandle(), &QWindow::screenChanged);
    m_panel->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_testWindow.get()));
    QCOMPARE(m_testWindow->size(), StoredSize);
    // The desktop shows the window on its first screen, wherever it is meant to be.
    QTRY_VERIFY(First.contains(place) || !screenChanges.isEmpty());
}

void tst_e2e_wayland::cleanup()
{
    m_panel.reset();
    m_testWindow.reset();
}

void tst_e2e_wayland::panel_saysThatItCannotPlaceTheTestWindow()
{
    const auto *line = m_panel->findChild<QLabel *>(QStringLiteral("labelWayland"));
    QVERIFY(line && line->isVisible());
}

/// Whether it is wider than the screen that it happens to be on is not known.
void tst_e2e_wayland::sign_doesNotGuessThePlace()
{
    startAt(Second.topLeft());
    m_testWindow->resize(Second.width() + 100, 300);
    DisplaySign sign(m_testWindow.get());
    sign.check();
    QCOMPARE(sign.toolTip(), QString());
}

void tst_e2e_wayland::fullScreen_fillsTheScreenOfThePlaceAndComesBack_data()
{
    QTest::addColumn<QRect>("screen");
    QTest::newRow("first") << First;
    QTest::newRow("second") << Second;
}

// The screens differ in size.
void tst_e2e_wayland::fullScreen_fillsTheScreenOfThePlaceAndComesBack()
{
    QFETCH(QRect, screen);
    startAt(screen.topLeft() + QPoint(50, 50));
    for (int turn = 0; turn < 2; ++turn) {
        m_testWindow->slot_keyShiftFPressed();
        QTRY_COMPARE(m_testWindow->size(), screen.size());
        QVERIFY(m_testWindow->isFullScreen());
        m_testWindow->slot_keyShiftFPressed();
        QTRY_COMPARE(m_testWindow->size(), StoredSize);
        QVERIFY(!m_testWindow->isFullScreen());
    }
    QCOMPARE(field("spinBoxX")->value(), screen.x() + 50);
    const QRect other = screen == First ? Second : First;
    field("spinBoxX")->setValue(other.x());
    m_testWindow->slot_keyShiftFPressed();
    QTRY_COMPARE(m_testWindow->size(), other.size());
}

void tst_e2e_wayland::sizeFromTheCompositor_isShownAndNotStored()
{
    // As the compositor does, behind its back; once more if the screens were not settled yet.
    const auto isFollowed = [this] {
        m_testWindow->windowHandle()->resize(640, 480);
        return field("spinBoxWidth")->value() == 640;
    };
    QTRY_VERIFY(isFollowed());
    QCOMPARE(stored("Width"), StoredSize.width());
    m_panel->slot_keyShiftRightPressed();
    QTRY_COMPARE(m_testWindow->width(), 641);
    QCOMPARE(stored("Width"), 641);
}

void tst_e2e_wayland::mouse_resizesAndDoesNotMove()
{
    startAt(Second.topLeft() + QPoint(50, 50));
    m_panel->slot_drawWidgetSizeChange(310, 320);
    m_panel->slot_drawWidgetPositionChange(5, 6);
    QCOMPARE(stored("Width"), 310);
    QCOMPARE(stored("PointX"), Second.x() + 50);
    QCOMPARE(stored("PointY"), 50);
}

void tst_e2e_wayland::program_startsAndEnds()
{
    const QString program = m_folder->filePath(QStringLiteral("TarnTestTool"));
    QVERIFY(QFile::copy(QStringLiteral(TARN_TOOL_EXECUTABLE), program));
    ChildProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(QStringLiteral("QT_QPA_PLATFORM")); // it chooses for itself
    environment.insert(QStringLiteral("WAYLAND_DEBUG"), QStringLiteral("1"));
    process.setProcessEnvironment(environment);
    process.start(program, QStringList(), QIODevice::ReadOnly);
    QByteArray log;
    const bool isShown = waitFor([&] {
        log += process.readAllStandardError();
        const int control = log.indexOf("-Tarn\")"); // its title comes after the test window's
        return control > 0 && log.contains("set_title(\"Form\")")
               && log.indexOf(".attach(wl_buffer", control) > 0;
    });
    QVERIFY2(isShown, log.constData());

    process.terminate();

    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 0);
}

/// Runs this program again, as the session of a compositor, which ends with its exit code.
static int runSession(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QTemporaryDir folder;
    SessionBus bus;
    bus.start();
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(QStringLiteral("DISPLAY"));
    environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), bus.address());
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("wayland"));
    environment.insert(QLatin1String(InsideSession), QStringLiteral("1"));
    for (const char *name : {"HOME", "XDG_CONFIG_HOME", "XDG_RUNTIME_DIR"})
        environment.insert(QLatin1String(name), folder.path());
    ChildProcess compositor;
    compositor.setProcessEnvironment(environment);
    compositor.setProcessChannelMode(QProcess::ForwardedChannels);
    compositor.start(QStringLiteral("mutter"),
                     QStringList{QStringLiteral("--headless"), QStringLiteral("--no-x11"),
                                 QStringLiteral("--virtual-monitor"), QStringLiteral("1280x800"),
                                 QStringLiteral("--virtual-monitor"), QStringLiteral("1024x768"),
                                 QStringLiteral("--")}
                         + QCoreApplication::arguments());
    if (!compositor.waitForFinished(-1))
        qCritical("No Wayland compositor (mutter)");
    return compositor.exitStatus() == QProcess::NormalExit ? compositor.exitCode() : 1;
}

int main(int argc, char **argv)
{
    if (!qEnvironmentVariableIsSet(InsideSession))
        return runSession(argc, argv);
    QApplication application(argc, argv);
    tst_e2e_wayland test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_e2e_wayland.moc"
