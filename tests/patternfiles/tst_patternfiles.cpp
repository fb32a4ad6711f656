#include "patternprocess.h"

#include <QtTest>

// The pictures that TarnTestPattern writes. What the drawers paint has tests of its own; here it is
// that every option reaches them, and nothing else does.
class TestPatternFiles : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_program = std::make_unique<PatternProcess>(); }

    void options_decideOnThePixels_data();
    void options_decideOnThePixels();
    void options_decideOnTheNumbers_data();
    void options_decideOnTheNumbers();
    void sameCommand_givesTheSameBytes_data();
    void sameCommand_givesTheSameBytes();
    void png_hasEightBitsAndNoColourChunks();
    void ending_choosesTheFormat_data();
    void ending_choosesTheFormat();
    void longestSide_isWritten();
    void largePicture_isDrawnInFull();
    void walk_isThePatternsOfThePageKeys();
    void scrollingFrames_moveByOnePixel();
    void testFrames_areThoseOfTheRun_data();
    void testFrames_areThoseOfTheRun();
    void config_isShownAsAfterAStart_data();
    void config_isShownAsAfterAStart();
    void config_isLeftAsItIs();
    void start_keepsNoScreenAwake();

private:
    QImage imageOf(const QString &command);

    std::unique_ptr<PatternProcess> m_program;
};

namespace {

const QByteArray picture("P3 2 1 255 1 2 3 200 100 50");

// "x,y,#rrggbb" each, with blanks between.
QString wrongPixel(const QImage &image, const QString &pixels)
{
    const QStringList expectations = pixels.split(QLatin1Char(' '));
    for (const QString &expected : expectations) {
        const QStringList parts = expected.split(QLatin1Char(','));
        const QColor color = image.pixelColor(parts.at(0).toInt(), parts.at(1).toInt());
        if (color.name() != parts.at(2))
            return expected + QStringLiteral(" is ") + color.name();
    }
    return {};
}

int count(const QImage &image, QRgb color)
{
    int found = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            found += image.pixel(x, y) == color;
    }
    return found;
}

QByteArray chunks(const QByteArray &png)
{
    QByteArray names;
    for (int at = 8; at + 8 <= png.size();) {
        const QByteArray name = png.mid(at + 4, 4);
        if (!names.endsWith(name))
            names += ' ' + name;
        at += 12 + int(qFromBigEndian<quint32>(png.constData() + at));
    }
    return names;
}

} // namespace

QImage TestPatternFiles::imageOf(const QString &command)
{
    if (m_program->run(command + QStringLiteral(" -o file.png")) != 0)
        qWarning("%s", m_program->errors.constData());
    return m_program->image(QStringLiteral("file.png"));
}

void TestPatternFiles::options_decideOnThePixels_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<QString>("pixels");

    const auto add = [](const char *command, const char *pixels) {
        QTest::newRow(command) << QString::fromLatin1(command) << QString::fromLatin1(pixels);
    };
    add("purity", "0,0,#ff0000 299,199,#ff0000");
    add("purity --colour purple --grey 77", "0,0,#4d004d 299,199,#4d004d");
    add("gradient", "0,5,#000000 255,5,#ff0000 256,5,#000000");
    add("gradient --colour yellow --levels 32", "16,5,#838300 31,5,#fbfb00 32,5,#040400");
    add("grid", "5,0,#ff0000 5,1,#000000 5,10,#ff0000");
    add("grid --colour green --grey 128", "5,0,#008000");
    add("grid --lines vertical,slant-left", "10,5,#ff0000 4,6,#ff0000 4,5,#000000");
    add("grid --lines slant-right", "0,290,#ff0000 5,295,#ff0000 5,294,#000000");
    add("grid --spacing 20", "5,10,#000000 5,20,#ff0000");
    add("grid --width 3", "5,9,#ff0000 5,11,#ff0000 5,12,#000000");
    add("grid --offset 4", "5,0,#000000 5,4,#ff0000 5,14,#ff0000");
    add("grid --background #102030", "5,5,#102030");
    add("layout", "0,5,#0000ff 32,5,#ff0000 5,16,#ff0000 64,5,#0000ff 5,32,#0000ff 5,5,#000000");
    add("layout --modules 40x20", "40,5,#ff0000 80,5,#0000ff 5,20,#ff0000 5,40,#0000ff");
    add("layout --per-board 1x3", "32,5,#0000ff 5,16,#ff0000 5,32,#ff0000 5,48,#0000ff");
    add("layout --numbers from-right", "0,5,#000000 12,5,#ff0000 44,5,#0000ff 299,5,#0000ff");
    add("layout --background white", "5,5,#ffffff");
    add("layout --picture picture.ppm", "5,5,#010203 140,5,#010203 170,5,#c86432 295,295,#c86432");
    add("layout --module-colour #123456 --module-line 3", "31,5,#123456 33,5,#123456");
    add("layout --board-colour cyan --board-line 10", "59,5,#00ffff 68,5,#00ffff 70,5,#000000");
}

