#include "gradientrig.h"
#include "rows.h"

#include <QtTest>

#include <random>

class TestGradualChangeCtrlWidgetSettings : public QObject
{
    Q_OBJECT

private slots:
    void colourIndex_isThatOfThePageKeysAfterAStart_data() { addColorRows(); }
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
    const Table<QVariant, int> row("stored", "index");
    row("colour", QColor(Qt::yellow), 4);
    row("hexadecimal", QStringLiteral("#ffff00"), 4);
    row("upper case", QStringLiteral("#00FFFF"), 5);
    row("name", QStringLiteral("blue"), 2);
    row("of the other colour model", QColor::fromHsv(300, 255, 255), 6);
    row("empty", QString(), 0);
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
    const Table<QVariant> row("stored");
    row("another colour", QColor(1, 2, 3));
    row("translucent red", QColor(255, 0, 0, 128));
    row("invalid colour", QColor());
    row("no colour", QStringLiteral("nonsense"));
    row("number", 3);
    row("the Chinese name", QStringLiteral("红"));
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
    const Table<QVariant, int> row("stored", "level");
    row("least", 1, 1);
    row("not of the four", 100, 100);
    row("text of a number", QStringLiteral("64"), 64);
    row("greatest", 32767, 32767);
    row("one too many", 32768, 256);
    row("zero in sixteen bits", 65536, 256);
    row("64 in sixteen bits", 65600, 256);
    row("huge", 2147483647, 256);
    row("zero", 0, 256);
    row("negative", -1, 256);
    row("64 in sixteen bits, negative", -65472, 256);
    row("least int", -2147483647 - 1, 256);
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
