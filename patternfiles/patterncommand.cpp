#include "patterncommand.h"

#include "drawctrlform.h"
#include "drawnpattern.h"
#include "griddrawer.h"
#include "mainwindow.h"
#include "options.h"
#include "patternwords.h"
#include "picturefile.h"
#include "purecolor.h"
#include "scrgridctrldialog.h"
#include "settingsfile.h"
#include "storedsettings.h"

#include <QDir>
#include <QFileInfo>

#include <cstdio>

namespace {

enum ExitCode { Done, NotWritten, WrongOptions };

constexpr Options::Range sides{1, 32767}; // more pixels than the painter can count
constexpr Options::Range frameCounts{1, 1000000};

ExitCode fail(ExitCode code, const QString &problem)
{
    std::fprintf(stderr, "TarnTestPattern: %s\n", problem.toLocal8Bit().constData());
    return code;
}

ExitCode write(DrawContainer &window, const QString &path)
{
    const QString problem = PictureFile::write(window, path);
    if (problem.isEmpty())
        return Done;
    return fail(NotWritten, QStringLiteral("\"%1\" cannot be written: %2").arg(path, problem));
}

// A number before the ending.
QString framePath(const QString &path, int frame)
{
    constexpr int digits = 4;
    const QFileInfo file(path);
    const QString number = QStringLiteral("-%1").arg(frame, digits, 10, QLatin1Char('0'));
    const QString ending = file.suffix().isEmpty() ? QString() : QLatin1Char('.') + file.suffix();
    return path.chopped(ending.size()) + number + ending;
}

ExitCode writeFrames(Options &options, DrawContainer &window, const std::function<void()> &step)
{
    const QString path = options.text("output");
    if (!options.isSet("frames"))
        return write(window, path);
    const int frames = options.number("frames", frameCounts);
    ExitCode code = Done;
    for (int frame = 1; frame <= frames && code == Done; ++frame) {
        code = write(window, framePath(path, frame));
        step();
    }
    return code;
}

// Of a step of the page keys' walk, 0 to 23.
QString walkName(int step)
{
    constexpr int count = PureColor::pageColorCount;
    const QString color = PatternWords::colors().at(
        step < 2 * count ? step % count : step / GridPattern::familyCount - 2);
    QString name = QStringLiteral("%1-").arg(step + 1, 2, 10, QLatin1Char('0'));
    if (step < count)
        return name + QStringLiteral("purity-") + color;
    if (step < 2 * count)
        return name + QStringLiteral("gradient-") + color;
    return name + QStringLiteral("grid-") + color + QLatin1Char('-')
           + PatternWords::families().at(step % GridPattern::familyCount);
}

// For a start on these values alone, with the test window hidden, so that nothing keeps the screen
// awake for it.
StoredSettings *hiddenStart(const QVariantMap &values = {})
{
    auto *settings = new StoredSettings(values);
    settings->setValue(DrawCtrlForm::hiddenKey, true);
    return settings;
}

// A fresh tool stands on the first step, which comes again after the last one. On the screen a grid
// appears with the first step of its run, which would move it.
ExitCode writeWalk(const QString &folder, const QSize &size)
{
    constexpr int steps = PureColor::pageColorCount * (2 + GridPattern::familyCount);
    if (!QDir().mkpath(folder))
        return fail(NotWritten, QStringLiteral("\"%1\" cannot be made a folder").arg(folder));
    MainWindow tool(nullptr, hiddenStart());
    DrawContainer &window = tool.testWindow();
    window.resize(size);
    ExitCode code = Done;
    for (int press = 1; press <= steps && code == Done; ++press) {
        tool.slot_SwitchDownTabControl();
        window.setDrawer(window.selectedDrawer(), true);
        const QString name = walkName(press % steps) + QStringLiteral(".png");
        code = write(window, QDir(folder).filePath(name));
    }
    return code;
}

ExitCode writeStart(Options &options, QSize size)
{
    const QFileInfo config(options.text("config"));
    if (!config.isFile() || !config.isReadable())
        return fail(WrongOptions,
                    QStringLiteral("--config \"%1\" cannot be read").arg(config.filePath()));
    MainWindow tool(nullptr, hiddenStart(SettingsFile::values(config.filePath())));
    if (!options.isSet("size"))
        size = tool.findChild<DrawCtrlForm *>()->storedSize();
    if (qMax(size.width(), size.height()) > sides.most)
        return fail(WrongOptions, QStringLiteral("the test window of \"%1\" is too large for a "
                                                 "picture; choose a --size")
                                      .arg(config.filePath()));
    tool.testWindow().resize(size);
    const auto step = [&tool] { tool.findChild<ScrGridCtrlDialog *>()->slot_TimerOut(); };
    step(); // which comes within a second, and shows a grid
    return writeFrames(options, tool.testWindow(), step);
}

ExitCode writeDrawn(Options &options, const QSize &size)
{
    DrawContainer window;
    const DrawnPattern pattern(options, window);
    if (!options.problem().isEmpty())
        return fail(WrongOptions, options.problem());
    window.resize(size);
    return writeFrames(options, window, pattern.step);
}

} // namespace

int PatternCommand::run(const QStringList &arguments)
{
    Options options(arguments);
    if (!options.information().isEmpty()) {
        std::fputs(options.information().toLocal8Bit().constData(), stdout);
        return Done;
    }
    const bool isWalk = options.kind() == Options::Walk;
    const QString path = options.text("output");
    if (!isWalk && PictureFile::format(path).isEmpty())
        options.setProblem(QStringLiteral("pictures like \"%1\" cannot be written").arg(path));
    const QSize size = options.pair("size", QLatin1Char('x'), sides);
    options.number("frames", frameCounts);
    if (!options.problem().isEmpty())
        return fail(WrongOptions, options.problem());
    if (isWalk)
        return writeWalk(path, size);
    return options.kind() == Options::Start ? writeStart(options, size) : writeDrawn(options, size);
}
