#include "gridrig.h"

#include <QtTest>

// The line families: buttons, overlay, page steps.
class TestScrGridCtrlDialogLines : public QObject
{
    Q_OBJECT

private slots:
    void inOverlayMode_theLastPressedFamilyStaysAndAnyOtherIsReleased_data();
    void inOverlayMode_theLastPressedFamilyStaysAndAnyOtherIsReleased();
    void inSingleMode_aClickShowsThatFamilyAlone_data();
    void inSingleMode_aClickShowsThatFamilyAlone();
    void inSingleMode_theShownFamilyStays();
    void uncheckingTheOverlayBox_keepsTheFirstPressedFamily_data();
    void uncheckingTheOverlayBox_keepsTheFirstPressedFamily();
    void uncheckingTheOverlayBox_withNothingPressedChangesNothing();
    void checkingTheOverlayBox_changesNothing();
    void familyClick_startsTheScrollingRun_data();
    void familyClick_startsTheScrollingRun();
    void toggledFamily_isDrawnOnTheOldColour();
    void familyClick_endsTheLinesThatATestHasShown_data();
    void familyClick_endsTheLinesThatATestHasShown();

    void pageStep_showsItsColourAndItsFamily_data();
    void pageStep_showsItsColourAndItsFamily();
    void pageSteps_runThroughSixteenPictures();
    void pageStep_ofAnotherColourOnlyEnablesTheControls_data();
    void pageStep_ofAnotherColourOnlyEnablesTheControls();
    void lineState_ofAnotherIndexDoesNothing_data();
    void lineState_ofAnotherIndexDoesNothing();
    void canclePageUpDownSelect_leavesACheckedVerticalOrSlantLeftButtonChecked();

    void pressSetters_rememberOneFamilyAlone_data();
    void pressSetters_rememberOneFamilyAlone();
    void gridBtnClick_pressesTheRememberedFamilies_data();
    void gridBtnClick_pressesTheRememberedFamilies();
    void gridBtnClick_withNothingRememberedDoesNothing();
};

void TestScrGridCtrlDialogLines::inOverlayMode_theLastPressedFamilyStaysAndAnyOtherIsReleased_data()
{
    QTest::addColumn<QString>("clicks");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *name, const char *clicks, const char *expected) {
        QTest::newRow(name) << QString::fromLatin1(clicks) << QString::fromLatin1(expected);
    };
    row("one", "H", "H");
    row("only horizontal pressed, horizontal again keeps it", "HH", "H");
    row("with horizontal and vertical, horizontal releases it", "HVH", "V");
    row("vertical alone", "VV", "V");
    row("slant left alone", "LL", "L");
    row("slant right alone", "RR", "R");
    row("vertical goes", "HVV", "H");
    row("slant left goes", "LRL", "R");
    row("slant right goes", "HRR", "H");
    row("all four", "HVLR", "HVLR");
    row("all four, then all but the last again", "HVLRHVL", "R");
    row("all four, then all again", "HVLRHVLR", "R");
    row("released and pressed", "HVHH", "HV");
}

void TestScrGridCtrlDialogLines::inOverlayMode_theLastPressedFamilyStaysAndAnyOtherIsReleased()
{
    QFETCH(const QString, clicks);
    QFETCH(const QString, expected);
    GridRig rig;
    QVERIFY(rig.overlay()->isChecked());
    rig.clickFamilies(clicks.toLatin1().constData());

    QCOMPARE(rig.checked(), expected);
    QCOMPARE(rig.pressed(), expected);
    QCOMPARE(rig.shown().families, expected);
}

void TestScrGridCtrlDialogLines::inSingleMode_aClickShowsThatFamilyAlone_data()
{
    QTest::addColumn<QString>("family");
    for (const char *family : {"H", "V", "L", "R"})
        QTest::newRow(family) << QString::fromLatin1(family);
}

void TestScrGridCtrlDialogLines::inSingleMode_aClickShowsThatFamilyAlone()
{
    QFETCH(const QString, family);
    GridRig rig;
    rig.click(rig.overlay());
    for (const char before : {'H', 'V', 'L', 'R'}) {
        rig.click(rig.familyButton(QLatin1Char(before)));
        rig.click(rig.familyButton(family.at(0)));
        QCOMPARE(rig.checked(), family);
        QCOMPARE(rig.pressed(), family);
        QCOMPARE(rig.shown().families, family);
    }
}

