#include "displayenvironment.h"
#include "patterncommand.h"

#include <QApplication>

#include <cstdio>

namespace {

// What goes wrong is said by the program, in one line.
void dropWarnings(QtMsgType type, const QMessageLogContext & /*context*/, const QString &text)
{
    if (type == QtCriticalMsg || type == QtFatalMsg)
        std::fprintf(stderr, "%s\n", text.toLocal8Bit().constData());
}

} // namespace

int main(int argc, char **argv)
{
    qInstallMessageHandler(dropWarnings);
    // No display is needed, and no desktop's theme or environment changes a picture.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qunsetenv("QT_QPA_PLATFORMTHEME");
    qunsetenv("QT_STYLE_OVERRIDE");
    DisplayEnvironment::prepare();
    int ownName = 1; // Qt takes no options of its own from the command line
    const QApplication application(ownName, argv);
    QCoreApplication::setApplicationVersion(QStringLiteral(TARN_VERSION));
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments += QString::fromLocal8Bit(argv[i]);
    return PatternCommand::run(arguments);
}
