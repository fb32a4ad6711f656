#include "endtoendtest.h"
#include "waiting.h"

#include <QDir>
#include <QImage>
#include <QProcess>
#include <QTest>

/// What the tool shows on the screen is, to the pixel, what TarnTestPattern writes to a file. The
/// screen is as large as TARN_SCREEN_SIZE says, and the test window fills it.
class tst_e2e_patternfiles : public EndToEndTest
{
    Q_OBJECT

private slots:
    void pageDown_showsTheFilesOfTheWalk();
    void settings_showTheFile_data();
    void settings_showTheFile();

protected:
    std::unique_ptr<VirtualDesktop> createDesktop() const override;

private:
    void start(const QVariantMap &settings, const QPoint &click);
    void writeFiles(const QStringList &arguments, const QString &output);
    bool shows(const QString &file);
    QString path(const QString &name) const { return m_folder.filePath(name); }

    QTemporaryDir m_folder;
};

namespace {

// In the control window.
const QPoint nowhere;
const QPoint level64Button(178, 150);
const QPoint layoutButton(526, 211);

// Fast enough to come to every offset soon, and slow enough to be seen at each.
constexpr int scrollSpeed = 93;
constexpr int testSpeed = 100;

QString setting(const char *name)
{
    return QStringLiteral("/setting/") + QLatin1String(name);
}

QStringList words(const char *text)
{
    return QString::fromLatin1(text).split(QLatin1Char(' '));
}

QVariantMap cyan()
{
    return {{setting("currentTabIndex"), 1},
            {setting("testWindowBaseColor"), QColor(Qt::cyan)},
            {setting("testPurityGreyLevel"), 76}};
}

QVariantMap yellow()
{
    return {{setting("currentTabIndex"), 2}, {setting("gradualChangeColor"), QColor(Qt::yellow)}};
}

QVariantMap grid(const QVariantMap &more)
{
    QVariantMap settings = more;
    settings[setting("currentTabIndex")] = 3;
    settings[setting("gradualChangeColor")] = QColor(Qt::green);
    settings[setting("gridGreyLevel")] = 128;
    return settings;
}

QVariantMap lines()
{
    QVariantMap settings{{setting("gridSpeed"), scrollSpeed}};
    for (const char *family : {"Horizontal", "SlantLeft"}) {
        settings[QStringLiteral("/setting/grid%1Checked").arg(QLatin1String(family))] = true;
        settings[QStringLiteral("/setting/is%1Press").arg(QLatin1String(family))] = true;
    }
    return grid(settings);
}

QVariantMap mergedRun()
{
    QVariantMap settings{{setting("gridSpeed"), testSpeed},
                         {setting("gridIsMix"), true},
                         {setting("gridIsScroll"), true}};
    // Stored inverted: these are not selected.
    for (const char *name : {"Red", "Green", "White", "Yellow", "Purple", "V", "SL"})
        settings[setting("checkBox") + QLatin1String(name)] = true;
    return grid(settings);
}

QVariantMap layout(const QVariantMap &more)
{
    QVariantMap settings = more;
    settings[setting("currentTabIndex")] = 4;
    return settings;
}

constexpr const char *fullLayout =
    "layout --modules 48x24 --per-board 3x2 --numbers from-right --number-colour cyan "
    "--number-size 14 --number-shape bold --first 0,95 --module-line 2 --board-line 7";

QVariantMap everythingOfTheLayout()
{
    return layout({{setting("tarnBoxWidth"), 48},
                   {setting("tarnBoxHeight"), 24},
                   {setting("tarnModelColumnCount"), 3},
                   {setting("tarnModelRowCount"), 2},
                   {setting("tarnLeftToRight"), true},
                   {setting("tarnFontColor"), QStringLiteral("background-color: rgb(0,255,255)")},
                   {setting("tarnFontFontColor"), QColor(Qt::cyan)},
                   {setting("advanceFontSize"), 14},
                   {setting("advanceFontShape"), 1},
                   {setting("advanceBeginRow"), 0},
                   {setting("advanceBeginColumn"), 95},
                   {setting("advanceModeWidth"), 2},
                   {setting("advanceScanWidth"), 7}});
}

} // namespace

std::unique_ptr<VirtualDesktop> tst_e2e_patternfiles::createDesktop() const
{
    QSize size(1920, 1080);
    const QStringList sides = qEnvironmentVariable("TARN_SCREEN_SIZE").split(QLatin1Char('x'));
    if (sides.size() == 2)
        size = {sides.first().toInt(), sides.last().toInt()};
    return std::make_unique<VirtualDesktop>(size);
}

