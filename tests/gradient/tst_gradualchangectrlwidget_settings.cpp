#include "gradientrig.h"

#include <QtTest>

#include <random>

class TestGradualChangeCtrlWidgetSettings : public QObject
{
    Q_OBJECT

private slots:
    void colourIndex_isThatOfThePageKeysAfterAStart_data();
    void colourIndex_isThatOfThePageKeysAfterAStart();
    void storedLevel_reachesTheTestWindowWithTheNextColour();
    void storedColour_isReadAsAName_data();
    void storedColour_isReadAsAName();
    void storedColourThatIsNoneOfTheSeven_selectsNothing_data();
    void storedColourThatIsNoneOfTheSeven_selectsNothing();
    void storedLevelOutOfRange_givesTheDefault_data();
    void storedLevelOutOfRange_givesTheDefault();
    void storedNonsense_neverCrashesOrHangs();
    void pageKeys_areSaved();
};

void TestGradualChangeCtrlWidgetSettings::colourIndex_isThatOfThePageKeysAfterAStart_data()
{
    addColorRows();
}

// Yellow, cyan and purple count as red there.
void TestGradualChangeCtrlWidgetSettings::colourIndex_isThatOfThePageKeysAfterAStart()
{
    QFETCH(const int, index);
    const GradientRig rig({{colorKey, QColor(colors[index])}});
    QCOMPARE(rig.checkedColor(), index);
    QCOMPARE(rig.panel->m_colorIndex, index < 4 ? index : 0);
}

void TestGradualChangeCtrlWidgetSettings::storedLevel_reachesTheTestWindowWithTheNextColour()
{
    GradientRig rig({{colorKey, QColor(Qt::green)}, {levelKey, 64}});
    QCOMPARE(rig.panel->m_level, qint16(64));
    QVERIFY(rig.shows(256, Qt::green));
    rig.click(rig.colorButton(2));
    QVERIFY(rig.shows(64, Qt::blue));
}

void TestGradualChangeCtrlWidgetSettings::storedColour_isReadAsAName_data()
{
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<int>("index");
    QTest::newRow("colour") << QVariant(QColor(Qt::yellow)) << 4;
    QTest::newRow("hexadecimal") << QVariant(QStringLiteral("#ffff00")) << 4;
    QTest::newRow("upper case") << QVariant(QStringLiteral("#00FFFF")) << 5;
    QTest::newRow("name") << QVariant(QStringLiteral("blue")) << 2;
    QTest::newRow("of the other colour model") << QVariant(QColor::fromHsv(300, 255, 255)) << 6;
    QTest::newRow("empty") << QVariant(QString()) << 0;
}

void TestGradualChangeCtrlWidgetSettings::storedColour_isReadAsAName()
{
    QFETCH(const QVariant, stored);
    QFETCH(const int, index);
    GradientRig rig({{colorKey, stored}});
    QCOMPARE(rig.checkedColor(), index);
    QVERIFY(rig.shows(256, colors[index]));
}

void TestGradualChangeCtrlWidgetSettings::storedColourThatIsNoneOfTheSeven_selectsNothing_data()
{
    QTest::addColumn<QVariant>("stored");
    QTest::newRow("another colour") << QVariant(QColor(1, 2, 3));
    QTest::newRow("translucent red") << QVariant(QColor(255, 0, 0, 128));
    QTest::newRow("invalid colour") << QVariant(QColor());
    QTest::newRow("no colour") << QVariant(QStringLiteral("nonsense"));
    QTest::newRow("number") << QVariant(3);
    QTest::newRow("the Chinese name") << QVariant(QStringLiteral("红"));
}

void TestGradualChangeCtrlWidgetSettings::storedColourThatIsNoneOfTheSeven_selectsNothing()
{
    QFETCH(const QVariant, stored);
    GradientRig rig({{colorKey, stored}, {levelKey, 128}});
    QCOMPARE(rig.checkedColor(), -1);
    QCOMPARE(rig.panel->m_colorIndex, 0);
    QCOMPARE(rig.panel->m_level, qint16(128));
    QVERIFY(!rig.panel->getDrawer()->active);

    rig.click(rig.colorButton(6));
    QVERIFY(rig.shows(128, Qt::magenta));
    rig.restart();
    QCOMPARE(rig.checkedColor(), 6);
}

void TestGradualChangeCtrlWidgetSettings::storedLevelOutOfRange_givesTheDefault_data()
{
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<int>("level");
    QTest::newRow("least") << QVariant(1) << 1;
    QTest::newRow("not of the four") << QVariant(100) << 100;
    QTest::newRow("text of a number") << QVariant(QStringLiteral("64")) << 64;
    QTest::newRow("greatest") << QVariant(32767) << 32767;
    QTest::newRow("one too many") << QVariant(32768) << 256;
    QTest::newRow("zero in sixteen bits") << QVariant(65536) << 256;
    QTest::newRow("64 in sixteen bits") << QVariant(65600) << 256;
    QTest::newRow("huge") << QVariant(2147483647) << 256;
    QTest::newRow("zero") << QVariant(0) << 256;
    QTest::newRow("negative") << QVariant(-1) << 256;
    QTest::newRow("64 in sixteen bits, negative") << QVariant(-65472) << 256;
    QTest::newRow("least int") << QVariant(-2147483647 - 1) << 256;
}

void TestGradualChangeCtrlWidgetSettings::storedLevelOutOfRange_givesTheDefault()
{
    QFETCH(const QVariant, stored);
    QFETCH(const int, level);
    GradientRig rig({{levelKey, stored}});
    QCOMPARE(rig.panel->m_level, qint16(level));
    rig.click(rig.colorButton(1));
    QVERIFY(rig.shows(level, Qt::green));
}

void TestGradualChangeCtrlWidgetSettings::storedNonsense_neverCrashesOrHangs()
{
    std::mt19937 engine(4711);
    const auto number = [&engine](int from, int to) {
        return std::uniform_int_distribution<int>(from, to)(engine);
    };
    const auto nonsense = [&number]() -> QVariant {
        if (number(0, 1) > 0)
            return number(-100000, 100000);
        QString text;
        for (int length = number(0, 12); length > 0; --length)
            text += QChar(number(1, 0x2ff));
        return text;
    };
    for (int run = 0; run < 80; ++run) {
        GradientRig rig({{colorKey, nonsense()}, {levelKey, nonsense()}});
        QVERIFY(rig.panel->m_level >= 1);
        rig.click(rig.colorButton(run % colorCount));
        QVERIFY(rig.shows(rig.panel->m_level, colors[run % colorCount]));
    }
}

void TestGradualChangeCtrlWidgetSettings::pageKeys_areSaved()
{
    GradientRig rig({{colorKey, QColor(Qt::red)}, {levelKey, 128}});
    rig.panel->m_level = 256;
    rig.panel->m_colorIndex = 0;
    rig.panel->slot_changeColorByPageDown(); // the colour stays, the levels are new
    QVERIFY(rig.isSaveDue());
}

QTEST_MAIN(TestGradualChangeCtrlWidgetSettings)
#include "tst_gradualchangectrlwidget_settings.moc"
