#include "gridrig.h"

#include <QtTest>

namespace {

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

QByteArray iniLines(const QList<QByteArray> &keys, const QByteArray &value)
{
    QByteArray lines("[setting]\n");
    for (const QByteArray &key : keys)
        lines += key + '=' + value + '\n';
    return lines;
}

// Values that are not what any key holds.
const char *const wrongValues[] = {"",
                                   "grey",
                                   "12px",
                                   "1, 2, 3",
                                   "99999999999999999999999",
                                   "@ByteArray(\\0\\x1\\xff\\0)",
                                   "@Invalid()",
                                   "@Rect(9 9 9 9)",
                                   "@Variant(\\0\\0\\0\\x7f)"};

} // namespace

// What the panel takes from the settings file, what it writes there, and when.
class TestScrGridCtrlDialogSettings : public QObject
{
    Q_OBJECT

private slots:
    void emptyFile_givesTheDefaultsAndStaysMissingUntilTheEnd();
    void greyAndSpeed_areRestored_data();
    void greyAndSpeed_areRestored();
    void wrongValues_doNoHarm_data();
    void wrongValues_doNoHarm();
    void flags_areRestored();
    void colour_isThatOfTheGradientTest();
    void test_isResumed();
    void pausedTest_staysPaused();

    void restoring_writesNothing_data();
    void restoring_writesNothing();
    void runAtFullSpeed_writesNothing();
    void operatorChange_isSavedSoon_data();
    void operatorChange_isSavedSoon();
    void changeThatIsDue_isInTheFileOnceItIsSaved();
    void save_writesItsKeys();
    void pause_isSavedAsTheButtonShowsIt();
    void pause_ofADisabledRunningButtonIsSavedAsBefore();
    void roundTrip_keepsEverything();
};

void TestScrGridCtrlDialogSettings::emptyFile_givesTheDefaultsAndStaysMissingUntilTheEnd()
{
    GridRig rig;
    QCOMPARE(rig.greySpinBox()->value(), 255);
    QCOMPARE(rig.speedSpinBox()->value(), 50);
    QVERIFY(rig.overlay()->isChecked());
    QVERIFY(!rig.panel->getScroll());
    QVERIFY(!rig.panel->pushButtonPauseChecked);
    QCOMPARE(rig.panel->colorIndex, qint16(0));
    QCOMPARE(rig.panel->lineIndex, qint16(0));
    QVERIFY(!rig.isSaveDue());
    QCOMPARE(rig.fileBytes(), QByteArray());

    rig.close();
    const QVariantMap stored = rig.settings.stored();
    QCOMPARE(stored.size(), 15);
    QCOMPARE(stored.value(QStringLiteral("gridGreyLevel")).toInt(), 255);
    QCOMPARE(stored.value(QStringLiteral("gridSpeed")).toInt(), 50);
    QCOMPARE(stored.value(QStringLiteral("gridNetChecked")).toString(), QStringLiteral("false"));
}

void TestScrGridCtrlDialogSettings::greyAndSpeed_areRestored_data()
{
    QTest::addColumn<QByteArray>("stored");
    QTest::addColumn<int>("grey");
    QTest::addColumn<int>("speed");
    QTest::newRow("the smallest") << QByteArray("1") << 1 << 1;
    QTest::newRow("100") << QByteArray("100") << 100 << 100;
    QTest::newRow("0 means the default") << QByteArray("0") << 255 << 50;
    QTest::newRow("-5 means the default") << QByteArray("-5") << 255 << 50;
    QTest::newRow("too much") << QByteArray("100000") << 255 << 100;
    for (const char *value : wrongValues)
        QTest::newRow(value) << QByteArray(value) << 255 << 50;
}

void TestScrGridCtrlDialogSettings::greyAndSpeed_areRestored()
{
    QFETCH(const QByteArray, stored);
    QFETCH(const int, grey);
    QFETCH(const int, speed);
    GridRig rig(iniLines({"gridGreyLevel", "gridSpeed"}, stored));
    QCOMPARE(rig.greySlider()->value(), grey);
    QCOMPARE(rig.greySpinBox()->value(), grey);
    QCOMPARE(rig.speedSlider()->value(), speed);
    QCOMPARE(rig.speedSpinBox()->value(), speed);
    QCOMPARE(rig.timer()->interval(), (102 - speed) * 7);
    rig.clickFamilies("H");
    QCOMPARE(rig.shown().line, qRgb(grey, 0, 0));
}

