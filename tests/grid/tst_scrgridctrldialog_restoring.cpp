#include "gridrig.h"

#include <QtTest>

namespace {

QByteArray iniLines(const QList<QByteArray> &keys, const QByteArray &value)
{
    QByteArray lines("[setting]\n");
    for (const QByteArray &key : keys)
        lines += key + '=' + value + '\n';
    return lines;
}

const QList<QByteArray> &flags()
{
    static const QList<QByteArray> keys = {"gridNetChecked",        "gridHorizontalChecked",
                                           "gridVerticalChecked",   "gridSlantLeftChecked",
                                           "gridSlantRightChecked", "gridIsOldTest",
                                           "gridIsScroll",          "gridIsMix",
                                           "isHorizontalPress",     "isVerticalPress",
                                           "isSlantLeftPress",      "isSlantRightPress",
                                           "pushButtonPauseChecked"};
    return keys;
}

// Values that are not what any key holds.
const QList<QByteArray> &wrongValues()
{
    static const QList<QByteArray> values = {"",
                                             "grey",
                                             "12px",
                                             "1, 2, 3",
                                             "99999999999999999999999",
                                             R"(@ByteArray(\0\x1\xff\0))",
                                             "@Invalid()",
                                             "@Rect(9 9 9 9)",
                                             R"(@Variant(\0\0\0\x7f))"};
    return values;
}

} // namespace

// What the panel takes from the settings file at its start.
class TestScrGridCtrlDialogRestoring : public QObject
{
    Q_OBJECT

private slots:
    void emptyFile_startsAtGrey255AndSpeed50WithTheOverlayBoxChecked();
    void greyAndSpeed_areRestored_data();
    void greyAndSpeed_areRestored();
    void greyAndSpeed_ofAWrongTypeGiveTheDefaults_data();
    void greyAndSpeed_ofAWrongTypeGiveTheDefaults();
    void flags_ofAWrongTypeDoNoHarm_data();
    void flags_ofAWrongTypeDoNoHarm();
    void overlay_isStoredInverted_data();
    void overlay_isStoredInverted();
    void families_areRestored_data();
    void families_areRestored();
    void pressedFamilies_areRestored();
    void pause_isRestored_data();
    void pause_isRestored();
    void colour_isThatOfTheGradientTest_data();
    void colour_isThatOfTheGradientTest();
    void colour_asTextIsRestored();
    void colour_thatIsNoneLeavesRed_data();
    void colour_thatIsNoneLeavesRed();
    void test_isResumed_data();
    void test_isResumed();
    void test_isResumedAtTheSlowestSpeed();
    void pausedTest_staysPaused();
};

void TestScrGridCtrlDialogRestoring::emptyFile_startsAtGrey255AndSpeed50WithTheOverlayBoxChecked()
{
    const GridRig rig;
    QCOMPARE(rig.greySlider()->value(), 255);
    QCOMPARE(rig.greySpinBox()->value(), 255);
    QCOMPARE(rig.speedSlider()->value(), 50);
    QCOMPARE(rig.speedSpinBox()->value(), 50);
    QVERIFY(rig.overlay()->isChecked());
    QCOMPARE(rig.interval(), 364);
    QCOMPARE(rig.checked(), QString());
    QVERIFY(!rig.panel->getScroll());
    QVERIFY(!rig.panel->pushButtonPauseChecked);
    QCOMPARE(rig.pressed(), QString());
    QCOMPARE(rig.mode(), QStringLiteral("scrolling"));
}

void TestScrGridCtrlDialogRestoring::greyAndSpeed_areRestored_data()
{
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<int>("grey");
    QTest::addColumn<int>("speed");
    QTest::newRow("7") << QVariant(7) << 7 << 7;
    QTest::newRow("the smallest") << QVariant(1) << 1 << 1;
    QTest::newRow("100") << QVariant(100) << 100 << 100;
    QTest::newRow("text of a number") << QVariant(QStringLiteral("42")) << 42 << 42;
    QTest::newRow("0 means the default") << QVariant(0) << 255 << 50;
    QTest::newRow("-5 means the default") << QVariant(-5) << 255 << 50;
    QTest::newRow("too much") << QVariant(100000) << 255 << 100;
    QTest::newRow("the largest") << QVariant(2147483647) << 255 << 100;
    QTest::newRow("the least") << QVariant(-2147483647 - 1) << 255 << 50;
}

