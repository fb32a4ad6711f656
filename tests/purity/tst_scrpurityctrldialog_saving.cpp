#include "purityrig.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QSettings>
#include <QtTest>

#include <functional>

namespace {

// A change has to be in the file within a second; the rest is for a busy machine.
constexpr int savedMs = 1000 + 500;

// A file with every key, written as nobody but this test writes it, so that a rewrite
// of the same values shows.
QByteArray handWritten(bool automatic, const QByteArray &colorLine)
{
    return QByteArray("; by hand\n[setting]\n") + colorLine
           + "testPuritySpeed = 20\ntestPurityGreyLevel = 100\n\ntestAutoScale = 200\nAutoTest = "
           + (automatic ? "true\n" : "false\n");
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
    QTRY_VERIFY_WITH_TIMEOUT(time.hasExpired(savedMs), 10 * savedMs);
}

void type(QSpinBox *spinBox, const char *digits)
{
    spinBox->selectAll();
    QTest::keyClicks(spinBox, QString::fromLatin1(digits));
}

// Moves a slider as the mouse would; returns how many changes that made.
int dragForTwoSeconds(QSlider *slider)
{
    int changes = 0;
    QTimer mouse;
    QEventLoop drag;
    QObject::connect(&mouse, &QTimer::timeout, slider,
                     [&] { slider->setValue(++changes % slider->maximum()); });
    QTimer::singleShot(2000, &drag, &QEventLoop::quit);
    mouse.start(10);
    drag.exec();
    return changes;
}

// What an operator does to a control.
using Operation = std::function<void(const PurityRig &)>;

} // namespace

Q_DECLARE_METATYPE(Operation)

class TestScrPurityCtrlDialogSaving : public QObject
{
    Q_OBJECT

private slots:
    void restore_writesNothing_data();
    void restore_writesNothing();
    void restore_leavesAMissingFileMissing();
    void operatorChange_isInTheFileWithinASecond_data();
    void operatorChange_isInTheFileWithinASecond();
    void colourClick_isInTheFileWithinASecond();
    void runOfChanges_leadsToFewWrites();
    void automaticSteps_alone_writeNothing();
    void automaticRun_isNotWrittenAtEveryTick();
    void destruction_savesWhatIsPending();
    void destruction_savesTheAutomaticGrey();
    void save_writesTheFourValuesAtOnce();
    void roundTrip_keepsEverything_data();
    void roundTrip_keepsEverything();
};

void TestScrPurityCtrlDialogSaving::restore_writesNothing_data()
{
    QTest::addColumn<QByteArray>("contents");
    QTest::newRow("manual") << handWritten(false, "");
    QTest::newRow("automatic") << handWritten(true, "");
    QTest::newRow("white") << handWritten(false, "testWindowBaseColor = #ffffff\n");
    QTest::newRow("wrong values") << QByteArray("; by hand\n[setting]\ntestPuritySpeed = 0\n");
}

void TestScrPurityCtrlDialogSaving::restore_writesNothing()
{
    QFETCH(const QByteArray, contents);
    const PurityRig rig(contents);
    waitUntilSaved();

    QCOMPARE(rig.fileBytes(), contents);
}

void TestScrPurityCtrlDialogSaving::restore_leavesAMissingFileMissing()
{
    PurityRig rig;
    waitUntilSaved();
    QVERIFY(!rig.fileExists());

    rig.panel.reset();
    const QVariantMap stored = rig.settings.stored();
    QCOMPARE(stored.value(QStringLiteral("AutoTest")).toString(), QStringLiteral("false"));
    QCOMPARE(stored.value(QStringLiteral("testPurityGreyLevel")).toInt(), 255);
    QCOMPARE(stored.value(QStringLiteral("testPuritySpeed")).toInt(), 50);
    QCOMPARE(stored.value(QStringLiteral("testAutoScale")).toInt(), 255);
}

