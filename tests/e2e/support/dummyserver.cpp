#include "dummyserver.h"

#include <QFile>
#include <QProcess>

namespace {

// No device of this machine is touched, and the pool of video memory has room for all outputs.
constexpr char configuration[] = R"(
Section "ServerFlags"
  Option "AutoAddDevices" "false"
  Option "AutoEnableDevices" "false"
EndSection
Section "Monitor"
  Identifier "Monitor0"
  HorizSync 1.0-1000.0
  VertRefresh 1.0-1000.0
  Modeline "1920x1080" 172.80 1920 2040 2248 2576 1080 1081 1084 1118
  Modeline "1080x1920" 172.80 1080 1160 1280 1480 1920 1921 1924 1946
  Modeline "1024x1280" 108.00 1024 1104 1216 1376 1280 1281 1284 1308
  Modeline "768x1024" 65.00 768 808 888 1008 1024 1025 1028 1074
EndSection
Section "Device"
  Identifier "Device0"
  Driver "dummy"
  VideoRam 512000
EndSection
Section "Screen"
  Identifier "Screen0"
  Device "Device0"
  Monitor "Monitor0"
  DefaultDepth 24
  SubSection "Display"
    Depth 24
    Modes "1920x1080"
    Virtual 8192 4320
  EndSubSection
EndSection
)";

QString modeName(const QSize &size)
{
    return QStringLiteral("%1x%2").arg(size.width()).arg(size.height());
}

} // namespace

DummyServer::DummyServer()
{
    QFile file(m_directory.filePath(QStringLiteral("xorg.conf")));
    if (file.open(QIODevice::WriteOnly))
        file.write(configuration);
}

QString DummyServer::program() const
{
    return QStringLiteral("Xorg");
}

QStringList DummyServer::arguments() const
{
    return {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-config"),
            m_directory.filePath(QStringLiteral("xorg.conf")), QStringLiteral("-logfile"),
            m_directory.filePath(QStringLiteral("log")), QStringLiteral("-nolisten"),
            QStringLiteral("tcp"), QStringLiteral("-noreset"),
            // A machine with a console keeps showing what it shows.
            QStringLiteral("-novtswitch"), QStringLiteral("-sharevts")};
}

bool DummyServer::plugIn(const QString &output, const QString &relation, const QString &other,
                         const QSize &size)
{
    return xrandr({QStringLiteral("--addmode"), output, modeName(size)})
           && xrandr({QStringLiteral("--output"), output, QStringLiteral("--mode"), modeName(size),
                      relation, other})
           && detectOutputs();
}

bool DummyServer::unplug(const QString &output)
{
    return xrandr({QStringLiteral("--output"), output, QStringLiteral("--off")}) && detectOutputs();
}

bool DummyServer::arrange(const QMap<QString, QRect> &outputs)
{
    // Left to itself, xrandr works out the millimetres from the last ones and rounds them down,
    // until after hundreds of changes there are none.
    QStringList arguments{QStringLiteral("--dpi"), QStringLiteral("96")};
    for (auto output = outputs.cbegin(); output != outputs.cend(); ++output) {
        arguments << QStringLiteral("--output") << output.key();
        if (output->isNull()) {
            arguments << QStringLiteral("--off");
            continue;
        }
        const QString mode = modeName(output->size());
        if (!xrandr({QStringLiteral("--addmode"), output.key(), mode}))
            return false;
        arguments << QStringLiteral("--mode") << mode << QStringLiteral("--pos")
                  << QStringLiteral("%1x%2").arg(output->x()).arg(output->y());
    }
    return xrandr(arguments) && detectOutputs();
}

// An output that is on counts as connected, but the server looks only when it is asked to.
bool DummyServer::detectOutputs()
{
    return xrandr({QStringLiteral("--query")});
}

bool DummyServer::xrandr(const QStringList &arguments)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(QStringLiteral("xrandr"),
                  QStringList{QStringLiteral("-display"), displayName()} + arguments);
    const bool isEnded = process.waitForFinished();
    if (isEnded && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0)
        return true;
    m_outputProblem = QStringLiteral("xrandr %1: %2 %3")
                          .arg(arguments.join(QLatin1Char(' ')), process.errorString(),
                               QString::fromLocal8Bit(process.readAll()));
    return false;
}
