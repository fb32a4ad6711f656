#include "gridrig.h"
#include "savesoon.h"

#include <QElapsedTimer>
#include <QtTest>

#include <functional>

namespace {

// A change has to be in the file within a second; the rest is for a busy machine.
constexpr int savedMs = 1000 + 500;

// A file with every key, written as nobody but this test writes it, so that a rewrite
// of the same values shows.
QByteArray handWritten()
{
    return QByteArray("; by hand\n[setting]\ngridSpeed = 20\ngridGreyLevel = 100\n\n")
           + "gridNetChecked = false\ngridHorizontalChecked = false\ngridVerticalChecked = true\n"
             "gridSlantLeftChecked = false\ngridSlantRightChecked = false\n"
             "gridIsOldTest = false\ngridIsScroll = true\ngridIsMix = false\n"
             "isHorizontalPress = false\nisVerticalPress = true\nisSlantLeftPress = false\n"
             "isSlantRightPress = false\npushButtonPauseChecked = true\n"
             "testWindowBaseColor = #00ff00\n";
}

int writeCount = 0;

bool readCounted(QIODevice &device, QSettings::SettingsMap &map)
{
    QDataStream stream(&device);
    stream >> map;
    return stream.status() == QDataStream::Ok;
}

bool writeCounted(QIODevice &device, const QSettings::SettingsMap &map)
{
    ++writeCount;
    QDataStream stream(&device);
    stream << map;
    return true;
}

// A kind of settings file that counts how often it is written.
QSettings::Format countedFormat()
{
    static const QSettings::Format format =
        QSettings::registerFormat(QStringLiteral("counted"), readCounted, writeCounted);
    return format;
}

// Lets more time pass than a change may wait for its save.
void waitUntilSaved()
{
    QElapsedTimer time;
    time.start();
    QTRY_VERIFY_WITH_TIMEOUT(time.hasExpired(2 * SaveSoon::delayMs), 10 * savedMs);
}

// What an operator does.
using Operation = std::function<void(const GridRig &)>;

} // namespace

Q_DECLARE_METATYPE(Operation)

// What the panel writes to the settings file, and when.
class TestScrGridCtrlDialogSaving : public QObject
{
    Q_OBJECT

private slots:
    void restoring_writesNothing_data();
    void restoring_writesNothing();
    void restoring_leavesAMissingFileMissing();
    void operatorChange_isInTheFileWithinASecond_data();
    void operatorChange_isInTheFileWithinASecond();
    void runAtFullSpeed_writesNothing();
    void runOfChanges_leadsToFewWrites();
    void saving_duringARunLeavesPushButtonPauseChecked();
    void save_writesItsKeys();
    void pause_isSavedAsTheButtonShowsIt_data();
    void pause_isSavedAsTheButtonShowsIt();
    void pause_ofADisabledRunningButtonIsSavedAsBefore_data();
    void pause_ofADisabledRunningButtonIsSavedAsBefore();
    void destruction_savesWhatIsPending();
    void roundTrip_keepsEverything_data();
    void roundTrip_keepsEverything();
};

void TestScrGridCtrlDialogSaving::restoring_writesNothing_data()
{
    QTest::addColumn<QByteArray>("contents");
    QTest::newRow("every key") << handWritten();
    QTest::newRow("a gradient colour") << handWritten() + "gradualChangeColor = #0000ff\n";
    QTest::newRow("nothing of the panel") << QByteArray("; by hand\n[setting]\nother = 1\n");
    QTest::newRow("wrong values") << QByteArray("; by hand\n[setting]\ngridSpeed = 100000\n"
                                                "gridGreyLevel = -5\ngridIsScroll = maybe\n");
    QTest::newRow("aging") << QByteArray("; by hand\n[setting]\ngridIsOldTest = true\n"
                                         "gridIsScroll = true\ngridSpeed = 100\n");
}

