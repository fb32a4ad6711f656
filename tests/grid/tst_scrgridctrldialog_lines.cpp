#include "gridrig.h"

#include <QtTest>

namespace {

using Panel = ScrGridCtrlDialog;

QColor baseColor(const GridRig &rig)
{
    return rig.settings->value(QStringLiteral("/setting/testWindowBaseColor")).value<QColor>();
}

QString told(int index)
{
    return QStringLiteral("signal_colorChanged(%1)").arg(QColor(colors[index]).name());
}

} // namespace

// The lines: their families, their colours, and the page keys that step through both.
class TestScrGridCtrlDialogLines : public QObject
{
    Q_OBJECT

private slots:
    void families_areShownTogetherInOverlayAndAloneWithout();
    void overlayBox_keepsOnePressedFamilyAndBringsNone();
    void familyClick_startsTheScrollingRun();
    void pressSetters_rememberOneFamilyAlone();
    void gridBtnClick_pressesTheRememberedFamilies();

    void pageSteps_showTheirColourAndTheirFamily();
    void pageStep_ofAnotherColourOnlyEnablesTheControls();
    void lineState_ofAnotherIndexDoesNothing();
    void lineState_runsItsSlotTwice();
    void canclePageUpDownSelect_leavesVerticalAndSlantLeft();

    void colourClick_selectsIt();
    void colourChoice_keepsModeAndTimer();
    void sharedColour_checksItsButton();
    void sharedColour_outsideTheSevenIsIgnored();
    void colour_isTheBackgroundOfAPausedAgingTestOnly();
};

void TestScrGridCtrlDialogLines::families_areShownTogetherInOverlayAndAloneWithout()
{
    GridRig rig;
    const auto clickAndCompare = [&rig](const char *clicked, const char *expected) {
        rig.clickFamilies(clicked);
        QCOMPARE(rig.checked(), QLatin1String(expected));
        QCOMPARE(rig.pressed(), QLatin1String(expected));
        QCOMPARE(rig.shown().families, QLatin1String(expected));
    };
    QVERIFY(rig.overlay()->isChecked());
    clickAndCompare("H", "H");
    clickAndCompare("H", "H");
    clickAndCompare("VLR", "HVLR");
    clickAndCompare("VHR", "L");
    rig.click(rig.overlay());
    for (const char *family : {"L", "H", "V", "V", "L", "R", "H", "R", "L", "H"})
        clickAndCompare(family, family);
}

void TestScrGridCtrlDialogLines::overlayBox_keepsOnePressedFamilyAndBringsNone()
{
    GridRig rig({{QStringLiteral("gridHorizontalChecked"), true}});
    rig.click(rig.overlay());
    QCOMPARE(rig.checked(), QStringLiteral("H")); // which is not pressed
    rig.click(rig.overlay());
    rig.clickFamilies("LV");
    rig.click(rig.overlay());
    for (int times = 0; times < 2; ++times) {
        QCOMPARE(rig.checked(), QStringLiteral("V"));
        QCOMPARE(rig.pressed(), QStringLiteral("V"));
        QCOMPARE(rig.shown().families, QStringLiteral("V"));
        rig.click(rig.overlay());
    }
    rig.clickFamilies("L");
    QCOMPARE(rig.shown().families, QStringLiteral("L"));
}

void TestScrGridCtrlDialogLines::familyClick_startsTheScrollingRun()
{
    for (const char *family : {"H", "V", "L", "R"}) {
        for (int i = 0; i < 4; ++i) { // after either test, in overlay and without
            GridRig rig({{QStringLiteral("gridSpeed"), 100},
                         {QStringLiteral("gridNetChecked"), i % 2 == 0}});
            rig.drawer->slot_setBgColor(QColor(1, 2, 3));
            rig.click(rig.test(i < 2));
            // As after steps of the merged test.
            rig.drawer->setHoriLinesEnabled(true);
            rig.drawer->setVertLinesEnabled(true);
            rig.drawer->setSlantLeftLinesEnabled(true);
            rig.drawer->setSlantRightLinesEnabled(true);
            rig.panel->slot_stopPauseStatus();
            rig.panel->getDrawer();
            QCOMPARE(rig.runControls(), 0);
            QCOMPARE(rig.timer()->interval(), 160);
            rig.clickFamilies(family);
            QCOMPARE(rig.mode(), QStringLiteral("scrolling"));
            QVERIFY(rig.panel->getScroll());
            QCOMPARE(rig.runControls(), 1);
            QCOMPARE(rig.timer()->interval(), 14);
            QCOMPARE(rig.shown().families, QLatin1String(family));
            QCOMPARE(rig.shown().background, qRgb(1, 2, 3));
            rig.tick();
            QCOMPARE(rig.shown().offset, 1);
        }
    }
}