void TestScrGridCtrlDialogLines::inSingleMode_theShownFamilyStays()
{
    GridRig rig;
    rig.click(rig.overlay());
    rig.clickFamilies("RRR");

    QCOMPARE(rig.checked(), QStringLiteral("R"));
    QCOMPARE(rig.shown().families, QStringLiteral("R"));
}

void TestScrGridCtrlDialogLines::uncheckingTheOverlayBox_keepsTheFirstPressedFamily_data()
{
    QTest::addColumn<QString>("clicks");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *name, const char *clicks, const char *expected) {
        QTest::newRow(name) << QString::fromLatin1(clicks) << QString::fromLatin1(expected);
    };
    row("vertical and slant left pressed keeps vertical only", "VL", "V");
    row("in whatever order they were pressed", "LV", "V");
    row("all", "RLVH", "H");
    row("slants", "RL", "L");
    row("one", "R", "R");
}

void TestScrGridCtrlDialogLines::uncheckingTheOverlayBox_keepsTheFirstPressedFamily()
{
    QFETCH(const QString, clicks);
    QFETCH(const QString, expected);
    GridRig rig;
    rig.clickFamilies(clicks.toLatin1().constData());
    rig.click(rig.overlay());

    QVERIFY(!rig.overlay()->isChecked());
    QCOMPARE(rig.checked(), expected);
    QCOMPARE(rig.pressed(), expected);
    QCOMPARE(rig.shown().families, expected);
}

void TestScrGridCtrlDialogLines::uncheckingTheOverlayBox_withNothingPressedChangesNothing()
{
    const GridRig rig({{QStringLiteral("gridVerticalChecked"), true},
                       {QStringLiteral("gridSlantLeftChecked"), true}});
    rig.click(rig.overlay());

    QCOMPARE(rig.checked(), QStringLiteral("VL"));
    QCOMPARE(rig.pressed(), QString());
}

void TestScrGridCtrlDialogLines::checkingTheOverlayBox_changesNothing()
{
    GridRig rig;
    rig.click(rig.overlay());
    rig.clickFamilies("V");
    rig.click(rig.overlay());
    QCOMPARE(rig.checked(), QStringLiteral("V"));
    QCOMPARE(rig.pressed(), QStringLiteral("V"));

    rig.clickFamilies("L");
    QCOMPARE(rig.shown().families, QStringLiteral("VL"));
}

void TestScrGridCtrlDialogLines::familyClick_startsTheScrollingRun_data()
{
    QTest::addColumn<QString>("family");
    QTest::addColumn<bool>("aging");
    QTest::addColumn<bool>("overlay");
    for (const char *family : {"H", "V", "L", "R"}) {
        for (const bool aging : {false, true}) {
            for (const bool overlay : {false, true})
                QTest::addRow("%s after %s%s", family, aging ? "aging" : "merged",
                              overlay ? " in overlay" : "")
                    << QString::fromLatin1(family) << aging << overlay;
        }
    }
}

void TestScrGridCtrlDialogLines::familyClick_startsTheScrollingRun()
{
    QFETCH(const QString, family);
    QFETCH(const bool, aging);
    QFETCH(const bool, overlay);
    GridRig rig({{QStringLiteral("gridSpeed"), 100}, {QStringLiteral("gridNetChecked"), !overlay}});
    rig.click(aging ? rig.aging() : rig.merged());
    rig.panel->slot_stopPauseStatus();
    rig.panel->getDrawer();
    QCOMPARE(rig.runControls(), 0);
    QCOMPARE(rig.interval(), 160);
    rig.click(rig.familyButton(family.at(0)));

    QCOMPARE(rig.mode(), QStringLiteral("scrolling"));
    QVERIFY(rig.panel->getScroll());
    QCOMPARE(rig.runControls(), 1);
    QCOMPARE(rig.interval(), 14);
    const int before = rig.shown().offset;
    rig.tick();
    QCOMPARE(rig.shown().offset, before + 1);
}

