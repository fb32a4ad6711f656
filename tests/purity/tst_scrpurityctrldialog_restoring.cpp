#include "paneltest.h"
#include "purityrig.h"
#include "rows.h"

#include <QtTest>

namespace {

QByteArray iniLine(const char *key, const QByteArray &value)
{
    return QByteArray("[setting]\n") + key + '=' + value + '\n';
}

} // namespace

class TestScrPurityCtrlDialogRestoring : public QObject
{
    Q_OBJECT

private slots:
    void restore_readsWhatIsStored_data();
    void restore_readsWhatIsStored();
    void restore_ofTheMode_data();
    void restore_ofTheMode();
    void restore_ofAWrongModeStaysConsistent_data() { addWrongValues(); }
    void restore_ofAWrongModeStaysConsistent();
    void restore_ofTheColour_data() { addColorRows(); }
    void restore_ofTheColour();
    void restore_ofAWrongColourGivesRed_data() { addWrongValues(); }
    void restore_ofAWrongColourGivesRed();
    void restore_ofAColourOutsideTheSevenLeavesAllButtonsAsTheyWere();
    void restore_paintsTheGreyOfTheMode_data();
    void restore_paintsTheGreyOfTheMode();
    void restore_startsNoRun();
};

void TestScrPurityCtrlDialogRestoring::restore_readsWhatIsStored_data()
{
    const Table<QVariant, int, int> row("stored", "grey", "speed");
    row("7", 7, 7, 7);
    row("the smallest", 1, 1, 1);
    row("100", 100, 100, 100);
    row("text of a number", QStringLiteral("42"), 42, 42);
    row("a stored grey level of 0 reads back as 255", 0, 255, 50);
    row("negative", -5, 255, 50);
    row("the least", -2147483647 - 1, 255, 50);
    row("beyond the ranges", 256, 255, 100);
    row("the largest", 2147483647, 255, 100);
}

void TestScrPurityCtrlDialogRestoring::restore_readsWhatIsStored()
{
    QFETCH(const QVariant, stored);
    QFETCH(const int, grey);
    QFETCH(const int, speed);
    const PurityRig rig({{QStringLiteral("testPurityGreyLevel"), stored},
                         {QStringLiteral("testPuritySpeed"), stored},
                         {QStringLiteral("testAutoScale"), stored}});

    QCOMPARE(rig.greySlider()->value(), grey);
    QCOMPARE(rig.greySpinBox()->value(), grey);
    QCOMPARE(rig.autoSpinBox()->value(), grey);
    QCOMPARE(rig.speedSlider()->value(), speed);
    QCOMPARE(rig.speedSpinBox()->value(), speed);
}

void TestScrPurityCtrlDialogRestoring::restore_ofTheMode_data()
{
    const Table<QByteArray, bool> row("contents", "automatic");
    row("missing", "[setting]\n", false);
    row("false", iniLine("AutoTest", "false"), false);
    row("true", iniLine("AutoTest", "true"), true);
    row("0", iniLine("AutoTest", "0"), false);
    row("1", iniLine("AutoTest", "1"), true);
}

void TestScrPurityCtrlDialogRestoring::restore_ofTheMode()
{
    QFETCH(const QByteArray, contents);
    QFETCH(const bool, automatic);
    const PurityRig rig(contents);

    QVERIFY(rig.hasControlsOf(automatic));
}

void TestScrPurityCtrlDialogRestoring::restore_ofAWrongModeStaysConsistent()
{
    QFETCH(const QByteArray, value);
    const PurityRig rig(iniLine("AutoTest", value));

    QVERIFY(rig.automatic()->isChecked() != rig.manual()->isChecked());
    QVERIFY(rig.hasControlsOf(rig.automatic()->isChecked()));
    QVERIFY(!rig.timer());
}

void TestScrPurityCtrlDialogRestoring::restore_ofTheColour()
{
    QFETCH(const int, index);
    const QColor color(colors[index]);
    PurityRig rig({{QStringLiteral("testWindowBaseColor"), color}});

    QVERIFY(rig.colorButton(index)->isChecked());
    QCOMPARE(rig.panel->colorIndex, index);
    QCOMPARE(rig.shownColor(), color.rgba());
    QVERIFY(!rig.panel->puritySelected);
}

void TestScrPurityCtrlDialogRestoring::restore_ofAWrongColourGivesRed()
{
    QFETCH(const QByteArray, value);
    for (const QByteArray &contents :
         {iniLine("testWindowBaseColor", value), QByteArray("[setting]\n"), QByteArray()}) {
        PurityRig rig(contents);
        QCOMPARE(rig.checkedColor(), 0);
        QCOMPARE(rig.panel->colorIndex, 0);
        QCOMPARE(rig.shownColor(), qRgb(255, 0, 0));
        QVERIFY(!rig.panel->puritySelected);
    }
}

void TestScrPurityCtrlDialogRestoring::restore_ofAColourOutsideTheSevenLeavesAllButtonsAsTheyWere()
{
    const PurityRig rig({{QStringLiteral("testWindowBaseColor"), QColor(1, 2, 3)}});

    QCOMPARE(rig.checkedColor(), -1);
    QCOMPARE(rig.panel->colorIndex, 256);
}

void TestScrPurityCtrlDialogRestoring::restore_paintsTheGreyOfTheMode_data()
{
    const Table<bool, int, int, int> row("automatic", "manualGrey", "autoGrey", "expected");
    row("manual 100, auto 200, manual", false, 100, 200, 100);
    row("manual 100, auto 200, automatic", true, 100, 200, 200);
    row("manual 255, auto 1, manual", false, 255, 1, 255);
    row("manual 1, auto 255, manual", false, 1, 255, 1);
    row("manual 1, auto 255, automatic", true, 1, 255, 255);
    row("manual 255, auto 1, automatic", true, 255, 1, 1);
    row("manual 60, auto 60, automatic", true, 60, 60, 60);
}

void TestScrPurityCtrlDialogRestoring::restore_paintsTheGreyOfTheMode()
{
    QFETCH(const bool, automatic);
    QFETCH(const int, manualGrey);
    QFETCH(const int, autoGrey);
    QFETCH(const int, expected);
    PurityRig rig({{QStringLiteral("AutoTest"), automatic},
                   {QStringLiteral("testWindowBaseColor"), QColor(Qt::white)},
                   {QStringLiteral("testPurityGreyLevel"), manualGrey},
                   {QStringLiteral("testAutoScale"), autoGrey}});

    QCOMPARE(rig.shownColor(), qRgb(expected, expected, expected));
}

void TestScrPurityCtrlDialogRestoring::restore_startsNoRun()
{
    const PurityRig rig({{QStringLiteral("AutoTest"), true},
                         {QStringLiteral("testPuritySpeed"), 100},
                         {QStringLiteral("testAutoScale"), 34}});

    QVERIFY(rig.hasControlsOf(true));
    QVERIFY(!rig.timer());
    QCOMPARE(rig.beginButton()->text(), QStringLiteral("开始"));
    QCOMPARE(rig.autoSpinBox()->value(), 34);
    QVERIFY(rig.greenLamp()->isHidden());
    QVERIFY(!rig.panel->puritySelected);
}

QTEST_MAIN(TestScrPurityCtrlDialogRestoring)
#include "tst_scrpurityctrldialog_restoring.moc"