void TestScrGridCtrlDialogSaving::restoring_writesNothing()
{
    QFETCH(const QByteArray, contents);
    const GridRig rig(contents);
    waitUntilSaved();

    QCOMPARE(rig.fileBytes(), contents);
}

void TestScrGridCtrlDialogSaving::restoring_leavesAMissingFileMissing()
{
    GridRig rig;
    waitUntilSaved();
    QVERIFY(!rig.fileExists());

    rig.canvas.setDrawer(nullptr);
    rig.panel.reset();
    const QVariantMap stored = rig.settings.stored();
    QCOMPARE(stored.size(), 15);
    QCOMPARE(stored.value(QStringLiteral("gridGreyLevel")).toInt(), 255);
    QCOMPARE(stored.value(QStringLiteral("gridSpeed")).toInt(), 50);
    QCOMPARE(stored.value(QStringLiteral("gridNetChecked")).toString(), QStringLiteral("false"));
}

void TestScrGridCtrlDialogSaving::operatorChange_isInTheFileWithinASecond_data()
{
    QTest::addColumn<Operation>("operation");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *name, const Operation &operation, const char *key,
                        const char *expected) {
        QTest::newRow(name) << operation << QString::fromLatin1(key)
                            << QString::fromLatin1(expected);
    };
    using Rig = const GridRig &;
    row(
        "grey slider", [](Rig rig) { rig.greySlider()->setValue(7); }, "gridGreyLevel", "7");
    row(
        "grey spin box", [](Rig rig) { rig.greySpinBox()->setValue(0); }, "gridGreyLevel", "0");
    row(
        "grey key", [](Rig rig) { rig.panel->slot_keyUpPressed(); }, "gridGreyLevel", "101");
    row(
        "speed", [](Rig rig) { rig.speedSlider()->setValue(9); }, "gridSpeed", "9");
    row(
        "overlay", [](Rig rig) { rig.click(rig.overlay()); }, "gridNetChecked", "true");
    row(
        "family", [](Rig rig) { rig.clickFamilies("L"); }, "gridSlantLeftChecked", "true");
    row(
        "family pressed", [](Rig rig) { rig.clickFamilies("R"); }, "isSlantRightPress", "true");
    row(
        "aging", [](Rig rig) { rig.click(rig.aging()); }, "gridIsOldTest", "true");
    row(
        "merged", [](Rig rig) { rig.click(rig.merged()); }, "gridIsMix", "true");
    row(
        "pause",
        [](Rig rig) {
            rig.tick();
            rig.click(rig.pause());
        },
        "gridIsScroll", "false");
    row(
        "colour", [](Rig rig) { rig.click(rig.colorButton(2)); }, "testWindowBaseColor", "#0000ff");
    row(
        "what goes with a colour",
        [](Rig rig) {
            rig.tick();
            rig.click(rig.colorButton(2));
        },
        "pushButtonPauseChecked", "false");
    row(
        "page step",
        [](Rig rig) {
            rig.panel->lineIndex = 0;
            rig.panel->slot_changeColorByPageDown();
        },
        "gridHorizontalChecked", "true");
}

void TestScrGridCtrlDialogSaving::operatorChange_isInTheFileWithinASecond()
{
    QFETCH(const Operation, operation);
    QFETCH(const QString, key);
    QFETCH(const QString, expected);
    const GridRig rig(handWritten());
    rig.panel->enableAdvanceSettings();
    QVERIFY(rig.inFile(key).toString() != expected);
    operation(rig);

    const auto text = [&] {
        const QVariant value = rig.inFile(key);
        return value.type() == QVariant::Color ? value.value<QColor>().name() : value.toString();
    };
    QTRY_COMPARE_WITH_TIMEOUT(text(), expected, savedMs);
}