void TestPatternFiles::options_decideOnThePixels()
{
    QFETCH(QString, command);
    QFETCH(QString, pixels);
    m_program->add(QStringLiteral("picture.ppm"), picture);
    const QImage image = imageOf(command + QStringLiteral(" --size 300x300"));
    QCOMPARE(image.size(), QSize(300, 300));
    QCOMPARE(wrongPixel(image, pixels), QString());
}

void TestPatternFiles::options_decideOnTheNumbers_data()
{
    QTest::addColumn<QString>("option");

    for (const char *option :
         {"--first 0,1", "--first 1,10", "--number-size 12", "--number-shape bold",
          "--number-shape italic", "--number-colour white"})
        QTest::newRow(option) << QString::fromLatin1(option);
}

void TestPatternFiles::options_decideOnTheNumbers()
{
    QFETCH(QString, option);
    const QString command = QStringLiteral("layout --size 300x200 ");
    const QImage usual = imageOf(command);
    const QImage other = imageOf(command + option);
    const QRgb color =
        option.endsWith(QLatin1String("white")) ? qRgb(255, 255, 255) : qRgb(255, 255, 0);
    QVERIFY(count(usual, qRgb(255, 255, 0)) > 300);
    QVERIFY(count(other, color) > 100);
    QVERIFY(other != usual);
}

void TestPatternFiles::sameCommand_givesTheSameBytes_data()
{
    QTest::addColumn<QString>("command");

    for (const char *command : {"purity", "gradient", "grid --lines vertical,slant-left",
                                "layout --number-size 20", "layout --picture picture.ppm"})
        QTest::newRow(command) << QString::fromLatin1(command);
}

// Whatever the environment asks of a program with windows.
void TestPatternFiles::sameCommand_givesTheSameBytes()
{
    QFETCH(QString, command);
    m_program->add(QStringLiteral("picture.ppm"), picture);
    QCOMPARE(m_program->run(command + QStringLiteral(" -o first.png")), 0);
    const QPair<const char *, const char *> hostile[] = {
        {"QT_QPA_PLATFORM", "xcb"},       {"DISPLAY", ":none"},
        {"WAYLAND_DISPLAY", "none"},      {"QT_SCALE_FACTOR", "2"},
        {"QT_FONT_DPI", "192"},           {"QT_STYLE_OVERRIDE", "windows"},
        {"QT_QPA_PLATFORMTHEME", "gtk3"}, {"LC_ALL", "zh_CN.UTF-8"}};
    for (const auto &[name, value] : hostile)
        m_program->environment.insert(QLatin1String(name), QLatin1String(value));
    QCOMPARE(m_program->run(command + QStringLiteral(" -o second.png")), 0);
    QCOMPARE(m_program->errors, QByteArray());
    QVERIFY(m_program->bytes(QStringLiteral("first.png")).size() > 100);
    QVERIFY(m_program->bytes(QStringLiteral("first.png"))
            == m_program->bytes(QStringLiteral("second.png")));
}

void TestPatternFiles::png_hasEightBitsAndNoColourChunks()
{
    imageOf(QStringLiteral("gradient --size 300x200"));
    const QByteArray png = m_program->bytes(QStringLiteral("file.png"));
    QCOMPARE(chunks(png), QByteArray(" IHDR pHYs IDAT IEND"));
    QCOMPARE(int(png.at(24)), 8); // bits
    QCOMPARE(int(png.at(25)), 2); // red, green and blue
    // 96 dots to the inch
    QCOMPARE(png.mid(png.indexOf("pHYs") + 4, 9), QByteArray::fromHex("00000ec400000ec401"));
    QVERIFY(png.size() < 10000); // compressed
}

void TestPatternFiles::ending_choosesTheFormat_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("format");
    QTest::newRow("png") << "a.png" << QByteArray("png");
    QTest::newRow("capital letters") << "a.PNG" << QByteArray("png");
    QTest::newRow("none") << "a" << QByteArray("png");
    QTest::newRow("bmp") << "a.bmp" << QByteArray("bmp");
    QTest::newRow("jpg") << "a.jpg" << QByteArray("jpeg");
    QTest::newRow("ppm") << "a.ppm" << QByteArray("ppm");
}