void TestScrGridCtrlDialogSettings::wrongValues_doNoHarm_data()
{
    QTest::addColumn<QByteArray>("value");
    for (const char *value : wrongValues)
        QTest::newRow(value) << QByteArray(value);
}

void TestScrGridCtrlDialogSettings::wrongValues_doNoHarm()
{
    QFETCH(const QByteArray, value);
    QList<QByteArray> keys{"gridNetChecked", "gridIsOldTest",          "gridIsScroll",
                           "gridIsMix",      "pushButtonPauseChecked", "gradualChangeColor"};
    for (const char *family : {"Horizontal", "Vertical", "SlantLeft", "SlantRight"})
        keys << "grid" + QByteArray(family) + "Checked"
             << "is" + QByteArray(family) + "Press";
    for (const char *box :
         {"Blue", "Cyan", "Green", "H", "Purple", "Red", "SL", "SR", "V", "White", "Yellow"})
        keys << QByteArray("checkBox") + box;
    GridRig rig(iniLines(keys, value));
    QVERIFY(rig.colorButton(0)->isChecked());
    QCOMPARE(rig.panel->colorIndex, qint16(0));
    rig.tick(30);
    QVERIFY(rig.shown().families != QStringLiteral("?"));
    rig.click(rig.merged());
    rig.tick(30);
    rig.click(rig.overlay());
    rig.clickFamilies("R");
    rig.tick();
    QVERIFY(rig.checked().contains(QLatin1Char('R')));
    QCOMPARE(rig.mode(), QStringLiteral("scrolling"));
}

void TestScrGridCtrlDialogSettings::flags_areRestored()
{
    for (const bool stored : {true, false}) {
        GridRig rig({{QStringLiteral("gridNetChecked"), stored},
                     {QStringLiteral("pushButtonPauseChecked"), stored},
                     {QStringLiteral("gridSlantLeftChecked"), stored},
                     {QStringLiteral("isHorizontalPress"), stored}});
        QCOMPARE(rig.overlay()->isChecked(), !stored);
        QCOMPARE(rig.panel->pushButtonPauseChecked, stored);
        QCOMPARE(rig.checked(), stored ? QStringLiteral("L") : QString());
        QCOMPARE(rig.pressed(), stored ? QStringLiteral("H") : QString());
        QCOMPARE(rig.panel->lineIndex, qint16(stored ? 2 : 0));
        QCOMPARE(rig.shown().families, rig.checked());
        QVERIFY(!rig.panel->getScroll()); // as it is stored, families or not
    }
}

void TestScrGridCtrlDialogSettings::colour_isThatOfTheGradientTest()
{
    const std::tuple<QColor, int, int> colors[] = {
        {Qt::red, 0, 0},    {Qt::green, 1, 1}, {Qt::blue, 2, 2},   {Qt::white, 3, 3},
        {Qt::yellow, 4, 0}, {Qt::cyan, 5, 0},  {Qt::magenta, 6, 0}};
    for (const auto &[color, button, index] : colors) {
        GridRig rig({{QStringLiteral("gradualChangeColor"), color}});
        QVERIFY(rig.colorButton(button)->isChecked());
        QCOMPARE(int(rig.panel->colorIndex), index);
        rig.clickFamilies("V");
        QCOMPARE(rig.shown().line, color.rgba());
    }
    QVERIFY(GridRig(iniLines({"gradualChangeColor"}, "#0000ff")).colorButton(2)->isChecked());
    QVERIFY(GridRig(iniLines({"gradualChangeColor"}, "#010203")).colorButton(0)->isChecked());
}