void TestScrGridCtrlDialogSaving::runAtFullSpeed_writesNothing()
{
    GridRig rig(handWritten());
    rig.panel->enableAdvanceSettings();
    rig.panel->slot_keyInsertPressed();
    rig.tick(20);
    QCOMPARE(rig.greySpinBox()->value(), 104);
    waitUntilSaved();

    QCOMPARE(rig.fileBytes(), handWritten());
}

void TestScrGridCtrlDialogSaving::runOfChanges_leadsToFewWrites()
{
    const QTemporaryDir folder;
    QSettings settings(folder.filePath(QStringLiteral("config.counted")), countedFormat());
    Canvas canvas;
    ScrGridCtrlDialog panel(&canvas, &settings, nullptr);
    auto *slider = panel.findChild<QSlider *>(QStringLiteral("hScrollBarGrayLevel"));
    writeCount = 0;

    // A drag of two seconds, as the mouse would report it.
    QElapsedTimer drag;
    drag.start();
    int changes = 0;
    QTimer mouse;
    connect(&mouse, &QTimer::timeout, slider, [&] { slider->setValue(++changes % 255); });
    mouse.start(10);
    QTRY_VERIFY_WITH_TIMEOUT(drag.hasExpired(2000), 10000);

    QVERIFY2(changes > 20, qPrintable(QString::number(changes)));
    QVERIFY2(writeCount >= 1 && writeCount <= 5, qPrintable(QString::number(writeCount)));
}

// The main window goes by it as it was left the last time.
void TestScrGridCtrlDialogSaving::saving_duringARunLeavesPushButtonPauseChecked()
{
    GridRig rig(
        handWritten().replace("pushButtonPauseChecked = true", "pushButtonPauseChecked = false"));
    rig.panel->enableAdvanceSettings();
    rig.tick();
    rig.click(rig.pause());
    rig.tick();
    rig.greySlider()->setValue(3);
    const auto saved = [&] {
        return rig.inFile(QStringLiteral("pushButtonPauseChecked")).toBool();
    };
    QTRY_VERIFY_WITH_TIMEOUT(saved(), savedMs);
    QVERIFY(!rig.panel->pushButtonPauseChecked);
    rig.panel->saveGridBaseInfo();
    QVERIFY(rig.panel->pushButtonPauseChecked);
}

void TestScrGridCtrlDialogSaving::save_writesItsKeys()
{
    GridRig rig;
    rig.clickFamilies("VL");
    rig.greySpinBox()->setValue(11);
    rig.speedSpinBox()->setValue(22);
    rig.click(rig.colorButton(6));
    rig.tick();
    rig.panel->saveGridBaseInfo();

    QVariantMap stored = rig.settings.stored();
    QCOMPARE(stored.take(QStringLiteral("testWindowBaseColor")).value<QColor>(),
             QColor(Qt::magenta));
    QStringList lines;
    for (auto value = stored.cbegin(); value != stored.cend(); ++value)
        lines << value.key() + QLatin1Char('=') + value.value().toString();
    QCOMPARE(
        lines,
        QStringList(
            {QStringLiteral("gridGreyLevel=11"), QStringLiteral("gridHorizontalChecked=false"),
             QStringLiteral("gridIsMix=false"), QStringLiteral("gridIsOldTest=false"),
             QStringLiteral("gridIsScroll=true"), QStringLiteral("gridNetChecked=false"),
             QStringLiteral("gridSlantLeftChecked=true"),
             QStringLiteral("gridSlantRightChecked=false"), QStringLiteral("gridSpeed=22"),
             QStringLiteral("gridVerticalChecked=true"), QStringLiteral("isHorizontalPress=false"),
             QStringLiteral("isSlantLeftPress=true"), QStringLiteral("isSlantRightPress=false"),
             QStringLiteral("isVerticalPress=true"),
             QStringLiteral("pushButtonPauseChecked=false")}));
}