void TestScrGridCtrlDialogLines::toggledFamily_isDrawnOnTheOldColour()
{
    GridRig rig;
    rig.drawer->slot_setBgColor(QColor(1, 2, 3));
    rig.clickFamilies("H");

    QCOMPARE(rig.shown().background, qRgb(1, 2, 3));
}

void TestScrGridCtrlDialogLines::familyClick_endsTheLinesThatATestHasShown_data()
{
    QTest::addColumn<bool>("overlay");
    QTest::newRow("overlay") << true;
    QTest::newRow("single") << false;
}

void TestScrGridCtrlDialogLines::familyClick_endsTheLinesThatATestHasShown()
{
    QFETCH(const bool, overlay);
    GridRig rig({{QStringLiteral("gridNetChecked"), !overlay}});
    rig.click(rig.merged());
    rig.tick(8); // seven colours and the horizontal lines
    QCOMPARE(rig.shown().families, QStringLiteral("H"));
    QCOMPARE(rig.checked(), QString());
    rig.clickFamilies("V");

    QCOMPARE(rig.checked(), QStringLiteral("V"));
    QCOMPARE(rig.shown().families, QStringLiteral("V"));
}

void TestScrGridCtrlDialogLines::pageStep_showsItsColourAndItsFamily_data()
{
    QTest::addColumn<int>("color");
    QTest::addColumn<int>("line");
    QTest::addColumn<QString>("family");
    QTest::addColumn<QRgb>("rgb");
    const QRgb colors[] = {qRgb(255, 0, 0), qRgb(0, 255, 0), qRgb(0, 0, 255), qRgb(255, 255, 255)};
    const char *families[] = {"H", "V", "L", "R"};
    for (int color = 0; color < 4; ++color) {
        for (int line = 0; line < 4; ++line)
            QTest::addRow("(%d,%d)", color, line)
                << color << line << QString::fromLatin1(families[line]) << colors[color];
    }
}

void TestScrGridCtrlDialogLines::pageStep_showsItsColourAndItsFamily()
{
    QFETCH(const int, color);
    QFETCH(const int, line);
    QFETCH(const QString, family);
    QFETCH(const QRgb, rgb);
    GridRig rig;
    rig.clickFamilies("HVLR");
    rig.panel->getDrawer();
    rig.panel->colorIndex = qint16(color);
    rig.panel->lineIndex = qint16(line);
    rig.panel->slot_changeColorByPageDown();

    QVERIFY(!rig.overlay()->isChecked());
    QVERIFY(rig.colorButton(color)->isChecked());
    QCOMPARE(rig.checked(), family);
    QCOMPARE(rig.pressed(), family);
    QCOMPARE(rig.runControls(), 1);
    QVERIFY(rig.panel->getScroll());
    QCOMPARE(rig.shown().families, family);
    QCOMPARE(rig.shown().line, rgb);
    QCOMPARE(rig.shown().background, qRgb(0, 0, 0));
    // The step stands where the page keys left it.
    QCOMPARE(int(rig.panel->colorIndex), color);
    QCOMPARE(int(rig.panel->lineIndex), line);
}

void TestScrGridCtrlDialogLines::pageSteps_runThroughSixteenPictures()
{
    GridRig rig;
    QStringList families;
    for (int step = 0; step < 16; ++step) {
        rig.panel->colorIndex = qint16(step / 4);
        rig.panel->lineIndex = qint16(step % 4);
        rig.panel->slot_changeColorByPageDown();
        rig.tick();
        QVERIFY(rig.drawer->active);
        QCOMPARE(rig.shown().offset, (step + 1) % 10);
        families << rig.shown().families;
    }
    QCOMPARE(families.join(QString()), QStringLiteral("HVLRHVLRHVLRHVLR"));
}

void TestScrGridCtrlDialogLines::pageStep_ofAnotherColourOnlyEnablesTheControls_data()
{
    QTest::addColumn<int>("color");
    for (const int color : {-1, 4, 6, 32767, -32768})
        QTest::addRow("%d", color) << color;
}

void TestScrGridCtrlDialogLines::pageStep_ofAnotherColourOnlyEnablesTheControls()
{
    QFETCH(const int, color);
    GridRig rig;
    rig.panel->colorIndex = qint16(color);
    rig.panel->slot_changeColorByPageDown();

    QCOMPARE(rig.runControls(), 1);
    QVERIFY(rig.panel->getScroll());
    QVERIFY(!rig.overlay()->isChecked());
    QCOMPARE(rig.checked(), QString());
    QVERIFY(rig.colorButton(0)->isChecked());
}