/// Leaves a copy of the settings as they were before the start.
void tst_e2e_patternfiles::start(const QVariantMap &settings, const QPoint &click)
{
    tool().writeConfig(settings);
    QFile::remove(path(QStringLiteral("config.ini")));
    QVERIFY(QFile::copy(tool().directory() + QStringLiteral("/config.ini"),
                        path(QStringLiteral("config.ini"))));
    QVERIFY(startTool());
    if (click != nowhere) {
        desktop().mouse().click(tool().controlWindow().geometry.topLeft() + click);
        desktop().mouse().move(desktop().screen().rect().bottomRight());
    }
    desktop().keyboard().key("f", Qt::ShiftModifier);
    QVERIFY(testWindowCovers(desktop().screen().rect()));
}

void tst_e2e_patternfiles::writeFiles(const QStringList &arguments, const QString &output)
{
    const QSize size = desktop().screen().rect().size();
    QProcess program;
    program.setWorkingDirectory(m_folder.path());
    program.setProcessChannelMode(QProcess::ForwardedChannels);
    program.start(QStringLiteral(TARN_PATTERN_EXECUTABLE),
                  arguments
                      + QStringList{QStringLiteral("--size"),
                                    QStringLiteral("%1x%2").arg(size.width()).arg(size.height()),
                                    QStringLiteral("-o"), output});
    QVERIFY(program.waitForFinished(scaledTimeout(60000)));
    QCOMPARE(program.exitCode(), 0);
}

bool tst_e2e_patternfiles::shows(const QString &file)
{
    const QImage image(file);
    const QRect corner(0, 0, 32, 32);
    const ScreenPixels &screen = desktop().screen();
    // A scrolling grid is looked at as a whole when its corner says that it is worth it.
    if (!image.isNull() && waitFor([&] {
            return screen.grab(corner) == image.copy(corner) && screen.grab() == image;
        }))
        return true;
    screen.grab().save(path(QStringLiteral("screen.png")));
    qWarning() << "The screen does not show" << file << image.size();
    return false;
}

void tst_e2e_patternfiles::pageDown_showsTheFilesOfTheWalk()
{
    writeFiles({QStringLiteral("walk")}, path(QStringLiteral("walk")));
    const QDir walk(path(QStringLiteral("walk")));
    const QStringList files = walk.entryList(QDir::Files);
    QCOMPARE(files.size(), 24);
    start({{setting("gridSpeed"), scrollSpeed}}, nowhere);
    for (int press = 1; press <= files.size(); ++press) {
        desktop().keyboard().key("Next");
        QVERIFY(shows(walk.filePath(files.at(press % files.size()))));
    }
}

void tst_e2e_patternfiles::settings_showTheFile_data()
{
    QTest::addColumn<QVariantMap>("settings");
    QTest::addColumn<QPoint>("click");
    QTest::addColumn<QByteArray>("key");
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("file");

    const QString file = QStringLiteral("file.bmp");
    QTest::newRow("start of the purity test")
        << cyan() << nowhere << QByteArray() << words("--config config.ini") << file;
    QTest::newRow("purity") << cyan() << nowhere << QByteArray("Up")
                            << words("purity --colour cyan --grey 77") << file;
    QTest::newRow("gradient") << yellow() << level64Button << QByteArray()
                              << words("gradient --colour yellow --levels 64") << file;
    QTest::newRow("grid")
        << lines() << nowhere << QByteArray()
        << words("grid --colour green --grey 128 --lines horizontal,slant-left --offset 4") << file;
    QTest::newRow("start of a scrolling grid")
        << lines() << nowhere << QByteArray() << words("--config config.ini --frames 3")
        << QStringLiteral("file-0003.bmp");
    QTest::newRow("start of the merged test, a colour")
        << mergedRun() << nowhere << QByteArray() << words("--config config.ini --frames 2")
        << QStringLiteral("file-0002.bmp");
    QTest::newRow("start of the merged test, lines")
        << mergedRun() << nowhere << QByteArray() << words("--config config.ini --frames 3")
        << QStringLiteral("file-0003.bmp");
    QTest::newRow("layout") << layout({}) << layoutButton << QByteArray() << words("layout")
                            << file;
    QTest::newRow("everything of the layout")
        << everythingOfTheLayout() << layoutButton << QByteArray() << words(fullLayout) << file;
}

void tst_e2e_patternfiles::settings_showTheFile()
{
    QFETCH(QVariantMap, settings);
    QFETCH(QPoint, click);
    QFETCH(QByteArray, key);
    QFETCH(QStringList, arguments);
    QFETCH(QString, file);

    start(settings, click);
    writeFiles(arguments, QStringLiteral("file.bmp"));
    if (!key.isEmpty())
        desktop().keyboard().key(key.constData());
    QVERIFY(shows(path(file)));
}

QTEST_GUILESS_MAIN(tst_e2e_patternfiles)
#include "tst_e2e_patternfiles.moc"