void TestScrGridCtrlDialogLines::pressSetters_rememberOneFamilyAlone()
{
    const GridRig rig;
    rig.clickFamilies("HVLR");
    const std::pair<void (Panel::*)(), const char *> setters[] = {
        {&Panel::isHorizontalPressTrue, "H"},
        {&Panel::isVerticalPressTrue, "V"},
        {&Panel::isSlantLeftPressTrue, "L"},
        {&Panel::isSlantRightPressTrue, "R"}};
    for (const auto &[setter, expected] : setters) {
        (rig.panel.get()->*setter)();
        QCOMPARE(rig.pressed(), QLatin1String(expected));
        QCOMPARE(rig.checked(), QStringLiteral("HVLR"));
    }
}

void TestScrGridCtrlDialogLines::gridBtnClick_pressesTheRememberedFamilies()
{
    for (const char *families : {"", "V", "HV"}) {
        const int count = int(qstrlen(families));
        GridRig rig({{QStringLiteral("isHorizontalPress"), count == 2},
                     {QStringLiteral("isVerticalPress"), count > 0},
                     {QStringLiteral("gridNetChecked"), count < 2},
                     {QStringLiteral("gridIsOldTest"), true},
                     {QStringLiteral("gridSpeed"), 100}});
        QCOMPARE(rig.checked(), QString());
        rig.panel->gridBtnClick();
        QCOMPARE(rig.checked(), QLatin1String(families));
        QCOMPARE(rig.shown().families, QLatin1String(families));
        QCOMPARE(rig.timer()->interval(), count ? 14 : 160);
        QCOMPARE(rig.panel->getScroll(), count > 0);
        QCOMPARE(rig.runControls(), count ? 1 : 0);
        QVERIFY(!rig.isSaveDue()); // not the operator's change
    }
}

void TestScrGridCtrlDialogLines::pageSteps_showTheirColourAndTheirFamily()
{
    GridRig rig;
    rig.clickFamilies("HVLR");
    for (int step = 0; step < 16; ++step) {
        rig.panel->getDrawer();
        rig.panel->colorIndex = qint16(step / 4);
        rig.panel->lineIndex = qint16(step % 4);
        rig.panel->slot_changeColorByPageDown();

        const QString family(QLatin1Char("HVLR"[step % 4]));
        QVERIFY(!rig.overlay()->isChecked());
        QVERIFY(rig.colorButton(step / 4)->isChecked());
        QCOMPARE(rig.checked(), family);
        QCOMPARE(rig.pressed(), family);
        QCOMPARE(rig.runControls(), 1);
        QVERIFY(rig.panel->getScroll());
        // The step stands where the page keys left it.
        QCOMPARE(int(rig.panel->colorIndex), step / 4);
        QCOMPARE(int(rig.panel->lineIndex), step % 4);
        rig.tick();
        QVERIFY(rig.drawer->active);
        const Picture shown = rig.shown();
        QCOMPARE(shown.families, family);
        QCOMPARE(shown.line, QColor(colors[step / 4]).rgba());
        QCOMPARE(shown.background, qRgb(0, 0, 0));
        QCOMPARE(shown.offset, (step + 1) % 10);
    }
}

void TestScrGridCtrlDialogLines::pageStep_ofAnotherColourOnlyEnablesTheControls()
{
    for (const int color : {-1, 4, 6, 32767, -32768}) {
        GridRig rig;
        rig.panel->colorIndex = qint16(color);
        rig.panel->slot_changeColorByPageDown();
        QCOMPARE(rig.runControls(), 1);
        QVERIFY(rig.panel->getScroll());
        QVERIFY(!rig.overlay()->isChecked());
        QCOMPARE(rig.checked(), QString());
        QVERIFY(rig.colorButton(0)->isChecked());
    }
}

void TestScrGridCtrlDialogLines::lineState_ofAnotherIndexDoesNothing()
{
    const GridRig rig;
    for (const int line : {-1, 4, 32767, -32768}) {
        rig.panel->lineIndex = qint16(line);
        rig.panel->slot_changeLineState();
        QCOMPARE(rig.checked(), QString());
        QVERIFY(!rig.panel->getScroll());
        QCOMPARE(rig.runControls(), 0);
    }
}

// In single mode the second run of the slot leaves what the first one has shown.
void TestScrGridCtrlDialogLines::lineState_runsItsSlotTwice()
{
    const GridRig rig;
    rig.clickFamilies("V");
    QVERIFY(rig.overlay()->isChecked());
    rig.panel->lineIndex = 0;
    rig.panel->slot_changeLineState();
    QCOMPARE(rig.checked(), QStringLiteral("V"));
    rig.overlay()->setChecked(false);
    rig.panel->slot_changeLineState();
    QCOMPARE(rig.checked(), QStringLiteral("H"));
}

void TestScrGridCtrlDialogLines::canclePageUpDownSelect_leavesVerticalAndSlantLeft()
{
    GridRig rig;
    rig.clickFamilies("HVLR");
    for (int times = 0; times < 2; ++times) {
        rig.panel->canclePageUpDownSelect();
        QCOMPARE(rig.checked(), QStringLiteral("VL"));
        QCOMPARE(rig.shown().families, QStringLiteral("VL"));
    }
}