void TestScrGridCtrlDialogLines::lineState_ofAnotherIndexDoesNothing_data()
{
    QTest::addColumn<int>("line");
    for (const int line : {-1, 4, 32767, -32768})
        QTest::addRow("%d", line) << line;
}

void TestScrGridCtrlDialogLines::lineState_ofAnotherIndexDoesNothing()
{
    QFETCH(const int, line);
    const GridRig rig;
    rig.panel->lineIndex = qint16(line);
    rig.panel->slot_changeLineState();

    QCOMPARE(rig.checked(), QString());
    QVERIFY(!rig.panel->getScroll());
    QCOMPARE(rig.runControls(), 0);
}

void TestScrGridCtrlDialogLines::
    canclePageUpDownSelect_leavesACheckedVerticalOrSlantLeftButtonChecked()
{
    GridRig rig;
    rig.clickFamilies("HVLR");
    rig.panel->canclePageUpDownSelect();

    QCOMPARE(rig.checked(), QStringLiteral("VL"));
    QCOMPARE(rig.shown().families, QStringLiteral("VL"));
    rig.panel->canclePageUpDownSelect();
    QCOMPARE(rig.checked(), QStringLiteral("VL"));
}

void TestScrGridCtrlDialogLines::pressSetters_rememberOneFamilyAlone_data()
{
    QTest::addColumn<int>("setter");
    QTest::addColumn<QString>("expected");
    QTest::newRow("horizontal") << 0 << QStringLiteral("H");
    QTest::newRow("vertical") << 1 << QStringLiteral("V");
    QTest::newRow("slant left") << 2 << QStringLiteral("L");
    QTest::newRow("slant right") << 3 << QStringLiteral("R");
}

void TestScrGridCtrlDialogLines::pressSetters_rememberOneFamilyAlone()
{
    QFETCH(const int, setter);
    QFETCH(const QString, expected);
    const GridRig rig;
    rig.clickFamilies("HVLR");
    using Panel = ScrGridCtrlDialog;
    void (Panel::*const setters[])() = {&Panel::isHorizontalPressTrue, &Panel::isVerticalPressTrue,
                                        &Panel::isSlantLeftPressTrue,
                                        &Panel::isSlantRightPressTrue};
    (rig.panel.get()->*setters[setter])();

    QCOMPARE(rig.pressed(), expected);
    QCOMPARE(rig.checked(), QStringLiteral("HVLR"));
}

void TestScrGridCtrlDialogLines::gridBtnClick_pressesTheRememberedFamilies_data()
{
    QTest::addColumn<QString>("families");
    QTest::newRow("one") << QStringLiteral("V");
    QTest::newRow("two in overlay") << QStringLiteral("HV");
}

void TestScrGridCtrlDialogLines::gridBtnClick_pressesTheRememberedFamilies()
{
    QFETCH(const QString, families);
    const bool overlay = families.size() > 1;
    GridRig rig({{QStringLiteral("isHorizontalPress"), overlay},
                 {QStringLiteral("isVerticalPress"), true},
                 {QStringLiteral("gridNetChecked"), !overlay},
                 {QStringLiteral("gridIsOldTest"), true},
                 {QStringLiteral("gridSpeed"), 100}});
    QCOMPARE(rig.checked(), QString());
    QCOMPARE(rig.interval(), 160);
    rig.panel->gridBtnClick();

    QCOMPARE(rig.checked(), families);
    QCOMPARE(rig.shown().families, families);
    QCOMPARE(rig.interval(), 14);
    QVERIFY(rig.panel->getScroll());
    QCOMPARE(rig.runControls(), 1);
}

void TestScrGridCtrlDialogLines::gridBtnClick_withNothingRememberedDoesNothing()
{
    const GridRig rig;
    rig.panel->gridBtnClick();

    QCOMPARE(rig.checked(), QString());
    QVERIFY(!rig.panel->getScroll());
}

QTEST_MAIN(TestScrGridCtrlDialogLines)
#include "tst_scrgridctrldialog_lines.moc"