// As the operator leaves it: the panel is closed in the middle of the test.
void TestScrGridCtrlDialogSettings::test_isResumed()
{
    for (const bool aging : {true, false}) {
        // The speed that the slider has before it is restored.
        GridRig rig({{QStringLiteral("gridSpeed"), 1}});
        rig.click(rig.test(aging));
        rig.restart();
        QCOMPARE(rig.mode(), aging ? QStringLiteral("aging") : QStringLiteral("merged"));
        QVERIFY(rig.panel->getScroll());
        QCOMPARE(rig.timer()->interval(), 8080);
        rig.speedSlider()->setValue(100);
        rig.tick(2);
        rig.restart();
        QCOMPARE(rig.nextShown(), QStringLiteral("#ff0000"));
        QVERIFY(rig.drawer->active);
        // And by its own timer.
        QTRY_COMPARE_WITH_TIMEOUT(rig.shown().background, qRgb(0, 255, 0), 10000);
    }
}

void TestScrGridCtrlDialogSettings::pausedTest_staysPaused()
{
    GridRig rig;
    rig.click(rig.aging());
    rig.tick();
    rig.click(rig.pause());
    rig.tick();
    rig.restart();
    rig.tick();

    QCOMPARE(rig.mode(), QStringLiteral("aging"));
    QVERIFY(!rig.panel->getScroll());
    QVERIFY(rig.panel->pushButtonPauseChecked);
    QVERIFY(!rig.drawer->active);
}

void TestScrGridCtrlDialogSettings::restoring_writesNothing_data()
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

void TestScrGridCtrlDialogSettings::restoring_writesNothing()
{
    QFETCH(const QByteArray, contents);
    GridRig rig(contents);
    QVERIFY(!rig.isSaveDue());
    QCOMPARE(rig.fileBytes(), contents);
}

void TestScrGridCtrlDialogSettings::runAtFullSpeed_writesNothing()
{
    GridRig rig(handWritten());
    rig.panel->enableAdvanceSettings();
    rig.panel->slot_keyInsertPressed();
    rig.tick(20);
    QCOMPARE(rig.greySpinBox()->value(), 104);
    QVERIFY(!rig.isSaveDue());
    QCOMPARE(rig.fileBytes(), handWritten());
}

void TestScrGridCtrlDialogSettings::operatorChange_isSavedSoon_data()
{
    QTest::addColumn<QString>("operation"); // a control with its value, a button or a slot
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *operation, const char *key, const char *expected) {
        QTest::newRow(operation) << QString::fromLatin1(operation) << QString::fromLatin1(key)
                                 << QString::fromLatin1(expected);
    };
    row("hScrollBarGrayLevel 7", "gridGreyLevel", "7");
    row("labelGrayLevel 0", "gridGreyLevel", "0");
    row("slot_keyUpPressed", "gridGreyLevel", "101");
    row("hScrollBarSpeed 9", "gridSpeed", "9");
    row("netGridCheckBox", "gridNetChecked", "true");
    row("radioButtonSlantLeft", "gridSlantLeftChecked", "true");
    row("radioButtonSlantRight", "isSlantRightPress", "true");
    row("pushButtonOld", "gridIsOldTest", "true");
    row("pushButtonMerged", "gridIsMix", "true");
    row("beginPushBtn", "gridIsScroll", "false");
    row("radioButtonBlue", "testWindowBaseColor", "#0000ff");
    row("radioButtonBlue", "pushButtonPauseChecked", "false"); // after a step of the run
    row("slot_changeColorByPageDown", "gridHorizontalChecked", "true");
}

void TestScrGridCtrlDialogSettings::operatorChange_isSavedSoon()
{
    QFETCH(const QString, operation);
    QFETCH(const QString, key);
    QFETCH(const QString, expected);
    const GridRig rig(handWritten());
    rig.panel->enableAdvanceSettings();
    rig.panel->lineIndex = 0;
    const auto text = [&] {
        const QVariant value = rig.saved(key);
        return value.type() == QVariant::Color ? value.value<QColor>().name() : value.toString();
    };
    QVERIFY(text() != expected);
    QVERIFY(!rig.isSaveDue());
    rig.tick();
    const QStringList words = operation.split(QLatin1Char(' '));
    auto *control = rig.panel->findChild<QWidget *>(words.constFirst());
    if (words.size() == 2)
        control->setProperty("value", words.constLast());
    else if (control)
        rig.click(qobject_cast<QAbstractButton *>(control));
    else
        QVERIFY(QMetaObject::invokeMethod(rig.panel.get(), operation.toLatin1()));

    QVERIFY(rig.isSaveDue());
    QCOMPARE(text(), expected);
}