void TestScrGridCtrlDialogLines::colourClick_selectsIt()
{
    for (int index = 0; index < colorCount; ++index) {
        GridRig rig;
        rig.clickFamilies("H");
        rig.panel->slot_stopPauseStatus();
        rig.panel->getDrawer();
        rig.emitted();
        rig.click(rig.colorButton(index));
        QCOMPARE(int(rig.panel->colorIndex), index);
        QCOMPARE(rig.checkedColor(), index);
        QCOMPARE(baseColor(rig), QColor(colors[index]));
        QCOMPARE(rig.runControls(), 1);
        QVERIFY(rig.panel->getScroll());
        QVERIFY(!rig.drawer->active); // up to the next tick
        QCOMPARE(rig.shown().line, QColor(colors[index]).rgba());
        QCOMPARE(rig.shown().background, qRgb(0, 0, 0));
        // For the check, and for the click; red was checked before.
        QCOMPARE(rig.emitted(),
                 (index == 0 ? QString() : told(index) + QLatin1Char(' ')) + told(index));
    }
}

void TestScrGridCtrlDialogLines::colourChoice_keepsModeAndTimer()
{
    const GridRig rig;
    rig.click(rig.merged());
    rig.panel->slot_stopPauseStatus();
    const QTimer *timer = rig.timer();
    rig.click(rig.colorButton(2));

    QCOMPARE(rig.mode(), QStringLiteral("merged"));
    QVERIFY(rig.panel->getScroll());
    QVERIFY(rig.timer() == timer);
}

void TestScrGridCtrlDialogLines::sharedColour_checksItsButton()
{
    for (int index = 0; index < colorCount; ++index) {
        GridRig rig;
        rig.click(rig.colorButton((index + 1) % colorCount));
        rig.panel->getDrawer();
        rig.emitted();
        rig.panel->slot_changeSelectedGridColor(colors[index]);
        QVERIFY(rig.colorButton(index)->isChecked());
        QCOMPARE(int(rig.panel->colorIndex), index);
        QCOMPARE(baseColor(rig), QColor(colors[index]));
        QCOMPARE(rig.emitted(), told(index));
        QCOMPARE(rig.runControls(), 1);
        // Checked already, it is stored and nothing else.
        rig.panel->getDrawer();
        rig.settings->setValue(QStringLiteral("/setting/testWindowBaseColor"), QColor(Qt::black));
        rig.panel->slot_changeSelectedGridColor(colors[index]);
        QCOMPARE(rig.emitted(), QString());
        QCOMPARE(rig.runControls(), 0);
        QCOMPARE(baseColor(rig), QColor(colors[index]));
    }
}

void TestScrGridCtrlDialogLines::sharedColour_outsideTheSevenIsIgnored()
{
    GridRig rig;
    rig.click(rig.colorButton(1));
    rig.panel->getDrawer();
    for (const QColor &color : {QColor(), QColor(Qt::black), QColor(254, 0, 0),
                                QColor(255, 0, 0, 128), QColor(Qt::red).toHsv()}) {
        rig.panel->slot_changeSelectedGridColor(color);
        QVERIFY(rig.colorButton(1)->isChecked());
        QCOMPARE(int(rig.panel->colorIndex), 1);
        QCOMPARE(baseColor(rig), QColor(Qt::green));
        QCOMPARE(rig.runControls(), 0);
    }
}

void TestScrGridCtrlDialogLines::colour_isTheBackgroundOfAPausedAgingTestOnly()
{
    GridRig rig({{QStringLiteral("gridGreyLevel"), 100}});
    rig.click(rig.merged());
    rig.tick();
    rig.panel->slot_stopPauseStatus();
    rig.panel->slot_colorChanged(Qt::blue);
    QCOMPARE(rig.shown().background, qRgb(100, 0, 0));

    rig.click(rig.aging());
    QCOMPARE(rig.nextShown(), QStringLiteral("#640000"));
    rig.click(rig.colorButton(5)); // overridden by the next step
    QCOMPARE(rig.shown().background, qRgb(100, 0, 0));
    QCOMPARE(rig.nextShown(), QStringLiteral("#006400"));

    rig.panel->slot_stopPauseStatus();
    rig.click(rig.colorButton(4));
    QCOMPARE(rig.shown().background, qRgb(100, 100, 0));
    QCOMPARE(rig.shown().families, QString());
    QCOMPARE(rig.mode(), QStringLiteral("aging"));
    QVERIFY(rig.panel->getScroll());
    rig.panel->slot_stopPauseStatus();
    rig.panel->slot_colorChanged(QColor(1, 2, 3));
    QCOMPARE(rig.shown().background, qRgb(1, 2, 3));
}

QTEST_MAIN(TestScrGridCtrlDialogLines)
#include "tst_scrgridctrldialog_lines.moc"
