#include "gridrig.h"
#include "paneltest.h"
#include "rows.h"

#include <QtTest>

namespace {

QByteArray iniLines(const QList<QByteArray> &keys, const QByteArray &value)
{
    QByteArray lines("[setting]\n");
    for (const QByteArray &key : keys)
        lines += key + '=' + value + '\n';
    return lines;
}

} // namespace

// What the panel takes from the settings file, what it writes there, and when.
class TestScrGridCtrlDialogSettings : public PanelTest<GridRig>
{
    Q_OBJECT

protected:
    std::unique_ptr<AnyPanelRig> start(const QByteArray &contents) const override;
    PanelFacts facts() const override;
    void addEdits() const override;

private slots:
    void emptyFile_givesTheDefaults();
    void greyAndSpeed_areRestored_data();
    void greyAndSpeed_areRestored();
    void wrongValues_doNoHarm_data() { addWrongValues(); }
    void wrongValues_doNoHarm();
    void flags_areRestored();
    void colour_isThatOfTheGradientTest();
    void test_isResumed();
    void pausedTest_staysPaused();

    void runAtFullSpeed_writesNothingUpToTheOperatorsChange();
    void save_writesItsKeys();
    void pause_isSavedAsTheButtonShowsIt();
    void pause_ofADisabledRunningButtonIsSavedAsBefore();
    void roundTrip_keepsEverything();
};

// The operator has made use of the panel, which goes on with its run.
std::unique_ptr<AnyPanelRig> TestScrGridCtrlDialogSettings::start(const QByteArray &contents) const
{
    auto rig = std::make_unique<GridRig>(contents);
    rig->panel->enableAdvanceSettings();
    rig->panel->lineIndex = 0;
    rig->tick();
    rig->emitted();
    return rig;
}

PanelFacts TestScrGridCtrlDialogSettings::facts() const
{
    QVariantMap values{{QStringLiteral("gridGreyLevel"), 255}, {QStringLiteral("gridSpeed"), 50}};
    for (const char *key : {"gridHorizontalChecked", "gridVerticalChecked", "gridSlantLeftChecked",
                            "gridSlantRightChecked", "isHorizontalPress", "isVerticalPress",
                            "isSlantLeftPress", "isSlantRightPress", "gridNetChecked",
                            "gridIsOldTest", "gridIsMix", "pushButtonPauseChecked"})
        values[QString::fromLatin1(key)] = false;
    values[QStringLiteral("gridIsScroll")] = true;
    return {values,
            "gridSpeed = 20\ngridGreyLevel = 100\n"
            "gridNetChecked = false\ngridHorizontalChecked = false\ngridVerticalChecked = true\n"
            "gridSlantLeftChecked = false\ngridSlantRightChecked = false\n"
            "gridIsOldTest = false\ngridIsScroll = true\ngridIsMix = false\n"
            "isHorizontalPress = false\nisVerticalPress = true\nisSlantLeftPress = false\n"
            "isSlantRightPress = false\npushButtonPauseChecked = true\n"
            "testWindowBaseColor = #00ff00\n",
            {"gradualChangeColor = #0000ff\n",
             "gridSpeed = 100000\ngridGreyLevel = -5\ngridIsScroll = maybe\n",
             "gridIsOldTest = true\ngridIsScroll = true\ngridSpeed = 100\n"},
            QStringLiteral("红|绿|蓝|白|黄|青|紫|横|竖|右斜|左斜|网格叠加|混测|老化|速度|速度|速度|"
                           "灰度|灰度|灰度|运行指示灯|运行指示灯|开始|高级设置")};
}

void TestScrGridCtrlDialogSettings::addEdits() const
{
    const char *const grey = "gridGreyLevel";
    edit("grey slider", "", "hScrollBarGrayLevel", 7, "signal_greyChanged(7)", grey, "7");
    edit("grey spin box", "", "labelGrayLevel", 9, "signal_greyChanged(9)", grey, "9");
    edit("Up", "", "slot_keyUpPressed", {}, "signal_greyChanged(101)", grey, "101");
    edit("speed slider", "", "hScrollBarSpeed", 9, "", "gridSpeed", "9");
    edit("speed spin box", "", "labelSpeed", 8, "", "gridSpeed", "8");
    edit("overlay", "", "netGridCheckBox", {}, "", "gridNetChecked", "true");
    edit("family", "", "radioButtonSlantLeft", {}, "", "gridSlantLeftChecked", "true");
    edit("pressed family", "", "radioButtonSlantRight", {}, "", "isSlantRightPress", "true");
    edit("aging", "", "pushButtonOld", {}, "", "gridIsOldTest", "true");
    edit("merged", "", "pushButtonMerged", {}, "", "gridIsMix", "true");
    edit("pause", "", "beginPushBtn", {}, "", "gridIsScroll", "false");
    edit("colour", "", "radioButtonBlue", {},
         "signal_colorChanged(#0000ff) signal_colorChanged(#0000ff)", "testWindowBaseColor",
         "#0000ff");
    edit("page key", "", "slot_changeColorByPageDown", {}, "", "gridHorizontalChecked", "true");
}

void TestScrGridCtrlDialogSettings::emptyFile_givesTheDefaults()
{
    GridRig rig;
    QCOMPARE(rig.greySpinBox()->value(), 255);
    QCOMPARE(rig.speedSpinBox()->value(), 50);
    QVERIFY(rig.overlay()->isChecked());
    QVERIFY(!rig.panel->getScroll());
    QVERIFY(!rig.panel->pushButtonPauseChecked);
    QCOMPARE(rig.panel->colorIndex, qint16(0));
    QCOMPARE(rig.panel->lineIndex, qint16(0));

    rig.greySlider()->setValue(0); // which is saved, though it is read as the default
    rig.close();
    QCOMPARE(rig.settings.stored().size(), 15);
    QCOMPARE(rig.settings.stored().value(QStringLiteral("gridGreyLevel")).toString(),
             QStringLiteral("0"));
}

void TestScrGridCtrlDialogSettings::greyAndSpeed_areRestored_data()
{
    const Table<QByteArray, int, int> row("stored", "grey", "speed");
    row("the smallest", "1", 1, 1);
    row("100", "100", 100, 100);
    row("0 means the default", "0", 255, 50);
    row("-5 means the default", "-5", 255, 50);
    row("too much", "100000", 255, 100);
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
    for (int index = 0; index < colorCount; ++index) {
        const QColor color(colors[index]);
        GridRig rig({{QStringLiteral("gradualChangeColor"), color}});
        QCOMPARE(rig.checkedColor(), index);
        QCOMPARE(int(rig.panel->colorIndex), index < 4 ? index : 0);
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

void TestScrGridCtrlDialogSettings::runAtFullSpeed_writesNothingUpToTheOperatorsChange()
{
    const QByteArray contents = "; by hand\n[setting]\n" + facts().stored;
    GridRig rig(contents);
    rig.panel->enableAdvanceSettings();
    rig.panel->slot_keyInsertPressed();
    rig.tick(20);
    QCOMPARE(rig.greySpinBox()->value(), 104);
    QVERIFY(!rig.isSaveDue());
    rig.settings->sync();
    QCOMPARE(rig.settings.bytes(), contents);

    rig.click(rig.colorButton(2));
    QVERIFY(rig.isSaveDue());
    QVERIFY(!rig.saved(QStringLiteral("pushButtonPauseChecked")).toBool()); // the run's, as well
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