void TestScrGridCtrlDialogSettings::changeThatIsDue_isInTheFileOnceItIsSaved()
{
    GridRig rig(handWritten());
    rig.greySlider()->setValue(7);
    QTRY_VERIFY(!rig.isSaveDue());
    QVERIFY(rig.fileBytes().contains("gridGreyLevel=7"));
}

void TestScrGridCtrlDialogSettings::save_writesItsKeys()
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
    QCOMPARE(lines.join(QLatin1Char(' ')),
             QStringLiteral("gridGreyLevel=11 gridHorizontalChecked=false gridIsMix=false "
                            "gridIsOldTest=false gridIsScroll=true gridNetChecked=false "
                            "gridSlantLeftChecked=true gridSlantRightChecked=false gridSpeed=22 "
                            "gridVerticalChecked=true isHorizontalPress=false "
                            "isSlantLeftPress=true isSlantRightPress=false isVerticalPress=true "
                            "pushButtonPauseChecked=false"));
}

void TestScrGridCtrlDialogSettings::pause_isSavedAsTheButtonShowsIt()
{
    for (const bool before : {true, false}) {
        GridRig rig({{QStringLiteral("pushButtonPauseChecked"), before}});
        rig.panel->enableAdvanceSettings();
        for (const bool running : {true, false}) {
            rig.panel->setScroll(running);
            rig.tick();
            // In a running program, which goes by it as it was left the last time.
            QCOMPARE(rig.saved(QStringLiteral("pushButtonPauseChecked")).toBool(), !running);
            QCOMPARE(rig.panel->pushButtonPauseChecked, before);
        }
        rig.panel->saveGridBaseInfo();
        QVERIFY(rig.panel->pushButtonPauseChecked);
        rig.panel->setScroll(true);
        rig.tick();
        rig.panel->saveGridBaseInfo();
        QVERIFY(!rig.panel->pushButtonPauseChecked);
    }
}

void TestScrGridCtrlDialogSettings::pause_ofADisabledRunningButtonIsSavedAsBefore()
{
    for (const bool before : {true, false}) {
        const GridRig rig({{QStringLiteral("pushButtonPauseChecked"), before}});
        rig.clickFamilies("H");
        rig.tick();
        rig.panel->getDrawer();
        rig.panel->saveGridBaseInfo();
        QCOMPARE(rig.panel->pushButtonPauseChecked, before);
    }
}

void TestScrGridCtrlDialogSettings::roundTrip_keepsEverything()
{
    for (const char *families : {"", "R", "HL", "HVLR"}) {
        GridRig rig;
        const bool overlay = qstrlen(families) > 1;
        rig.overlay()->setChecked(overlay);
        rig.clickFamilies(families);
        rig.greySpinBox()->setValue(11);
        rig.speedSpinBox()->setValue(22);
        const bool scroll = rig.panel->getScroll();
        rig.restart();

        QCOMPARE(rig.overlay()->isChecked(), overlay);
        QCOMPARE(rig.checked(), QLatin1String(families));
        QCOMPARE(rig.pressed(), QLatin1String(families));
        QCOMPARE(rig.greySlider()->value(), 11);
        QCOMPARE(rig.speedSlider()->value(), 22);
        QCOMPARE(rig.timer()->interval(), (102 - 22) * 7);
        QCOMPARE(rig.panel->getScroll(), scroll);
        QCOMPARE(rig.shown().families, QLatin1String(families));
        QCOMPARE(rig.shown().line, *families ? qRgb(11, 0, 0) : rig.shown().background);
    }
}

QTEST_MAIN(TestScrGridCtrlDialogSettings)
#include "tst_scrgridctrldialog_settings.moc"
