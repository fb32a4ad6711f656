#include "childprocess.h"
#include "drawcontainer.h"
#include "drawctrlform.h"
#include "waiting.h"

#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <QScreen>
#include <QSettings>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QWindow>
#include <QtTest>

#include <csignal>

#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

/// A native Wayland session, without an X server: the tool works, and says what it cannot do. The
/// compositor is the test's own.
class tst_e2e_wayland : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void panel_saysThatItCannotPlaceTheTestWindow();
    void fullScreen_fillsTheScreenAndComesBack();
    void sizeFromTheCompositor_isShownAndNotStored();
    void program_startsAndEnds();

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<QSettings> m_settings;
    std::unique_ptr<DrawContainer> m_testWindow;
    std::unique_ptr<DrawCtrlForm> m_panel;
};

namespace {
constexpr QSize ScreenSize = QSize(1280, 800);
constexpr QSize StoredSize = QSize(300, 300);
} // namespace

void tst_e2e_wayland::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_settings = std::make_unique<QSettings>(m_folder->filePath(QStringLiteral("config.ini")),
                                             QSettings::IniFormat);
    m_settings->setValue(QStringLiteral("/setting/testWindowWidth"), StoredSize.width());
    m_settings->setValue(QStringLiteral("/setting/testWindowHeight"), StoredSize.height());
    m_testWindow = std::make_unique<DrawContainer>();
    m_panel = std::make_unique<DrawCtrlForm>(m_testWindow.get(), m_settings.get(), nullptr);
    m_panel->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_testWindow.get()));
    QCOMPARE(m_testWindow->size(), StoredSize);
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

void tst_e2e_wayland::fullScreen_fillsTheScreenAndComesBack()
{
    const QScreen *screen = m_testWindow->windowHandle()->screen();
    QCOMPARE(screen->size(), ScreenSize);
    for (int turn = 0; turn < 2; ++turn) {
        m_testWindow->slot_keyShiftFPressed();
        QTRY_COMPARE(m_testWindow->size(), ScreenSize);
        QVERIFY(m_testWindow->isFullScreen());
        m_testWindow->slot_keyShiftFPressed();
        QTRY_COMPARE(m_testWindow->size(), StoredSize);
        QVERIFY(!m_testWindow->isFullScreen());
    }
}

void tst_e2e_wayland::sizeFromTheCompositor_isShownAndNotStored()
{
    const auto *width = m_panel->findChild<QSpinBox *>(QStringLiteral("spinBoxWidth"));
    m_testWindow->windowHandle()->resize(640, 480); // as the compositor does, behind its back
    QTRY_COMPARE(width->value(), 640);

    m_panel->saveWindowBaseInfo();

    QCOMPARE(m_settings->value(QStringLiteral("/setting/testWindowWidth")).toInt(), 300);
    m_panel->slot_keyShiftRightPressed();
    QTRY_COMPARE(m_testWindow->width(), 641);
    m_panel->saveWindowBaseInfo();
    QCOMPARE(m_settings->value(QStringLiteral("/setting/testWindowWidth")).toInt(), 641);
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

/// Before the application, which connects to it. 0 if it does not come up.
static pid_t startCompositor(const QString &runtimeFolder)
{
    qputenv("XDG_RUNTIME_DIR", runtimeFolder.toLocal8Bit());
    qputenv("WAYLAND_DISPLAY", "tarn");
    qputenv("QT_QPA_PLATFORM", "wayland");
    qunsetenv("DISPLAY");
    const pid_t child = ::fork();
    if (child == 0) {
        ::prctl(PR_SET_PDEATHSIG, SIGTERM);
        ::execlp("weston", "weston", "--no-config", "--backend=headless-backend.so", "--width=1280",
                 "--height=800", "--idle-time=0", "--socket=tarn", "--log=/dev/null", nullptr);
        ::_exit(1);
    }
    const auto isUp = [&] { return QFileInfo::exists(runtimeFolder + QStringLiteral("/tarn")); };
    return waitFor(isUp) ? child : 0;
}

int main(int argc, char **argv)
{
    const QTemporaryDir runtimeFolder;
    const pid_t compositor = startCompositor(runtimeFolder.path());
    if (!compositor) {
        qCritical("No Wayland compositor (weston)");
        return 1;
    }
    int result = 0;
    {
        QApplication application(argc, argv);
        tst_e2e_wayland test;
        result = QTest::qExec(&test, argc, argv);
    }
    ::kill(compositor, SIGTERM);
    ::waitpid(compositor, nullptr, 0);
    return result;
}

#include "tst_e2e_wayland.moc"