void TestPatternFiles::ending_choosesTheFormat()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, format);
    const QString command = QStringLiteral("purity --grey 100 --size 30x20 -o ") + name;
    QCOMPARE(m_program->run(command), 0);
    QCOMPARE(m_program->files(), QStringList(name));
    QCOMPARE(QImageReader::imageFormat(m_program->path(name)), format);
    QImageReader reader(m_program->path(name));
    reader.setDecideFormatFromContent(true);
    const QImage image = reader.read();
    QCOMPARE(image.size(), QSize(30, 20));
    QVERIFY(qAbs(image.pixelColor(10, 10).red() - 100) <= 1); // of a JPEG
}

void TestPatternFiles::longestSide_isWritten()
{
    const QImage wide = imageOf(QStringLiteral("grid --lines vertical --size 32767x2"));
    QCOMPARE(wide.size(), QSize(32767, 2));
    QCOMPARE(wrongPixel(wide, QStringLiteral("32760,1,#ff0000 32766,1,#000000")), QString());
    QCOMPARE(imageOf(QStringLiteral("layout --size 2x32767")).size(), QSize(2, 32767));
}

// Numbers come last and from the top down.
void TestPatternFiles::largePicture_isDrawnInFull()
{
    const QImage image =
        imageOf(QStringLiteral("layout --modules 16x16 --per-board 4x1 --size 4000x4000"));
    const QRect lastRows(0, 3800, 4000, 200);
    QVERIFY(count(image.copy(lastRows), qRgb(255, 255, 0)) > 300);
}

void TestPatternFiles::walk_isThePatternsOfThePageKeys()
{
    QStringList commands;
    for (const char *pattern : {"purity", "gradient"}) {
        for (const char *color : {"red", "green", "blue", "white"})
            commands +=
                QStringLiteral("%1 --colour %2").arg(QLatin1String(pattern), QLatin1String(color));
    }
    for (const char *color : {"red", "green", "blue", "white"}) {
        for (const char *lines : {"horizontal", "vertical", "slant-left", "slant-right"})
            commands += QStringLiteral("grid --colour %1 --lines %2")
                            .arg(QLatin1String(color), QLatin1String(lines));
    }
    QCOMPARE(m_program->run(QStringLiteral("walk --size 270x30 -o new/walk")), 0);
    const QDir walk(m_program->path(QStringLiteral("new/walk")));
    const QStringList files = walk.entryList(QDir::AllEntries | QDir::NoDotAndDotDot, QDir::Name);
    QCOMPARE(files.size(), commands.size());
    for (int step = 0; step < commands.size(); ++step) {
        QString name = commands.at(step);
        name.remove(QStringLiteral("--colour ")).remove(QStringLiteral("--lines "));
        name.replace(QLatin1Char(' '), QLatin1Char('-'));
        QCOMPARE(files.at(step),
                 QStringLiteral("%1-%2.png").arg(step + 1, 2, 10, QLatin1Char('0')).arg(name));
        QCOMPARE(QImage(walk.filePath(files.at(step))),
                 imageOf(commands.at(step) + QStringLiteral(" --size 270x30")));
    }
}

void TestPatternFiles::scrollingFrames_moveByOnePixel()
{
    QCOMPARE(m_program->run(QStringLiteral("grid --offset 8 --frames 3 --size 50x50 -o run.png")),
             0);
    const QStringList names{QStringLiteral("run-0001.png"), QStringLiteral("run-0002.png"),
                            QStringLiteral("run-0003.png")};
    QCOMPARE(m_program->files(), names);
    for (int frame = 0; frame < names.size(); ++frame)
        QCOMPARE(m_program->image(names.at(frame)),
                 imageOf(QStringLiteral("grid --size 50x50 --offset %1").arg((8 + frame) % 10)));
}

void TestPatternFiles::testFrames_areThoseOfTheRun_data()
{
    QTest::addColumn<QString>("options");
    QTest::addColumn<QStringList>("pixels"); // of each picture

    const QStringList aging{QStringLiteral("5,5,#800000"), QStringLiteral("5,5,#008000"),
                            QStringLiteral("5,5,#000080"), QStringLiteral("5,5,#808080"),
                            QStringLiteral("5,5,#800000")};
    // The lines go on scrolling meanwhile.
    const QStringList merged{QStringLiteral("5,5,#000080"), QStringLiteral("5,5,#808080"),
                             QStringLiteral("3,5,#800000 4,5,#000000"),
                             QStringLiteral("5,5,#000080")};
    const QStringList allLines{QStringLiteral("5,5,#000080"),
                               QStringLiteral("5,2,#800000 5,3,#000000"),
                               QStringLiteral("3,5,#800000 4,5,#000000"),
                               QStringLiteral("2,2,#800000 2,3,#000000"),
                               QStringLiteral("3,48,#800000 3,47,#000000"),
                               QStringLiteral("5,5,#000080")};
    QTest::newRow("merged, all lines") << "--run merged --colours blue" << allLines;
    QTest::newRow("aging") << "--run aging" << aging;
    QTest::newRow("merged") << "--run merged --colours white,blue --lines vertical" << merged;
}