void TestScrGridCtrlDialogSaving::pause_isSavedAsTheButtonShowsIt_data()
{
    QTest::addColumn<bool>("running");
    QTest::addColumn<bool>("before");
    for (const bool running : {true, false}) {
        for (const bool before : {true, false})
            QTest::addRow("%s, before %s", running ? "running" : "paused",
                          before ? "paused" : "running")
                << running << before;
    }
}

void TestScrGridCtrlDialogSaving::pause_isSavedAsTheButtonShowsIt()
{
    QFETCH(const bool, running);
    QFETCH(const bool, before);
    GridRig rig({{QStringLiteral("pushButtonPauseChecked"), before}});
    rig.panel->enableAdvanceSettings();
    rig.panel->setScroll(running);
    rig.tick();
    QCOMPARE(rig.pause()->text(), running ? QStringLiteral("暂停") : QStringLiteral("开始"));
    rig.panel->saveGridBaseInfo();

    QCOMPARE(rig.panel->pushButtonPauseChecked, !running);
    QCOMPARE(rig.settings.stored().value(QStringLiteral("pushButtonPauseChecked")).toBool(),
             !running);
}

void TestScrGridCtrlDialogSaving::pause_ofADisabledRunningButtonIsSavedAsBefore_data()
{
    QTest::addColumn<bool>("before");
    QTest::newRow("paused") << true;
    QTest::newRow("running") << false;
}

void TestScrGridCtrlDialogSaving::pause_ofADisabledRunningButtonIsSavedAsBefore()
{
    QFETCH(const bool, before);
    GridRig rig({{QStringLiteral("pushButtonPauseChecked"), before}});
    rig.clickFamilies("H");
    rig.tick();
    rig.panel->getDrawer();
    rig.panel->saveGridBaseInfo();

    QCOMPARE(rig.panel->pushButtonPauseChecked, before);
}

void TestScrGridCtrlDialogSaving::destruction_savesWhatIsPending()
{
    GridRig rig(handWritten());
    rig.greySlider()->setValue(33);
    rig.clickFamilies("H");
    rig.canvas.setDrawer(nullptr);
    rig.panel.reset();

    const QVariantMap stored = rig.settings.stored();
    QCOMPARE(stored.value(QStringLiteral("gridGreyLevel")).toInt(), 33);
    QVERIFY(stored.value(QStringLiteral("gridHorizontalChecked")).toBool());
}

void TestScrGridCtrlDialogSaving::roundTrip_keepsEverything_data()
{
    QTest::addColumn<bool>("overlay");
    QTest::addColumn<QString>("families");
    QTest::newRow("two families in overlay") << true << QStringLiteral("HL");
    QTest::newRow("all families in overlay") << true << QStringLiteral("HVLR");
    QTest::newRow("a family alone") << false << QStringLiteral("R");
    QTest::newRow("none") << false << QString();
}

void TestScrGridCtrlDialogSaving::roundTrip_keepsEverything()
{
    QFETCH(const bool, overlay);
    QFETCH(const QString, families);
    GridRig rig;
    if (!overlay)
        rig.click(rig.overlay());
    rig.clickFamilies(families.toLatin1().constData());
    rig.greySpinBox()->setValue(11);
    rig.speedSpinBox()->setValue(22);
    const bool scroll = rig.panel->getScroll();
    rig.restart();

    QCOMPARE(rig.overlay()->isChecked(), overlay);
    QCOMPARE(rig.checked(), families);
    QCOMPARE(rig.pressed(), families);
    QCOMPARE(rig.shown().families, families);
    QCOMPARE(rig.greySlider()->value(), 11);
    QCOMPARE(rig.speedSlider()->value(), 22);
    QCOMPARE(rig.interval(), (102 - 22) * 7);
    QCOMPARE(rig.panel->getScroll(), scroll);
    if (!families.isEmpty())
        QCOMPARE(rig.shown().line, qRgb(11, 0, 0));
}

QTEST_MAIN(TestScrGridCtrlDialogSaving)
#include "tst_scrgridctrldialog_saving.moc"