void TestScrPurityCtrlDialogSaving::operatorChange_isInTheFileWithinASecond_data()
{
    QTest::addColumn<bool>("automatic");
    QTest::addColumn<Operation>("operation");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("expected");
    const QString grey = QStringLiteral("testPurityGreyLevel");
    const QString speed = QStringLiteral("testPuritySpeed");
    const QString mode = QStringLiteral("AutoTest");
    const auto row = [](const char *name, bool automatic, const Operation &operation,
                        const QString &key, const char *expected) {
        QTest::newRow(name) << automatic << operation << key << QString::fromLatin1(expected);
    };

    row(
        "grey slider", false,
        [](const PurityRig &rig) {
            rig.greySlider()->triggerAction(QAbstractSlider::SliderSingleStepSub);
        },
        grey, "99");
    row(
        "grey spin box", false, [](const PurityRig &rig) { type(rig.greySpinBox(), "7"); }, grey,
        "7");
    row(
        "grey spin box to zero", false, [](const PurityRig &rig) { type(rig.greySpinBox(), "0"); },
        grey, "0");
    row(
        "speed slider", true,
        [](const PurityRig &rig) {
            rig.speedSlider()->triggerAction(QAbstractSlider::SliderSingleStepAdd);
        },
        speed, "21");
    row(
        "speed spin box", true, [](const PurityRig &rig) { type(rig.speedSpinBox(), "8"); }, speed,
        "8");
    row(
        "automatic grey", true, [](const PurityRig &rig) { type(rig.autoSpinBox(), "9"); },
        QStringLiteral("testAutoScale"), "9");
    row(
        "to automatic", false, [](const PurityRig &rig) { rig.click(rig.automatic()); }, mode,
        "true");
    row(
        "to manual", true, [](const PurityRig &rig) { rig.click(rig.manual()); }, mode, "false");
    row(
        "Up", false, [](const PurityRig &rig) { rig.panel->slot_keyUpPressed(); }, grey, "101");
    row(
        "Down", false, [](const PurityRig &rig) { rig.panel->slot_keyDownPressed(); }, grey, "99");
    row(
        "Left", false, [](const PurityRig &rig) { rig.panel->slot_keyLeftPressed(); }, grey, "99");
    row(
        "Right", false, [](const PurityRig &rig) { rig.panel->slot_keyRightPressed(); }, grey,
        "101");
    row(
        "Insert", false, [](const PurityRig &rig) { rig.panel->slot_keyInsertPressed(); }, mode,
        "true");
    row(
        "Delete", false, [](const PurityRig &rig) { rig.panel->slot_keyDeletePressed(); }, mode,
        "true");
}

void TestScrPurityCtrlDialogSaving::operatorChange_isInTheFileWithinASecond()
{
    QFETCH(const bool, automatic);
    QFETCH(const Operation, operation);
    QFETCH(const QString, key);
    QFETCH(const QString, expected);
    const PurityRig rig(handWritten(automatic, ""));
    QVERIFY(rig.inFile(key).toString() != expected);
    operation(rig);

    QTRY_COMPARE_WITH_TIMEOUT(rig.inFile(key).toString(), expected, savedMs);
}

void TestScrPurityCtrlDialogSaving::colourClick_isInTheFileWithinASecond()
{
    const PurityRig rig(handWritten(false, ""));
    rig.click(rig.colorButton(5));

    QTRY_COMPARE_WITH_TIMEOUT(rig.inFile(QStringLiteral("testWindowBaseColor")).value<QColor>(),
                              QColor(Qt::cyan), savedMs);
}

void TestScrPurityCtrlDialogSaving::runOfChanges_leadsToFewWrites()
{
    const QTemporaryDir folder;
    QSettings settings(folder.filePath(QStringLiteral("config.counted")), countedFormat());
    Canvas canvas;
    ScrPurityCtrlDialog panel(&canvas, &settings, nullptr);
    auto *slider = panel.findChild<QSlider *>(QStringLiteral("hScrollBarScale"));
    writeCount = 0;

    const int changes = dragForTwoSeconds(slider);

    QVERIFY2(changes > 50, qPrintable(QString::number(changes)));
    // Half a second apart, they are four.
    QVERIFY2(writeCount >= 1 && writeCount <= 5, qPrintable(QString::number(writeCount)));
    const int last = slider->value();
    QTRY_COMPARE_WITH_TIMEOUT(
        settings.value(QStringLiteral("/setting/testPurityGreyLevel")).toInt(), last, savedMs);
}