void TestPatternFiles::testFrames_areThoseOfTheRun()
{
    QFETCH(QString, options);
    QFETCH(QStringList, pixels);
    QCOMPARE(m_program->run(QStringLiteral("grid --grey 128 --size 50x50 -o run.png --frames %1 %2")
                                .arg(pixels.size())
                                .arg(options)),
             0);
    const QStringList files = m_program->files();
    QCOMPARE(files.size(), pixels.size());
    for (int frame = 0; frame < pixels.size(); ++frame)
        QCOMPARE(wrongPixel(m_program->image(files.at(frame)), pixels.at(frame)), QString());
}

void TestPatternFiles::config_isShownAsAfterAStart_data()
{
    QTest::addColumn<QByteArray>("settings");
    QTest::addColumn<QString>("options");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QString>("pixels");

    const QByteArray green = "[setting]\ntestWindowBaseColor=#00ff00\ntestPurityGreyLevel=100\n";
    const QByteArray grid = "[setting]\ncurrentTabIndex=3\ngridHorizontalChecked=true\n"
                            "isHorizontalPress=true\ngridGreyLevel=200\n";
    QTest::newRow("nothing") << QByteArray() << "" << QSize(256, 256) << "0,0,#ff0000";
    QTest::newRow("a colour") << green << "--size 300x20" << QSize(300, 20) << "299,19,#006400";
    QTest::newRow("larger than a screen") << green + "testWindowWidth=3000\ntestWindowHeight=1\n"
                                          << "" << QSize(3000, 3000) << "2999,2999,#006400";
    QTest::newRow("larger than a picture") << green + "testWindowWidth=99999\ntestWindowHeight=1\n"
                                           << "--size 9x9" << QSize(9, 9) << "8,8,#006400";
    QTest::newRow("a scrolling grid")
        << grid << "" << QSize(256, 256) << "5,0,#000000 5,1,#c80000 5,11,#c80000";
}

void TestPatternFiles::config_isShownAsAfterAStart()
{
    QFETCH(QByteArray, settings);
    QFETCH(QString, options);
    QFETCH(QSize, size);
    QFETCH(QString, pixels);
    m_program->add(QStringLiteral("config.ini"), settings);
    const QImage image = imageOf(QStringLiteral("--config config.ini ") + options);
    QCOMPARE(image.size(), size);
    QCOMPARE(wrongPixel(image, pixels), QString());
}

// Nor is anything written beside the program.
void TestPatternFiles::config_isLeftAsItIs()
{
    const QByteArray harmful = "[setting]\nx=@Variant(\\0\\0\\0M\\x1\\0\\0\\0)\ngridSpeed=7\n";
    const QString program = m_program->path(QStringLiteral("program"));
    m_program->add(QStringLiteral("config.ini"), harmful);
    QVERIFY(QFile::copy(QStringLiteral(TARN_PATTERN_EXECUTABLE), program));
    const QStringList before = m_program->files();
    for (const char *command : {"--config config.ini -o /dev/null", "walk --size 9x9 -o walk"})
        QCOMPARE(m_program->start(program, QString::fromLatin1(command).split(QLatin1Char(' '))),
                 0);
    QVERIFY(QDir(m_program->path(QStringLiteral("walk"))).removeRecursively());
    QCOMPARE(m_program->bytes(QStringLiteral("config.ini")), harmful);
    QCOMPARE(m_program->files(), before);
}

void TestPatternFiles::start_keepsNoScreenAwake()
{
    // Whoever connects to the session's bus starts the program that leaves this file.
    m_program->environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"),
                                  QStringLiteral("unixexec:path=touch,argv1=")
                                      + m_program->path(QStringLiteral("connected")));
    QCOMPARE(m_program->run(QStringLiteral("walk --size 9x9 -o walk")), 0);
    QCOMPARE(m_program->files(), QStringList(QStringLiteral("walk")));
}

QTEST_GUILESS_MAIN(TestPatternFiles)
#include "tst_patternfiles.moc"