void TestScrGridCtrlDialogRestoring::greyAndSpeed_areRestored()
{
    QFETCH(const QVariant, stored);
    QFETCH(const int, grey);
    QFETCH(const int, speed);
    GridRig rig({{QStringLiteral("gridGreyLevel"), stored}, {QStringLiteral("gridSpeed"), stored}});

    QCOMPARE(rig.greySlider()->value(), grey);
    QCOMPARE(rig.greySpinBox()->value(), grey);
    QCOMPARE(rig.speedSlider()->value(), speed);
    QCOMPARE(rig.speedSpinBox()->value(), speed);
    QCOMPARE(rig.interval(), (102 - speed) * 7);
    rig.clickFamilies("H");
    QCOMPARE(rig.shown().line, qRgb(grey, 0, 0));
}

void TestScrGridCtrlDialogRestoring::greyAndSpeed_ofAWrongTypeGiveTheDefaults_data()
{
    QTest::addColumn<QByteArray>("value");
    for (const QByteArray &value : wrongValues())
        QTest::newRow(value.constData()) << value;
}

void TestScrGridCtrlDialogRestoring::greyAndSpeed_ofAWrongTypeGiveTheDefaults()
{
    QFETCH(const QByteArray, value);
    const GridRig rig(iniLines({"gridGreyLevel", "gridSpeed"}, value));

    QCOMPARE(rig.greySlider()->value(), 255);
    QCOMPARE(rig.speedSlider()->value(), 50);
}

void TestScrGridCtrlDialogRestoring::flags_ofAWrongTypeDoNoHarm_data()
{
    greyAndSpeed_ofAWrongTypeGiveTheDefaults_data();
}

void TestScrGridCtrlDialogRestoring::flags_ofAWrongTypeDoNoHarm()
{
    QFETCH(const QByteArray, value);
    QList<QByteArray> keys = flags();
    for (const char *box :
         {"Blue", "Cyan", "Green", "H", "Purple", "Red", "SL", "SR", "V", "White", "Yellow"})
        keys << QByteArray("checkBox") + box;
    GridRig rig(iniLines(keys, value));
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

void TestScrGridCtrlDialogRestoring::overlay_isStoredInverted_data()
{
    QTest::addColumn<bool>("stored");
    QTest::newRow("true") << true;
    QTest::newRow("false") << false;
}

void TestScrGridCtrlDialogRestoring::overlay_isStoredInverted()
{
    QFETCH(const bool, stored);
    const GridRig rig({{QStringLiteral("gridNetChecked"), stored}});

    QCOMPARE(rig.overlay()->isChecked(), !stored);
}

void TestScrGridCtrlDialogRestoring::families_areRestored_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("family");
    QTest::addColumn<int>("line");
    const auto row = [](const char *key, const char *family, int line) {
        QTest::newRow(key) << QString::fromLatin1(key) << QString::fromLatin1(family) << line;
    };
    row("gridHorizontalChecked", "H", 0);
    row("gridVerticalChecked", "V", 1);
    row("gridSlantLeftChecked", "L", 2);
    row("gridSlantRightChecked", "R", 3);
}

void TestScrGridCtrlDialogRestoring::families_areRestored()
{
    QFETCH(const QString, key);
    QFETCH(const QString, family);
    QFETCH(const int, line);
    GridRig rig({{key, true}});

    QCOMPARE(rig.checked(), family);
    QCOMPARE(int(rig.panel->lineIndex), line);
    QCOMPARE(rig.shown().families, family);
    QCOMPARE(rig.shown().line, qRgb(255, 0, 0));
    // The stored pause comes after the families.
    QVERIFY(!rig.panel->getScroll());
}

void TestScrGridCtrlDialogRestoring::pressedFamilies_areRestored()
{
    const GridRig rig(
        {{QStringLiteral("isHorizontalPress"), true}, {QStringLiteral("isSlantRightPress"), true}});

    QCOMPARE(rig.pressed(), QStringLiteral("HR"));
    QCOMPARE(rig.checked(), QString());
}

void TestScrGridCtrlDialogRestoring::pause_isRestored_data()
{
    overlay_isStoredInverted_data();
}