void TestScrPurityCtrlDialogSaving::automaticSteps_alone_writeNothing()
{
    const QByteArray contents = handWritten(true, "");
    const PurityRig rig(contents);
    rig.panel->slot_keyInsertPressed();
    for (int expected = 201; expected <= 210; ++expected)
        QCOMPARE(rig.tick(), expected);
    waitUntilSaved();

    QCOMPARE(rig.fileBytes(), contents);
}

void TestScrPurityCtrlDialogSaving::automaticRun_isNotWrittenAtEveryTick()
{
    const QTemporaryDir folder;
    QSettings settings(folder.filePath(QStringLiteral("config.counted")), countedFormat());
    settings.setValue(QStringLiteral("/setting/testPuritySpeed"), 100);
    settings.setValue(QStringLiteral("/setting/testAutoScale"), 20);
    Canvas canvas;
    ScrPurityCtrlDialog panel(&canvas, &settings, nullptr);
    const auto *grey = panel.findChild<QSpinBox *>(QStringLiteral("spinBoxAutoScale"));
    settings.sync();
    writeCount = 0;
    panel.slot_keyInsertPressed();
    panel.slot_keyInsertPressed();

    QTRY_VERIFY_WITH_TIMEOUT(grey->value() >= 40, 10000);
    // The change of mode is saved, the steps are not.
    QCOMPARE(writeCount, 1);
    QVERIFY(settings.value(QStringLiteral("/setting/AutoTest")).toBool());
}

void TestScrPurityCtrlDialogSaving::destruction_savesWhatIsPending()
{
    PurityRig rig(handWritten(false, ""));
    rig.greySlider()->setValue(33);
    rig.panel.reset();

    QCOMPARE(rig.settings.stored().value(QStringLiteral("testPurityGreyLevel")).toInt(), 33);
}

void TestScrPurityCtrlDialogSaving::destruction_savesTheAutomaticGrey()
{
    PurityRig rig(handWritten(true, ""));
    rig.panel->slot_keyInsertPressed();
    QCOMPARE(rig.tick(), 201);
    rig.panel.reset();

    QCOMPARE(rig.settings.stored().value(QStringLiteral("testAutoScale")).toInt(), 201);
}

void TestScrPurityCtrlDialogSaving::save_writesTheFourValuesAtOnce()
{
    PurityRig rig;
    rig.click(rig.automatic());
    rig.greySpinBox()->setValue(11);
    rig.speedSpinBox()->setValue(22);
    rig.autoSpinBox()->setValue(33);
    rig.panel->saveScrPurityInfo();

    const QVariantMap stored = rig.settings.stored();
    QCOMPARE(stored.value(QStringLiteral("AutoTest")).toString(), QStringLiteral("true"));
    QCOMPARE(stored.value(QStringLiteral("testPurityGreyLevel")).toString(), QStringLiteral("11"));
    QCOMPARE(stored.value(QStringLiteral("testPuritySpeed")).toString(), QStringLiteral("22"));
    QCOMPARE(stored.value(QStringLiteral("testAutoScale")).toString(), QStringLiteral("33"));
}

void TestScrPurityCtrlDialogSaving::roundTrip_keepsEverything_data()
{
    QTest::addColumn<bool>("automatic");
    QTest::newRow("manual") << false;
    QTest::newRow("automatic") << true;
}

void TestScrPurityCtrlDialogSaving::roundTrip_keepsEverything()
{
    QFETCH(const bool, automatic);
    PurityRig rig;
    rig.click(rig.colorButton(6));
    rig.click(rig.automatic());
    rig.greySpinBox()->setValue(11);
    rig.speedSpinBox()->setValue(22);
    rig.autoSpinBox()->setValue(33);
    if (!automatic)
        rig.click(rig.manual());
    rig.restart();

    QVERIFY(rig.hasControlsOf(automatic));
    QVERIFY(rig.colorButton(6)->isChecked());
    QCOMPARE(rig.greySlider()->value(), 11);
    QCOMPARE(rig.speedSlider()->value(), 22);
    QCOMPARE(rig.autoSpinBox()->value(), 33);
    QCOMPARE(rig.shownColor(), automatic ? qRgb(33, 0, 33) : qRgb(11, 0, 11));
    QVERIFY(!rig.timer());
}

QTEST_MAIN(TestScrPurityCtrlDialogSaving)
#include "tst_scrpurityctrldialog_saving.moc"
