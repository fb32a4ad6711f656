#include "toolprocess.h"

#include "virtualdesktop.h"
#include "waiting.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>

#include <csignal>

namespace {
constexpr int StartDeadline = 30000;
constexpr int ExitDeadline = 20000;

QString originalExecutable()
{
    return QStringLiteral(TARN_TOOL_EXECUTABLE);
}

QString testWindowTitle()
{
    return QStringLiteral("Form");
}

/// Copies the files of a folder, not its subfolders.
void copyFolder(const QString &from, const QString &to)
{
    QDir().mkpath(to);
    const QFileInfoList files = QDir(from).entryInfoList(QDir::Files);
    for (const QFileInfo &file : files)
        QFile::copy(file.filePath(), to + QLatin1Char('/') + file.fileName());
}
} // namespace

ToolProcess::ToolProcess(VirtualDesktop &desktop)
    : m_desktop(desktop)
{
    const QFileInfo original(originalExecutable());
    m_process.setProgram(m_directory.filePath(original.fileName()));
    // A copy and no link: the program finds its directory through its own path.
    QFile::copy(original.filePath(), m_process.program());
    copyFolder(original.path() + QStringLiteral("/ts"), m_directory.filePath(QStringLiteral("ts")));
}

ToolProcess::~ToolProcess()
{
    m_process.end();
}

void ToolProcess::setEnvironment(const QString &name, const QString &value)
{
    m_extraEnvironment.insert(name, value);
}

void ToolProcess::removeTranslations()
{
    QDir(m_directory.filePath(QStringLiteral("ts"))).removeRecursively();
}

QString ToolProcess::configPath() const
{
    return m_directory.filePath(QStringLiteral("config.ini"));
}

void ToolProcess::writeConfig(const QVariantMap &values) const
{
    QSettings settings(configPath(), QSettings::IniFormat);
    settings.setIniCodec("UTF-8");
    for (auto value = values.cbegin(); value != values.cend(); ++value)
        settings.setValue(value.key(), value.value());
}

QVariant ToolProcess::configValue(const QString &key) const
{
    if (!QFileInfo(configPath()).isFile())
        return {};
    QSettings settings(configPath(), QSettings::IniFormat);
    settings.setIniCodec("UTF-8");
    return settings.value(key);
}

QVariantMap ToolProcess::configIni() const
{
    QVariantMap values;
    if (!QFileInfo(configPath()).isFile())
        return values;
    QSettings settings(configPath(), QSettings::IniFormat);
    settings.setIniCodec("UTF-8");
    const QStringList keys = settings.allKeys();
    for (const QString &key : keys)
        values.insert(QLatin1Char('/') + key, settings.value(key));
    return values;
}

QProcessEnvironment ToolProcess::environment() const
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    // Nothing of the surroundings may choose another platform, style, scaling
    // or session.
    const QStringList names = environment.keys();
    for (const QString &name : names) {
        if (name.startsWith(QLatin1String("QT_")) && !name.endsWith(QLatin1String("PLUGIN_PATH")))
            environment.remove(name);
    }
    for (const char *name : {"WAYLAND_DISPLAY", "XDG_SESSION_TYPE", "SESSION_MANAGER",
                             "DBUS_SESSION_BUS_ADDRESS", "LANGUAGE", "LANG"})
        environment.remove(QLatin1String(name));
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
    environment.insert(QStringLiteral("DISPLAY"), m_desktop.displayName());
    environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), m_runtimeDirectory.path());
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), m_runtimeDirectory.path());
    for (auto extra = m_extraEnvironment.cbegin(); extra != m_extraEnvironment.cend(); ++extra)
        environment.insert(extra.key(), extra.value());
    return environment;
}

bool ToolProcess::start(TestWindow testWindow)
{
    m_problem.clear();
    m_process.setProcessEnvironment(environment());
    m_process.setWorkingDirectory(m_directory.path());
    m_process.setArguments(m_arguments);
    m_process.setProcessChannelMode(QProcess::ForwardedOutputChannel);
    m_process.start(QIODevice::ReadOnly);
    if (!m_process.waitForStarted()) {
        m_problem = QStringLiteral("%1 does not start: %2")
                        .arg(m_process.program(), m_process.errorString());
        return false;
    }
    return waitForStart(testWindow);
}

bool ToolProcess::waitForStart(TestWindow testWindow)
{
    const bool isShown = testWindow == TestWindow::Shown;
    // Some window managers hide a new window once more, to put it into its frame.
    WindowId control = 0;
    const auto hasWindows = [&] {
        control = controlWindow().id;
        return this->testWindow().isMapped == isShown && control != 0;
    };
    bool isShowing = false;
    waitFor([&] { return (isShowing = hasWindows()) || !isRunning(); }, StartDeadline);
    if (!isRunning()) {
        m_problem = QStringLiteral("The program ended while it started");
        return false;
    }
    if (!isShowing) {
        m_problem = QStringLiteral("The program's windows do not appear");
        return false;
    }
    if (!m_desktop.windows().answersPing(control, StartDeadline)) {
        m_problem = QStringLiteral("The program's event loop does not run");
        return false;
    }
    m_desktop.windows().syncWithWindowManager();
    if (!waitFor(hasWindows)) {
        m_problem = QStringLiteral("The program's windows do not stay");
        return false;
    }
    return true;
}

bool ToolProcess::quit()
{
    m_problem.clear();
    m_desktop.windows().close(controlWindow().id);
    return waitForCleanExit();
}

bool ToolProcess::endBySignal(int signal)
{
    m_problem.clear();
    ::kill(static_cast<pid_t>(m_process.processId()), signal);
    return waitForCleanExit();
}

void ToolProcess::kill()
{
    m_process.kill();
    m_process.waitForFinished();
}

bool ToolProcess::waitForCleanExit()
{
    if (!waitFor([this] { return !isRunning(); }, ExitDeadline))
        m_problem = QStringLiteral("The program does not end");
    else if (m_process.exitStatus() != QProcess::NormalExit)
        m_problem = QStringLiteral("The program crashed");
    else if (m_process.exitCode() != 0)
        m_problem = QStringLiteral("The program ended with %1").arg(m_process.exitCode());
    return m_problem.isEmpty();
}

QString ToolProcess::problem() const
{
    return m_problem + QStringLiteral("; its error output: \"%1\"").arg(standardError());
}

QString ToolProcess::standardError() const
{
    m_standardError += m_process.readAllStandardError();
    return QString::fromUtf8(m_standardError);
}

QVector<WindowInfo> ToolProcess::mappedWindows() const
{
    QVector<WindowInfo> mapped;
    const QVector<WindowInfo> all = m_desktop.windows().ofProcess(m_process.processId());
    for (const WindowInfo &window : all) {
        if (window.isMapped)
            mapped.append(window);
    }
    return mapped;
}

WindowInfo ToolProcess::testWindow() const
{
    const QVector<WindowInfo> all = m_desktop.windows().ofProcess(m_process.processId());
    for (const WindowInfo &window : all) {
        if (window.title == testWindowTitle())
            return window;
    }
    return {};
}

WindowInfo ToolProcess::controlWindow() const
{
    // Its title depends on the language.
    const QVector<WindowInfo> mapped = mappedWindows();
    for (const WindowInfo &window : mapped) {
        if (!window.isPopup && window.title != testWindowTitle())
            return window;
    }
    return {};
}

bool ToolProcess::focusControlWindow()
{
    const WindowId window = controlWindow().id;
    m_desktop.windows().activate(window);
    return waitFor([&] { return m_desktop.windows().active() == window; });
}
