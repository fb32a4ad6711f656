#include "purityrig.h"

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
    void restore_ofAWrongModeStaysConsistent_data();
    void restore_ofAWrongModeStaysConsistent();
    void restore_ofTheColour_data();
    void restore_ofTheColour();
    void restore_ofAWrongColourGivesRed_data();
    void restore_ofAWrongColourGivesRed();
    void restore_ofAColourOutsideTheSevenLeavesAllButtonsAsTheyWere();
    void restore_paintsTheGreyOfTheMode_data();
    void restore_paintsTheGreyOfTheMode();
    void restore_startsNoRun();
};

void TestScrPurityCtrlDialogRestoring::restore_readsWhatIsStored_data()
{
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<int>("grey");
    QTest::addColumn<int>("speed");
    QTest::newRow("7") << QVariant(7) << 7 << 7;
    QTest::newRow("the smallest") << QVariant(1) << 1 << 1;
    QTest::newRow("100") << QVariant(100) << 100 << 100;
    QTest::newRow("text of a number") << QVariant(QStringLiteral("42")) << 42 << 42;
    QTest::newRow("a stored grey level of 0 reads back as 255") << QVariant(0) << 255 << 50;
    QTest::newRow("negative") << QVariant(-5) << 255 << 50;
    QTest::newRow("the least") << QVariant(-2147483647 - 1) << 255 << 50;
    QTest::newRow("beyond the ranges") << QVariant(256) << 255 << 100;
    QTest::newRow("the largest") << QVariant(2147483647) << 255 << 100;
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
    QTest::addColumn<QByteArray>("contents");
    QTest::addColumn<bool>("automatic");
    QTest::newRow("missing") << QByteArray("[setting]\n") << false;
    QTest::newRow("false") << iniLine("AutoTest", "false") << false;
    QTest::newRow("true") << iniLine("AutoTest", "true") << true;
    QTest::newRow("0") << iniLine("AutoTest", "0") << false;
    QTest::newRow("1") << iniLine("AutoTest", "1") << true;
}

void TestScrPurityCtrlDialogRestoring::restore_ofTheMode()
{
    QFETCH(const QByteArray, contents);
    QFETCH(const bool, automatic);
    const PurityRig rig(contents);

    QVERIFY(rig.hasControlsOf(automatic));
}

void TestScrPurityCtrlDialogRestoring::restore_ofAWrongModeStaysConsistent_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::newRow("text") << QByteArray("automatic");
    QTest::newRow("list") << QByteArray("true, false");
    QTest::newRow("huge") << QByteArray("99999999999999999999999");
    QTest::newRow("binary") << QByteArray(R"(@ByteArray(\0\x1\xff\0))");
    QTest::newRow("broken variant") << QByteArray(R"(@Variant(\0\0\0\x7f))");
}

void TestScrPurityCtrlDialogRestoring::restore_ofAWrongModeStaysConsistent()
{
    QFETCH(const QByteArray, value);
    const PurityRig rig(iniLine("AutoTest", value));

    QVERIFY(rig.automatic()->isChecked() != rig.manual()->isChecked());
    QVERIFY(rig.hasControlsOf(rig.automatic()->isChecked()));
    QVERIFY(!rig.timer());
}

void TestScrPurityCtrlDialogRestoring::restore_ofTheColour_data()
{
    addColorRows();
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

void TestScrPurityCtrlDialogRestoring::restore_ofAWrongColourGivesRed_data()
{
    QTest::addColumn<QByteArray>("contents");
    QTest::newRow("missing") << QByteArray("[setting]\n");
    QTest::newRow("no file contents") << QByteArray();
    QTest::newRow("not a settings file") << QByteArray("\x7f"
                                                       "ELF\0\1\2\3 garbage ]][[==",
                                                       24);
    for (const char *value :
         {"", "no colour", "1, 2, 3", "-7", "99999999999999999999999", R"(@ByteArray(\0\x1\xff\0))",
          "@Invalid()", "@Rect(9 9 9 9)", R"(@Variant(\0\0\0\x43\0\xff\xff\0\0\0\0\0\0\0\0))",
          R"(@Variant(\0\0\0\x7f))"})
        QTest::newRow(value) << iniLine("testWindowBaseColor", value);
}

void TestScrPurityCtrlDialogRestoring::restore_ofAWrongColourGivesRed()
{
    QFETCH(const QByteArray, contents);
    PurityRig rig(contents);

    QVERIFY(rig.colorButton(0)->isChecked());
    QCOMPARE(rig.panel->colorIndex, 0);
    QCOMPARE(rig.shownColor(), qRgb(255, 0, 0));
    QVERIFY(!rig.panel->puritySelected);
}

void TestScrPurityCtrlDialogRestoring::restore_ofAColourOutsideTheSevenLeavesAllButtonsAsTheyWere()
{
    const PurityRig rig({{QStringLiteral("testWindowBaseColor"), QColor(1, 2, 3)}});

    for (int index = 0; index < 7; ++index)
        QVERIFY(!rig.colorButton(index)->isChecked());
    QCOMPARE(rig.panel->colorIndex, 256);
}

void TestScrPurityCtrlDialogRestoring::restore_paintsTheGreyOfTheMode_data()
{
    QTest::addColumn<bool>("automatic");
    QTest::addColumn<int>("manualGrey");
    QTest::addColumn<int>("autoGrey");
    QTest::addColumn<int>("expected");
    QTest::newRow("manual 100, auto 200, manual") << false << 100 << 200 << 100;
    QTest::newRow("manual 100, auto 200, automatic") << true << 100 << 200 << 200;
    QTest::newRow("manual 255, auto 1, manual") << false << 255 << 1 << 255;
    QTest::newRow("manual 1, auto 255, manual") << false << 1 << 255 << 1;
    QTest::newRow("manual 1, auto 255, automatic") << true << 1 << 255 << 255;
    QTest::newRow("manual 255, auto 1, automatic") << true << 255 << 1 << 1;
    QTest::newRow("manual 60, auto 60, automatic") << true << 60 << 60 << 60;
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
