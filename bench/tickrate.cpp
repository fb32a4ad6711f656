// How many steps a second the scrolling grid reaches at its highest speed in a test window of
// 3840 x 2160 pixels, on an X server of its own, and what share of a core the program takes.

#include "toolprocess.h"
#include "virtualdesktop.h"
#include "waiting.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QImage>
#include <QTest>

#include <cstdio>

#include <unistd.h>

namespace {

constexpr QSize desktopSize(3840, 2160);
constexpr int lineSpacing = 10; // pixels
constexpr double fullRate = 1000.0 / 14; // a tick every 14 ms
constexpr int lookIntervalMs = 40; // fewer than ten ticks, or a round would go unseen
constexpr int measuredMs = 10000;

// The first row with a line, 0 to 9; -1 when there is none.
int offset(VirtualDesktop &desktop)
{
    const QImage column = desktop.screen().grab(QRect(5, 0, 1, lineSpacing));
    for (int row = 0; row < lineSpacing; ++row) {
        if (column.pixel(0, row) == qRgb(255, 0, 0))
            return row;
    }
    return -1;
}

// Processor time of a process in seconds: fields 14 and 15 of its stat file.
double processorTime(qint64 processId)
{
    QFile file(QStringLiteral("/proc/%1/stat").arg(processId));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    const QList<QByteArray> fields = file.readAll().split(' ');
    return (fields.value(13).toDouble() + fields.value(14).toDouble())
           / double(sysconf(_SC_CLK_TCK));
}

bool startScrolling(VirtualDesktop &desktop, ToolProcess &tool)
{
    tool.writeConfig({{QStringLiteral("/setting/gridSpeed"), 100},
                      {QStringLiteral("/setting/testWindowWidth"), desktopSize.width()},
                      {QStringLiteral("/setting/testWindowHeight"), desktopSize.height()}});
    if (!tool.start() || !tool.focusControlWindow())
        return false;
    for (int press = 0; press < 8; ++press)
        desktop.keyboard().key("Next");
    return waitFor([&desktop] { return offset(desktop) >= 0; });
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    VirtualDesktop desktop(desktopSize);
    ToolProcess tool(desktop);
    if (!desktop.start() || !startScrolling(desktop, tool)) {
        std::fprintf(stderr, "%s %s\n", qPrintable(desktop.problem()), qPrintable(tool.problem()));
        return 1;
    }
    const double timeBefore = processorTime(tool.processId());
    QElapsedTimer clock;
    clock.start();
    int ticks = 0;
    for (int before = offset(desktop); clock.elapsed() < measuredMs;) {
        QTest::qWait(lookIntervalMs);
        const int now = offset(desktop);
        if (now < 0)
            continue;
        ticks += (now - before + lineSpacing) % lineSpacing;
        before = now;
    }
    const double seconds = double(clock.elapsed()) / 1000;
    const double share = (processorTime(tool.processId()) - timeBefore) / seconds;
    std::printf("3840x2160, speed 100: %.1f of %.1f ticks a second, %.0f %% of a core\n",
                ticks / seconds, fullRate, 100 * share);
    return 0;
}