void TestScrGridCtrlDialogRestoring::pause_isRestored()
{
    QFETCH(const bool, stored);
    const GridRig rig({{QStringLiteral("pushButtonPauseChecked"), stored}});

    QCOMPARE(rig.panel->pushButtonPauseChecked, stored);
}

void TestScrGridCtrlDialogRestoring::colour_isThatOfTheGradientTest_data()
{
    QTest::addColumn<QColor>("color");
    QTest::addColumn<int>("button");
    QTest::addColumn<int>("index");
    QTest::newRow("red") << QColor(Qt::red) << 0 << 0;
    QTest::newRow("green") << QColor(Qt::green) << 1 << 1;
    QTest::newRow("blue") << QColor(Qt::blue) << 2 << 2;
    QTest::newRow("white") << QColor(Qt::white) << 3 << 3;
    QTest::newRow("yellow") << QColor(Qt::yellow) << 4 << 0;
    QTest::newRow("cyan") << QColor(Qt::cyan) << 5 << 0;
    QTest::newRow("purple") << QColor(Qt::magenta) << 6 << 0;
}

void TestScrGridCtrlDialogRestoring::colour_isThatOfTheGradientTest()
{
    QFETCH(const QColor, color);
    QFETCH(const int, button);
    QFETCH(const int, index);
    GridRig rig({{QStringLiteral("gradualChangeColor"), color},
                 {QStringLiteral("gridVerticalChecked"), true}});

    QVERIFY(rig.colorButton(button)->isChecked());
    QCOMPARE(int(rig.panel->colorIndex), index);
    QCOMPARE(rig.shown().line, color.rgba());
}

void TestScrGridCtrlDialogRestoring::colour_asTextIsRestored()
{
    const GridRig rig(iniLines({"gradualChangeColor"}, "#0000ff"));
    QVERIFY(rig.colorButton(2)->isChecked());
    QCOMPARE(int(rig.panel->colorIndex), 2);
}

void TestScrGridCtrlDialogRestoring::colour_thatIsNoneLeavesRed_data()
{
    QTest::addColumn<QByteArray>("value");
    for (const QByteArray &value : wrongValues())
        QTest::newRow(value.constData()) << value;
    QTest::newRow("another colour") << QByteArray("#010203");
}

void TestScrGridCtrlDialogRestoring::colour_thatIsNoneLeavesRed()
{
    QFETCH(const QByteArray, value);
    const GridRig rig(iniLines({"gradualChangeColor"}, value));

    QVERIFY(rig.colorButton(0)->isChecked());
    QCOMPARE(int(rig.panel->colorIndex), 0);
}

void TestScrGridCtrlDialogRestoring::test_isResumed_data()
{
    QTest::addColumn<bool>("aging");
    QTest::newRow("aging") << true;
    QTest::newRow("merged") << false;
}

// As the operator leaves it: the panel is closed in the middle of the test.
void TestScrGridCtrlDialogRestoring::test_isResumed()
{
    QFETCH(const bool, aging);
    GridRig rig({{QStringLiteral("gridSpeed"), 100}});
    rig.clickFamilies("HV");
    rig.click(aging ? rig.aging() : rig.merged());
    rig.tick(3);
    rig.restart();
    QCOMPARE(rig.mode(), aging ? QStringLiteral("aging") : QStringLiteral("merged"));
    QVERIFY(rig.panel->getScroll());
    QCOMPARE(rig.interval(), 160);
    rig.tick();
    QVERIFY(rig.drawer->active);
    QCOMPARE(rig.shown().background, qRgb(255, 0, 0));
    // And by its own timer.
    QTRY_COMPARE_WITH_TIMEOUT(rig.shown().background, qRgb(0, 255, 0), 10000);
}

// Which the slider has before it is restored.
void TestScrGridCtrlDialogRestoring::test_isResumedAtTheSlowestSpeed()
{
    const GridRig rig({{QStringLiteral("gridIsOldTest"), true}, {QStringLiteral("gridSpeed"), 1}});
    QCOMPARE(rig.interval(), 8080);
}

void TestScrGridCtrlDialogRestoring::pausedTest_staysPaused()
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

QTEST_MAIN(TestScrGridCtrlDialogRestoring)
#include "tst_scrgridctrldialog_restoring.moc"
